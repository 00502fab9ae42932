// Comparing records, and what reading a message does not bring back of them.
#ifndef EXAMPLES_RECORDS_H
#define EXAMPLES_RECORDS_H

#include <string>
#include <tuple>

#include "LogKinds.h"

// The records are plain values without operators. These compare every field, calls included.

inline auto fields(Missed::Call const& c) {
  return std::tie(c.infoKey, c.targetLog, c.numberPresentation, c.number, c.namePresentation,
                  c.numberType, c.connectedNumber, c.connectedNumberType, c.connectedSurname,
                  c.connectedFirstName, c.deflectNumberPresentation, c.deflectNumber,
                  c.deflectNumberType, c.deflectNamePresentation, c.deflectName, c.timeFormat,
                  c.timeDate);
}

inline auto fields(Dialled::Call const& c) {
  return std::tie(c.infoKey, c.targetLog, c.numberPresentation, c.number, c.resolvedNumber,
                  c.connectedNumberPriority, c.namePresentation, c.numberType, c.connectedNumber,
                  c.connectedNumberType, c.connectedSurname, c.connectedFirstName, c.duration,
                  c.timeFormat, c.timeDate);
}

inline auto fields(Received::Call const& c) {
  return std::tie(c.infoKey, c.targetLog, c.numberPresentation, c.number, c.namePresentation,
                  c.numberType, c.deflectNumberPresentation, c.connectedNumber, c.deflectNumber,
                  c.connectedNumberType, c.connectedSurname, c.connectedFirstName,
                  c.deflectNumberType, c.deflectNamePresentation, c.deflectName, c.duration,
                  c.timeFormat, c.timeDate);
}

inline auto fields(Forwarded::Call const& c) {
  return std::tie(c.infoKey, c.number, c.numberType, c.connectedNumber, c.connectedNumberType,
                  c.connectedSurname, c.connectedFirstName, c.duration, c.timeDate);
}

inline bool operator==(Missed::Call const& a, Missed::Call const& b) {
  return fields(a) == fields(b);
}
inline bool operator==(Dialled::Call const& a, Dialled::Call const& b) {
  return fields(a) == fields(b);
}
inline bool operator==(Received::Call const& a, Received::Call const& b) {
  return fields(a) == fields(b);
}
inline bool operator==(Forwarded::Call const& a, Forwarded::Call const& b) {
  return fields(a) == fields(b);
}

template <class Item>
bool sameParty(Item const& a, Item const& b) {
  return std::tie(a.uniqueId, a.entryId, a.surname, a.firstname, a.picture, a.callInfoList) ==
         std::tie(b.uniqueId, b.entryId, b.surname, b.firstname, b.picture, b.callInfoList);
}

inline bool operator==(Missed::Item const& a, Missed::Item const& b) {
  return sameParty(a, b) && a.viewed == b.viewed;
}
inline bool operator==(Dialled::Item const& a, Dialled::Item const& b) {
  return sameParty(a, b) && a.jsGroupBy == b.jsGroupBy;
}
inline bool operator==(Received::Item const& a, Received::Item const& b) {
  return sameParty(a, b);
}
inline bool operator==(Forwarded::Item const& a, Forwarded::Item const& b) {
  return sameParty(a, b);
}

// A client gets less than the service holds. No message carries infoKey; a dialled call's
// namePresentation and the connected names of received and forwarded calls are sent but not read.

inline void forgetUnread(Missed::Call&) {}
inline void forgetUnread(Dialled::Call& call) {
  call.namePresentation = CallLogEntryEvent::NOT_AVAILABLE;
}
inline void forgetUnread(Received::Call& call) {
  call.connectedSurname.clear();
  call.connectedFirstName.clear();
}
inline void forgetUnread(Forwarded::Call& call) {
  call.connectedSurname.clear();
  call.connectedFirstName.clear();
}

/// The entry as a client reads it.
template <class Item>
Item asRead(Item item) {
  for (auto& call : item.callInfoList) {
    call.infoKey.clear();
    forgetUnread(call);
  }
  return item;
}

/// The log as a client reads it.
template <class Item>
std::deque<Item> asRead(std::deque<Item> log) {
  for (Item& item : log)
    item = asRead(item);
  return log;
}

/// Puts other text in the place of every element of that name.
inline std::string replaceElements(std::string text, std::string const& name,
                                   std::string const& replacement) {
  std::string const begin = JournalServiceHelper::createXMLBegin(name);
  std::string const close = JournalServiceHelper::createXMLClose(name);
  std::size_t at = 0;
  while ((at = text.find(begin, at)) != std::string::npos) {
    std::size_t const end = text.find(close, at);
    if (end == std::string::npos)
      break;
    text.replace(at, end + close.size() - at, replacement);
    at += replacement.size();
  }
  return text;
}

// The same losses in the text of a message: what it becomes when it is read and written again.

template <class Kind>
std::string asWrittenAgain(std::string const& message);

template <>
inline std::string asWrittenAgain<Missed>(std::string const& message) {
  return message;
}
template <>
inline std::string asWrittenAgain<Dialled>(std::string const& message) {
  using Helper = JournalServiceHelper;
  return replaceElements(message, Helper::NAMEPRESENTATION,
                         Helper::createXMLField(Helper::NAMEPRESENTATION, Helper::NOT_AVAILABLE));
}
template <>
inline std::string asWrittenAgain<Received>(std::string const& message) {
  using Helper = JournalServiceHelper;
  return replaceElements(replaceElements(message, Helper::CONNECTEDSURNAME, ""),
                         Helper::CONNECTEDFIRSTNAME, "");
}
template <>
inline std::string asWrittenAgain<Forwarded>(std::string const& message) {
  return asWrittenAgain<Received>(message);
}

#endif
