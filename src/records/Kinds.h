// The four kinds of call log: which elements their records have, and in which order.
#ifndef JOURNAL_RECORDS_KINDS_H
#define JOURNAL_RECORDS_KINDS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

#include "CallLogItems.h"
#include "bytes/Bytes.h"
#include "records/FieldDescriptor.h"
#include "vocabulary/Words.h"

namespace journal {

/// The kinds as values, for code that does not know their record types.
enum class LogKind : std::uint8_t { missed, dialled, received, forwarded };

// Entries hold a std::list, which makes offsetof of their members conditionally supported. Every
// compiler that we support accepts it for classes without virtual bases.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

// The descriptor of the element NAME that carries a member of the record; a macro, as offsetof is.
#define FIELD(Record, NAME, member)                                                                \
  (FieldDescriptor(element<word::NAME>, offsetof(Record, member),                                  \
                   contentOf<decltype(Record::member)>))

/// The fields with two adjacent ones exchanged.
template <std::size_t size, std::size_t... index>
constexpr std::array<FieldDescriptor, size>
exchanged(FieldDescriptor const (&fields)[size], std::size_t first, std::index_sequence<index...>) {
  return {fields[index == first ? first + 1 : index == first + 1 ? first : index]...};
}
template <std::size_t size>
constexpr auto exchanged(FieldDescriptor const (&fields)[size], std::size_t first) {
  return exchanged(fields, first, std::make_index_sequence<size>());
}

/// A kind of call log, named by its entry record:
///   kind         the same as a value
///   Call         the record of one call
///   method       the method tag of the list response
///   update       the method tag of the change notification
///   entry        the entry's fields before its LogList, UniqueId first
///   call         a call's fields, in the order in which they are written
///   callRead     the same in the order in which they are read
template <class Entry>
struct Kind;

template <>
struct Kind<MissedCallItem> {
  static constexpr auto kind = LogKind::missed;
  using Entry = MissedCallItem;
  using Call = MissedCallItem::MissedCallInfo;
  static constexpr auto method = Word::GETMISSEDCALLLIST_XML;
  static constexpr auto update = Word::MISSEDCALLSUPDATE_XML;

  static constexpr FieldDescriptor entry[] = {
      FIELD(Entry, UNIQUEID, uniqueId),         FIELD(Entry, ENTRYID, entryId),
      FIELD(Entry, SURNAME, surname).escaped(), FIELD(Entry, FIRSTNAME, firstname).escaped(),
      FIELD(Entry, PICTURE, picture),           FIELD(Entry, VIEWED, viewed),
  };
  static constexpr FieldDescriptor call[] = {
      FIELD(Call, NUMBER, number),
      FIELD(Call, NUMBERTYPE, numberType),
      FIELD(Call, CONNECTEDNUMBER, connectedNumber),
      FIELD(Call, CONNECTEDNUMBERTYPE, connectedNumberType).expected(NumberType::NO_ICON),
      FIELD(Call, CONNECTEDSURNAME, connectedSurname),
      FIELD(Call, CONNECTEDFIRSTNAME, connectedFirstName),
      FIELD(Call, TIMEDATE, timeDate),
      FIELD(Call, TARGETLOG, targetLog),
      FIELD(Call, NUMBERPRESENTATION, numberPresentation).expected(CallLogEntryEvent::ALLOWED),
      FIELD(Call, NAMEPRESENTATION, namePresentation).expected(CallLogEntryEvent::ALLOWED),
      FIELD(Call, DEFLECTNUMBERPRESENTATION, deflectNumberPresentation)
          .expected(CallLogEntryEvent::NOT_AVAILABLE),
      FIELD(Call, DEFLECTNUMBER, deflectNumber).joined(),
      FIELD(Call, DEFLECTNUMBERTYPE, deflectNumberType).expected(NumberType::NO_ICON).joined(),
      FIELD(Call, DEFLECTNAMEPRESENTATION, deflectNamePresentation)
          .expected(CallLogEntryEvent::NOT_AVAILABLE)
          .joined(),
      FIELD(Call, DEFLECTNAME, deflectName),
      FIELD(Call, TIMEFORMAT, timeFormat).expected(CallLogEntryEvent::FORM_24),
  };
  static constexpr auto& callRead = call;
};

template <>
struct Kind<DialledCallItem> {
  static constexpr auto kind = LogKind::dialled;
  using Entry = DialledCallItem;
  using Call = DialledCallItem::DialledCallInfo;
  static constexpr auto method = Word::GETDIALLEDCALLLIST_XML;
  static constexpr auto update = Word::DIALLEDCALLSUPDATE_XML;

