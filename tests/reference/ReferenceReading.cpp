// The reference for entries and whole logs as they are read.
#include "Reference.h"

#include <cstddef>
#include <vector>

namespace {

// The readers of one element. Each moves the cursor to where getXMLValue returns.

void read(char const*& cursor, std::string const& name, std::string& field) {
  cursor = Reference::getXMLValue(cursor, "<" + name + ">", "</" + name + ">", field);
}

void read(char const*& cursor, std::string const& name, bool& field) {
  cursor = Reference::getXMLValue(cursor, "<" + name + ">", "</" + name + ">", field);
}

void read(char const*& cursor, std::string const& name, NumberType::NT& field) {
  std::string word;
  read(cursor, name, word);
  field = Reference::convertNumberType(word);
}

void read(char const*& cursor, std::string const& name, CallLogEntryEvent::_LogTarget& field) {
  std::string word;
  read(cursor, name, word);
  field = Reference::convertTargetLog(word);
}

void read(char const*& cursor, std::string const& name,
          CallLogEntryEvent::_PresentationValue& field) {
  std::string word;
  read(cursor, name, word);
  field = Reference::convertPresentationValue(word);
}

void read(char const*& cursor, std::string const& name, CallLogEntryEvent::_TFormat& field) {
  std::string word;
  read(cursor, name, word);
  field = Reference::convertTimeFormat(word);
}

// The texts between each begin tag and the next close tag, without empty ones. A piece that is not
// closed ends the search.
std::vector<std::string> pieces(std::string const& text, std::string const& begin,
                                std::string const& close) {
  std::vector<std::string> found;
  std::size_t beginAt = text.find(begin);
  while (beginAt != std::string::npos) {
    std::size_t const pieceAt = beginAt + begin.size();
    std::size_t const closeAt = text.find(close, pieceAt);
    if (closeAt == std::string::npos) {
      break;
    }
    if (pieceAt < closeAt) {
      found.push_back(text.substr(pieceAt, closeAt - pieceAt));
    }
    beginAt = text.find(begin, closeAt + close.size());
  }
  return found;
}

// The Items of the first LogList; none when it is missing or not closed.
std::vector<std::string> itemsOf(char const* xml) {
  std::string const text = Reference::untilNul(xml);
  std::size_t const beginAt = text.find("<LogList>");
  if (beginAt == std::string::npos) {
    return {};
  }
  std::size_t const sectionAt = beginAt + 9;
  std::size_t const closeAt = text.find("</LogList>", sectionAt);
  if (closeAt == std::string::npos) {
    return {};
  }
  return pieces(text.substr(sectionAt, closeAt - sectionAt), "<Item>", "</Item>");
}

std::vector<std::string> entriesOf(std::string const& xml) {
  return pieces(Reference::untilNul(xml.c_str()), "<Entry>", "</Entry>");
}

template <class Info>
bool readCalls(char const* xml, std::list<Info>& list, bool (*readCall)(char const*, Info&)) {
  list.clear();
  for (std::string const& text : itemsOf(xml)) {
    Info info;
    readCall(text.c_str(), info);
    list.push_back(info);
  }
  return !list.empty();
}

template <class Item>
bool readLog(std::string const& xml, std::deque<Item>& items,
             bool (*readItem)(std::string const&, Item&)) {
  items.clear();
  for (std::string const& text : entriesOf(xml)) {
    Item item;
    readItem(text, item);
    items.push_back(item);
  }
  return true;
}

unsigned int handleOf(std::string const& xml) {
  std::string digits;
  Reference::getXMLValue(xml.c_str(), "<Handle>", "</Handle>", digits);
  return Reference::toUnsigned(digits);
}

} // namespace

// ------------------------------------------------------------------------------------------------
// One call

bool Reference::getXMLMissedCallInfo(char const* xml, MissedCallItem::MissedCallInfo& info) {
  char const* cursor = xml;
  read(cursor, "Number", info.number);
  read(cursor, "NumberType", info.numberType);
  read(cursor, "ConnectedNumber", info.connectedNumber);
  read(cursor, "ConnectedNumberType", info.connectedNumberType);
  read(cursor, "ConnectedSurname", info.connectedSurname);
  read(cursor, "ConnectedFirstName", info.connectedFirstName);
  read(cursor, "TimeDate", info.timeDate);
  read(cursor, "TargetLog", info.targetLog);
  read(cursor, "NumberPresentation", info.numberPresentation);
  read(cursor, "NamePresentation", info.namePresentation);
  read(cursor, "DeflectNumberPresentation", info.deflectNumberPresentation);
  read(cursor, "DeflectNumber", info.deflectNumber);
  read(cursor, "DeflectNumberType", info.deflectNumberType);
  read(cursor, "DeflectNamePresentation", info.deflectNamePresentation);
  read(cursor, "DeflectName", info.deflectName);
  read(cursor, "TimeFormat", info.timeFormat);
  return true;
}

