// The records into Protobuf messages and back, field by field.
#ifndef BENCH_PEERS_PROTOBUFRECORDS_H
#define BENCH_PEERS_PROTOBUFRECORDS_H

#include <string>
#include <utility>

#include "Kinds.h"
#include "logs.pb.h"

namespace bench::protobuf {

using Event = CallLogEntryEvent;

// The numbers are the same on both sides.
inline NumberType::NT type(pb::NumberType value) {
  return static_cast<NumberType::NT>(value);
}
inline pb::NumberType type(NumberType::NT value) {
  return static_cast<pb::NumberType>(value);
}
inline Event::_PresentationValue shown(pb::Presentation value) {
  return static_cast<Event::_PresentationValue>(value);
}
inline pb::Presentation shown(Event::_PresentationValue value) {
  return static_cast<pb::Presentation>(value);
}

// ------------------------------------------------------------------------------------------------
// Messages into records. Passed over is what the list responses lose as well: a received or
// forwarded call's connected names, a dialled call's name presentation.

/// Copies each text, which leaves the message its memory.
struct Copied {
  static void take(std::string& field, std::string const& text) {
    if (!text.empty())
      field = text;
  }
};

/// Moves each text out of the message.
struct Moved {
  static void take(std::string& field, std::string const& text) {
    // The message itself is not const, and a text that is not empty is its own. Asking for it with
    // mutable_...() would create each absent one.
    if (!text.empty())
      field = std::move(const_cast<std::string&>(text));
  }
};

template <class Texts, class Message, class Call>
void readParty(Texts texts, Message const& message, Call& call) {
  texts.take(call.number, message.number());
  call.numberType = type(message.number_type());
  texts.take(call.connectedNumber, message.connected_number());
  call.connectedNumberType = type(message.connected_number_type());
  texts.take(call.timeDate, message.time_date());
}

template <class Texts, class Message, class Call>
void readConnectedNames(Texts texts, Message const& message, Call& call) {
  texts.take(call.connectedSurname, message.connected_surname());
  texts.take(call.connectedFirstName, message.connected_first_name());
}

template <class Message, class Call>
void readShown(Message const& message, Call& call) {
  call.targetLog = static_cast<Event::_LogTarget>(message.target_log());
  call.numberPresentation = shown(message.number_presentation());
  call.timeFormat = static_cast<Event::_TFormat>(message.time_format());
}

template <class Texts, class Message, class Call>
void readDeflected(Texts texts, Message const& message, Call& call) {
  call.namePresentation = shown(message.name_presentation());
  call.deflectNumberPresentation = shown(message.deflect_number_presentation());
  texts.take(call.deflectNumber, message.deflect_number());
  call.deflectNumberType = type(message.deflect_number_type());
  call.deflectNamePresentation = shown(message.deflect_name_presentation());
  texts.take(call.deflectName, message.deflect_name());
}

template <class Texts>
void readCall(Texts texts, pb::MissedCall const& message, Missed::Call& call) {
  readParty(texts, message, call);
  readConnectedNames(texts, message, call);
  readShown(message, call);
  readDeflected(texts, message, call);
}

template <class Texts>
void readCall(Texts texts, pb::DialledCall const& message, Dialled::Call& call) {
  readParty(texts, message, call);
  readConnectedNames(texts, message, call);
  readShown(message, call);
  texts.take(call.resolvedNumber, message.resolved_number());
  call.connectedNumberPriority = message.connected_number_priority();
  texts.take(call.duration, message.duration());
}

template <class Texts>
void readCall(Texts texts, pb::ReceivedCall const& message, Received::Call& call) {
  readParty(texts, message, call);
  readShown(message, call);
  readDeflected(texts, message, call);
  texts.take(call.duration, message.duration());
}

template <class Texts>
void readCall(Texts texts, pb::ForwardedCall const& message, Forwarded::Call& call) {
  readParty(texts, message, call);
  texts.take(call.duration, message.duration());
}

template <class Texts>
void readOwn(Texts, pb::MissedEntry const& message, MissedCallItem& item) {
  item.viewed = message.viewed();
}
template <class Texts>
void readOwn(Texts texts, pb::DialledEntry const& message, DialledCallItem& item) {
  texts.take(item.jsGroupBy, message.js_group_by());
}
template <class Texts>
void readOwn(Texts, pb::ReceivedEntry const&, ReceivedCallItem&) {}
template <class Texts>
void readOwn(Texts, pb::ForwardedEntry const&, ForwardedCallItem&) {}

template <class Texts, class Message, class Log>
void readLog(Texts texts, Message const& message, Log& log) {
  for (auto const& entry : message.entries()) {
    auto& item = log.emplace_back();
    texts.take(item.uniqueId, entry.unique_id());
    texts.take(item.entryId, entry.entry_id());
    texts.take(item.surname, entry.surname());
    texts.take(item.firstname, entry.firstname());
    texts.take(item.picture, entry.picture());
    readOwn(texts, entry, item);
    for (auto const& call : entry.calls())
      readCall(texts, call, item.callInfoList.emplace_back());
  }
}

// ------------------------------------------------------------------------------------------------
// Records into messages. A text is set when it is not empty, which is what is written of it.

#define BENCH_SET(message, field, text)                                                            \
  do {                                                                                             \
    if (!(text).empty())                                                                           \
      (message).set_##field(text);                                                                 \
  } while (false)

template <class Call, class Message>
void writeParty(Call const& call, Message& message) {
  BENCH_SET(message, number, call.number);
  message.set_number_type(type(call.numberType));
  BENCH_SET(message, connected_number, call.connectedNumber);
  message.set_connected_number_type(type(call.connectedNumberType));
  BENCH_SET(message, connected_surname, call.connectedSurname);
  BENCH_SET(message, connected_first_name, call.connectedFirstName);
  BENCH_SET(message, time_date, call.timeDate);
}

template <class Call, class Message>
void writeShown(Call const& call, Message& message) {
  message.set_target_log(static_cast<pb::TargetLog>(call.targetLog));
  message.set_number_presentation(shown(call.numberPresentation));
  message.set_name_presentation(shown(call.namePresentation));
  message.set_time_format(static_cast<pb::TimeFormat>(call.timeFormat));
}

template <class Call, class Message>
void writeDeflected(Call const& call, Message& message) {
  message.set_deflect_number_presentation(shown(call.deflectNumberPresentation));
  BENCH_SET(message, deflect_number, call.deflectNumber);
  message.set_deflect_number_type(type(call.deflectNumberType));
  message.set_deflect_name_presentation(shown(call.deflectNamePresentation));
  BENCH_SET(message, deflect_name, call.deflectName);
}

inline void writeCall(Missed::Call const& call, pb::MissedCall& message) {
  writeParty(call, message);
  writeShown(call, message);
  writeDeflected(call, message);
}

inline void writeCall(Dialled::Call const& call, pb::DialledCall& message) {
  writeParty(call, message);
  writeShown(call, message);
  BENCH_SET(message, resolved_number, call.resolvedNumber);
  message.set_connected_number_priority(call.connectedNumberPriority);
  BENCH_SET(message, duration, call.duration);
}

inline void writeCall(Received::Call const& call, pb::ReceivedCall& message) {
  writeParty(call, message);
  writeShown(call, message);
  writeDeflected(call, message);
  BENCH_SET(message, duration, call.duration);
}

inline void writeCall(Forwarded::Call const& call, pb::ForwardedCall& message) {
  writeParty(call, message);
  BENCH_SET(message, duration, call.duration);
}

inline void writeOwn(MissedCallItem const& item, pb::MissedEntry& message) {
  message.set_viewed(item.viewed);
}
inline void writeOwn(DialledCallItem const& item, pb::DialledEntry& message) {
  BENCH_SET(message, js_group_by, item.jsGroupBy);
}
inline void writeOwn(ReceivedCallItem const&, pb::ReceivedEntry&) {}
inline void writeOwn(ForwardedCallItem const&, pb::ForwardedEntry&) {}

template <class Log, class Message>
void writeLog(Log const& log, Message& message) {
  for (auto const& item : log) {
    auto& entry = *message.add_entries();
    BENCH_SET(entry, unique_id, item.uniqueId);
    BENCH_SET(entry, entry_id, item.entryId);
    BENCH_SET(entry, surname, item.surname);
    BENCH_SET(entry, firstname, item.firstname);
    BENCH_SET(entry, picture, item.picture);
    writeOwn(item, entry);
    for (auto const& call : item.callInfoList)
      writeCall(call, *entry.add_calls());
  }
  message.set_handle(7);
}

#undef BENCH_SET

} // namespace bench::protobuf

#endif
