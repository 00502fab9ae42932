// The four kinds of call log, for tests that are the same for each: its records and its operations.
#ifndef TESTEDKINDS_H
#define TESTEDKINDS_H

#include <deque>
#include <list>
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"
#include "golden/GoldenRecords.h"
#include "records/RecordComparison.h"

namespace kinds {

template <typename ItemType, typename InfoType>
struct Kind {
  using Item = ItemType;
  using Info = InfoType;
  using InfoList = std::list<Info>;
  using Log = std::deque<Item>;
  using Action = JournalServiceObserverIfc::ActionType;

  using WriteBody = void (*)(Item const&, std::string&, bool);
  using WriteCalls = void (*)(Item const&, std::string&);
  using ReadCall = bool (*)(char const*, Info&);
  using ReadCalls = bool (*)(char const*, InfoList&);
  using ReadItem = bool (*)(char const*, Item&);
  using ReadItemText = bool (*)(std::string const&, Item&);
  using ReadLog = bool (*)(std::string const&, Log&);
  using ReadLogAndHandle = bool (*)(std::string const&, Log&, unsigned int&);
  using Respond = std::string (*)(Log const&, unsigned int);
  using Notify = std::string (*)(Item const&, std::string, Action, unsigned int);
};

struct Missed : Kind<MissedCallItem, MissedCallItem::MissedCallInfo> {
  static constexpr char const* NAME = "missed";
  static constexpr WriteBody writeBody = &JournalServiceHelper::createXMLMissedCallItemBody;
  static constexpr WriteCalls writeCalls = &JournalServiceHelper::createXMLMissedCallInfoList;
  static constexpr ReadCall readCall = &JournalServiceHelper::getXMLMissedCallInfo;
  static constexpr ReadCalls readCalls = &JournalServiceHelper::getXMLMissedCallInfoList;
  static constexpr ReadItem readItem = &JournalServiceHelper::parseXMLMissedCallItem;
  static constexpr ReadItemText readItemText = &JournalServiceHelper::parseXMLMissedCallItem;
  static constexpr ReadLog readLog = &JournalServiceHelper::parseXMLMissedCallList;
  static constexpr ReadLogAndHandle readLogAndHandle =
      &JournalServiceHelper::parseXMLMissedCallList;
  static constexpr Respond respond = &JournalServiceHelper::respGetMissedCallList;
  static constexpr Notify notify = &JournalServiceHelper::obsReqMissedCallsUpdate;

  static Item full() { return golden::fullMissedItem(); }
  static Item decodedFull() { return golden::decodedFullMissedItem(); }
  static Item sparse() { return golden::sparseMissedItem(); }
  static Log log() { return golden::missedLog(); }
  static Log decodedLog() { return golden::decodedMissedLog(); }
  static constexpr unsigned int HANDLE = golden::MISSED_HANDLE;
};

struct Dialled : Kind<DialledCallItem, DialledCallItem::DialledCallInfo> {
  static constexpr char const* NAME = "dialled";
  static constexpr WriteBody writeBody = &JournalServiceHelper::createXMLDialledCallItemBody;
  static constexpr WriteCalls writeCalls = &JournalServiceHelper::createXMLDialledCallInfoList;
  static constexpr ReadCall readCall = &JournalServiceHelper::getXMLDialledCallInfo;
  static constexpr ReadCalls readCalls = &JournalServiceHelper::getXMLDialledCallInfoList;
  static constexpr ReadItem readItem = &JournalServiceHelper::parseXMLDialledCallItem;
  static constexpr ReadItemText readItemText = &JournalServiceHelper::parseXMLDialledCallItem;
  static constexpr ReadLog readLog = &JournalServiceHelper::parseXMLDialledCallList;
  static constexpr ReadLogAndHandle readLogAndHandle =
      &JournalServiceHelper::parseXMLDialledCallList;
  static constexpr Respond respond = &JournalServiceHelper::respGetDialledCallList;
  static constexpr Notify notify = &JournalServiceHelper::obsReqDialledCallsUpdate;