// The priority is written after the connected number, but read before it. The close tag of the name
// presentation is its begin tag.
bool Reference::getXMLDialledCallInfo(char const* xml, DialledCallItem::DialledCallInfo& info) {
  char const* cursor = xml;
  read(cursor, "Number", info.number);
  read(cursor, "NumberType", info.numberType);
  read(cursor, "ResolvedNumber", info.resolvedNumber);
  read(cursor, "ConnectedNumberPriority", info.connectedNumberPriority);
  read(cursor, "ConnectedNumber", info.connectedNumber);
  read(cursor, "ConnectedNumberType", info.connectedNumberType);
  read(cursor, "ConnectedSurname", info.connectedSurname);
  read(cursor, "ConnectedFirstName", info.connectedFirstName);
  read(cursor, "TimeDate", info.timeDate);
  read(cursor, "Duration", info.duration);
  read(cursor, "TargetLog", info.targetLog);
  read(cursor, "NumberPresentation", info.numberPresentation);
  std::string word;
  cursor = getXMLValue(cursor, "<NamePresentation>", "<NamePresentation>", word);
  info.namePresentation = convertPresentationValue(word);
  read(cursor, "TimeFormat", info.timeFormat);
  return true;
}

// The connected names move the cursor, but are not kept.
bool Reference::getXMLReceivedCallInfo(char const* xml, ReceivedCallItem::ReceivedCallInfo& info) {
  char const* cursor = xml;
  std::string discarded;
  read(cursor, "Number", info.number);
  read(cursor, "NumberType", info.numberType);
  read(cursor, "ConnectedNumber", info.connectedNumber);
  read(cursor, "ConnectedNumberType", info.connectedNumberType);
  read(cursor, "ConnectedSurname", discarded);
  read(cursor, "ConnectedFirstName", discarded);
  read(cursor, "TimeDate", info.timeDate);
  read(cursor, "Duration", info.duration);
  read(cursor, "TargetLog", info.targetLog);
  read(cursor, "NumberPresentation", info.numberPresentation);
  read(cursor, "NamePresentation", info.namePresentation);
  read(cursor, "DeflectNumberPresentation", info.deflectNumberPresentation);
  read(cursor, "DeflectNumber", info.deflectNumber);
  read(cursor, "DeflectNumberType", info.deflectNumberType);
  read(cursor, "DeflectNamePresentation", info.deflectNamePresentation);
  read(cursor, "DeflectName", info.deflectName);
  read(cursor, "TimeFormat", info.timeFormat);
  return true;
}

// The connected names move the cursor, but are not kept.
bool Reference::getXMLForwardedCallInfo(char const* xml,
                                        ForwardedCallItem::ForwardedCallInfo& info) {
  char const* cursor = xml;
  std::string discarded;
  read(cursor, "Number", info.number);
  read(cursor, "NumberType", info.numberType);
  read(cursor, "ConnectedNumber", info.connectedNumber);
  read(cursor, "ConnectedNumberType", info.connectedNumberType);
  read(cursor, "ConnectedSurname", discarded);
  read(cursor, "ConnectedFirstName", discarded);
  read(cursor, "TimeDate", info.timeDate);
  read(cursor, "Duration", info.duration);
  return true;
}

// ------------------------------------------------------------------------------------------------
// An entry's list of calls

bool Reference::getXMLMissedCallInfoList(char const* xml,
                                         std::list<MissedCallItem::MissedCallInfo>& list) {
  return readCalls(xml, list, &getXMLMissedCallInfo);
}

bool Reference::getXMLDialledCallInfoList(char const* xml,
                                          std::list<DialledCallItem::DialledCallInfo>& list) {
  return readCalls(xml, list, &getXMLDialledCallInfo);
}

bool Reference::getXMLReceivedCallInfoList(char const* xml,
                                           std::list<ReceivedCallItem::ReceivedCallInfo>& list) {
  return readCalls(xml, list, &getXMLReceivedCallInfo);
}

bool Reference::getXMLForwardedCallInfoList(char const* xml,
                                            std::list<ForwardedCallItem::ForwardedCallInfo>& list) {
  return readCalls(xml, list, &getXMLForwardedCallInfo);
}

// ------------------------------------------------------------------------------------------------
// One entry

bool Reference::parseXMLMissedCallItem(char const* xml, MissedCallItem& item) {
  char const* cursor = xml;
  read(cursor, "UniqueId", item.uniqueId);
  read(cursor, "EntryId", item.entryId);
  read(cursor, "Surname", item.surname);
  read(cursor, "Firstname", item.firstname);
  read(cursor, "Picture", item.picture);
  read(cursor, "Viewed", item.viewed);
  std::list<MissedCallItem::MissedCallInfo> list;
  if (getXMLMissedCallInfoList(cursor, list)) {
    item.callInfoList = list;
  }
  return true;
}

