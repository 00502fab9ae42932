// The four call logs side by side: the records, names and operations of each. The rest of the
// example is written once, as templates with one of these as their Kind.
#ifndef EXAMPLES_LOGKINDS_H
#define EXAMPLES_LOGKINDS_H

#include <deque>
#include <string>

#include "JournalServiceHelper.h"

// Kind::Item      one entry of the log, a party; Kind::Call one of its calls; Kind::Log all entries
// Kind::listCode  what getMethodFromXMLMsg returns for the list request, and for its answer
// Kind::updateCode  what it returns for the notification
// Kind::escapesConnectedNames  whether a call's connected names are escaped in messages
// Kind::hasPresentations  whether a call has presentation values and a time format

struct Missed {
  using Item = MissedCallItem;
  using Call = MissedCallItem::MissedCallInfo;
  using Log = std::deque<Item>;
  static constexpr char const* name = "Missed";
  static constexpr char const* sample = "missed.xml";
  static constexpr bool escapesConnectedNames = false;
  static constexpr bool hasPresentations = true;
  static constexpr auto listCode = JournalServiceHelper::GETMISSEDCALLLIST;
  static constexpr auto updateCode = JournalServiceHelper::MISSEDCALLSUPDATE;
  static constexpr auto request = &JournalServiceHelper::reqGetMissedCallList;
  static constexpr auto answer = &JournalServiceHelper::respGetMissedCallList;
  static constexpr auto notification = &JournalServiceHelper::obsReqMissedCallsUpdate;
  static bool readLog(std::string const& message, Log& log, unsigned int& handle) {
    return JournalServiceHelper::parseXMLMissedCallList(message, log, handle);
  }
  static bool readEntry(std::string const& message, Item& item) {
    return JournalServiceHelper::parseXMLMissedCallItem(message, item);
  }
};

struct Dialled {
  using Item = DialledCallItem;
  using Call = DialledCallItem::DialledCallInfo;
  using Log = std::deque<Item>;
  static constexpr char const* name = "Dialled";
  static constexpr char const* sample = "dialled.xml";
  static constexpr bool escapesConnectedNames = false;
  static constexpr bool hasPresentations = true;
  static constexpr auto listCode = JournalServiceHelper::GETDIALLEDCALLLIST;
  static constexpr auto updateCode = JournalServiceHelper::DIALLEDCALLSUPDATE;
  static constexpr auto request = &JournalServiceHelper::reqGetDialledCallList;
  static constexpr auto answer = &JournalServiceHelper::respGetDialledCallList;
  static constexpr auto notification = &JournalServiceHelper::obsReqDialledCallsUpdate;
  static bool readLog(std::string const& message, Log& log, unsigned int& handle) {
    return JournalServiceHelper::parseXMLDialledCallList(message, log, handle);
  }
  static bool readEntry(std::string const& message, Item& item) {
    return JournalServiceHelper::parseXMLDialledCallItem(message, item);
  }
};

struct Received {
  using Item = ReceivedCallItem;
  using Call = ReceivedCallItem::ReceivedCallInfo;
  using Log = std::deque<Item>;
  static constexpr char const* name = "Received";
  static constexpr char const* sample = "received.xml";
  static constexpr bool escapesConnectedNames = false;
  static constexpr bool hasPresentations = true;
  static constexpr auto listCode = JournalServiceHelper::GETRECEIVEDCALLLIST;
  static constexpr auto updateCode = JournalServiceHelper::RECEIVEDCALLSUPDATE;
  static constexpr auto request = &JournalServiceHelper::reqGetReceivedCallList;
  static constexpr auto answer = &JournalServiceHelper::respGetReceivedCallList;
  static constexpr auto notification = &JournalServiceHelper::obsReqReceivedCallsUpdate;
  static bool readLog(std::string const& message, Log& log, unsigned int& handle) {
    return JournalServiceHelper::parseXMLReceivedCallList(message, log, handle);
  }
  static bool readEntry(std::string const& message, Item& item) {
    return JournalServiceHelper::parseXMLReceivedCallItem(message, item);
  }
};

struct Forwarded {
  using Item = ForwardedCallItem;
  using Call = ForwardedCallItem::ForwardedCallInfo;
  using Log = std::deque<Item>;
  static constexpr char const* name = "Forwarded";
  static constexpr char const* sample = "forwarded.xml";
  static constexpr bool escapesConnectedNames = true;
  static constexpr bool hasPresentations = false;
  static constexpr auto listCode = JournalServiceHelper::GETFORWARDEDCALLLIST;
  static constexpr auto updateCode = JournalServiceHelper::FORWARDEDCALLSUPDATE;
  static constexpr auto request = &JournalServiceHelper::reqGetForwardedCallList;
  static constexpr auto answer = &JournalServiceHelper::respGetForwardedCallList;
  static constexpr auto notification = &JournalServiceHelper::obsReqForwardedCallsUpdate;
  static bool readLog(std::string const& message, Log& log, unsigned int& handle) {
    return JournalServiceHelper::parseXMLForwardedCallList(message, log, handle);
  }
  static bool readEntry(std::string const& message, Item& item) {
    return JournalServiceHelper::parseXMLForwardedCallItem(message, item);
  }
};

#endif
