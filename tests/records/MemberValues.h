// Values for the members of a record that differ from the defaults.
#ifndef TESTS_RECORDS_MEMBERVALUES_H
#define TESTS_RECORDS_MEMBERVALUES_H

#include <string>
#include <type_traits>

#include "members/Enumerations.h"
#include "members/Members.h"

namespace records {

template <class Member>
using RecordOf = typename std::decay_t<Member>::Record;
template <class Member>
using ValueOf = typename std::decay_t<Member>::Value;

/// A value that is not the member's default; of texts one that no other member has.
template <class Member>
ValueOf<Member> otherValue(Member const& member) {
  using Value = ValueOf<Member>;
  if constexpr (Member::isCalls)
    return Value(1);
  else if constexpr (std::is_same_v<Value, std::string>)
    return "the own " + std::string(member.name);
  else if constexpr (std::is_same_v<Value, bool>)
    return !member.in(RecordOf<Member>());
  else {
    auto const& all = members::enumerators<Value>;
    bool const isLast = member.in(RecordOf<Member>()) == all.back().value;
    return isLast ? all.front().value : all.back().value;
  }
}

/// A record with such values and without calls.
template <class Record>
Record otherRecord() {
  Record record;
  members::forEachField<Record>(
      [&](auto const& member) { member.in(record) = otherValue(member); });
  return record;
}

/// Whether the writers escape a text: the party's names, and in forwarded calls those of the party
/// that was connected. Every other text is copied as it is.
template <class Member>
bool isEscaped(Member const& member) {
  if (std::is_same_v<RecordOf<Member>, ForwardedCallItem::ForwardedCallInfo>)
    return member.name == "connectedSurname" || member.name == "connectedFirstName";
  return member.name == "surname" || member.name == "firstname";
}

} // namespace records

#endif
