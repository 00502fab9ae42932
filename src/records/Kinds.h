// The four kinds of call log: which elements their records have, and in which order.
#ifndef JOURNAL_RECORDS_KINDS_H
#define JOURNAL_RECORDS_KINDS_H

#include "CallLogItems.h"
#include "records/Fields.h"
#include "vocabulary/Words.h"

namespace journal {

/// A kind of call log, named by its entry record:
///   Info         the detail record
///   method       the method tag of the list response
///   update       the method tag of the change notification
///   entry        the entry's rows in front of its LogList, UniqueId first
///   detail       the detail record's rows, in the order in which they are written
///   detailRead   the same rows in the order in which they are read
template <class Item>
struct Kind;

template <>
struct Kind<MissedCallItem> {
  using Item = MissedCallItem;
  using Info = MissedCallItem::MissedCallInfo;
  static constexpr auto& method = word::GETMISSEDCALLLIST_XML;
  static constexpr auto& update = word::MISSEDCALLSUPDATE_XML;

  static constexpr Field<Item> entry[] = {
      field<word::UNIQUEID>(&Item::uniqueId),
      field<word::ENTRYID>(&Item::entryId),
      field<word::SURNAME>(&Item::surname, Writing::escaped),
      field<word::FIRSTNAME>(&Item::firstname, Writing::escaped),
      field<word::PICTURE>(&Item::picture),
      field<word::VIEWED>(&Item::viewed),
  };
  static constexpr Field<Info> detail[] = {
      field<word::NUMBER>(&Info::number),
      field<word::NUMBERTYPE>(&Info::numberType),
      field<word::CONNECTEDNUMBER>(&Info::connectedNumber),
      mostly<word::CONNECTEDNUMBERTYPE, NumberType::NO_ICON>(&Info::connectedNumberType),
      field<word::CONNECTEDSURNAME>(&Info::connectedSurname),
      field<word::CONNECTEDFIRSTNAME>(&Info::connectedFirstName),
      field<word::TIMEDATE>(&Info::timeDate),
      field<word::TARGETLOG>(&Info::targetLog),
      mostly<word::NUMBERPRESENTATION, CallLogEntryEvent::ALLOWED>(&Info::numberPresentation),
      mostly<word::NAMEPRESENTATION, CallLogEntryEvent::ALLOWED>(&Info::namePresentation),
      mostly<word::DEFLECTNUMBERPRESENTATION, CallLogEntryEvent::NOT_AVAILABLE>(
          &Info::deflectNumberPresentation),
      field<word::DEFLECTNUMBER>(&Info::deflectNumber),
      mostly<word::DEFLECTNUMBERTYPE, NumberType::NO_ICON>(&Info::deflectNumberType),
      mostly<word::DEFLECTNAMEPRESENTATION, CallLogEntryEvent::NOT_AVAILABLE>(
          &Info::deflectNamePresentation),
      field<word::DEFLECTNAME>(&Info::deflectName),
      mostly<word::TIMEFORMAT, CallLogEntryEvent::FORM_24>(&Info::timeFormat),
  };
  static constexpr auto& detailRead = detail;
};

template <>
struct Kind<DialledCallItem> {
  using Item = DialledCallItem;
  using Info = DialledCallItem::DialledCallInfo;
  static constexpr auto& method = word::GETDIALLEDCALLLIST_XML;
  static constexpr auto& update = word::DIALLEDCALLSUPDATE_XML;

  static constexpr Field<Item> entry[] = {
      field<word::UNIQUEID>(&Item::uniqueId),
      field<word::ENTRYID>(&Item::entryId),
      field<word::SURNAME>(&Item::surname, Writing::escaped),
      field<word::FIRSTNAME>(&Item::firstname, Writing::escaped),
      field<word::PICTURE>(&Item::picture),
      field<word::JSGROUPBY>(&Item::jsGroupBy),
  };
  // The reader asks for the priority in front of the connected number that it goes with, while the
  // writer puts it behind. Both orders are settled: with a connected number present, the reader's
  // cursor stops there, which decides what is read from elements out of order.
  static constexpr Field<Info> detail[] = {
      field<word::NUMBER>(&Info::number),
      field<word::NUMBERTYPE>(&Info::numberType),
      field<word::RESOLVEDNUMBER>(&Info::resolvedNumber),
      field<word::CONNECTEDNUMBER>(&Info::connectedNumber),
      mostly<word::CONNECTEDNUMBERPRIORITY, false>(&Info::connectedNumberPriority),
      mostly<word::CONNECTEDNUMBERTYPE, NumberType::NO_ICON>(&Info::connectedNumberType),
      field<word::CONNECTEDSURNAME>(&Info::connectedSurname),
      field<word::CONNECTEDFIRSTNAME>(&Info::connectedFirstName),
      field<word::TIMEDATE>(&Info::timeDate),
      field<word::DURATION>(&Info::duration),
      field<word::TARGETLOG>(&Info::targetLog),
      mostly<word::NUMBERPRESENTATION, CallLogEntryEvent::ALLOWED>(&Info::numberPresentation),
      mostly<word::NAMEPRESENTATION, CallLogEntryEvent::ALLOWED>(&Info::namePresentation,
                                                                 Reading::unclosed),
      mostly<word::TIMEFORMAT, CallLogEntryEvent::FORM_24>(&Info::timeFormat),
  };
  static constexpr auto detailRead = swapped(detail, 3, 4);
};

template <>
struct Kind<ReceivedCallItem> {
  using Item = ReceivedCallItem;
  using Info = ReceivedCallItem::ReceivedCallInfo;
  static constexpr auto& method = word::GETRECEIVEDCALLLIST_XML;
  static constexpr auto& update = word::RECEIVEDCALLSUPDATE_XML;

