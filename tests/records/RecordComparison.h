// Comparison and printing of the call-log records, for the tests only: == and readable failures.
//
// A record is compared and printed by its fields: each under the name of its element, infoKey under
// its own, enumerations by the name of the member or, outside the members, by the number.
#ifndef RECORDCOMPARISON_H
#define RECORDCOMPARISON_H

#include <cstddef>
#include <list>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "CallLogItems.h"

namespace record_fields {

using Fields = std::vector<std::pair<std::string, std::string>>;

template <std::size_t Count>
std::string nameAt(char const* const (&names)[Count], std::int32_t value) {
  bool const known = value >= 0 && static_cast<std::size_t>(value) < Count;
  return known ? names[value] : std::to_string(value);
}

inline std::string text(std::string const& value) {
  return value;
}
inline std::string text(bool value) {
  return value ? "True" : "False";
}
inline std::string text(NumberType::NT value) {
  static char const* const names[] = {"NO_ICON", "PRIVATE", "BUSINESS1", "BUSINESS2", "MOBILE"};
  return nameAt(names, value);
}
inline std::string text(CallLogEntryEvent::_TFormat value) {
  static char const* const names[] = {"FORM_24", "FORM_AM", "FORM_PM"};
  return nameAt(names, value);
}
inline std::string text(CallLogEntryEvent::_PresentationValue value) {
  static char const* const names[] = {"NOT_AVAILABLE", "ALLOWED", "NOT_ALLOWED"};
  return nameAt(names, value);
}
inline std::string text(CallLogEntryEvent::_LogTarget value) {
  static char const* const names[] = {"IN_ANSWERED",  "IN_NO_ANSWER",  "IN_BUSY", "IN_GROUP_MISSED",
                                      "OUT_ANSWERED", "OUT_NO_ANSWER", "OUT_BUSY"};
  return nameAt(names, value);
}

inline Fields of(MissedCallItem::MissedCallInfo const& call) {
  return {{"infoKey", call.infoKey},
          {"TargetLog", text(call.targetLog)},
          {"NumberPresentation", text(call.numberPresentation)},
          {"Number", call.number},
          {"NamePresentation", text(call.namePresentation)},
          {"NumberType", text(call.numberType)},
          {"ConnectedNumber", call.connectedNumber},
          {"ConnectedNumberType", text(call.connectedNumberType)},
          {"ConnectedSurname", call.connectedSurname},
          {"ConnectedFirstName", call.connectedFirstName},
          {"DeflectNumberPresentation", text(call.deflectNumberPresentation)},
          {"DeflectNumber", call.deflectNumber},
          {"DeflectNumberType", text(call.deflectNumberType)},
          {"DeflectNamePresentation", text(call.deflectNamePresentation)},
          {"DeflectName", call.deflectName},
          {"TimeFormat", text(call.timeFormat)},
          {"TimeDate", call.timeDate}};
}

inline Fields of(DialledCallItem::DialledCallInfo const& call) {
  return {{"infoKey", call.infoKey},
          {"TargetLog", text(call.targetLog)},
          {"NumberPresentation", text(call.numberPresentation)},
          {"Number", call.number},
          {"ResolvedNumber", call.resolvedNumber},
          {"ConnectedNumberPriority", text(call.connectedNumberPriority)},
          {"NamePresentation", text(call.namePresentation)},
          {"NumberType", text(call.numberType)},
          {"ConnectedNumber", call.connectedNumber},
          {"ConnectedNumberType", text(call.connectedNumberType)},
          {"ConnectedSurname", call.connectedSurname},
          {"ConnectedFirstName", call.connectedFirstName},
          {"Duration", call.duration},
          {"TimeFormat", text(call.timeFormat)},
          {"TimeDate", call.timeDate}};
}

inline Fields of(ReceivedCallItem::ReceivedCallInfo const& call) {
  return {{"infoKey", call.infoKey},
          {"TargetLog", text(call.targetLog)},
          {"NumberPresentation", text(call.numberPresentation)},
          {"Number", call.number},
          {"NamePresentation", text(call.namePresentation)},
          {"NumberType", text(call.numberType)},
          {"DeflectNumberPresentation", text(call.deflectNumberPresentation)},
          {"ConnectedNumber", call.connectedNumber},
          {"DeflectNumber", call.deflectNumber},
          {"ConnectedNumberType", text(call.connectedNumberType)},
          {"ConnectedSurname", call.connectedSurname},
          {"ConnectedFirstName", call.connectedFirstName},
          {"DeflectNumberType", text(call.deflectNumberType)},
          {"DeflectNamePresentation", text(call.deflectNamePresentation)},
          {"DeflectName", call.deflectName},
          {"Duration", call.duration},
          {"TimeFormat", text(call.timeFormat)},
          {"TimeDate", call.timeDate}};
}

inline Fields of(ForwardedCallItem::ForwardedCallInfo const& call) {
  return {{"infoKey", call.infoKey},
          {"Number", call.number},
          {"NumberType", text(call.numberType)},
          {"ConnectedNumber", call.connectedNumber},
          {"ConnectedNumberType", text(call.connectedNumberType)},
          {"ConnectedSurname", call.connectedSurname},
          {"ConnectedFirstName", call.connectedFirstName},
          {"Duration", call.duration},
          {"TimeDate", call.timeDate}};
}

/// The fields of an entry but for its calls.
inline Fields of(MissedCallItem const& item) {
  return {{"UniqueId", item.uniqueId},   {"EntryId", item.entryId}, {"Surname", item.surname},
          {"Firstname", item.firstname}, {"Picture", item.picture}, {"Viewed", text(item.viewed)}};
}
inline Fields of(DialledCallItem const& item) {
  return {{"UniqueId", item.uniqueId},   {"EntryId", item.entryId},     {"Surname", item.surname},
          {"Firstname", item.firstname}, {"JSGroupBy", item.jsGroupBy}, {"Picture", item.picture}};
}
inline Fields of(ReceivedCallItem const& item) {
  return {{"UniqueId", item.uniqueId},
          {"EntryId", item.entryId},
          {"Surname", item.surname},
          {"Firstname", item.firstname},
          {"Picture", item.picture}};
}
inline Fields of(ForwardedCallItem const& item) {
  return {{"UniqueId", item.uniqueId},
          {"EntryId", item.entryId},
          {"Surname", item.surname},
          {"Firstname", item.firstname},
          {"Picture", item.picture}};
}

template <typename Record>
void print(Record const& record, std::ostream& out) {
  out << "{";
  for (auto const& [name, value] : of(record))
    out << " " << name << "=[" << value << "]";
  out << " }";
}

template <typename Item>
void printEntry(Item const& item, std::ostream& out) {
  print(item, out);
  for (auto const& call : item.callInfoList) {
    out << "\n    call ";
    print(call, out);
  }
}

template <typename Item>
bool equalEntries(Item const& left, Item const& right) {
  return of(left) == of(right) && left.callInfoList == right.callInfoList;
}

} // namespace record_fields

