/// @file
/// The records of the four call logs. A log is a std::deque of entries, front first. An entry is
/// one party and the list of the calls made to or from it.
///
/// A field is named after the message element that carries it, with its first letter in lower case.
/// (LogList carries callInfoList, JSGroupBy carries jsGroupBy, and no element carries infoKey.) The
/// four kinds are not uniform: each has the fields that its log needs, in its own order.
///
/// Texts are byte strings that hold UTF-8. A default-constructed record holds empty texts, an empty
/// list, false flags and the default member of every enumeration. Records are plain values: copies
/// are deep.
///
/// A reader sets every field: where the element is missing, a text becomes empty, a flag false and
/// an enumeration its default member. Three things keep the value that they had: infoKey, the
/// connected names of received and forwarded calls, and the callInfoList of an entry in which no
/// call was read.
#ifndef CALLLOGITEMS_H
#define CALLLOGITEMS_H

#include <list>
#include <string>

#include "CallLogEntryEvent.h"
#include "NumberType.h"

/// One party of the missed-call log.
struct MissedCallItem {
  /// One missed call.
  struct MissedCallInfo {
    std::string infoKey; ///< for the caller; never serialised
    CallLogEntryEvent::_LogTarget targetLog = CallLogEntryEvent::OUT_BUSY;
    CallLogEntryEvent::_PresentationValue numberPresentation = CallLogEntryEvent::NOT_AVAILABLE;
    std::string number; ///< the remote party's number
    CallLogEntryEvent::_PresentationValue namePresentation = CallLogEntryEvent::NOT_AVAILABLE;
    NumberType::NT numberType = NumberType::NO_ICON;
    std::string connectedNumber; ///< the party actually connected, when it is another
    NumberType::NT connectedNumberType = NumberType::NO_ICON;
    std::string connectedSurname;
    std::string connectedFirstName;
    CallLogEntryEvent::_PresentationValue deflectNumberPresentation =
        CallLogEntryEvent::NOT_AVAILABLE;
    std::string deflectNumber; ///< the party to which the call was deflected
    NumberType::NT deflectNumberType = NumberType::NO_ICON;
    CallLogEntryEvent::_PresentationValue deflectNamePresentation =
        CallLogEntryEvent::NOT_AVAILABLE;
    std::string deflectName;
    CallLogEntryEvent::_TFormat timeFormat = CallLogEntryEvent::FORM_24;
    std::string timeDate; ///< date and time of the call, never interpreted
  };

  std::string uniqueId; ///< names the entry within its log; notifications use it
  std::string entryId;  ///< names the entry in the service's store; requests use it
  std::string surname;
  std::string firstname;
  std::string picture;                    ///< reference of the party's picture
  std::list<MissedCallInfo> callInfoList; ///< in the service's order
  bool viewed = false;                    ///< whether the user has seen the entry
};

/// One party of the dialled-call log.
struct DialledCallItem {
  /// One dialled call.
  struct DialledCallInfo {
    std::string infoKey; ///< for the caller; never serialised
    CallLogEntryEvent::_LogTarget targetLog = CallLogEntryEvent::OUT_BUSY;
    CallLogEntryEvent::_PresentationValue numberPresentation = CallLogEntryEvent::NOT_AVAILABLE;
    std::string number;                   ///< the number that was dialled
    std::string resolvedNumber;           ///< the number finally dialled, after resolution
    bool connectedNumberPriority = false; ///< belongs to connectedNumber
    /// Written, never read back: a reader gives NOT_AVAILABLE.
    CallLogEntryEvent::_PresentationValue namePresentation = CallLogEntryEvent::NOT_AVAILABLE;
    NumberType::NT numberType = NumberType::NO_ICON;
    std::string connectedNumber; ///< the party actually connected, when it is another
    NumberType::NT connectedNumberType = NumberType::NO_ICON;
    std::string connectedSurname;
    std::string connectedFirstName;
    std::string duration; ///< never interpreted
    CallLogEntryEvent::_TFormat timeFormat = CallLogEntryEvent::FORM_24;
    std::string timeDate; ///< date and time of the call, never interpreted
  };

  std::string uniqueId; ///< names the entry within its log; notifications use it
  std::string entryId;  ///< names the entry in the service's store; requests use it
  std::string surname;
  std::string firstname;
  std::string jsGroupBy;                   ///< the entry's grouping key
  std::list<DialledCallInfo> callInfoList; ///< in the service's order
  std::string picture;                     ///< reference of the party's picture
};

/// One party of the received-call log.
struct ReceivedCallItem {
  /// One received call.
  struct ReceivedCallInfo {
    std::string infoKey; ///< for the caller; never serialised
    CallLogEntryEvent::_LogTarget targetLog = CallLogEntryEvent::OUT_BUSY;
    CallLogEntryEvent::_PresentationValue numberPresentation = CallLogEntryEvent::NOT_AVAILABLE;
    std::string number; ///< the remote party's number
    CallLogEntryEvent::_PresentationValue namePresentation = CallLogEntryEvent::NOT_AVAILABLE;
    NumberType::NT numberType = NumberType::NO_ICON;
    CallLogEntryEvent::_PresentationValue deflectNumberPresentation =
        CallLogEntryEvent::NOT_AVAILABLE;
    std::string connectedNumber; ///< the party actually connected, when it is another
    std::string deflectNumber;   ///< the party to which the call was deflected
    NumberType::NT connectedNumberType = NumberType::NO_ICON;
    std::string connectedSurname;   ///< written, never read back
    std::string connectedFirstName; ///< written, never read back
    NumberType::NT deflectNumberType = NumberType::NO_ICON;
    CallLogEntryEvent::_PresentationValue deflectNamePresentation =
        CallLogEntryEvent::NOT_AVAILABLE;
    std::string deflectName;
    std::string duration; ///< never interpreted
    CallLogEntryEvent::_TFormat timeFormat = CallLogEntryEvent::FORM_24;
    std::string timeDate; ///< date and time of the call, never interpreted
  };

  std::string uniqueId; ///< names the entry within its log; notifications use it
  std::string entryId;  ///< names the entry in the service's store; requests use it
  std::string surname;
  std::string firstname;
  std::string picture;                      ///< reference of the party's picture
  std::list<ReceivedCallInfo> callInfoList; ///< in the service's order
};

/// One party of the forwarded-call log.
struct ForwardedCallItem {
  /// One forwarded call.
  struct ForwardedCallInfo {
    std::string infoKey; ///< for the caller; never serialised
    std::string number;  ///< the remote party's number
    NumberType::NT numberType = NumberType::NO_ICON;
    std::string connectedNumber; ///< the party actually connected, when it is another
    NumberType::NT connectedNumberType = NumberType::NO_ICON;
    std::string connectedSurname;   ///< written, never read back
    std::string connectedFirstName; ///< written, never read back
    std::string duration;           ///< never interpreted
    std::string timeDate;           ///< date and time of the call, never interpreted
  };

  std::string uniqueId; ///< names the entry within its log; notifications use it
  std::string entryId;  ///< names the entry in the service's store; requests use it
  std::string surname;
  std::string firstname;
  std::string picture;                       ///< reference of the party's picture
  std::list<ForwardedCallInfo> callInfoList; ///< in the service's order
};

#endif
