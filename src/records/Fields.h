// How a record's fields stand in a message: one row per element, walked by the encoder and by the
// decoder. What a kind of record does differently is visible in its rows and nowhere else.
#ifndef JOURNAL_RECORDS_FIELDS_H
#define JOURNAL_RECORDS_FIELDS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <utility>

#include "CallLogEntryEvent.h"
#include "NumberType.h"
#include "convert/EnumTexts.h"
#include "vocabulary/Tags.h"
#include "xml/Inline.h"

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
  std::int8_t usual; // the value that most records hold, or none

  constexpr Content content() const { return member.content; }
  /// The text of the usual value; empty where code is built for size and does not look for it.
  constexpr std::string_view usualText() const {
    if (!builtForSpeed || usual == none)
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

// ---- Walks over the rows of a record. forEach calls visit(row) for each row in order; allOf does
// until one gives false, and tells whether none did.

/// Rows walked in a loop: the smallest code.
class LoopedRows {
public:
  template <class Rows>
  constexpr LoopedRows(Rows const& rows) : first_(std::data(rows)), size_(std::size(rows)) {}

  constexpr Field const* begin() const { return first_; }
  constexpr Field const* end() const { return first_ + size_; }

private:
  Field const* first_;
  std::size_t size_;
};

template <class Visit>
JOURNAL_INLINE inline void forEach(LoopedRows rows, Visit visit) {
  for (auto const& row : rows)
    visit(row);
}

template <class Visit>
JOURNAL_INLINE inline bool allOf(LoopedRows rows, Visit visit) {
  for (auto const& row : rows)
    if (!visit(row))
      return false;
  return true;
}

/// Rows walked without a loop: every tag is a constant of known size, and comparing or copying it
/// takes a few instructions.
template <auto const& rows>
struct UnrolledRows {
  using Indices = std::make_index_sequence<std::size(rows)>;
};

namespace detail {
template <auto const& rows, class Visit, std::size_t... index>
JOURNAL_INLINE inline void forEach(Visit& visit, std::index_sequence<index...>) {
  (visit(rows[index]), ...);
}

template <auto const& rows, class Visit, std::size_t... index>
JOURNAL_INLINE inline bool allOf(Visit& visit, std::index_sequence<index...>) {
  return (visit(rows[index]) && ...);
}
} // namespace detail

template <auto const& rows, class Visit>
JOURNAL_INLINE inline void forEach(UnrolledRows<rows>, Visit visit) {
  detail::forEach<rows>(visit, typename UnrolledRows<rows>::Indices());
}

template <auto const& rows, class Visit>
JOURNAL_INLINE inline bool allOf(UnrolledRows<rows>, Visit visit) {
  return detail::allOf<rows>(visit, typename UnrolledRows<rows>::Indices());
}

/// The rows as code is built: for speed or for size.
template <auto const& rows>
constexpr auto rowsOf() {
  if constexpr (builtForSpeed)
    return UnrolledRows<rows>();
  else
    return LoopedRows(rows);
}

} // namespace journal

#endif
