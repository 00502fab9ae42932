// A second, plain implementation of every operation, against which the library is tested.
//
// It spells every word of the messages itself, and has its own escaping and number texts: it uses
// only types from the public headers, so that it shares no mistake with the library. It is meant to
// be obviously right, not fast: readers copy the text that they may see and search it each time.
#ifndef TESTS_REFERENCE_REFERENCE_H
#define TESTS_REFERENCE_REFERENCE_H

#include <deque>
#include <list>
#include <set>
#include <string>

#include "JournalServiceHelper.h"

struct Reference {
  // What the utility library does.
  static std::string escapeXMLString(std::string const& text);
  static std::string unescapeXMLString(std::string const& text);
  static std::string itos(int value);

  // Shared by the reference's own files.
  static std::string untilNul(char const* text);           // a null pointer gives an empty text
  static unsigned int toUnsigned(std::string const& text); // as the 32-bit atoi, converted

  // Single elements, written.
  static std::string createXMLBegin(std::string const& name);
  static std::string createXMLClose(std::string const& name);
  static std::string createXMLField(std::string const& name, std::string const& value);
  static std::string createXMLField(std::string const& name, char const* value);
  static std::string createXMLField(std::string const& name, unsigned int value);
  static std::string createXMLField(std::string const& name, bool value);
  static std::string createXMLSchemaField(std::string const& name);
  static std::string createXMLEntryIDList(std::set<std::string> const& ids);

  // Single elements, read.
  static char const* getXMLValue(char const* text, std::string const& begin,
                                 std::string const& close, std::string& value);
  static char const* getXMLValue(char const* text, std::string const& begin,
                                 std::string const& close, bool& value);
  static bool getXMLValue(std::string const& text, std::string const& name, std::string& value);
  static bool getXMLValue(std::string const& text, std::string const& name, NumberType::NT& value);
  static bool getXMLValue(std::string const& text, std::string const& name, bool& value);
  static bool getXMLValue(std::string const& text, std::string const& name, unsigned int& value);
  static bool getAndRemoveXMLValue(std::string& text, std::string const& name, std::string& value);

  // Enumerations and response words.
  static std::string convertNumberType(NumberType::NT type);
  static NumberType::NT convertNumberType(std::string const& text);
  static std::string convertTimeFormat(CallLogEntryEvent::_TFormat format);
  static CallLogEntryEvent::_TFormat convertTimeFormat(std::string const& text);
  static std::string convertPresentationValue(CallLogEntryEvent::_PresentationValue presentation);
  static CallLogEntryEvent::_PresentationValue convertPresentationValue(std::string const& text);
  static std::string convertTargetLog(CallLogEntryEvent::_LogTarget target);
  static CallLogEntryEvent::_LogTarget convertTargetLog(std::string const& text);
  static std::string respBool(bool success);
  static bool isNonFailureResponse(std::string const& message);

  // Envelope and recognition.
  static void addXMLHeaderFooter(std::string& message, std::string const& schemaName);
  static bool addSuccessResp(std::string& message);
  static JournalServiceHelper::MethodCode getMethodFromXMLMsg(std::string const& message);
  static bool parseLastUniqueId(std::string const& message, std::string& uniqueId);
  static bool parseXMLEnabledStateItem(std::string const& message);

  // One entry, written.
  static void createXMLMissedCallItemBody(MissedCallItem const& item, std::string& out,
                                          bool uniqueIdOnly);
  static void createXMLDialledCallItemBody(DialledCallItem const& item, std::string& out,
                                           bool uniqueIdOnly);
  static void createXMLReceivedCallItemBody(ReceivedCallItem const& item, std::string& out,
                                            bool uniqueIdOnly);
  static void createXMLForwardedCallItemBody(ForwardedCallItem const& item, std::string& out,
                                             bool uniqueIdOnly);
  static void createXMLMissedCallInfoList(MissedCallItem const& item, std::string& out);
  static void createXMLDialledCallInfoList(DialledCallItem const& item, std::string& out);
  static void createXMLReceivedCallInfoList(ReceivedCallItem const& item, std::string& out);
  static void createXMLForwardedCallInfoList(ForwardedCallItem const& item, std::string& out);

