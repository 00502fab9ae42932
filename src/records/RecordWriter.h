// Appends the elements of records to a text.
#ifndef JOURNAL_RECORDS_RECORDWRITER_H
#define JOURNAL_RECORDS_RECORDWRITER_H

#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include "ClientUtils.h"
#include "bytes/ReplaceInPlace.h"
#include "records/FieldLists.h"
#include "records/RecordOps.h"
#include "xml/Appender.h"

namespace journal {

/// Create one per message.
class RecordWriter {
public:
  /// @param ahead see Appender
  RecordWriter(RecordOps const& ops, std::string& out, std::size_t ahead = 0)
      : ops_(ops), appender_(out, ahead) {}

  /// Whether a record has no more escaped texts than the writer can keep.
  template <class Fields>
  static constexpr bool canWrite(Fields const& fields) {
    std::size_t escaped = 0;
    for (auto const& field : fields)
      escaped += field.isEscaped() ? 1 : 0;
    return escaped <= maxEscaped;
  }

  // ---- What every kind has

  void appendLog(void const* log) { ops_.writeEntries(*this, log); }

  void appendEntry(void const* entry) {
    appender_.append(element<word::ENTRY>.begin());
    appendEntryBody(entry);
    appender_.append(element<word::ENTRY>.close());
  }

  void appendEntryBody(void const* entry) {
    if (builtForSpeed)
      ops_.writeUnrolledEntry(*this, entry);
    else
      append("", ops_.entry.list, entry, "");
    appendCalls(entry);
  }

  void appendCalls(void const* entry) {
    appender_.append(element<word::LOGLIST>.begin());
    ops_.writeCalls(*this, entry);
    appender_.append(element<word::LOGLIST>.close());
  }

  // ---- The fields of one record

  /// Appends a call in its Item. Built for size, the same function for every kind.
  template <class Fields>
  JOURNAL_INLINE void appendCall(Fields fields, void const* call) {
    append(element<word::ITEM>.begin(), fields, call, element<word::ITEM>.close());
  }

  /// Appends a record's elements, without those of empty texts, between two tags.
  template <class Fields>
  JOURNAL_INLINE void append(std::string_view before, Fields fields, void const* record,
                             std::string_view behind) {
    auto const escaped = escape(fields, record);
    auto const bound = before.size() + boundOf(fields, record, escaped) + behind.size();
    auto* const elements = putTag(appender_.room(bound), before);
    appender_.endAt(putTag(putRecord(elements, fields, record, escaped), behind));
  }

private:
  static constexpr std::size_t maxEscaped = 2; // texts of one record

  /// A record's escaped texts, in the order of its fields.
  using Escaped = std::array<std::string_view, maxEscaped>;

  /// The text to write for a member. `escaped` points to the next escaped text and moves on.
  using NextEscaped = std::string_view const*;
  JOURNAL_INLINE static inline std::string_view
  textIn(void const* record, FieldDescriptor const& field, NextEscaped& escaped) {
    return field.isEscaped() ? *escaped++ : *static_cast<std::string const*>(field.in(record));
  }

  JOURNAL_INLINE_ONCE static inline MemberText const& memberIn(void const* record,
                                                               FieldDescriptor const& field) {
    auto const& enumeration = enumerationOf(field.content());
    if (field.content() == Content::flag)
      return enumeration.textOf(*static_cast<bool const*>(field.in(record)));
    return enumeration.textOf(*static_cast<MemberValue const*>(field.in(record)));
  }

  /// Writes all bytes of a member's text, whatever its size: that takes two instructions.
  JOURNAL_INLINE_ONCE static inline char* putMember(char* at, MemberText const& text) {
    std::memcpy(at, &text, sizeof text);
    return at + text.size();
  }

  template <class Fields>
  JOURNAL_INLINE_ONCE inline Escaped escape(Fields fields, void const* record) {
    Escaped escaped;
    std::size_t next = 0;
    forEach(fields, [&](FieldDescriptor const& field) JOURNAL_INLINE_ONCE {
      if (!field.isEscaped())
        return;
      auto const& text = *static_cast<std::string const*>(field.in(record));
      escaped[next] = text.empty() ? std::string_view(escapedEmpty_) : keep(next, text);
      ++next;
    });
    return escaped;
  }

  std::string_view keep(std::size_t index, std::string const& text) {
    replaceInPlace(kept_[index], ClientUtils::escapeXMLString, text);
    return kept_[index];
  }

  /// An upper bound of the size of a record's elements: all tags and all values.
  template <class Fields>
  JOURNAL_INLINE_ONCE static inline std::size_t boundOf(Fields fields, void const* record,
                                                        Escaped const& escaped) {
    std::size_t bound = 0;
    NextEscaped next = escaped.data();
    forEach(fields, [&](FieldDescriptor const& field) JOURNAL_INLINE_ONCE {
      bound += field.tagsSize();
      bound += field.content() == Content::text ? textIn(record, field, next).size()
                                                : sizeof(MemberText);
    });
    return bound;
  }

  template <class Fields>
  JOURNAL_INLINE_ONCE static inline char* putRecord(char* at, Fields fields, void const* record,
                                                    Escaped const& escaped) {
    NextEscaped next = escaped.data();
    forEach(fields, [&](FieldDescriptor const& field) JOURNAL_INLINE_ONCE {
      if (field.content() == Content::text) {
        auto const text = textIn(record, field, next);
        if (text.empty())
          return;
        at = putTag(at, field.begin());
        at = putText(at, text);
      } else {
        at = putTag(at, field.begin());
        at = putMember(at, memberIn(record, field));
      }
      at = putTag(at, field.close());
    });
    return at;
  }

  RecordOps const& ops_;
  Appender appender_;
  std::array<std::string, maxEscaped> kept_; // a record's escaped texts
  // ClientUtils decides how an empty text is escaped. Many names are empty, so it is asked once.
  std::string const escapedEmpty_ = ClientUtils::escapeXMLString({});
};

} // namespace journal

#endif
