// The four kinds of call log: which elements their records have, and in which order.
#ifndef JOURNAL_RECORDS_KINDS_H
#define JOURNAL_RECORDS_KINDS_H

#include "CallLogItems.h"
#include "records/Fields.h"
#include "vocabulary/Words.h"

namespace journal {

// Entries hold a std::list, which makes offsetof of their members conditionally supported:
// compilers may refuse it, but none that meets a class without virtual bases does.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

// The place and type of a record's member; a macro, as offsetof is one.
#define MEMBER(Record, name) (Member{offsetof(Record, name), contentOf<decltype(Record::name)>})

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

  static constexpr Field entry[] = {
      field<word::UNIQUEID>(MEMBER(Item, uniqueId)),
      field<word::ENTRYID>(MEMBER(Item, entryId)),
      field<word::SURNAME>(MEMBER(Item, surname), Writing::escaped),
      field<word::FIRSTNAME>(MEMBER(Item, firstname), Writing::escaped),
      field<word::PICTURE>(MEMBER(Item, picture)),
      field<word::VIEWED>(MEMBER(Item, viewed)),
  };
  static constexpr Field detail[] = {
      field<word::NUMBER>(MEMBER(Info, number)),
      field<word::NUMBERTYPE>(MEMBER(Info, numberType)),
      field<word::CONNECTEDNUMBER>(MEMBER(Info, connectedNumber)),
      mostly<word::CONNECTEDNUMBERTYPE>(MEMBER(Info, connectedNumberType), NumberType::NO_ICON),
      field<word::CONNECTEDSURNAME>(MEMBER(Info, connectedSurname)),
      field<word::CONNECTEDFIRSTNAME>(MEMBER(Info, connectedFirstName)),
      field<word::TIMEDATE>(MEMBER(Info, timeDate)),
      field<word::TARGETLOG>(MEMBER(Info, targetLog)),
      mostly<word::NUMBERPRESENTATION>(MEMBER(Info, numberPresentation),
                                       CallLogEntryEvent::ALLOWED),
      mostly<word::NAMEPRESENTATION>(MEMBER(Info, namePresentation), CallLogEntryEvent::ALLOWED),
      mostly<word::DEFLECTNUMBERPRESENTATION>(MEMBER(Info, deflectNumberPresentation),
                                              CallLogEntryEvent::NOT_AVAILABLE),
      missingAlong<word::DEFLECTNUMBER>(MEMBER(Info, deflectNumber)),
      along<word::DEFLECTNUMBERTYPE>(MEMBER(Info, deflectNumberType), NumberType::NO_ICON),
      along<word::DEFLECTNAMEPRESENTATION>(MEMBER(Info, deflectNamePresentation),
                                           CallLogEntryEvent::NOT_AVAILABLE),
      field<word::DEFLECTNAME>(MEMBER(Info, deflectName)),
      mostly<word::TIMEFORMAT>(MEMBER(Info, timeFormat), CallLogEntryEvent::FORM_24),
  };
  static constexpr auto& detailRead = detail;
};

template <>
struct Kind<DialledCallItem> {
  using Item = DialledCallItem;
  using Info = DialledCallItem::DialledCallInfo;
  static constexpr auto& method = word::GETDIALLEDCALLLIST_XML;
  static constexpr auto& update = word::DIALLEDCALLSUPDATE_XML;

  static constexpr Field entry[] = {
      field<word::UNIQUEID>(MEMBER(Item, uniqueId)),
      field<word::ENTRYID>(MEMBER(Item, entryId)),
      field<word::SURNAME>(MEMBER(Item, surname), Writing::escaped),
      field<word::FIRSTNAME>(MEMBER(Item, firstname), Writing::escaped),
      field<word::PICTURE>(MEMBER(Item, picture)),
      field<word::JSGROUPBY>(MEMBER(Item, jsGroupBy)),
  };
  // The reader asks for the priority in front of the connected number that it goes with, while the
  // writer puts it behind. Both orders are settled: with a connected number present, the reader's
  // cursor stops there, which decides what is read from elements out of order.
  static constexpr Field detail[] = {
      field<word::NUMBER>(MEMBER(Info, number)),
      field<word::NUMBERTYPE>(MEMBER(Info, numberType)),
      field<word::RESOLVEDNUMBER>(MEMBER(Info, resolvedNumber)),
      field<word::CONNECTEDNUMBER>(MEMBER(Info, connectedNumber)),
      mostly<word::CONNECTEDNUMBERPRIORITY>(MEMBER(Info, connectedNumberPriority), false),
      along<word::CONNECTEDNUMBERTYPE>(MEMBER(Info, connectedNumberType), NumberType::NO_ICON),
      field<word::CONNECTEDSURNAME>(MEMBER(Info, connectedSurname)),
      field<word::CONNECTEDFIRSTNAME>(MEMBER(Info, connectedFirstName)),
      field<word::TIMEDATE>(MEMBER(Info, timeDate)),
      field<word::DURATION>(MEMBER(Info, duration)),
      field<word::TARGETLOG>(MEMBER(Info, targetLog)),
      mostly<word::NUMBERPRESENTATION>(MEMBER(Info, numberPresentation),
                                       CallLogEntryEvent::ALLOWED),
      mostly<word::NAMEPRESENTATION>(MEMBER(Info, namePresentation), CallLogEntryEvent::ALLOWED,
                                     Reading::unclosed),
      mostly<word::TIMEFORMAT>(MEMBER(Info, timeFormat), CallLogEntryEvent::FORM_24),
  };
  static constexpr auto detailRead = swapped(detail, 3, 4);
};

