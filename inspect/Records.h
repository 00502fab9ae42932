// The records of the four logs, seen without their types: their fields come from the one list of
// members.
#ifndef INSPECT_RECORDS_H
#define INSPECT_RECORDS_H

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "members/Enumerations.h"
#include "members/Members.h"

namespace inspect {

/// The kinds of logs, in the order of the alternatives of Entry and Entries.
enum class Log : std::uint8_t { missed, dialled, received, forwarded };
inline constexpr std::size_t logs = 4;
inline constexpr Log allLogs[logs] = {Log::missed, Log::dialled, Log::received, Log::forwarded};

std::string_view nameOf(Log log);
std::optional<Log> logOf(std::string_view name);

using Entry = std::variant<MissedCallItem, DialledCallItem, ReceivedCallItem, ForwardedCallItem>;
using Entries = std::variant<std::deque<MissedCallItem>, std::deque<DialledCallItem>,
                             std::deque<ReceivedCallItem>, std::deque<ForwardedCallItem>>;

/// An entry of a log, an empty log: selected by a value.
Entry entryOf(Log log);
Entries entriesOf(Log log);
inline Log logOf(Entry const& entry) {
  return static_cast<Log>(entry.index());
}
inline Log logOf(Entries const& entries) {
  return static_cast<Log>(entries.index());
}

/// What a field holds.
enum class Type : std::uint8_t { text, flag, numberType, timeFormat, presentation, targetLog };

/// One field of a record.
struct Field {
  std::string_view name;    ///< as in the record
  std::string_view element; ///< the element that carries it
  Type type;
  members::Travel travel;
  void* (*in)(void* record);

  std::string& text(void* record) const { return *static_cast<std::string*>(in(record)); }
  std::string const& text(void const* record) const {
    return *static_cast<std::string const*>(in(const_cast<void*>(record)));
  }
};

struct Fields {
  Field const* first;
  std::size_t size;
  Field const* begin() const { return first; }
  Field const* end() const { return first + size; }
};

/// The names of an enumeration's members by their values.
struct Names {
  std::string_view const* first;
  std::size_t size;
  std::string_view const* begin() const { return first; }
  std::string_view const* end() const { return first + size; }
};
/// False and true of a flag are its names 0 and 1.
Names namesOf(Type type);

/// The value of a field that is no text.
std::int32_t numberIn(Field const& field, void const* record);
void setNumber(Field const& field, void* record, std::int32_t value);

/// The value as the message has it: the text, True, NO_ICON; the number of a value without a name.
std::string valueOf(Field const& field, void const* record);

namespace detail {
template <class Value>
constexpr Type typeOf() {
  if constexpr (std::is_same_v<Value, bool>)
    return Type::flag;
  else if constexpr (std::is_same_v<Value, NumberType::NT>)
    return Type::numberType;
  else if constexpr (std::is_same_v<Value, CallLogEntryEvent::_TFormat>)
    return Type::timeFormat;
  else if constexpr (std::is_same_v<Value, CallLogEntryEvent::_PresentationValue>)
    return Type::presentation;
  else if constexpr (std::is_same_v<Value, CallLogEntryEvent::_LogTarget>)
    return Type::targetLog;
  else
    return Type::text;
}

template <class Record, std::size_t index>
void* memberIn(void* record) {
  return &std::get<index>(members::list<Record>).in(*static_cast<Record*>(record));
}

/// How many of the first members are fields, the list of calls not counted.
template <class Record, std::size_t... index>
constexpr auto fieldsOf(std::index_sequence<index...>) {
  constexpr std::size_t calls = members::isEntry<Record> ? 1 : 0;
  std::array<Field, sizeof...(index) - calls> fields{};
  std::size_t next = 0;
  auto add = [&](auto const& member, void* (*in)(void*)) {
    using Member = std::decay_t<decltype(member)>;
    if constexpr (!Member::isCalls)
      fields[next++] = {member.name, member.element, typeOf<typename Member::Value>(),
                        member.travel, in};
  };
  (add(std::get<index>(members::list<Record>), &memberIn<Record, index>), ...);
  return fields;
}

template <class Record>
inline constexpr auto fields = fieldsOf<Record>(
    std::make_index_sequence<std::tuple_size_v<std::decay_t<decltype(members::list<Record>)>>>());
} // namespace detail

/// The fields of a record in the order of declaration, an entry's list of calls not among them.
template <class Record>
constexpr Fields fieldsOf() {
  return {detail::fields<Record>.data(), detail::fields<Record>.size()};
}
Fields entryFieldsOf(Log log);
Fields callFieldsOf(Log log);

/// A record, an entry or a call.
struct RecordView {
  Log log;
  void* record;
};

/// Calls visit(call) with a pointer to each call of an entry, which is not const.
template <class Visit>
void forEachCall(RecordView entry, Visit&& visit);

namespace detail {
template <class Item, class Visit>
void forEachCallOf(void* entry, Visit& visit) {
  for (auto& call : static_cast<Item*>(entry)->callInfoList)
    visit(static_cast<void*>(&call));
}
} // namespace detail

template <class Visit>
void forEachCall(RecordView entry, Visit&& visit) {
  switch (entry.log) {
  case Log::missed:
    return detail::forEachCallOf<MissedCallItem>(entry.record, visit);
  case Log::dialled:
    return detail::forEachCallOf<DialledCallItem>(entry.record, visit);
  case Log::received:
    return detail::forEachCallOf<ReceivedCallItem>(entry.record, visit);
  default:
    return detail::forEachCallOf<ForwardedCallItem>(entry.record, visit);
  }
}

/// Appends an empty call to an entry.
void* addCall(RecordView entry);
std::size_t callCount(RecordView entry);

RecordView viewOf(Entry& entry);
/// Appends an empty entry to a log.
RecordView addEntry(Entries& entries);

/// Calls visit(view) for each entry of a log.
template <class Visit>
void forEachEntry(Entries& entries, Visit&& visit) {
  std::visit(
      [&](auto& log) {
        for (auto& entry : log)
          visit(RecordView{logOf(entries), &entry});
      },
      entries);
}
std::size_t entryCount(Entries const& entries);

} // namespace inspect

#endif