  static Item full() { return golden::fullDialledItem(); }
  static Item decodedFull() { return golden::decodedFullDialledItem(); }
  static Item sparse() { return golden::sparseDialledItem(); }
  static Log log() { return golden::dialledLog(); }
  static Log decodedLog() { return golden::decodedDialledLog(); }
  static constexpr unsigned int HANDLE = golden::DIALLED_HANDLE;
};

struct Received : Kind<ReceivedCallItem, ReceivedCallItem::ReceivedCallInfo> {
  static constexpr char const* NAME = "received";
  static constexpr WriteBody writeBody = &JournalServiceHelper::createXMLReceivedCallItemBody;
  static constexpr WriteCalls writeCalls = &JournalServiceHelper::createXMLReceivedCallInfoList;
  static constexpr ReadCall readCall = &JournalServiceHelper::getXMLReceivedCallInfo;
  static constexpr ReadCalls readCalls = &JournalServiceHelper::getXMLReceivedCallInfoList;
  static constexpr ReadItem readItem = &JournalServiceHelper::parseXMLReceivedCallItem;
  static constexpr ReadItemText readItemText = &JournalServiceHelper::parseXMLReceivedCallItem;
  static constexpr ReadLog readLog = &JournalServiceHelper::parseXMLReceivedCallList;
  static constexpr ReadLogAndHandle readLogAndHandle =
      &JournalServiceHelper::parseXMLReceivedCallList;
  static constexpr Respond respond = &JournalServiceHelper::respGetReceivedCallList;
  static constexpr Notify notify = &JournalServiceHelper::obsReqReceivedCallsUpdate;

  static Item full() { return golden::fullReceivedItem(); }
  static Item decodedFull() { return golden::decodedFullReceivedItem(); }
  static Item sparse() { return golden::sparseReceivedItem(); }
  static Log log() { return golden::receivedLog(); }
  static Log decodedLog() { return golden::decodedReceivedLog(); }
  static constexpr unsigned int HANDLE = golden::RECEIVED_HANDLE;
};

struct Forwarded : Kind<ForwardedCallItem, ForwardedCallItem::ForwardedCallInfo> {
  static constexpr char const* NAME = "forwarded";
  static constexpr WriteBody writeBody = &JournalServiceHelper::createXMLForwardedCallItemBody;
  static constexpr WriteCalls writeCalls = &JournalServiceHelper::createXMLForwardedCallInfoList;
  static constexpr ReadCall readCall = &JournalServiceHelper::getXMLForwardedCallInfo;
  static constexpr ReadCalls readCalls = &JournalServiceHelper::getXMLForwardedCallInfoList;
  static constexpr ReadItem readItem = &JournalServiceHelper::parseXMLForwardedCallItem;
  static constexpr ReadItemText readItemText = &JournalServiceHelper::parseXMLForwardedCallItem;
  static constexpr ReadLog readLog = &JournalServiceHelper::parseXMLForwardedCallList;
  static constexpr ReadLogAndHandle readLogAndHandle =
      &JournalServiceHelper::parseXMLForwardedCallList;
  static constexpr Respond respond = &JournalServiceHelper::respGetForwardedCallList;
  static constexpr Notify notify = &JournalServiceHelper::obsReqForwardedCallsUpdate;

  static Item full() { return golden::fullForwardedItem(); }
  static Item decodedFull() { return golden::decodedFullForwardedItem(); }
  static Item sparse() { return golden::sparseForwardedItem(); }
  static Log log() { return golden::forwardedLog(); }
  static Log decodedLog() { return golden::decodedForwardedLog(); }
  static constexpr unsigned int HANDLE = golden::FORWARDED_HANDLE;
};

using All = ::testing::Types<Missed, Dialled, Received, Forwarded>;

/// Names typed tests after their kind.
struct KindNames {
  template <typename KindType>
  static std::string GetName(int) {
    return KindType::NAME;
  }
};

} // namespace kinds

#endif