template <>
struct Kind<ReceivedCallItem> {
  using Item = ReceivedCallItem;
  using Info = ReceivedCallItem::ReceivedCallInfo;
  static constexpr auto& method = word::GETRECEIVEDCALLLIST_XML;
  static constexpr auto& update = word::RECEIVEDCALLSUPDATE_XML;

  static constexpr Field entry[] = {
      field<word::UNIQUEID>(MEMBER(Item, uniqueId)),
      field<word::ENTRYID>(MEMBER(Item, entryId)),
      field<word::SURNAME>(MEMBER(Item, surname), Writing::escaped),
      field<word::FIRSTNAME>(MEMBER(Item, firstname), Writing::escaped),
      field<word::PICTURE>(MEMBER(Item, picture)),
  };
  // The connected names are written, but a reader passes over them and leaves the fields to their
  // holder. The loss is settled behaviour of this log.
  static constexpr Field detail[] = {
      field<word::NUMBER>(MEMBER(Info, number)),
      field<word::NUMBERTYPE>(MEMBER(Info, numberType)),
      field<word::CONNECTEDNUMBER>(MEMBER(Info, connectedNumber)),
      mostly<word::CONNECTEDNUMBERTYPE>(MEMBER(Info, connectedNumberType), NumberType::NO_ICON),
      field<word::CONNECTEDSURNAME>(MEMBER(Info, connectedSurname), Writing::raw,
                                    Reading::discarded),
      field<word::CONNECTEDFIRSTNAME>(MEMBER(Info, connectedFirstName), Writing::raw,
                                      Reading::discarded),
      field<word::TIMEDATE>(MEMBER(Info, timeDate)),
      field<word::DURATION>(MEMBER(Info, duration)),
      field<word::TARGETLOG>(MEMBER(Info, targetLog)),
      mostly<word::NUMBERPRESENTATION>(MEMBER(Info, numberPresentation),
                                       CallLogEntryEvent::ALLOWED),
      mostly<word::NAMEPRESENTATION>(MEMBER(Info, namePresentation), CallLogEntryEvent::ALLOWED),
      mostly<word::DEFLECTNUMBERPRESENTATION>(MEMBER(Info, deflectNumberPresentation),
                                              CallLogEntryEvent::NOT_AVAILABLE),
      missingAlong<word::DEFLECTNUMBER>(MEMBER(Info, deflectNumber)),
      along<word::DEFLECTNUMBERTYPE>(MEMBER(Info, deflectNumberType), NumberType::NO_ICON),
      along<word::DEFLECTNAMEPRESENTATION>(MEMBER(Info, deflectNamePresentation),
                                           CallLogEntryEvent::NOT_AVAILABLE),
      field<word::DEFLECTNAME>(MEMBER(Info, deflectName)),
      mostly<word::TIMEFORMAT>(MEMBER(Info, timeFormat), CallLogEntryEvent::FORM_24),
  };
  static constexpr auto& detailRead = detail;
};

template <>
struct Kind<ForwardedCallItem> {
  using Item = ForwardedCallItem;
  using Info = ForwardedCallItem::ForwardedCallInfo;
  static constexpr auto& method = word::GETFORWARDEDCALLLIST_XML;
  static constexpr auto& update = word::FORWARDEDCALLSUPDATE_XML;

  static constexpr Field entry[] = {
      field<word::UNIQUEID>(MEMBER(Item, uniqueId)),
      field<word::ENTRYID>(MEMBER(Item, entryId)),
      field<word::SURNAME>(MEMBER(Item, surname), Writing::escaped),
      field<word::FIRSTNAME>(MEMBER(Item, firstname), Writing::escaped),
      field<word::PICTURE>(MEMBER(Item, picture)),
  };
  // The only kind that escapes the connected names; like the received kind it passes over them when
  // it reads.
  static constexpr Field detail[] = {
      field<word::NUMBER>(MEMBER(Info, number)),
      field<word::NUMBERTYPE>(MEMBER(Info, numberType)),
      field<word::CONNECTEDNUMBER>(MEMBER(Info, connectedNumber)),
      mostly<word::CONNECTEDNUMBERTYPE>(MEMBER(Info, connectedNumberType), NumberType::NO_ICON),
      field<word::CONNECTEDSURNAME>(MEMBER(Info, connectedSurname), Writing::escaped,
                                    Reading::discarded),
      field<word::CONNECTEDFIRSTNAME>(MEMBER(Info, connectedFirstName), Writing::escaped,
                                      Reading::discarded),
      field<word::TIMEDATE>(MEMBER(Info, timeDate)),
      field<word::DURATION>(MEMBER(Info, duration)),
  };
  static constexpr auto& detailRead = detail;
};

#undef MEMBER
#pragma GCC diagnostic pop

} // namespace journal

#endif
