// How a record's fields stand in a message: one row per element, walked by the encoder and by the
// decoder. What a kind of record does differently is visible in its rows and nowhere else.
#ifndef JOURNAL_RECORDS_FIELDS_H
#define JOURNAL_RECORDS_FIELDS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "CallLogEntryEvent.h"
#include "NumberType.h"
#include "convert/EnumTexts.h"
#include "vocabulary/Tags.h"

namespace journal {

/// What a field holds, and so how it is written and read.
enum class Content : std::uint8_t { text, flag, numberType, targetLog, presentation, timeFormat };

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

/// The members of every content but texts.
inline constexpr Enumeration const* enumerations[] = {nullptr,     &flags,         &numberTypes,
                                                      &targetLogs, &presentations, &timeFormats};
constexpr Enumeration const& enumerationOf(Content content) {
  return *enumerations[static_cast<std::size_t>(content)];
}

/// Whether a text is escaped when it is written. Every text is unescaped when it is read.
enum class Writing : std::uint8_t { raw, escaped };

/// What becomes of an element that is read.
enum class Reading : std::uint8_t {
  stored,
  discarded, // read over, its field is left alone
  unclosed   // its begin tag is looked for as its close tag too, so what we write is never found
};

/// A field's place in its record.
struct Member {
  std::uint16_t offset;
  Content content;
};

/// One element of a record and the field that it carries. Rows know no record types, so that one
/// loop serves all of them.
struct Field {
  static constexpr std::int8_t none = -1;

  Element element;
  Member member;
  Writing writing;
  Reading reading;
  std::int8_t usual;   // the value that most records hold, or none: see mostly
  bool joined = false; // whether it is mostly as usual when the row in front is: see along

  constexpr Content content() const { return member.content; }
  /// The usual value as it stands in a text, or missing.
  constexpr std::string_view usualValue() const {
    if (usual == none)
      return {};
    return enumerationOf(content()).textOf(usual);
  }

  /// Where the field is in a record.
  void const* in(void const* record) const {
    return static_cast<char const*>(record) + member.offset;
  }
  void* in(void* record) const { return static_cast<char*>(record) + member.offset; }
};

/// The row of the element called `name`.
template <std::string_view const& name>
constexpr Field field(Member member, Writing writing = Writing::raw,
                      Reading reading = Reading::stored) {
  return {element<name>, member, writing, reading, Field::none};
}

/// The row of an element that nearly always carries the same value, which a reader built for speed
/// looks for first.
template <std::string_view const& name>
constexpr Field mostly(Member member, int usual, Reading reading = Reading::stored) {
  return {element<name>, member, Writing::raw, reading, static_cast<std::int8_t>(usual)};
}

/// The row of an element that nearly always carries this value when the row in front is as usual,
/// so that both are looked for at once.
template <std::string_view const& name>
constexpr Field along(Member member, int usual) {
  return {element<name>, member, Writing::raw, Reading::stored, static_cast<std::int8_t>(usual),
          true};
}

/// The row of a text that nearly always is missing when the rows around it are as usual.
template <std::string_view const& name>
constexpr Field missingAlong(Member member) {
  return {element<name>, member, Writing::raw, Reading::stored, Field::none, true};
}

namespace detail {
template <std::size_t size, std::size_t... index>
constexpr std::array<Field, size> swapped(Field const (&rows)[size], std::size_t first,
                                          std::size_t second, std::index_sequence<index...>) {
  return {rows[index == first ? second : index == second ? first : index]...};
}
} // namespace detail

/// The rows with two of them in each other's place.
template <std::size_t size>
constexpr std::array<Field, size> swapped(Field const (&rows)[size], std::size_t first,
                                          std::size_t second) {
  return detail::swapped(rows, first, second, std::make_index_sequence<size>());
}

} // namespace journal

#endif
