// The four kinds of call log side by side: their records and the operations that are measured, of
// the library and of the plain oracle.
#ifndef BENCH_KINDS_H
#define BENCH_KINDS_H

#include <deque>
#include <string>

#include "JournalServiceHelper.h"
#include "reference/Reference.h"

namespace bench {

template <class ItemType, class CallType>
struct KindOf {
  using Item = ItemType;
  using Call = CallType;
  using Log = std::deque<Item>;
  using Decode = bool (*)(std::string const&, Log&);
  using DecodeWithHandle = bool (*)(std::string const&, Log&, unsigned int&);
  using Encode = std::string (*)(Log const&, unsigned int);
  using Notify = std::string (*)(Item const&, std::string, JournalServiceObserverIfc::ActionType,
                                 unsigned int);
};

struct Missed : KindOf<MissedCallItem, MissedCallItem::MissedCallInfo> {
  static constexpr char const* name = "missed";
  static constexpr char const* method = "<getMissedCallList>";
  static constexpr Decode decode = &JournalServiceHelper::parseXMLMissedCallList;
  static constexpr DecodeWithHandle decodeHandle = &JournalServiceHelper::parseXMLMissedCallList;
  static constexpr Encode encode = &JournalServiceHelper::respGetMissedCallList;
  static constexpr Notify notify = &JournalServiceHelper::obsReqMissedCallsUpdate;
  static constexpr Decode oracleDecode = &Reference::parseXMLMissedCallList;
  static constexpr Encode oracleEncode = &Reference::respGetMissedCallList;
  static constexpr Notify oracleNotify = &Reference::obsReqMissedCallsUpdate;
};

struct Dialled : KindOf<DialledCallItem, DialledCallItem::DialledCallInfo> {
  static constexpr char const* name = "dialled";
  static constexpr char const* method = "<getDialledCallList>";
  static constexpr Decode decode = &JournalServiceHelper::parseXMLDialledCallList;
  static constexpr DecodeWithHandle decodeHandle = &JournalServiceHelper::parseXMLDialledCallList;
  static constexpr Encode encode = &JournalServiceHelper::respGetDialledCallList;
  static constexpr Notify notify = &JournalServiceHelper::obsReqDialledCallsUpdate;
  static constexpr Decode oracleDecode = &Reference::parseXMLDialledCallList;
  static constexpr Encode oracleEncode = &Reference::respGetDialledCallList;
  static constexpr Notify oracleNotify = &Reference::obsReqDialledCallsUpdate;
};

struct Received : KindOf<ReceivedCallItem, ReceivedCallItem::ReceivedCallInfo> {
  static constexpr char const* name = "received";
  static constexpr char const* method = "<getReceivedCallList>";
  static constexpr Decode decode = &JournalServiceHelper::parseXMLReceivedCallList;
  static constexpr DecodeWithHandle decodeHandle = &JournalServiceHelper::parseXMLReceivedCallList;
  static constexpr Encode encode = &JournalServiceHelper::respGetReceivedCallList;
  static constexpr Notify notify = &JournalServiceHelper::obsReqReceivedCallsUpdate;
  static constexpr Decode oracleDecode = &Reference::parseXMLReceivedCallList;
  static constexpr Encode oracleEncode = &Reference::respGetReceivedCallList;
  static constexpr Notify oracleNotify = &Reference::obsReqReceivedCallsUpdate;
};

struct Forwarded : KindOf<ForwardedCallItem, ForwardedCallItem::ForwardedCallInfo> {
  static constexpr char const* name = "forwarded";
  static constexpr char const* method = "<getForwardedCallList>";
  static constexpr Decode decode = &JournalServiceHelper::parseXMLForwardedCallList;
  static constexpr DecodeWithHandle decodeHandle = &JournalServiceHelper::parseXMLForwardedCallList;
  static constexpr Encode encode = &JournalServiceHelper::respGetForwardedCallList;
  static constexpr Notify notify = &JournalServiceHelper::obsReqForwardedCallsUpdate;
  static constexpr Decode oracleDecode = &Reference::parseXMLForwardedCallList;
  static constexpr Encode oracleEncode = &Reference::respGetForwardedCallList;
  static constexpr Notify oracleNotify = &Reference::obsReqForwardedCallsUpdate;
};

/// Calls visit(Kind()) for each of the four kinds.
template <class Visit>
void forEachKind(Visit visit) {
  visit(Missed());
  visit(Dialled());
  visit(Received());
  visit(Forwarded());
}

} // namespace bench

#endif