  // One entry, read.
  static bool getXMLMissedCallInfo(char const* xml, MissedCallItem::MissedCallInfo& info);
  static bool getXMLDialledCallInfo(char const* xml, DialledCallItem::DialledCallInfo& info);
  static bool getXMLReceivedCallInfo(char const* xml, ReceivedCallItem::ReceivedCallInfo& info);
  static bool getXMLForwardedCallInfo(char const* xml, ForwardedCallItem::ForwardedCallInfo& info);
  static bool getXMLMissedCallInfoList(char const* xml,
                                       std::list<MissedCallItem::MissedCallInfo>& list);
  static bool getXMLDialledCallInfoList(char const* xml,
                                        std::list<DialledCallItem::DialledCallInfo>& list);
  static bool getXMLReceivedCallInfoList(char const* xml,
                                         std::list<ReceivedCallItem::ReceivedCallInfo>& list);
  static bool getXMLForwardedCallInfoList(char const* xml,
                                          std::list<ForwardedCallItem::ForwardedCallInfo>& list);
  static bool parseXMLMissedCallItem(char const* xml, MissedCallItem& item);
  static bool parseXMLDialledCallItem(char const* xml, DialledCallItem& item);
  static bool parseXMLReceivedCallItem(char const* xml, ReceivedCallItem& item);
  static bool parseXMLForwardedCallItem(char const* xml, ForwardedCallItem& item);
  static bool parseXMLMissedCallItem(std::string const& xml, MissedCallItem& item);
  static bool parseXMLDialledCallItem(std::string const& xml, DialledCallItem& item);
  static bool parseXMLReceivedCallItem(std::string const& xml, ReceivedCallItem& item);
  static bool parseXMLForwardedCallItem(std::string const& xml, ForwardedCallItem& item);
  static bool parseXMLGetLastDialledNumber(std::string const& xml, DialledCallItem& item);

  // A whole log, read.
  static bool parseXMLMissedCallList(std::string const& xml, std::deque<MissedCallItem>& items);
  static bool parseXMLDialledCallList(std::string const& xml, std::deque<DialledCallItem>& items);
  static bool parseXMLReceivedCallList(std::string const& xml, std::deque<ReceivedCallItem>& items);
  static bool parseXMLForwardedCallList(std::string const& xml,
                                        std::deque<ForwardedCallItem>& items);
  static bool parseXMLMissedCallList(std::string const& xml, std::deque<MissedCallItem>& items,
                                     unsigned int& handle);
  static bool parseXMLDialledCallList(std::string const& xml, std::deque<DialledCallItem>& items,
                                      unsigned int& handle);
  static bool parseXMLReceivedCallList(std::string const& xml, std::deque<ReceivedCallItem>& items,
                                       unsigned int& handle);
  static bool parseXMLForwardedCallList(std::string const& xml,
                                        std::deque<ForwardedCallItem>& items, unsigned int& handle);

  // Requests to the journal service.
  static std::string reqGetMissedCallList();
  static std::string reqSetMissedCallListAsViewed(std::set<std::string> const& entryIds);
  static std::string reqDeleteMissedCall(std::string const& entryId);
  static std::string reqDeleteMissedCallList(std::set<std::string> const& entryIds);
  static std::string reqGetDialledCallList();
  static std::string reqDeleteDialledCall(std::string const& entryId);
  static std::string reqDeleteDialledCallList(std::set<std::string> const& entryIds);
  static std::string reqGetLastDialledNumber();
  static std::string reqGetReceivedCallList();
  static std::string reqDeleteReceivedCall(std::string const& entryId);
  static std::string reqDeleteReceivedCallList(std::set<std::string> const& entryIds);
  static std::string reqGetForwardedCallList();
  static std::string reqDeleteForwardedCall(std::string const& entryId);
  static std::string reqDeleteForwardedCallList(std::set<std::string> const& entryIds);
  static std::string reqSubscribe();
  static std::string reqUnsubscribe();
  static std::string reqRefreshCallLog();

  // Requests to the settings and data store.
  static std::string readEnabledState();
  static std::string readMissedCallList();
  static std::string deleteMissedCallList();
  static std::string readDialledCallList();
  static std::string deleteDialledCallList();
  static std::string readReceivedCallList();
  static std::string deleteReceivedCallList();
  static std::string readForwardedCallList();
  static std::string deleteForwardedCallList();

  // The service's answers.
  static std::string respGetMissedCallList(std::deque<MissedCallItem> const& items,
                                           unsigned int handle);
  static std::string respGetDialledCallList(std::deque<DialledCallItem> const& items,
                                            unsigned int handle);
  static std::string respGetReceivedCallList(std::deque<ReceivedCallItem> const& items,
                                             unsigned int handle);
  static std::string respGetForwardedCallList(std::deque<ForwardedCallItem> const& items,
                                              unsigned int handle);

  // The service's notifications.
  static std::string obsReqMissedCallsUpdate(MissedCallItem const& item,
                                             std::string uniqueIdToDelete,
                                             JournalServiceObserverIfc::ActionType action,
                                             unsigned int handle);
  static std::string obsReqDialledCallsUpdate(DialledCallItem const& item,
                                              std::string uniqueIdToDelete,
                                              JournalServiceObserverIfc::ActionType action,
                                              unsigned int handle);
  static std::string obsReqReceivedCallsUpdate(ReceivedCallItem const& item,
                                               std::string uniqueIdToDelete,
                                               JournalServiceObserverIfc::ActionType action,
                                               unsigned int handle);
  static std::string obsReqForwardedCallsUpdate(ForwardedCallItem const& item,
                                                std::string uniqueIdToDelete,
                                                JournalServiceObserverIfc::ActionType action,
                                                unsigned int handle);
  static std::string obsReqMissedCallsCountUpdate(unsigned int count);
  static std::string obsReqMissedGroupCallsUpdate(unsigned int count);
};

#endif
