// The public operations that read one call, an entry's calls, one entry or a whole log.
#include "JournalServiceHelper.h"
#include "records/Decoder.h"

using namespace journal;

bool JournalServiceHelper::getXMLMissedCallInfo(char const* xml,
                                                MissedCallItem::MissedCallInfo& info) {
  return decodeCall(xml, info);
}

bool JournalServiceHelper::getXMLDialledCallInfo(char const* xml,
                                                 DialledCallItem::DialledCallInfo& info) {
  return decodeCall(xml, info);
}

bool JournalServiceHelper::getXMLReceivedCallInfo(char const* xml,
                                                  ReceivedCallItem::ReceivedCallInfo& info) {
  return decodeCall(xml, info);
}

bool JournalServiceHelper::getXMLForwardedCallInfo(char const* xml,
                                                   ForwardedCallItem::ForwardedCallInfo& info) {
  return decodeCall(xml, info);
}

bool JournalServiceHelper::getXMLMissedCallInfoList(
    char const* xml, std::list<MissedCallItem::MissedCallInfo>& list) {
  return decodeCalls(xml, list);
}

bool JournalServiceHelper::getXMLDialledCallInfoList(
    char const* xml, std::list<DialledCallItem::DialledCallInfo>& list) {
  return decodeCalls(xml, list);
}

bool JournalServiceHelper::getXMLReceivedCallInfoList(
    char const* xml, std::list<ReceivedCallItem::ReceivedCallInfo>& list) {
  return decodeCalls(xml, list);
}

bool JournalServiceHelper::getXMLForwardedCallInfoList(
    char const* xml, std::list<ForwardedCallItem::ForwardedCallInfo>& list) {
  return decodeCalls(xml, list);
}

bool JournalServiceHelper::parseXMLMissedCallItem(char const* xml, MissedCallItem& item) {
  return decodeEntry(xml, item);
}

bool JournalServiceHelper::parseXMLMissedCallItem(std::string const& xml, MissedCallItem& item) {
  return parseXMLMissedCallItem(xml.c_str(), item);
}

bool JournalServiceHelper::parseXMLDialledCallItem(char const* xml, DialledCallItem& item) {
  return decodeEntry(xml, item);
}

bool JournalServiceHelper::parseXMLDialledCallItem(std::string const& xml, DialledCallItem& item) {
  return parseXMLDialledCallItem(xml.c_str(), item);
}

bool JournalServiceHelper::parseXMLReceivedCallItem(char const* xml, ReceivedCallItem& item) {
  return decodeEntry(xml, item);
}

bool JournalServiceHelper::parseXMLReceivedCallItem(std::string const& xml,
                                                    ReceivedCallItem& item) {
  return parseXMLReceivedCallItem(xml.c_str(), item);
}

bool JournalServiceHelper::parseXMLForwardedCallItem(char const* xml, ForwardedCallItem& item) {
  return decodeEntry(xml, item);
}

bool JournalServiceHelper::parseXMLForwardedCallItem(std::string const& xml,
                                                     ForwardedCallItem& item) {
  return parseXMLForwardedCallItem(xml.c_str(), item);
}

bool JournalServiceHelper::parseXMLGetLastDialledNumber(std::string const& xml,
                                                        DialledCallItem& item) {
  return parseXMLDialledCallItem(xml, item);
}

bool JournalServiceHelper::parseXMLMissedCallList(std::string const& xml,
                                                  std::deque<MissedCallItem>& items) {
  return decodeLog(xml, items);
}

bool JournalServiceHelper::parseXMLMissedCallList(std::string const& xml,
                                                  std::deque<MissedCallItem>& items,
                                                  unsigned int& handle) {
  return decodeLog(xml, items, handle);
}

bool JournalServiceHelper::parseXMLDialledCallList(std::string const& xml,
                                                   std::deque<DialledCallItem>& items) {
  return decodeLog(xml, items);
}

bool JournalServiceHelper::parseXMLDialledCallList(std::string const& xml,
                                                   std::deque<DialledCallItem>& items,
                                                   unsigned int& handle) {
  return decodeLog(xml, items, handle);
}

bool JournalServiceHelper::parseXMLReceivedCallList(std::string const& xml,
                                                    std::deque<ReceivedCallItem>& items) {
  return decodeLog(xml, items);
}

bool JournalServiceHelper::parseXMLReceivedCallList(std::string const& xml,
                                                    std::deque<ReceivedCallItem>& items,
                                                    unsigned int& handle) {
  return decodeLog(xml, items, handle);
}

bool JournalServiceHelper::parseXMLForwardedCallList(std::string const& xml,
                                                     std::deque<ForwardedCallItem>& items) {
  return decodeLog(xml, items);
}

bool JournalServiceHelper::parseXMLForwardedCallList(std::string const& xml,
                                                     std::deque<ForwardedCallItem>& items,
                                                     unsigned int& handle) {
  return decodeLog(xml, items, handle);
}
