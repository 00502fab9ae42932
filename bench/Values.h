// The words of enumerations and flags, for the peers: from text and to text without allocating.
#ifndef BENCH_VALUES_H
#define BENCH_VALUES_H

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "CallLogItems.h"

namespace bench {

/// wordsOf<Enum>: the words in the order of the enumeration's values; fallbackOf<Enum>: the member
/// that an unknown word stands for.
template <class Enum>
inline constexpr std::array<std::string_view, 0> wordsOf{};
template <class Enum>
inline constexpr Enum fallbackOf{};

template <>
inline constexpr std::array<std::string_view, 5> wordsOf<NumberType::NT> = {
    "NO_ICON", "PRIVATE", "BUSINESS1", "BUSINESS2", "MOBILE"};
template <>
inline constexpr std::array<std::string_view, 3> wordsOf<CallLogEntryEvent::_TFormat> = {
    "FORM_24", "FORM_AM", "FORM_PM"};
template <>
inline constexpr std::array<std::string_view, 3> wordsOf<CallLogEntryEvent::_PresentationValue> = {
    "NOT_AVAILABLE", "ALLOWED", "NOT_ALLOWED"};
template <>
inline constexpr std::array<std::string_view, 7> wordsOf<CallLogEntryEvent::_LogTarget> = {
    "IN_ANSWERED",  "IN_NO_ANSWER",  "IN_BUSY", "IN_GROUP_MISSED",
    "OUT_ANSWERED", "OUT_NO_ANSWER", "OUT_BUSY"};
template <>
inline constexpr CallLogEntryEvent::_LogTarget fallbackOf<CallLogEntryEvent::_LogTarget> =
    CallLogEntryEvent::OUT_BUSY;

inline void assign(std::string& field, std::string_view text) {
  field.assign(text);
}

inline void assign(bool& field, std::string_view text) {
  field = text == "True";
}

template <class Enum>
inline void assign(Enum& field, std::string_view text) {
  field = fallbackOf<Enum>;
  for (std::size_t value = 0; value < wordsOf<Enum>.size(); ++value)
    if (text == wordsOf<Enum>[value]) {
      field = static_cast<Enum>(value);
      return;
    }
}

/// A text is left out of a message when it is empty; anything else is always written.
inline bool isWritten(std::string const& field) {
  return !field.empty();
}
template <class Value>
inline bool isWritten(Value) {
  return true;
}

// All NUL-terminated.
inline char const* textOf(std::string const& field) {
  return field.c_str();
}
inline char const* textOf(bool field) {
  return field ? "True" : "False";
}
template <class Enum>
inline char const* textOf(Enum field) {
  auto const value = static_cast<std::size_t>(field);
  auto const& words = wordsOf<Enum>;
  auto const fallback = static_cast<std::size_t>(fallbackOf<Enum>);
  return words[value < words.size() ? value : fallback].data();
}

} // namespace bench

#endif