  static constexpr FieldDescriptor entry[] = {
      FIELD(Entry, UNIQUEID, uniqueId),         FIELD(Entry, ENTRYID, entryId),
      FIELD(Entry, SURNAME, surname).escaped(), FIELD(Entry, FIRSTNAME, firstname).escaped(),
      FIELD(Entry, PICTURE, picture),           FIELD(Entry, JSGROUPBY, jsGroupBy),
  };
  static constexpr FieldDescriptor call[] = {
      FIELD(Call, NUMBER, number),
      FIELD(Call, NUMBERTYPE, numberType),
      FIELD(Call, RESOLVEDNUMBER, resolvedNumber),
      FIELD(Call, CONNECTEDNUMBER, connectedNumber),
      FIELD(Call, CONNECTEDNUMBERPRIORITY, connectedNumberPriority).expected(false),
      FIELD(Call, CONNECTEDNUMBERTYPE, connectedNumberType).expected(NumberType::NO_ICON).joined(),
      FIELD(Call, CONNECTEDSURNAME, connectedSurname),
      FIELD(Call, CONNECTEDFIRSTNAME, connectedFirstName),
      FIELD(Call, TIMEDATE, timeDate),
      FIELD(Call, DURATION, duration),
      FIELD(Call, TARGETLOG, targetLog),
      FIELD(Call, NUMBERPRESENTATION, numberPresentation).expected(CallLogEntryEvent::ALLOWED),
      FIELD(Call, NAMEPRESENTATION, namePresentation)
          .unclosed()
          .expected(CallLogEntryEvent::ALLOWED),
      FIELD(Call, TIMEFORMAT, timeFormat).expected(CallLogEntryEvent::FORM_24),
  };
  // The reader asks for the priority before the connected number that it belongs to; the writer
  // writes it after. Both orders are settled: where a connected number is present, the reader's
  // cursor stays right behind it, which decides what is read from elements that are out of order.
  static constexpr auto callRead = exchanged(call, 3);
};

template <>
struct Kind<ReceivedCallItem> {
  static constexpr auto kind = LogKind::received;
  using Entry = ReceivedCallItem;
  using Call = ReceivedCallItem::ReceivedCallInfo;
  static constexpr auto method = Word::GETRECEIVEDCALLLIST_XML;
  static constexpr auto update = Word::RECEIVEDCALLSUPDATE_XML;

  static constexpr FieldDescriptor entry[] = {
      FIELD(Entry, UNIQUEID, uniqueId),         FIELD(Entry, ENTRYID, entryId),
      FIELD(Entry, SURNAME, surname).escaped(), FIELD(Entry, FIRSTNAME, firstname).escaped(),
      FIELD(Entry, PICTURE, picture),
  };
  // The connected names are written, but a reader discards them. The loss is settled behaviour of
  // this log.
  static constexpr FieldDescriptor call[] = {
      FIELD(Call, NUMBER, number),
      FIELD(Call, NUMBERTYPE, numberType),
      FIELD(Call, CONNECTEDNUMBER, connectedNumber),
      FIELD(Call, CONNECTEDNUMBERTYPE, connectedNumberType).expected(NumberType::NO_ICON),
      FIELD(Call, CONNECTEDSURNAME, connectedSurname).discarded(),
      FIELD(Call, CONNECTEDFIRSTNAME, connectedFirstName).discarded(),
      FIELD(Call, TIMEDATE, timeDate),
      FIELD(Call, DURATION, duration),
      FIELD(Call, TARGETLOG, targetLog),
      FIELD(Call, NUMBERPRESENTATION, numberPresentation).expected(CallLogEntryEvent::ALLOWED),
      FIELD(Call, NAMEPRESENTATION, namePresentation).expected(CallLogEntryEvent::ALLOWED),
      FIELD(Call, DEFLECTNUMBERPRESENTATION, deflectNumberPresentation)
          .expected(CallLogEntryEvent::NOT_AVAILABLE),
      FIELD(Call, DEFLECTNUMBER, deflectNumber).joined(),
      FIELD(Call, DEFLECTNUMBERTYPE, deflectNumberType).expected(NumberType::NO_ICON).joined(),
      FIELD(Call, DEFLECTNAMEPRESENTATION, deflectNamePresentation)
          .expected(CallLogEntryEvent::NOT_AVAILABLE)
          .joined(),
      FIELD(Call, DEFLECTNAME, deflectName),
      FIELD(Call, TIMEFORMAT, timeFormat).expected(CallLogEntryEvent::FORM_24),
  };
  static constexpr auto& callRead = call;
};

template <>
struct Kind<ForwardedCallItem> {
  static constexpr auto kind = LogKind::forwarded;
  using Entry = ForwardedCallItem;
  using Call = ForwardedCallItem::ForwardedCallInfo;
  static constexpr auto method = Word::GETFORWARDEDCALLLIST_XML;
  static constexpr auto update = Word::FORWARDEDCALLSUPDATE_XML;

