// The members of the call-log records: one list for everything outside src/.
//
// Tests, tools, examples and benchmarks visit this list instead of naming members themselves. It is
// independent of the library's own field descriptors, so that it can test them. A list that lacks a
// member of its record does not compile.
#ifndef MEMBERS_MEMBERS_H
#define MEMBERS_MEMBERS_H

#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "CallLogItems.h"
#include "members/MemberCount.h"

namespace members {

/// Whether a member is written to a message, and read back.
enum class Travel {
  bothWays,    ///< written, and read back
  writtenOnly, ///< written, but what is read back does not depend on it
  never        ///< no element carries it
};

/// One member of a record.
template <class RecordType, class ValueType>
struct Member {
  using Record = RecordType;
  using Value = ValueType;

  std::string_view name;    ///< as in the record
  std::string_view element; ///< the element that carries it; LogList for the list of calls
  Value Record::*pointer;
  Travel travel = Travel::bothWays;

  /// Whether this is an entry's list of calls, which most visitors treat on its own.
  static constexpr bool isCalls = !std::is_same_v<Value, std::string> && std::is_class_v<Value>;

  constexpr Value const& in(Record const& record) const { return record.*pointer; }
  constexpr Value& in(Record& record) const { return record.*pointer; }
};

// The lists, in the order of declaration. MEMBER and its siblings spell a member's name once.
#define MEMBER_AS(name, element, travel)                                                           \
  Member<Record, decltype(Record::name)> {                                                         \
#name, element, &Record::name, travel                                                          \
  }
#define MEMBER(name, element) MEMBER_AS(name, element, Travel::bothWays)
#define WRITTEN_ONLY(name, element) MEMBER_AS(name, element, Travel::writtenOnly)
#define NEVER_WRITTEN(name) MEMBER_AS(name, "", Travel::never)

/// membersOf(record) is the tuple of a record's members. The argument only selects the record.
constexpr auto membersOf(MissedCallItem const*) {
  using Record = MissedCallItem;
  return std::tuple{
      MEMBER(uniqueId, "UniqueId"),   MEMBER(entryId, "EntryId"), MEMBER(surname, "Surname"),
      MEMBER(firstname, "Firstname"), MEMBER(picture, "Picture"), MEMBER(callInfoList, "LogList"),
      MEMBER(viewed, "Viewed"),
  };
}

constexpr auto membersOf(DialledCallItem const*) {
  using Record = DialledCallItem;
  return std::tuple{
      MEMBER(uniqueId, "UniqueId"),   MEMBER(entryId, "EntryId"),
      MEMBER(surname, "Surname"),     MEMBER(firstname, "Firstname"),
      MEMBER(jsGroupBy, "JSGroupBy"), MEMBER(callInfoList, "LogList"),
      MEMBER(picture, "Picture"),
  };
}

constexpr auto membersOf(ReceivedCallItem const*) {
  using Record = ReceivedCallItem;
  return std::tuple{
      MEMBER(uniqueId, "UniqueId"),   MEMBER(entryId, "EntryId"), MEMBER(surname, "Surname"),
      MEMBER(firstname, "Firstname"), MEMBER(picture, "Picture"), MEMBER(callInfoList, "LogList"),
  };
}

constexpr auto membersOf(ForwardedCallItem const*) {
  using Record = ForwardedCallItem;
  return std::tuple{
      MEMBER(uniqueId, "UniqueId"),   MEMBER(entryId, "EntryId"), MEMBER(surname, "Surname"),
      MEMBER(firstname, "Firstname"), MEMBER(picture, "Picture"), MEMBER(callInfoList, "LogList"),
  };
}

constexpr auto membersOf(MissedCallItem::MissedCallInfo const*) {
  using Record = MissedCallItem::MissedCallInfo;
  return std::tuple{
      NEVER_WRITTEN(infoKey),
      MEMBER(targetLog, "TargetLog"),
      MEMBER(numberPresentation, "NumberPresentation"),
      MEMBER(number, "Number"),
      MEMBER(namePresentation, "NamePresentation"),
      MEMBER(numberType, "NumberType"),
      MEMBER(connectedNumber, "ConnectedNumber"),
      MEMBER(connectedNumberType, "ConnectedNumberType"),
      MEMBER(connectedSurname, "ConnectedSurname"),
      MEMBER(connectedFirstName, "ConnectedFirstName"),
      MEMBER(deflectNumberPresentation, "DeflectNumberPresentation"),
      MEMBER(deflectNumber, "DeflectNumber"),
      MEMBER(deflectNumberType, "DeflectNumberType"),
      MEMBER(deflectNamePresentation, "DeflectNamePresentation"),
      MEMBER(deflectName, "DeflectName"),
      MEMBER(timeFormat, "TimeFormat"),
      MEMBER(timeDate, "TimeDate"),
  };
}

constexpr auto membersOf(DialledCallItem::DialledCallInfo const*) {
  using Record = DialledCallItem::DialledCallInfo;
  return std::tuple{
      NEVER_WRITTEN(infoKey),
      MEMBER(targetLog, "TargetLog"),
      MEMBER(numberPresentation, "NumberPresentation"),
      MEMBER(number, "Number"),
      MEMBER(resolvedNumber, "ResolvedNumber"),
      MEMBER(connectedNumberPriority, "ConnectedNumberPriority"),
      // Read with its begin tag as close tag, so that what is written is never found.
      WRITTEN_ONLY(namePresentation, "NamePresentation"),
      MEMBER(numberType, "NumberType"),
      MEMBER(connectedNumber, "ConnectedNumber"),
      MEMBER(connectedNumberType, "ConnectedNumberType"),
      MEMBER(connectedSurname, "ConnectedSurname"),
      MEMBER(connectedFirstName, "ConnectedFirstName"),
      MEMBER(duration, "Duration"),
      MEMBER(timeFormat, "TimeFormat"),
      MEMBER(timeDate, "TimeDate"),
  };
}

constexpr auto membersOf(ReceivedCallItem::ReceivedCallInfo const*) {
  using Record = ReceivedCallItem::ReceivedCallInfo;
  return std::tuple{
      NEVER_WRITTEN(infoKey),
      MEMBER(targetLog, "TargetLog"),
      MEMBER(numberPresentation, "NumberPresentation"),
      MEMBER(number, "Number"),
      MEMBER(namePresentation, "NamePresentation"),
      MEMBER(numberType, "NumberType"),
      MEMBER(deflectNumberPresentation, "DeflectNumberPresentation"),
      MEMBER(connectedNumber, "ConnectedNumber"),
      MEMBER(deflectNumber, "DeflectNumber"),
      MEMBER(connectedNumberType, "ConnectedNumberType"),
      WRITTEN_ONLY(connectedSurname, "ConnectedSurname"), // read, but not kept
      WRITTEN_ONLY(connectedFirstName, "ConnectedFirstName"),
      MEMBER(deflectNumberType, "DeflectNumberType"),
      MEMBER(deflectNamePresentation, "DeflectNamePresentation"),
      MEMBER(deflectName, "DeflectName"),
      MEMBER(duration, "Duration"),
      MEMBER(timeFormat, "TimeFormat"),
      MEMBER(timeDate, "TimeDate"),
  };
}

constexpr auto membersOf(ForwardedCallItem::ForwardedCallInfo const*) {
  using Record = ForwardedCallItem::ForwardedCallInfo;
  return std::tuple{
      NEVER_WRITTEN(infoKey),
      MEMBER(number, "Number"),
      MEMBER(numberType, "NumberType"),
      MEMBER(connectedNumber, "ConnectedNumber"),
      MEMBER(connectedNumberType, "ConnectedNumberType"),
      WRITTEN_ONLY(connectedSurname, "ConnectedSurname"), // read, but not kept
      WRITTEN_ONLY(connectedFirstName, "ConnectedFirstName"),
      MEMBER(duration, "Duration"),
      MEMBER(timeDate, "TimeDate"),
  };
}

#undef NEVER_WRITTEN
#undef WRITTEN_ONLY
#undef MEMBER
#undef MEMBER_AS

namespace detail {
template <class Record>
constexpr auto completeList() {
  constexpr auto members = membersOf(static_cast<Record const*>(nullptr));
  static_assert(std::tuple_size_v<decltype(members)> == memberCount<Record>(),
                "membersOf() does not name every member of this record");
  return members;
}
} // namespace detail

/// The list of a record's members, as a tuple.
template <class Record>
inline constexpr auto list = detail::completeList<Record>();

/// Calls visit(member) for every member of a record, an entry's list of calls included.
template <class Record, class Visit>
constexpr void forEachMember(Visit&& visit) {
  std::apply([&visit](auto const&... member) { (visit(member), ...); }, list<Record>);
}

/// The same without the list of calls.
template <class Record, class Visit>
constexpr void forEachField(Visit&& visit) {
  forEachMember<Record>([&visit](auto const& member) {
    if constexpr (!std::decay_t<decltype(member)>::isCalls)
      visit(member);
  });
}

/// Calls visit(value) for the record's own value of every member but the list of calls.
template <class Record, class Visit>
constexpr void forEachValue(Record& record, Visit&& visit) {
  forEachField<std::remove_const_t<Record>>([&](auto const& member) { visit(member.in(record)); });
}

/// Whether a type is one of the eight records.
template <class Type, class = void>
inline constexpr bool isRecord = false;
template <class Type>
inline constexpr bool
    isRecord<Type, std::void_t<decltype(membersOf(static_cast<Type const*>(nullptr)))>> = true;

/// Whether a record is an entry, with a list of calls.
template <class Record, class = void>
inline constexpr bool isEntry = false;
template <class Record>
inline constexpr bool isEntry<Record, std::void_t<decltype(&Record::callInfoList)>> = true;

/// The type of an entry's calls.
template <class Entry>
using CallOf = typename decltype(Entry::callInfoList)::value_type;

} // namespace members

#endif
