#include "inspect/Records.h"

namespace inspect {
namespace {

constexpr std::string_view logNames[logs] = {"missed", "dialled", "received", "forwarded"};

template <class Enumeration, std::size_t... index>
constexpr auto namesByValue(std::index_sequence<index...>) {
  return std::array{members::enumerators<Enumeration>[index].name...};
}
template <class Enumeration>
constexpr bool areInOrder() {
  std::int32_t next = 0;
  for (auto const& enumerator : members::enumerators<Enumeration>)
    if (enumerator.value != next++)
      return false;
  return true;
}
template <class Enumeration>
constexpr auto enumeratorNames =
    namesByValue<Enumeration>(std::make_index_sequence<members::enumerators<Enumeration>.size()>());

template <class Enumeration>
Names namesOf() {
  static_assert(areInOrder<Enumeration>());
  return {enumeratorNames<Enumeration>.data(), enumeratorNames<Enumeration>.size()};
}

constexpr std::string_view flagNames[] = {"False", "True"};

} // namespace

std::string_view nameOf(Log log) {
  return logNames[static_cast<std::size_t>(log)];
}

std::optional<Log> logOf(std::string_view name) {
  for (Log const log : allLogs)
    if (nameOf(log) == name)
      return log;
  return {};
}

Names namesOf(Type type) {
  switch (type) {
  case Type::flag:
    return {flagNames, 2};
  case Type::numberType:
    return namesOf<NumberType::NT>();
  case Type::timeFormat:
    return namesOf<CallLogEntryEvent::_TFormat>();
  case Type::presentation:
    return namesOf<CallLogEntryEvent::_PresentationValue>();
  case Type::targetLog:
    return namesOf<CallLogEntryEvent::_LogTarget>();
  default:
    return {nullptr, 0};
  }
}

// Each member is accessed as what it is.
std::int32_t numberIn(Field const& field, void const* record) {
  void const* const value = field.in(const_cast<void*>(record));
  switch (field.type) {
  case Type::flag:
    return *static_cast<bool const*>(value) ? 1 : 0;
  case Type::numberType:
    return *static_cast<NumberType::NT const*>(value);
  case Type::timeFormat:
    return *static_cast<CallLogEntryEvent::_TFormat const*>(value);
  case Type::presentation:
    return *static_cast<CallLogEntryEvent::_PresentationValue const*>(value);
  case Type::targetLog:
    return *static_cast<CallLogEntryEvent::_LogTarget const*>(value);
  default:
    return 0;
  }
}

void setNumber(Field const& field, void* record, std::int32_t number) {
  void* const value = field.in(record);
  switch (field.type) {
  case Type::flag:
    *static_cast<bool*>(value) = number != 0;
    break;
  case Type::numberType:
    *static_cast<NumberType::NT*>(value) = static_cast<NumberType::NT>(number);
    break;
  case Type::timeFormat:
    *static_cast<CallLogEntryEvent::_TFormat*>(value) =
        static_cast<CallLogEntryEvent::_TFormat>(number);
    break;
  case Type::presentation:
    *static_cast<CallLogEntryEvent::_PresentationValue*>(value) =
        static_cast<CallLogEntryEvent::_PresentationValue>(number);
    break;
  case Type::targetLog:
    *static_cast<CallLogEntryEvent::_LogTarget*>(value) =
        static_cast<CallLogEntryEvent::_LogTarget>(number);
    break;
  default:
    break;
  }
}

std::string valueOf(Field const& field, void const* record) {
  if (field.type == Type::text)
    return field.text(record);
  auto const number = numberIn(field, record);
  Names const names = namesOf(field.type);
  auto const index = static_cast<std::uint32_t>(number);
  return index < names.size ? std::string(names.first[index]) : std::to_string(number);
}

namespace {

/// Calls select(tag) with a null pointer to the log's type of entry.
template <class Select>
auto withEntryType(Log log, Select select) {
  switch (log) {
  case Log::missed:
    return select(static_cast<MissedCallItem*>(nullptr));
  case Log::dialled:
    return select(static_cast<DialledCallItem*>(nullptr));
  case Log::received:
    return select(static_cast<ReceivedCallItem*>(nullptr));
  default:
    return select(static_cast<ForwardedCallItem*>(nullptr));
  }
}
template <class Pointer>
using Pointed = std::remove_pointer_t<Pointer>;

} // namespace

Entry entryOf(Log log) {
  return withEntryType(log, [](auto* type) { return Entry(Pointed<decltype(type)>()); });
}

Entries entriesOf(Log log) {
  return withEntryType(log,
                       [](auto* type) { return Entries(std::deque<Pointed<decltype(type)>>()); });
}

Fields entryFieldsOf(Log log) {
  return withEntryType(log, [](auto* type) { return fieldsOf<Pointed<decltype(type)>>(); });
}

Fields callFieldsOf(Log log) {
  return withEntryType(
      log, [](auto* type) { return fieldsOf<members::CallOf<Pointed<decltype(type)>>>(); });
}

void* addCall(RecordView entry) {
  return withEntryType(entry.log, [&](auto* type) -> void* {
    return &static_cast<decltype(type)>(entry.record)->callInfoList.emplace_back();
  });
}

std::size_t callCount(RecordView entry) {
  return withEntryType(entry.log, [&](auto* type) {
    return static_cast<decltype(type)>(entry.record)->callInfoList.size();
  });
}

RecordView viewOf(Entry& entry) {
  return {logOf(entry), std::visit([](auto& record) -> void* { return &record; }, entry)};
}

RecordView addEntry(Entries& entries) {
  return {logOf(entries),
          std::visit([](auto& log) -> void* { return &log.emplace_back(); }, entries)};
}

std::size_t entryCount(Entries const& entries) {
  return std::visit([](auto const& log) { return log.size(); }, entries);
}

} // namespace inspect