  static constexpr Field<Item> entry[] = {
      field<word::UNIQUEID>(&Item::uniqueId),
      field<word::ENTRYID>(&Item::entryId),
      field<word::SURNAME>(&Item::surname, Writing::escaped),
      field<word::FIRSTNAME>(&Item::firstname, Writing::escaped),
      field<word::PICTURE>(&Item::picture),
  };
  // The connected names are written, but a reader passes over them and leaves the fields to their
  // holder. The loss is settled behaviour of this log.
  static constexpr Field<Info> detail[] = {
      field<word::NUMBER>(&Info::number),
      field<word::NUMBERTYPE>(&Info::numberType),
      field<word::CONNECTEDNUMBER>(&Info::connectedNumber),
      mostly<word::CONNECTEDNUMBERTYPE, NumberType::NO_ICON>(&Info::connectedNumberType),
      field<word::CONNECTEDSURNAME>(&Info::connectedSurname, Writing::raw, Reading::discarded),
      field<word::CONNECTEDFIRSTNAME>(&Info::connectedFirstName, Writing::raw, Reading::discarded),
      field<word::TIMEDATE>(&Info::timeDate),
      field<word::DURATION>(&Info::duration),
      field<word::TARGETLOG>(&Info::targetLog),
      mostly<word::NUMBERPRESENTATION, CallLogEntryEvent::ALLOWED>(&Info::numberPresentation),
      mostly<word::NAMEPRESENTATION, CallLogEntryEvent::ALLOWED>(&Info::namePresentation),
      mostly<word::DEFLECTNUMBERPRESENTATION, CallLogEntryEvent::NOT_AVAILABLE>(
          &Info::deflectNumberPresentation),
      field<word::DEFLECTNUMBER>(&Info::deflectNumber),
      mostly<word::DEFLECTNUMBERTYPE, NumberType::NO_ICON>(&Info::deflectNumberType),
      mostly<word::DEFLECTNAMEPRESENTATION, CallLogEntryEvent::NOT_AVAILABLE>(
          &Info::deflectNamePresentation),
      field<word::DEFLECTNAME>(&Info::deflectName),
      mostly<word::TIMEFORMAT, CallLogEntryEvent::FORM_24>(&Info::timeFormat),
  };
  static constexpr auto& detailRead = detail;
};

template <>
struct Kind<ForwardedCallItem> {
  using Item = ForwardedCallItem;
  using Info = ForwardedCallItem::ForwardedCallInfo;
  static constexpr auto& method = word::GETFORWARDEDCALLLIST_XML;
  static constexpr auto& update = word::FORWARDEDCALLSUPDATE_XML;

  static constexpr Field<Item> entry[] = {
      field<word::UNIQUEID>(&Item::uniqueId),
      field<word::ENTRYID>(&Item::entryId),
      field<word::SURNAME>(&Item::surname, Writing::escaped),
      field<word::FIRSTNAME>(&Item::firstname, Writing::escaped),
      field<word::PICTURE>(&Item::picture),
  };
  // The only kind that escapes the connected names; like the received kind it passes over them when
  // it reads.
  static constexpr Field<Info> detail[] = {
      field<word::NUMBER>(&Info::number),
      field<word::NUMBERTYPE>(&Info::numberType),
      field<word::CONNECTEDNUMBER>(&Info::connectedNumber),
      mostly<word::CONNECTEDNUMBERTYPE, NumberType::NO_ICON>(&Info::connectedNumberType),
      field<word::CONNECTEDSURNAME>(&Info::connectedSurname, Writing::escaped, Reading::discarded),
      field<word::CONNECTEDFIRSTNAME>(&Info::connectedFirstName, Writing::escaped,
                                      Reading::discarded),
      field<word::TIMEDATE>(&Info::timeDate),
      field<word::DURATION>(&Info::duration),
  };
  static constexpr auto& detailRead = detail;
};

} // namespace journal

#endif