bool Reference::parseXMLDialledCallItem(char const* xml, DialledCallItem& item) {
  char const* cursor = xml;
  read(cursor, "UniqueId", item.uniqueId);
  read(cursor, "EntryId", item.entryId);
  read(cursor, "Surname", item.surname);
  read(cursor, "Firstname", item.firstname);
  read(cursor, "Picture", item.picture);
  read(cursor, "JSGroupBy", item.jsGroupBy);
  std::list<DialledCallItem::DialledCallInfo> list;
  if (getXMLDialledCallInfoList(cursor, list)) {
    item.callInfoList = list;
  }
  return true;
}

bool Reference::parseXMLReceivedCallItem(char const* xml, ReceivedCallItem& item) {
  char const* cursor = xml;
  read(cursor, "UniqueId", item.uniqueId);
  read(cursor, "EntryId", item.entryId);
  read(cursor, "Surname", item.surname);
  read(cursor, "Firstname", item.firstname);
  read(cursor, "Picture", item.picture);
  std::list<ReceivedCallItem::ReceivedCallInfo> list;
  if (getXMLReceivedCallInfoList(cursor, list)) {
    item.callInfoList = list;
  }
  return true;
}

bool Reference::parseXMLForwardedCallItem(char const* xml, ForwardedCallItem& item) {
  char const* cursor = xml;
  read(cursor, "UniqueId", item.uniqueId);
  read(cursor, "EntryId", item.entryId);
  read(cursor, "Surname", item.surname);
  read(cursor, "Firstname", item.firstname);
  read(cursor, "Picture", item.picture);
  std::list<ForwardedCallItem::ForwardedCallInfo> list;
  if (getXMLForwardedCallInfoList(cursor, list)) {
    item.callInfoList = list;
  }
  return true;
}

bool Reference::parseXMLMissedCallItem(std::string const& xml, MissedCallItem& item) {
  return parseXMLMissedCallItem(xml.c_str(), item);
}

bool Reference::parseXMLDialledCallItem(std::string const& xml, DialledCallItem& item) {
  return parseXMLDialledCallItem(xml.c_str(), item);
}

bool Reference::parseXMLReceivedCallItem(std::string const& xml, ReceivedCallItem& item) {
  return parseXMLReceivedCallItem(xml.c_str(), item);
}

bool Reference::parseXMLForwardedCallItem(std::string const& xml, ForwardedCallItem& item) {
  return parseXMLForwardedCallItem(xml.c_str(), item);
}

bool Reference::parseXMLGetLastDialledNumber(std::string const& xml, DialledCallItem& item) {
  return parseXMLDialledCallItem(xml, item);
}

// ------------------------------------------------------------------------------------------------
// A whole log

bool Reference::parseXMLMissedCallList(std::string const& xml, std::deque<MissedCallItem>& items) {
  return readLog(xml, items, &parseXMLMissedCallItem);
}

bool Reference::parseXMLDialledCallList(std::string const& xml,
                                        std::deque<DialledCallItem>& items) {
  return readLog(xml, items, &parseXMLDialledCallItem);
}

bool Reference::parseXMLReceivedCallList(std::string const& xml,
                                         std::deque<ReceivedCallItem>& items) {
  return readLog(xml, items, &parseXMLReceivedCallItem);
}

bool Reference::parseXMLForwardedCallList(std::string const& xml,
                                          std::deque<ForwardedCallItem>& items) {
  return readLog(xml, items, &parseXMLForwardedCallItem);
}

bool Reference::parseXMLMissedCallList(std::string const& xml, std::deque<MissedCallItem>& items,
                                       unsigned int& handle) {
  handle = handleOf(xml);
  return parseXMLMissedCallList(xml, items);
}

bool Reference::parseXMLDialledCallList(std::string const& xml, std::deque<DialledCallItem>& items,
                                        unsigned int& handle) {
  handle = handleOf(xml);
  return parseXMLDialledCallList(xml, items);
}

bool Reference::parseXMLReceivedCallList(std::string const& xml,
                                         std::deque<ReceivedCallItem>& items,
                                         unsigned int& handle) {
  handle = handleOf(xml);
  return parseXMLReceivedCallList(xml, items);
}

bool Reference::parseXMLForwardedCallList(std::string const& xml,
                                          std::deque<ForwardedCallItem>& items,
                                          unsigned int& handle) {
  handle = handleOf(xml);
  return parseXMLForwardedCallList(xml, items);
}
