// Writes records: every field of a record in the order of its rows.
#include "records/Encoder.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "ClientUtils.h"
#include "convert/EnumTexts.h"
#include "records/Kinds.h"
#include "xml/Appender.h"
#include "xml/Building.h"

namespace journal {
namespace {

JOURNAL_INLINE inline std::string_view textOfField(Content content, void const* field) {
  switch (content) {
  case Content::flag:
    return textOf(*static_cast<bool const*>(field));
  case Content::numberType:
    return textOf(*static_cast<NumberType::NT const*>(field));
  case Content::targetLog:
    return textOf(*static_cast<CallLogEntryEvent::_LogTarget const*>(field));
  case Content::presentation:
    return textOf(*static_cast<CallLogEntryEvent::_PresentationValue const*>(field));
  case Content::timeFormat:
    return textOf(*static_cast<CallLogEntryEvent::_TFormat const*>(field));
  case Content::text:
    break;
  }
  return *static_cast<std::string const*>(field);
}

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

/// What one message's encoding keeps.
class Writer {
public:
  explicit Writer(std::string& out, std::size_t ahead = 0) : appender(out, ahead) {}

  /// What the utility library makes of an empty text: an empty one, if it is like others, but it is
  /// the library's to say. Many names are empty, so it is asked once.
  std::string_view escapedNothing() {
    if (!asked_) {
      nothing_ = ClientUtils::escapeXMLString(nothing_);
      asked_ = true;
    }
    return nothing_;
  }

  Appender appender;

private:
  std::string nothing_;
  bool asked_ = false;
};

/// The texts of a record's fields in the order of its rows: views into the record, the vocabulary
/// and the escaped texts, which are kept here.
template <auto const& rows, class Record>
class FieldTexts {
public:
  FieldTexts(Record const& record, Writer& writer) {
    auto nextEscaped = escaped_.begin();
    visitRows<rows>([&](Field<Record> const& row, std::size_t index) JOURNAL_INLINE {
      texts_[index] = textOfField(row.content, row.in(record));
      if (row.writing == Writing::escaped) {
        if (texts_[index].empty())
          texts_[index] = writer.escapedNothing();
        else
          texts_[index] = *nextEscaped++ = ClientUtils::escapeXMLString(record.*row.member.text);
      }
      size_ += texts_[index].size();
      return true;
    });
  }

  /// The most that the elements can take: all tags and all texts.
  std::size_t bound() const { return sizeOfTags<rows>() + size_ + MemberText::room; }

  /// Writes the elements, empty ones left out, and returns where they end.
  JOURNAL_INLINE inline char* put(char* at) const {
    visitRows<rows>([&](Field<Record> const& row, std::size_t index) JOURNAL_INLINE {
      auto const text = texts_[index];
      if (text.empty())
        return true;
      at = journal::put(at, row.element.begin);
      if (row.content == Content::text) {
        at = journal::put(at, text);
      } else {
        // As a whole, whatever its size: that takes two instructions.
        std::memcpy(at, text.data(), MemberText::room);
        at += text.size();
      }
      at = journal::put(at, row.element.close);
      return true;
    });
    return at;
  }

private:
  std::array<std::string_view, std::size(rows)> texts_;
  std::array<std::string, escapedTexts<rows>()> escaped_;
  std::size_t size_ = 0;
};

/// Appends a record's elements between two texts.
template <auto const& rows, class Record>
void appendFields(std::string_view before, Record const& record, std::string_view behind,
                  Writer& writer) {
  FieldTexts<rows, Record> const fields(record, writer);
  writer.appender.append(before.size() + fields.bound() + behind.size(),
                         [&](char* at) { return put(fields.put(put(at, before)), behind); });
}

template <class Item>
void appendInfoList(Item const& item, Writer& writer) {
  writer.appender.append(element<word::LOGLIST>.begin);
  for (auto const& info : item.callInfoList)
    appendFields<Kind<Item>::detail>(element<word::ITEM>.begin, info, element<word::ITEM>.close,
                                     writer);
  writer.appender.append(element<word::LOGLIST>.close);
}

template <class Item>
void appendItemBody(Item const& item, Writer& writer) {
  appendFields<Kind<Item>::entry>("", item, "", writer);
  appendInfoList(item, writer);
}

} // namespace

template <class Item>
void appendInfoList(Item const& item, std::string& out) {
  Writer writer(out);
  appendInfoList(item, writer);
}

template <class Item>
void appendItemBody(Item const& item, std::string& out, bool uniqueIdOnly) {
  if (!uniqueIdOnly) {
    Writer writer(out);
    appendItemBody(item, writer);
  } else if (!item.uniqueId.empty()) {
    append(out, {element<word::UNIQUEID>.begin, item.uniqueId, element<word::UNIQUEID>.close});
  }
}

template <class Item>
void appendEntries(std::deque<Item> const& items, std::string& out) {
  constexpr std::size_t ahead = 2048; // some records' worth
  Writer writer(out, ahead);
  for (auto const& item : items) {
    writer.appender.append(element<word::ENTRY>.begin);
    appendItemBody(item, writer);
    writer.appender.append(element<word::ENTRY>.close);
  }
}

template void appendEntries(std::deque<MissedCallItem> const&, std::string&);
template void appendInfoList(MissedCallItem const&, std::string&);
template void appendItemBody(MissedCallItem const&, std::string&, bool);
template void appendEntries(std::deque<DialledCallItem> const&, std::string&);
template void appendInfoList(DialledCallItem const&, std::string&);
template void appendItemBody(DialledCallItem const&, std::string&, bool);
template void appendEntries(std::deque<ReceivedCallItem> const&, std::string&);
template void appendInfoList(ReceivedCallItem const&, std::string&);
template void appendItemBody(ReceivedCallItem const&, std::string&, bool);
template void appendEntries(std::deque<ForwardedCallItem> const&, std::string&);
template void appendInfoList(ForwardedCallItem const&, std::string&);
template void appendItemBody(ForwardedCallItem const&, std::string&, bool);

} // namespace journal
