// Inputs and results in readable form, for the description of a difference.
#ifndef TESTS_DIFFERENTIAL_SHOWN_H
#define TESTS_DIFFERENTIAL_SHOWN_H

#include <deque>
#include <list>
#include <string>
#include <type_traits>
#include <utility>

#include "differential/Comparison.h"
#include "members/Members.h"

namespace comparison {

inline std::string shown(std::string const& value) {
  return readable(value);
}

template <class Number,
          class = std::enable_if_t<std::is_arithmetic_v<Number> || std::is_enum_v<Number>>>
std::string shown(Number value) {
  return std::to_string(static_cast<long long>(value));
}

template <class First, class Second>
std::string shown(std::pair<First, Second> const& value) {
  return shown(value.first) + ", " + shown(value.second);
}

template <class Records>
std::string shownInTurn(Records const& records);

template <class Record, std::enable_if_t<members::isRecord<Record>, int> = 0>
std::string shown(Record const& record) {
  std::string all = "{";
  members::forEachValue(record, [&all](auto const& value) { all += " " + shown(value); });
  if constexpr (members::isEntry<Record>)
    all += " calls" + shownInTurn(record.callInfoList);
  return all + " }";
}

template <class Records>
std::string shownInTurn(Records const& records) {
  std::string all = "[" + std::to_string(records.size()) + "]";
  for (auto const& record : records)
    all += "\n    " + shown(record);
  return all;
}

template <class Info>
std::string shown(std::list<Info> const& list) {
  return shownInTurn(list);
}

template <class Item>
std::string shown(std::deque<Item> const& log) {
  return shownInTurn(log);
}

template <class Result>
Difference difference(std::string const& operation, std::string const& input, Result const& library,
                      Result const& reference) {
  return operation + "\n  on:        " + readable(input) + "\n  library:   " + shown(library) +
         "\n  reference: " + shown(reference) + "\n";
}

} // namespace comparison

#endif
