// Comparison and printing of the call-log records, for the tests only: == and readable failures.
#ifndef TESTS_RECORDS_RECORDCOMPARISON_H
#define TESTS_RECORDS_RECORDCOMPARISON_H

#include <ostream>
#include <string>
#include <type_traits>

#include "members/Enumerations.h"
#include "members/Equality.h"

namespace records {

/// A member's value as messages spell it; a number for an enumeration's value outside its members.
template <class Value>
std::string spelled(Value const& value) {
  if constexpr (std::is_same_v<Value, bool>)
    return value ? "True" : "False";
  else if constexpr (std::is_enum_v<Value>)
    return members::nameOf(value);
  else
    return value;
}

} // namespace records

// The records are in the global namespace, so == and << are looked up there.

template <class Record, std::enable_if_t<members::isRecord<Record>, int> = 0>
bool operator==(Record const& left, Record const& right) {
  return members::equal(left, right);
}

template <class Record, std::enable_if_t<members::isRecord<Record>, int> = 0>
std::ostream& operator<<(std::ostream& out, Record const& record) {
  out << "{";
  members::forEachMember<Record>([&](auto const& member) {
    if constexpr (!std::decay_t<decltype(member)>::isCalls)
      out << " " << member.name << "=[" << records::spelled(member.in(record)) << "]";
    else
      for (auto const& call : member.in(record))
        out << "\n    call " << call;
  });
  return out << " }";
}

#endif
