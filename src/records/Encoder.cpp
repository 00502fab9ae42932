// Writes records: every field of a record in the order of its rows.
#include "records/Encoder.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "ClientUtils.h"
#include "convert/EnumTexts.h"
#include "records/Kinds.h"
#include "xml/Building.h"

namespace journal {
namespace {

template <auto const& rows>
constexpr std::size_t escapedTexts() {
  std::size_t count = 0;
  for (auto const& row : rows)
    count += row.writing == Writing::escaped ? 1U : 0U;
  return count;
}

template <auto const& rows>
constexpr std::size_t sizeOfTags() {
  std::size_t size = 0;
  for (auto const& row : rows)
    size += row.element.begin.size() + row.element.close.size();
  return size;
}

/// The texts of a record's fields in the order of its rows: views into the record, the vocabulary
/// and the escaped texts, which are kept here.
template <auto const& rows, class Record>
class FieldTexts {
public:
  explicit FieldTexts(Record const& record) {
    auto nextEscaped = escaped_.begin();
    visitRows<rows>([&](Field<Record> const& row, std::size_t index) JOURNAL_INLINE {
      if (row.writing == Writing::escaped)
        texts_[index] = *nextEscaped++ = ClientUtils::escapeXMLString(record.*row.member.text);
      else
        texts_[index] = textOfField(row, record);
      size_ += texts_[index].size();
      return true;
    });
  }

  /// The most that the elements can take: all tags and all texts.
  std::size_t bound() const { return sizeOfTags<rows>() + size_; }

  /// Writes the elements, empty ones left out, and returns where they end.
  char* put(char* at) const {
    visitRows<rows>([&](Field<Record> const& row, std::size_t index) JOURNAL_INLINE {
      if (auto const text = texts_[index]; !text.empty())
        at = putElement(at, row.element, text);
      return true;
    });
    return at;
  }

private:
  static std::string_view textOfField(Field<Record> const& row, Record const& record) {
    switch (row.content) {
    case Content::flag:
      return record.*row.member.flag ? word::TRUE : word::FALSE;
    case Content::numberType:
      return textOf(record.*row.member.numberType);
    case Content::targetLog:
      return textOf(record.*row.member.targetLog);
    case Content::presentation:
      return textOf(record.*row.member.presentation);
    case Content::timeFormat:
      return textOf(record.*row.member.timeFormat);
    case Content::text:
      break;
    }
    return record.*row.member.text;
  }

  std::array<std::string_view, std::size(rows)> texts_;
  std::array<std::string, escapedTexts<rows>()> escaped_;
  std::size_t size_ = 0;
};

template <class Info, auto const& rows>
void appendDetail(Info const& info, std::string& out) {
  constexpr auto item = element<word::ITEM>;
  FieldTexts<rows, Info> const fields(info);
  appendWithin(out, item.begin.size() + fields.bound() + item.close.size(),
               [&](char* at) { return put(fields.put(put(at, item.begin)), item.close); });
}

} // namespace

template <class Item>
void appendInfoList(Item const& item, std::string& out) {
  out.append(element<word::LOGLIST>.begin);
  for (auto const& info : item.callInfoList)
    appendDetail<typename Kind<Item>::Info, Kind<Item>::detail>(info, out);
  out.append(element<word::LOGLIST>.close);
}

template <class Item>
void appendItemBody(Item const& item, std::string& out, bool uniqueIdOnly) {
  if (uniqueIdOnly) {
    if (!item.uniqueId.empty())
      append(out, {element<word::UNIQUEID>.begin, item.uniqueId, element<word::UNIQUEID>.close});
    return;
  }
  FieldTexts<Kind<Item>::entry, Item> const fields(item);
  appendWithin(out, fields.bound(), [&](char* at) { return fields.put(at); });
  appendInfoList(item, out);
}

template void appendInfoList(MissedCallItem const&, std::string&);
template void appendItemBody(MissedCallItem const&, std::string&, bool);
template void appendInfoList(DialledCallItem const&, std::string&);
template void appendItemBody(DialledCallItem const&, std::string&, bool);
template void appendInfoList(ReceivedCallItem const&, std::string&);
template void appendItemBody(ReceivedCallItem const&, std::string&, bool);
template void appendInfoList(ForwardedCallItem const&, std::string&);
template void appendItemBody(ForwardedCallItem const&, std::string&, bool);

} // namespace journal
