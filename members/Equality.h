// Equality of records and logs, and a record as its reader gets it back.
#ifndef MEMBERS_EQUALITY_H
#define MEMBERS_EQUALITY_H

#include <algorithm>
#include <deque>
#include <list>
#include <utility>

#include "members/Members.h"

namespace members {

// Each of the three overloads calls another one: an entry's members include its list of calls.
template <class Call>
bool equal(std::list<Call> const& left, std::list<Call> const& right);
template <class Entry>
bool equal(std::deque<Entry> const& left, std::deque<Entry> const& right);

/// Whether all members are equal, those that no message carries included.
template <class Record>
bool equal(Record const& left, Record const& right) {
  bool same = true;
  forEachMember<Record>([&](auto const& member) {
    if constexpr (std::decay_t<decltype(member)>::isCalls)
      same = same && equal(member.in(left), member.in(right));
    else
      same = same && member.in(left) == member.in(right);
  });
  return same;
}

namespace detail {
template <class Records>
bool equalInOrder(Records const& left, Records const& right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](auto const& one, auto const& other) { return equal(one, other); });
}
} // namespace detail

template <class Call>
bool equal(std::list<Call> const& left, std::list<Call> const& right) {
  return detail::equalInOrder(left, right);
}

template <class Entry>
bool equal(std::deque<Entry> const& left, std::deque<Entry> const& right) {
  return detail::equalInOrder(left, right);
}

/// The record as a reader gets it back: members that do not travel both ways have their defaults.
template <class Record>
Record asRead(Record record) {
  forEachMember<Record>([&record, unset = Record()](auto const& member) {
    if constexpr (std::decay_t<decltype(member)>::isCalls) {
      for (auto& call : member.in(record))
        call = asRead(std::move(call));
    } else if (member.travel != Travel::bothWays) {
      member.in(record) = member.in(unset);
    }
  });
  return record;
}

/// The log as a reader gets it back.
template <class Entry>
std::deque<Entry> asRead(std::deque<Entry> log) {
  for (Entry& entry : log)
    entry = asRead(std::move(entry));
  return log;
}

} // namespace members

#endif
