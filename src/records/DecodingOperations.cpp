// The public operations that read one call, one entry or a whole log, four of each.
#include "JournalServiceHelper.h"
#include "records/Decoder.h"
#include "vocabulary/Words.h"
#include "xml/Cursor.h"

using namespace journal;

namespace {

unsigned int handleIn(std::string_view message) {
  auto const text = message.substr(0, message.find('\0'));
  return static_cast<unsigned int>(numberAtFrontOf(unescaped(readFirst<word::HANDLE>(text))));
}

} // namespace

bool JournalServiceHelper::getXMLMissedCallInfo(char const* xml,
                                                MissedCallItem::MissedCallInfo& info) {
  readInfo<MissedCallItem>(viewOf(xml), info);
  return true;
}

bool JournalServiceHelper::getXMLDialledCallInfo(char const* xml,
                                                 DialledCallItem::DialledCallInfo& info) {
  readInfo<DialledCallItem>(viewOf(xml), info);
  return true;
}

bool JournalServiceHelper::getXMLReceivedCallInfo(char const* xml,
                                                  ReceivedCallItem::ReceivedCallInfo& info) {
  readInfo<ReceivedCallItem>(viewOf(xml), info);
  return true;
}

bool JournalServiceHelper::getXMLForwardedCallInfo(char const* xml,
                                                   ForwardedCallItem::ForwardedCallInfo& info) {
  readInfo<ForwardedCallItem>(viewOf(xml), info);
  return true;
}

bool JournalServiceHelper::getXMLMissedCallInfoList(
    char const* xml, std::list<MissedCallItem::MissedCallInfo>& list) {
  return readInfoList<MissedCallItem>(viewOf(xml), list);
}

bool JournalServiceHelper::getXMLDialledCallInfoList(
    char const* xml, std::list<DialledCallItem::DialledCallInfo>& list) {
  return readInfoList<DialledCallItem>(viewOf(xml), list);
}

bool JournalServiceHelper::getXMLReceivedCallInfoList(
    char const* xml, std::list<ReceivedCallItem::ReceivedCallInfo>& list) {
  return readInfoList<ReceivedCallItem>(viewOf(xml), list);
}

bool JournalServiceHelper::getXMLForwardedCallInfoList(
    char const* xml, std::list<ForwardedCallItem::ForwardedCallInfo>& list) {
  return readInfoList<ForwardedCallItem>(viewOf(xml), list);
}

bool JournalServiceHelper::parseXMLMissedCallItem(char const* xml, MissedCallItem& item) {
  readItem(viewOf(xml), item);
  return true;
}

bool JournalServiceHelper::parseXMLMissedCallItem(std::string const& xml, MissedCallItem& item) {
  return parseXMLMissedCallItem(xml.c_str(), item);
}

bool JournalServiceHelper::parseXMLDialledCallItem(char const* xml, DialledCallItem& item) {
  readItem(viewOf(xml), item);
  return true;
}

bool JournalServiceHelper::parseXMLDialledCallItem(std::string const& xml, DialledCallItem& item) {
  return parseXMLDialledCallItem(xml.c_str(), item);
}

bool JournalServiceHelper::parseXMLReceivedCallItem(char const* xml, ReceivedCallItem& item) {
  readItem(viewOf(xml), item);
  return true;
}

bool JournalServiceHelper::parseXMLReceivedCallItem(std::string const& xml,
                                                    ReceivedCallItem& item) {
  return parseXMLReceivedCallItem(xml.c_str(), item);
}

bool JournalServiceHelper::parseXMLForwardedCallItem(char const* xml, ForwardedCallItem& item) {
  readItem(viewOf(xml), item);
  return true;
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
  readItems(xml, items);
  return true;
}

bool JournalServiceHelper::parseXMLMissedCallList(std::string const& xml,
                                                  std::deque<MissedCallItem>& items,
                                                  unsigned int& handle) {
  handle = handleIn(readItems(xml, items));
  return true;
}

bool JournalServiceHelper::parseXMLDialledCallList(std::string const& xml,
                                                   std::deque<DialledCallItem>& items) {
  readItems(xml, items);
  return true;
}

bool JournalServiceHelper::parseXMLDialledCallList(std::string const& xml,
                                                   std::deque<DialledCallItem>& items,
                                                   unsigned int& handle) {
  handle = handleIn(readItems(xml, items));
  return true;
}

bool JournalServiceHelper::parseXMLReceivedCallList(std::string const& xml,
                                                    std::deque<ReceivedCallItem>& items) {
  readItems(xml, items);
  return true;
}

bool JournalServiceHelper::parseXMLReceivedCallList(std::string const& xml,
                                                    std::deque<ReceivedCallItem>& items,
                                                    unsigned int& handle) {
  handle = handleIn(readItems(xml, items));
  return true;
}

bool JournalServiceHelper::parseXMLForwardedCallList(std::string const& xml,
                                                     std::deque<ForwardedCallItem>& items) {
  readItems(xml, items);
  return true;
}

bool JournalServiceHelper::parseXMLForwardedCallList(std::string const& xml,
                                                     std::deque<ForwardedCallItem>& items,
                                                     unsigned int& handle) {
  handle = handleIn(readItems(xml, items));
  return true;
}