// The records live in the global namespace, so == and PrintTo are looked up there.

inline bool operator==(MissedCallItem::MissedCallInfo const& left,
                       MissedCallItem::MissedCallInfo const& right) {
  return record_fields::of(left) == record_fields::of(right);
}
inline bool operator==(DialledCallItem::DialledCallInfo const& left,
                       DialledCallItem::DialledCallInfo const& right) {
  return record_fields::of(left) == record_fields::of(right);
}
inline bool operator==(ReceivedCallItem::ReceivedCallInfo const& left,
                       ReceivedCallItem::ReceivedCallInfo const& right) {
  return record_fields::of(left) == record_fields::of(right);
}
inline bool operator==(ForwardedCallItem::ForwardedCallInfo const& left,
                       ForwardedCallItem::ForwardedCallInfo const& right) {
  return record_fields::of(left) == record_fields::of(right);
}
inline bool operator==(MissedCallItem const& left, MissedCallItem const& right) {
  return record_fields::equalEntries(left, right);
}
inline bool operator==(DialledCallItem const& left, DialledCallItem const& right) {
  return record_fields::equalEntries(left, right);
}
inline bool operator==(ReceivedCallItem const& left, ReceivedCallItem const& right) {
  return record_fields::equalEntries(left, right);
}
inline bool operator==(ForwardedCallItem const& left, ForwardedCallItem const& right) {
  return record_fields::equalEntries(left, right);
}

inline void PrintTo(MissedCallItem::MissedCallInfo const& call, std::ostream* out) {
  record_fields::print(call, *out);
}
inline void PrintTo(DialledCallItem::DialledCallInfo const& call, std::ostream* out) {
  record_fields::print(call, *out);
}
inline void PrintTo(ReceivedCallItem::ReceivedCallInfo const& call, std::ostream* out) {
  record_fields::print(call, *out);
}
inline void PrintTo(ForwardedCallItem::ForwardedCallInfo const& call, std::ostream* out) {
  record_fields::print(call, *out);
}
inline void PrintTo(MissedCallItem const& item, std::ostream* out) {
  record_fields::printEntry(item, *out);
}
inline void PrintTo(DialledCallItem const& item, std::ostream* out) {
  record_fields::printEntry(item, *out);
}
inline void PrintTo(ReceivedCallItem const& item, std::ostream* out) {
  record_fields::printEntry(item, *out);
}
inline void PrintTo(ForwardedCallItem const& item, std::ostream* out) {
  record_fields::printEntry(item, *out);
}

#endif
