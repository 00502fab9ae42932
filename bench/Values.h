// The words of enumerations and flags, for the peers: from text and to text without allocating.
#ifndef BENCH_VALUES_H
#define BENCH_VALUES_H

#include <cstddef>
#include <string>
#include <string_view>

#include "members/Enumerations.h"

namespace bench {

inline void assign(std::string& field, std::string_view text) {
  field.assign(text);
}

inline void assign(bool& field, std::string_view text) {
  field = text == "True";
}

/// A word that names no member leaves the field at its value, which is the default in a new record.
template <class Enum>
inline void assign(Enum& field, std::string_view text) {
  for (auto const& enumerator : members::enumerators<Enum>)
    if (text == enumerator.name) {
      field = enumerator.value;
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

/// Whether the values of an enumeration's members count up from 0, so that they index the list.
template <class Enum>
constexpr bool countsFromZero() {
  std::size_t expected = 0;
  for (auto const& enumerator : members::enumerators<Enum>)
    if (static_cast<std::size_t>(enumerator.value) != expected++)
      return false;
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
  static_assert(countsFromZero<Enum>());
  auto const& enumerators = members::enumerators<Enum>;
  auto const value = static_cast<std::size_t>(field);
  return value < enumerators.size() ? enumerators[value].name.data() : "";
}

} // namespace bench

#endif
