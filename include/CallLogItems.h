// The records of the four call logs. Each log is a std::deque of entries, front first; an entry
// stands for one party and lists the calls made to or from it.
//
// A field is named after the message element that carries it, with its first letter lowered. The
// four kinds are not uniform, and the order of their fields is their own: each holds what its log
// needs. Texts are byte strings holding UTF-8; an element missing from a message leaves the text
// empty. Default-constructed records hold empty texts, an empty list, false flags and the default
// member of every enumeration. They are plain values: copies are deep.
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
    std::string infoKey; ///< the holder's own note; no message carries it
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
    std::string timeDate; ///< date and time of the call, exactly as delivered
  };

  std::string uniqueId; ///< names the entry within its log; see UniqueIdToDelete in notifications
  std::string entryId;  ///< names the entry in the service's store; deletions name entries by it
  std::string surname;
  std::string firstname;
  std::string picture; ///< reference of the party's picture
  std::list<MissedCallInfo> callInfoList;
  bool viewed = false; ///< whether the user has seen the entry
};

/// One party of the dialled-call log.
struct DialledCallItem {
  /// One dialled call.
  struct DialledCallInfo {
    std::string infoKey; ///< the holder's own note; no message carries it
    CallLogEntryEvent::_LogTarget targetLog = CallLogEntryEvent::OUT_BUSY;
    CallLogEntryEvent::_PresentationValue numberPresentation = CallLogEntryEvent::NOT_AVAILABLE;
    std::string number;                   ///< the number that was dialled
    std::string resolvedNumber;           ///< the number as finally dialled, after resolution
    bool connectedNumberPriority = false; ///< goes with connectedNumber
    CallLogEntryEvent::_PresentationValue namePresentation = CallLogEntryEvent::NOT_AVAILABLE;
    NumberType::NT numberType = NumberType::NO_ICON;
    std::string connectedNumber; ///< the party actually connected, when it is another
    NumberType::NT connectedNumberType = NumberType::NO_ICON;
    std::string connectedSurname;
    std::string connectedFirstName;
    std::string duration; ///< exactly as delivered
    CallLogEntryEvent::_TFormat timeFormat = CallLogEntryEvent::FORM_24;
    std::string timeDate; ///< date and time of the call, exactly as delivered
  };

  std::string uniqueId; ///< names the entry within its log; see UniqueIdToDelete in notifications
  std::string entryId;  ///< names the entry in the service's store; deletions name entries by it
  std::string surname;
  std::string firstname;
  std::string jsGroupBy; ///< the entry's grouping key
  std::list<DialledCallInfo> callInfoList;
  std::string picture; ///< reference of the party's picture
};

/// One party of the received-call log.
struct ReceivedCallItem {
  /// One received call.
  struct ReceivedCallInfo {
    std::string infoKey; ///< the holder's own note; no message carries it
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
    std::string connectedSurname;   ///< written into messages, but never read from them
    std::string connectedFirstName; ///< written into messages, but never read from them
    NumberType::NT deflectNumberType = NumberType::NO_ICON;
    CallLogEntryEvent::_PresentationValue deflectNamePresentation =
        CallLogEntryEvent::NOT_AVAILABLE;
    std::string deflectName;
    std::string duration; ///< exactly as delivered
    CallLogEntryEvent::_TFormat timeFormat = CallLogEntryEvent::FORM_24;
    std::string timeDate; ///< date and time of the call, exactly as delivered
  };

  std::string uniqueId; ///< names the entry within its log; see UniqueIdToDelete in notifications
  std::string entryId;  ///< names the entry in the service's store; deletions name entries by it
  std::string surname;
  std::string firstname;
  std::string picture; ///< reference of the party's picture
  std::list<ReceivedCallInfo> callInfoList;
};

/// One party of the forwarded-call log.
struct ForwardedCallItem {
  /// One forwarded call.
  struct ForwardedCallInfo {
    std::string infoKey; ///< the holder's own note; no message carries it
    std::string number;  ///< the remote party's number
    NumberType::NT numberType = NumberType::NO_ICON;
    std::string connectedNumber; ///< the party actually connected, when it is another
    NumberType::NT connectedNumberType = NumberType::NO_ICON;
    std::string connectedSurname;   ///< written into messages, but never read from them
    std::string connectedFirstName; ///< written into messages, but never read from them
    std::string duration;           ///< exactly as delivered
    std::string timeDate;           ///< date and time of the call, exactly as delivered
  };

  std::string uniqueId; ///< names the entry within its log; see UniqueIdToDelete in notifications
  std::string entryId;  ///< names the entry in the service's store; deletions name entries by it
  std::string surname;
  std::string firstname;
  std::string picture; ///< reference of the party's picture
  std::list<ForwardedCallInfo> callInfoList;
};

#endif
