// The fields of the call-log records in a row, to be compared, filled and printed alike.
#ifndef TESTS_DIFFERENTIAL_RECORDFIELDS_H
#define TESTS_DIFFERENTIAL_RECORDFIELDS_H

#include <algorithm>
#include <deque>
#include <list>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "CallLogItems.h"

namespace comparison {

// The second argument only chooses the record; the first may be constant or not.

template <class Info>
auto tied(Info& info, MissedCallItem::MissedCallInfo const*) {
  return std::tie(info.infoKey, info.targetLog, info.numberPresentation, info.number,
                  info.namePresentation, info.numberType, info.connectedNumber,
                  info.connectedNumberType, info.connectedSurname, info.connectedFirstName,
                  info.deflectNumberPresentation, info.deflectNumber, info.deflectNumberType,
                  info.deflectNamePresentation, info.deflectName, info.timeFormat, info.timeDate);
}

template <class Info>
auto tied(Info& info, DialledCallItem::DialledCallInfo const*) {
  return std::tie(info.infoKey, info.targetLog, info.numberPresentation, info.number,
                  info.resolvedNumber, info.connectedNumberPriority, info.namePresentation,
                  info.numberType, info.connectedNumber, info.connectedNumberType,
                  info.connectedSurname, info.connectedFirstName, info.duration, info.timeFormat,
                  info.timeDate);
}

template <class Info>
auto tied(Info& info, ReceivedCallItem::ReceivedCallInfo const*) {
  return std::tie(info.infoKey, info.targetLog, info.numberPresentation, info.number,
                  info.namePresentation, info.numberType, info.deflectNumberPresentation,
                  info.connectedNumber, info.deflectNumber, info.connectedNumberType,
                  info.connectedSurname, info.connectedFirstName, info.deflectNumberType,
                  info.deflectNamePresentation, info.deflectName, info.duration, info.timeFormat,
                  info.timeDate);
}

template <class Info>
auto tied(Info& info, ForwardedCallItem::ForwardedCallInfo const*) {
  return std::tie(info.infoKey, info.number, info.numberType, info.connectedNumber,
                  info.connectedNumberType, info.connectedSurname, info.connectedFirstName,
                  info.duration, info.timeDate);
}

template <class Item>
auto tied(Item& item, MissedCallItem const*) {
  return std::tie(item.uniqueId, item.entryId, item.surname, item.firstname, item.picture,
                  item.viewed);
}

template <class Item>
auto tied(Item& item, DialledCallItem const*) {
  return std::tie(item.uniqueId, item.entryId, item.surname, item.firstname, item.jsGroupBy,
                  item.picture);
}

template <class Item>
auto tied(Item& item, ReceivedCallItem const*) {
  return std::tie(item.uniqueId, item.entryId, item.surname, item.firstname, item.picture);
}

template <class Item>
auto tied(Item& item, ForwardedCallItem const*) {
  return std::tie(item.uniqueId, item.entryId, item.surname, item.firstname, item.picture);
}

/// A record's own fields as a tuple of references; an entry's list of calls is not among them.
template <class Record>
auto fieldsOf(Record& record) -> decltype(tied(record, &record)) {
  return tied(record, &record);
}

/// Calls visit(field) for each of the record's own fields.
template <class Record, class Visit>
void forEachField(Record& record, Visit visit) {
  std::apply([&visit](auto&... field) { (visit(field), ...); }, fieldsOf(record));
}

template <class Record, class = void>
struct HasCalls : std::false_type {};
template <class Record>
struct HasCalls<Record, std::void_t<decltype(std::declval<Record>().callInfoList)>>
    : std::true_type {};

template <class Record>
bool same(Record const& left, Record const& right);

template <class Records>
bool sameInTurn(Records const& left, Records const& right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](auto const& one, auto const& other) { return same(one, other); });
}

template <class Info>
bool same(std::list<Info> const& left, std::list<Info> const& right) {
  return sameInTurn(left, right);
}

template <class Item>
bool same(std::deque<Item> const& left, std::deque<Item> const& right) {
  return sameInTurn(left, right);
}

template <class Record>
bool same(Record const& left, Record const& right) {
  if (fieldsOf(left) != fieldsOf(right))
    return false;
  if constexpr (HasCalls<Record>::value)
    return sameInTurn(left.callInfoList, right.callInfoList);
  return true;
}

} // namespace comparison

#endif
