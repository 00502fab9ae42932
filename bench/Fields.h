// The elements of the records, for the peers: in the order of writing, with the field of each.
//
// The library has tables of its own. These are independent of it, so that a peer's records prove
// something when they come out the same.
#ifndef BENCH_FIELDS_H
#define BENCH_FIELDS_H

#include <string>
#include <string_view>
#include <tuple>

#include "CallLogItems.h"

namespace bench {

/// Whether a reader stores the element or, as this format has it for some, passes over it.
enum class Read { stored, passedOver };

template <class RecordType, class ValueType>
struct Field {
  using Record = RecordType;
  std::string_view name; // of a literal, hence NUL-terminated
  ValueType Record::*member;
  Read read;
};

template <class Record, class Value>
constexpr Field<Record, Value> field(std::string_view name, Value Record::*member,
                                     Read read = Read::stored) {
  return {name, member, read};
}

/// fieldsOf<Record>: the rows of a record, as a tuple.
template <class Record>
inline constexpr int fieldsOf = 0;

template <class Item>
constexpr auto partyFields() {
  return std::make_tuple(field("UniqueId", &Item::uniqueId), field("EntryId", &Item::entryId),
                         field("Surname", &Item::surname), field("Firstname", &Item::firstname),
                         field("Picture", &Item::picture));
}

template <>
inline constexpr auto fieldsOf<MissedCallItem> = std::tuple_cat(
    partyFields<MissedCallItem>(), std::make_tuple(field("Viewed", &MissedCallItem::viewed)));
template <>
inline constexpr auto fieldsOf<DialledCallItem> =
    std::tuple_cat(partyFields<DialledCallItem>(),
                   std::make_tuple(field("JSGroupBy", &DialledCallItem::jsGroupBy)));
template <>
inline constexpr auto fieldsOf<ReceivedCallItem> = partyFields<ReceivedCallItem>();
template <>
inline constexpr auto fieldsOf<ForwardedCallItem> = partyFields<ForwardedCallItem>();

using MissedCall = MissedCallItem::MissedCallInfo;
using DialledCall = DialledCallItem::DialledCallInfo;
using ReceivedCall = ReceivedCallItem::ReceivedCallInfo;
using ForwardedCall = ForwardedCallItem::ForwardedCallInfo;

template <>
inline constexpr auto fieldsOf<MissedCall> = std::make_tuple(
    field("Number", &MissedCall::number), field("NumberType", &MissedCall::numberType),
    field("ConnectedNumber", &MissedCall::connectedNumber),
    field("ConnectedNumberType", &MissedCall::connectedNumberType),
    field("ConnectedSurname", &MissedCall::connectedSurname),
    field("ConnectedFirstName", &MissedCall::connectedFirstName),
    field("TimeDate", &MissedCall::timeDate), field("TargetLog", &MissedCall::targetLog),
    field("NumberPresentation", &MissedCall::numberPresentation),
    field("NamePresentation", &MissedCall::namePresentation),
    field("DeflectNumberPresentation", &MissedCall::deflectNumberPresentation),
    field("DeflectNumber", &MissedCall::deflectNumber),
    field("DeflectNumberType", &MissedCall::deflectNumberType),
    field("DeflectNamePresentation", &MissedCall::deflectNamePresentation),
    field("DeflectName", &MissedCall::deflectName), field("TimeFormat", &MissedCall::timeFormat));

template <>
inline constexpr auto fieldsOf<DialledCall> = std::make_tuple(
    field("Number", &DialledCall::number), field("NumberType", &DialledCall::numberType),
    field("ResolvedNumber", &DialledCall::resolvedNumber),
    field("ConnectedNumber", &DialledCall::connectedNumber),
    field("ConnectedNumberPriority", &DialledCall::connectedNumberPriority),
    field("ConnectedNumberType", &DialledCall::connectedNumberType),
    field("ConnectedSurname", &DialledCall::connectedSurname),
    field("ConnectedFirstName", &DialledCall::connectedFirstName),
    field("TimeDate", &DialledCall::timeDate), field("Duration", &DialledCall::duration),
    field("TargetLog", &DialledCall::targetLog),
    field("NumberPresentation", &DialledCall::numberPresentation),
    field("NamePresentation", &DialledCall::namePresentation, Read::passedOver),
    field("TimeFormat", &DialledCall::timeFormat));

template <>
inline constexpr auto fieldsOf<ReceivedCall> = std::make_tuple(
    field("Number", &ReceivedCall::number), field("NumberType", &ReceivedCall::numberType),
    field("ConnectedNumber", &ReceivedCall::connectedNumber),
    field("ConnectedNumberType", &ReceivedCall::connectedNumberType),
    field("ConnectedSurname", &ReceivedCall::connectedSurname, Read::passedOver),
    field("ConnectedFirstName", &ReceivedCall::connectedFirstName, Read::passedOver),
    field("TimeDate", &ReceivedCall::timeDate), field("Duration", &ReceivedCall::duration),
    field("TargetLog", &ReceivedCall::targetLog),
    field("NumberPresentation", &ReceivedCall::numberPresentation),
    field("NamePresentation", &ReceivedCall::namePresentation),
    field("DeflectNumberPresentation", &ReceivedCall::deflectNumberPresentation),
    field("DeflectNumber", &ReceivedCall::deflectNumber),
    field("DeflectNumberType", &ReceivedCall::deflectNumberType),
    field("DeflectNamePresentation", &ReceivedCall::deflectNamePresentation),
    field("DeflectName", &ReceivedCall::deflectName),
    field("TimeFormat", &ReceivedCall::timeFormat));

template <>
inline constexpr auto fieldsOf<ForwardedCall> = std::make_tuple(
    field("Number", &ForwardedCall::number), field("NumberType", &ForwardedCall::numberType),
    field("ConnectedNumber", &ForwardedCall::connectedNumber),
    field("ConnectedNumberType", &ForwardedCall::connectedNumberType),
    field("ConnectedSurname", &ForwardedCall::connectedSurname, Read::passedOver),
    field("ConnectedFirstName", &ForwardedCall::connectedFirstName, Read::passedOver),
    field("TimeDate", &ForwardedCall::timeDate), field("Duration", &ForwardedCall::duration));

/// Calls visit(row) for each row of a record, in order; unrolled.
template <class Record, class Visit>
inline void forEachField(Visit visit) {
  std::apply([&](auto const&... fields) { (visit(fields), ...); }, fieldsOf<Record>);
}

} // namespace bench

#endif
