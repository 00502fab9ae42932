// The members of the enumerations in call records: one list for everything outside src/.
//
// A list that lacks a member of its enumeration does not compile.
#ifndef MEMBERS_ENUMERATIONS_H
#define MEMBERS_ENUMERATIONS_H

#include <array>
#include <string>
#include <string_view>

#include "CallLogEntryEvent.h"
#include "NumberType.h"

namespace members {

/// One member of an enumeration: its value, and its name, which is also its text in messages.
template <class Enumeration>
struct Enumerator {
  Enumeration value;
  std::string_view name;
};

// ENUMERATION defines, from one list of names,
//   enumeratorsOf(value)  the list; the argument only selects the enumeration
//   isEnumerator(value)   whether a member has this value; its switch makes the compiler reject a
//                         list that lacks a member
#define ENUMERATOR_ROW(Scope, name) Enumerator<Enumeration>{Scope::name, #name},
#define ENUMERATOR_CASE(Scope, name) case Scope::name:
#define ENUMERATION(Type, NAMES)                                                                   \
  constexpr auto enumeratorsOf(Type) {                                                             \
    using Enumeration = Type;                                                                      \
    return std::array{NAMES(ENUMERATOR_ROW)};                                                      \
  }                                                                                                \
  constexpr bool isEnumerator(Type value) {                                                        \
    switch (value) {                                                                               \
      NAMES(ENUMERATOR_CASE)                                                                       \
      return true;                                                                                 \
    }                                                                                              \
    return false;                                                                                  \
  }

#define NUMBER_TYPES(NAME)                                                                         \
  NAME(NumberType, NO_ICON)                                                                        \
  NAME(NumberType, PRIVATE)                                                                        \
  NAME(NumberType, BUSINESS1)                                                                      \
  NAME(NumberType, BUSINESS2)                                                                      \
  NAME(NumberType, MOBILE)

#define TIME_FORMATS(NAME)                                                                         \
  NAME(CallLogEntryEvent, FORM_24)                                                                 \
  NAME(CallLogEntryEvent, FORM_AM)                                                                 \
  NAME(CallLogEntryEvent, FORM_PM)

#define PRESENTATIONS(NAME)                                                                        \
  NAME(CallLogEntryEvent, NOT_AVAILABLE)                                                           \
  NAME(CallLogEntryEvent, ALLOWED)                                                                 \
  NAME(CallLogEntryEvent, NOT_ALLOWED)

#define LOG_TARGETS(NAME)                                                                          \
  NAME(CallLogEntryEvent, IN_ANSWERED)                                                             \
  NAME(CallLogEntryEvent, IN_NO_ANSWER)                                                            \
  NAME(CallLogEntryEvent, IN_BUSY)                                                                 \
  NAME(CallLogEntryEvent, IN_GROUP_MISSED)                                                         \
  NAME(CallLogEntryEvent, OUT_ANSWERED)                                                            \
  NAME(CallLogEntryEvent, OUT_NO_ANSWER)                                                           \
  NAME(CallLogEntryEvent, OUT_BUSY)

#pragma GCC diagnostic push
#pragma GCC diagnostic error "-Wswitch"
ENUMERATION(NumberType::NT, NUMBER_TYPES)
ENUMERATION(CallLogEntryEvent::_TFormat, TIME_FORMATS)
ENUMERATION(CallLogEntryEvent::_PresentationValue, PRESENTATIONS)
ENUMERATION(CallLogEntryEvent::_LogTarget, LOG_TARGETS)
#pragma GCC diagnostic pop

#undef LOG_TARGETS
#undef PRESENTATIONS
#undef TIME_FORMATS
#undef NUMBER_TYPES
#undef ENUMERATION
#undef ENUMERATOR_CASE
#undef ENUMERATOR_ROW

/// The members of an enumeration, in the order of declaration.
template <class Enumeration>
inline constexpr auto enumerators = enumeratorsOf(Enumeration());

/// The member's name, or the number of a value that no member has.
template <class Enumeration>
std::string nameOf(Enumeration value) {
  for (auto const& enumerator : enumerators<Enumeration>)
    if (enumerator.value == value)
      return std::string(enumerator.name);
  return std::to_string(value);
}

} // namespace members

#endif