  static constexpr FieldDescriptor entry[] = {
      FIELD(Entry, UNIQUEID, uniqueId),         FIELD(Entry, ENTRYID, entryId),
      FIELD(Entry, SURNAME, surname).escaped(), FIELD(Entry, FIRSTNAME, firstname).escaped(),
      FIELD(Entry, PICTURE, picture),
  };
  // The only kind that escapes the connected names. Like the received kind, it discards them when
  // it reads.
  static constexpr FieldDescriptor call[] = {
      FIELD(Call, NUMBER, number),
      FIELD(Call, NUMBERTYPE, numberType),
      FIELD(Call, CONNECTEDNUMBER, connectedNumber),
      FIELD(Call, CONNECTEDNUMBERTYPE, connectedNumberType).expected(NumberType::NO_ICON),
      FIELD(Call, CONNECTEDSURNAME, connectedSurname).escaped().discarded(),
      FIELD(Call, CONNECTEDFIRSTNAME, connectedFirstName).escaped().discarded(),
      FIELD(Call, TIMEDATE, timeDate),
      FIELD(Call, DURATION, duration),
  };
  static constexpr auto& callRead = call;
};

#undef FIELD
#pragma GCC diagnostic pop

namespace detail {

/// Whether no name occurs twice in an entry and its calls.
template <class Fields, class MoreFields>
constexpr bool namesAreUnique(Fields const& fields, MoreFields const& more) {
  auto count = [&](std::string_view tag) {
    int same = 0;
    for (auto const& field : fields)
      same += field.begin() == tag ? 1 : 0;
    for (auto const& field : more)
      same += field.begin() == tag ? 1 : 0;
    return same;
  };
  for (auto const& field : fields)
    if (count(field.begin()) != 1)
      return false;
  for (auto const& field : more)
    if (count(field.begin()) != 1)
      return false;
  return true;
}

/// The value of an enumeration is compared with a member's text of the same size by loading
/// frontSize bytes. The tag behind the value has to make up for what the value lacks.
template <class Fields>
constexpr bool frontsCanBeLoaded(Fields const& fields) {
  for (auto const& field : fields)
    if (field.content() != Content::text && field.content() != Content::flag &&
        enumerationOf(field.content()).shortest() + field.searchedClose().size() < frontSize)
      return false;
  return true;
}

/// A FieldSet has a bit for each field.
template <class Fields>
constexpr bool fitsInSet(Fields const& fields) {
  return std::size(fields) < 32;
}

template <class Kind>
constexpr bool isSound() {
  return namesAreUnique(Kind::entry, Kind::call) && frontsCanBeLoaded(Kind::entry) &&
         frontsCanBeLoaded(Kind::call) && fitsInSet(Kind::entry) && fitsInSet(Kind::call);
}

template <class... Entry>
constexpr bool kindsAreSound() {
  return (isSound<Kind<Entry>>() && ...);
}
static_assert(
    kindsAreSound<MissedCallItem, DialledCallItem, ReceivedCallItem, ForwardedCallItem>());

} // namespace detail

/// The kind that a record belongs to, an entry or a call.
template <class Record>
inline constexpr LogKind kindOf = Kind<Record>::kind;
template <>
inline constexpr LogKind kindOf<MissedCallItem::MissedCallInfo> = LogKind::missed;
template <>
inline constexpr LogKind kindOf<DialledCallItem::DialledCallInfo> = LogKind::dialled;
template <>
inline constexpr LogKind kindOf<ReceivedCallItem::ReceivedCallInfo> = LogKind::received;
template <>
inline constexpr LogKind kindOf<ForwardedCallItem::ForwardedCallInfo> = LogKind::forwarded;

} // namespace journal

#endif
