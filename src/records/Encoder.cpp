// Writes records: every field of a record in the order of its rows.
#include "records/Encoder.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "ClientUtils.h"
#include "records/Kinds.h"
#include "records/Walks.h"
#include "xml/Appender.h"
#include "xml/Building.h"
#include "xml/Remake.h"

namespace journal {
namespace {

JOURNAL_INLINE inline MemberText const& memberIn(void const* record, Field const& row) {
  auto const& enumeration = enumerationOf(row.content());
  if (row.content() == Content::flag)
    return enumeration.textOf(*static_cast<bool const*>(row.in(record)));
  Enumeration::Value value;
  std::memcpy(&value, row.in(record), sizeof value);
  return enumeration.textOf(value);
}

/// Writes a member's text as a whole, whatever its size: that takes two instructions.
JOURNAL_INLINE inline char* put(char* at, MemberText const& text) {
  std::memcpy(at, std::string_view(text).data(), sizeof text);
  return at + text.size();
}

template <class Rows>
constexpr std::size_t escapedTexts(Rows const& rows) {
  std::size_t count = 0;
  for (auto const& row : rows)
    if (row.writing == Writing::escaped)
      ++count;
  return count;
}

/// Writes the records of one message.
class Writer {
public:
  static constexpr std::size_t mostEscaped = 2; // texts of one record

  explicit Writer(std::string& out, std::size_t ahead = 0) : appender_(out, ahead) {}

  void append(std::string_view text) { appender_.append(text); }

  /// Appends a record's elements, empty ones left out, between two texts.
  template <class Rows>
  void append(std::string_view before, Rows rows, void const* record, std::string_view behind) {
    auto const escaped = escape(rows, record);
    auto const bound = before.size() + boundOf(rows, record, escaped) + behind.size();
    auto* const fields = putTag(appender_.room(bound), before);
    appender_.endAt(putTag(putRecord(fields, rows, record, escaped), behind));
  }

private:
  /// What became of a record's escaped texts, in the order of its rows.
  using Escaped = std::array<std::string_view, mostEscaped>;

  /// What is written of a text: the text itself or, taking the next in turn, what became of it.
  using Texts = std::string_view const*;
  JOURNAL_INLINE static inline std::string_view textIn(void const* record, Field const& row,
                                                       Texts& escaped) {
    return row.writing == Writing::escaped ? *escaped++
                                           : *static_cast<std::string const*>(row.in(record));
  }

  template <class Rows>
  JOURNAL_INLINE inline Escaped escape(Rows rows, void const* record) {
    Escaped escaped;
    std::size_t next = 0;
    forEach(rows, [&](Field const& row) JOURNAL_INLINE {
      if (row.writing != Writing::escaped)
        return;
      auto const& text = *static_cast<std::string const*>(row.in(record));
      escaped[next] = text.empty() ? std::string_view(nothing_) : keep(next, text);
      ++next;
    });
    return escaped;
  }

  std::string_view keep(std::size_t index, std::string const& text) {
    remake(kept_[index], ClientUtils::escapeXMLString, text);
    return kept_[index];
  }

  /// The most that a record's elements can take: all tags and all texts.
  template <class Rows>
  JOURNAL_INLINE static inline std::size_t boundOf(Rows rows, void const* record,
                                                   Escaped const& escaped) {
    std::size_t bound = 0;
    Texts next = escaped.data();
    forEach(rows, [&](Field const& row) JOURNAL_INLINE {
      bound += row.element.begin().size() + row.element.close().size();
      bound +=
          row.content() == Content::text ? textIn(record, row, next).size() : sizeof(MemberText);
    });
    return bound;
  }

  template <class Rows>
  JOURNAL_INLINE static inline char* putRecord(char* at, Rows rows, void const* record,
                                               Escaped const& escaped) {
    Texts next = escaped.data();
    forEach(rows, [&](Field const& row) JOURNAL_INLINE {
      if (row.content() == Content::text) {
        auto const text = textIn(record, row, next);
        if (text.empty())
          return;
        at = putTag(at, row.element.begin());
        at = putText(at, text);
      } else {
        at = putTag(at, row.element.begin());
        at = put(at, memberIn(record, row));
      }
      at = putTag(at, row.element.close());
    });
    return at;
  }

  Appender appender_;
  std::array<std::string, mostEscaped> kept_; // a record's escaped texts
  // What the utility library makes of an empty text is its to say: an empty one, if it is like
  // others. Many names are empty, so it is asked once.
  std::string const nothing_ = ClientUtils::escapeXMLString({});
};

/// The records of a kind for a writer that does not know their types.
struct Layout {
  void (*appendFields)(Writer& writer, void const* item);
  void (*appendInfos)(Writer& writer, void const* item);
};

template <class Item>
struct Records {
  static_assert(escapedTexts(Kind<Item>::entry) <= Writer::mostEscaped &&
                escapedTexts(Kind<Item>::detail) <= Writer::mostEscaped);

  static void appendFields(Writer& writer, void const* item) {
    writer.append("", rowsOf<Kind<Item>::entry>(), item, "");
  }
  static void appendInfos(Writer& writer, void const* item) {
    for (auto const& info : static_cast<Item const*>(item)->callInfoList)
      writer.append(element<word::ITEM>.begin(), rowsOf<Kind<Item>::detail>(), &info,
                    element<word::ITEM>.close());
  }
  static constexpr Layout layout = {appendFields, appendInfos};
};

void appendInfoList(Writer& writer, Layout const& layout, void const* item) {
  writer.append(element<word::LOGLIST>.begin());
  layout.appendInfos(writer, item);
  writer.append(element<word::LOGLIST>.close());
}

void appendItemBody(Writer& writer, Layout const& layout, void const* item) {
  layout.appendFields(writer, item);
  appendInfoList(writer, layout, item);
}

void appendEntry(Writer& writer, Layout const& layout, void const* item) {
  writer.append(element<word::ENTRY>.begin());
  appendItemBody(writer, layout, item);
  writer.append(element<word::ENTRY>.close());
}

// ---- One message, or a part of it

void appendInfoList(Layout const& layout, void const* item, std::string& out) {
  Writer writer(out);
  appendInfoList(writer, layout, item);
}

void appendItemBody(Layout const& layout, void const* item, std::string const& uniqueId,
                    std::string& out, bool uniqueIdOnly) {
  if (!uniqueIdOnly) {
    Writer writer(out);
    appendItemBody(writer, layout, item);
  } else if (!uniqueId.empty()) {
    append(out, {element<word::UNIQUEID>.begin(), uniqueId, element<word::UNIQUEID>.close()});
  }
}

} // namespace

template <class Item>
void appendInfoList(Item const& item, std::string& out) {
  appendInfoList(Records<Item>::layout, &item, out);
}

template <class Item>
void appendItemBody(Item const& item, std::string& out, bool uniqueIdOnly) {
  appendItemBody(Records<Item>::layout, &item, item.uniqueId, out, uniqueIdOnly);
}

template <class Item>
void appendEntries(std::deque<Item> const& items, std::string& out) {
  constexpr std::size_t ahead = 2048; // some records' worth
  Writer writer(out, ahead);
  for (auto const& item : items)
    appendEntry(writer, Records<Item>::layout, &item);
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
