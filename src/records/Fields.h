// How a record's fields stand in a message: one row per element, walked by the encoder and by the
// decoder. What a kind of record does differently is visible in its rows and nowhere else.
#ifndef JOURNAL_RECORDS_FIELDS_H
#define JOURNAL_RECORDS_FIELDS_H

#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "CallLogEntryEvent.h"
#include "NumberType.h"
#include "convert/EnumTexts.h"
#include "vocabulary/Tags.h"
#include "xml/Inline.h"

namespace journal {

/// What a field holds, and so how it is written and read.
enum class Content { text, flag, numberType, targetLog, presentation, timeFormat };

/// Whether a text is escaped when it is written. Every text is unescaped when it is read.
enum class Writing { raw, escaped };

/// What becomes of an element that is read.
enum class Reading {
  stored,
  discarded, // read over, its field is left alone
  unclosed   // its begin tag is looked for as its close tag too, so what we write is never found
};

/// One element of a record and the field that it carries.
template <class Record>
struct Field {
  /// The field, by the alternative that its content names.
  union Member {
    std::string Record::*text;
    bool Record::*flag;
    NumberType::NT Record::*numberType;
    CallLogEntryEvent::_LogTarget Record::*targetLog;
    CallLogEntryEvent::_PresentationValue Record::*presentation;
    CallLogEntryEvent::_TFormat Record::*timeFormat;

    constexpr Member(std::string Record::*member) : text(member) {}
    constexpr Member(bool Record::*member) : flag(member) {}
    constexpr Member(NumberType::NT Record::*member) : numberType(member) {}
    constexpr Member(CallLogEntryEvent::_LogTarget Record::*member) : targetLog(member) {}
    constexpr Member(CallLogEntryEvent::_PresentationValue Record::*member)
        : presentation(member) {}
    constexpr Member(CallLogEntryEvent::_TFormat Record::*member) : timeFormat(member) {}
  };

  Element element;
  Member member;
  Content content;
  Writing writing;
  Reading reading;
  std::string_view usual; // the text and close tag that most records hold; empty for none

  /// Where the field is in a record; what stands there, the content says.
  JOURNAL_INLINE void const* in(Record const& record) const {
    switch (content) {
    case Content::flag:
      return &(record.*member.flag);
    case Content::numberType:
      return &(record.*member.numberType);
    case Content::targetLog:
      return &(record.*member.targetLog);
    case Content::presentation:
      return &(record.*member.presentation);
    case Content::timeFormat:
      return &(record.*member.timeFormat);
    case Content::text:
      break;
    }
    return &(record.*member.text);
  }
  JOURNAL_INLINE void* in(Record& record) const {
    return const_cast<void*>(in(static_cast<Record const&>(record)));
  }
};

template <class Value>
inline constexpr Content contentOf = Content::text;
template <>
inline constexpr Content contentOf<bool> = Content::flag;
template <>
inline constexpr Content contentOf<NumberType::NT> = Content::numberType;
template <>
inline constexpr Content contentOf<CallLogEntryEvent::_LogTarget> = Content::targetLog;
template <>
inline constexpr Content contentOf<CallLogEntryEvent::_PresentationValue> = Content::presentation;
template <>
inline constexpr Content contentOf<CallLogEntryEvent::_TFormat> = Content::timeFormat;

/// The row of the element called `name`.
template <std::string_view const& name, class Record, class Value>
constexpr Field<Record> field(Value Record::*member, Writing writing = Writing::raw,
                              Reading reading = Reading::stored) {
  return {element<name>, member, contentOf<Value>, writing, reading, {}};
}

namespace detail {
template <std::string_view const& name, auto value>
struct UsualText {
  static constexpr std::string_view close = element<name>.close;
  static constexpr std::string_view text = EnumTexts<decltype(value)>::texts[value];

  static constexpr auto make() {
    std::array<char, text.size() + close.size()> made{};
    for (std::size_t at = 0; at < made.size(); ++at)
      made[at] = at < text.size() ? text[at] : close[at - text.size()];
    return made;
  }
  static constexpr auto chars = make();
};
} // namespace detail

/// The row of an element that nearly always carries the same value, which a reader built for speed
/// looks for first.
template <std::string_view const& name, auto usual, class Record>
constexpr Field<Record> mostly(decltype(usual) Record::*member, Reading reading = Reading::stored) {
  auto row = field<name>(member, Writing::raw, reading);
  if constexpr (builtForSpeed) {
    constexpr auto& chars = detail::UsualText<name, usual>::chars;
    row.usual = {chars.data(), chars.size()};
  }
  return row;
}

namespace detail {
template <class Record, std::size_t size, std::size_t... index>
constexpr std::array<Field<Record>, size> swapped(Field<Record> const (&rows)[size],
                                                  std::size_t first, std::size_t second,
                                                  std::index_sequence<index...>) {
  return {rows[index == first ? second : index == second ? first : index]...};
}
} // namespace detail

/// The rows with two of them in each other's place.
template <class Record, std::size_t size>
constexpr std::array<Field<Record>, size> swapped(Field<Record> const (&rows)[size],
                                                  std::size_t first, std::size_t second) {
  return detail::swapped(rows, first, second, std::make_index_sequence<size>());
}

namespace detail {
template <auto const& rows, class Visit, std::size_t... index>
JOURNAL_INLINE inline bool visitUnrolled(Visit& visit, std::index_sequence<index...>) {
  return (visit(rows[index], index) && ...);
}
} // namespace detail

/// Calls visit(row, its index) for each row in order until one gives false; tells whether none did.
/// Unrolled, every tag is a constant of known size, and comparing or copying it takes a few
/// instructions; in a loop, the code is smallest.
template <auto const& rows, bool unroll = builtForSpeed, class Visit>
JOURNAL_INLINE inline bool visitRows(Visit visit) {
  if constexpr (unroll) {
    return detail::visitUnrolled<rows>(visit, std::make_index_sequence<std::size(rows)>());
  } else {
    for (std::size_t index = 0; index < std::size(rows); ++index)
      if (!visit(rows[index], index))
        return false;
    return true;
  }
}

} // namespace journal

#endif
