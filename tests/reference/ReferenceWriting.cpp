// The reference for entries, list responses and notifications as they are written.
#include "Reference.h"

#include <cstddef>
#include <cstdint>

namespace {

std::string flag(bool value) {
  return value ? "True" : "False";
}

std::string word(NumberType::NT value) {
  return Reference::convertNumberType(value);
}

std::string word(CallLogEntryEvent::_LogTarget value) {
  return Reference::convertTargetLog(value);
}

std::string word(CallLogEntryEvent::_PresentationValue value) {
  return Reference::convertPresentationValue(value);
}

std::string word(CallLogEntryEvent::_TFormat value) {
  return Reference::convertTimeFormat(value);
}

std::string escaped(std::string const& text) {
  return Reference::escapeXMLString(text);
}

// An empty text writes no element.
std::string element(std::string const& name, std::string const& text) {
  return Reference::createXMLField(name, text);
}

} // namespace

// ------------------------------------------------------------------------------------------------
// An entry's list of calls

void Reference::createXMLMissedCallInfoList(MissedCallItem const& item, std::string& out) {
  out += "<LogList>";
  for (MissedCallItem::MissedCallInfo const& info : item.callInfoList) {
    out += "<Item>";
    out += element("Number", info.number);
    out += element("NumberType", word(info.numberType));
    out += element("ConnectedNumber", info.connectedNumber);
    out += element("ConnectedNumberType", word(info.connectedNumberType));
    out += element("ConnectedSurname", info.connectedSurname);
    out += element("ConnectedFirstName", info.connectedFirstName);
    out += element("TimeDate", info.timeDate);
    out += element("TargetLog", word(info.targetLog));
    out += element("NumberPresentation", word(info.numberPresentation));
    out += element("NamePresentation", word(info.namePresentation));
    out += element("DeflectNumberPresentation", word(info.deflectNumberPresentation));
    out += element("DeflectNumber", info.deflectNumber);
    out += element("DeflectNumberType", word(info.deflectNumberType));
    out += element("DeflectNamePresentation", word(info.deflectNamePresentation));
    out += element("DeflectName", info.deflectName);
    out += element("TimeFormat", word(info.timeFormat));
    out += "</Item>";
  }
  out += "</LogList>";
}

void Reference::createXMLDialledCallInfoList(DialledCallItem const& item, std::string& out) {
  out += "<LogList>";
  for (DialledCallItem::DialledCallInfo const& info : item.callInfoList) {
    out += "<Item>";
    out += element("Number", info.number);
    out += element("NumberType", word(info.numberType));
    out += element("ResolvedNumber", info.resolvedNumber);
    out += element("ConnectedNumber", info.connectedNumber);
    out += element("ConnectedNumberPriority", flag(info.connectedNumberPriority));
    out += element("ConnectedNumberType", word(info.connectedNumberType));
    out += element("ConnectedSurname", info.connectedSurname);
    out += element("ConnectedFirstName", info.connectedFirstName);
    out += element("TimeDate", info.timeDate);
    out += element("Duration", info.duration);
    out += element("TargetLog", word(info.targetLog));
    out += element("NumberPresentation", word(info.numberPresentation));
    out += element("NamePresentation", word(info.namePresentation));
    out += element("TimeFormat", word(info.timeFormat));
    out += "</Item>";
  }
  out += "</LogList>";
}

void Reference::createXMLReceivedCallInfoList(ReceivedCallItem const& item, std::string& out) {
  out += "<LogList>";
  for (ReceivedCallItem::ReceivedCallInfo const& info : item.callInfoList) {
    out += "<Item>";
    out += element("Number", info.number);
    out += element("NumberType", word(info.numberType));
    out += element("ConnectedNumber", info.connectedNumber);
    out += element("ConnectedNumberType", word(info.connectedNumberType));
    out += element("ConnectedSurname", info.connectedSurname);
    out += element("ConnectedFirstName", info.connectedFirstName);
    out += element("TimeDate", info.timeDate);
    out += element("Duration", info.duration);
    out += element("TargetLog", word(info.targetLog));
    out += element("NumberPresentation", word(info.numberPresentation));
    out += element("NamePresentation", word(info.namePresentation));
    out += element("DeflectNumberPresentation", word(info.deflectNumberPresentation));
    out += element("DeflectNumber", info.deflectNumber);
    out += element("DeflectNumberType", word(info.deflectNumberType));
    out += element("DeflectNamePresentation", word(info.deflectNamePresentation));
    out += element("DeflectName", info.deflectName);
    out += element("TimeFormat", word(info.timeFormat));
    out += "</Item>";
  }
  out += "</LogList>";
}

// The forwarded kind alone escapes the connected party's names.
void Reference::createXMLForwardedCallInfoList(ForwardedCallItem const& item, std::string& out) {
  out += "<LogList>";
  for (ForwardedCallItem::ForwardedCallInfo const& info : item.callInfoList) {
    out += "<Item>";
    out += element("Number", info.number);
    out += element("NumberType", word(info.numberType));
    out += element("ConnectedNumber", info.connectedNumber);
    out += element("ConnectedNumberType", word(info.connectedNumberType));
    out += element("ConnectedSurname", escaped(info.connectedSurname));
    out += element("ConnectedFirstName", escaped(info.connectedFirstName));
    out += element("TimeDate", info.timeDate);
    out += element("Duration", info.duration);
    out += "</Item>";
  }
  out += "</LogList>";
}

// ------------------------------------------------------------------------------------------------
// An entry's body

void Reference::createXMLMissedCallItemBody(MissedCallItem const& item, std::string& out,
                                            bool uniqueIdOnly) {
  out += element("UniqueId", item.uniqueId);
  if (uniqueIdOnly) {
    return;
  }
  out += element("EntryId", item.entryId);
  out += element("Surname", escaped(item.surname));
  out += element("Firstname", escaped(item.firstname));
  out += element("Picture", item.picture);
  out += element("Viewed", flag(item.viewed));
  createXMLMissedCallInfoList(item, out);
}

void Reference::createXMLDialledCallItemBody(DialledCallItem const& item, std::string& out,
                                             bool uniqueIdOnly) {
  out += element("UniqueId", item.uniqueId);
  if (uniqueIdOnly) {
    return;
  }
  out += element("EntryId", item.entryId);
  out += element("Surname", escaped(item.surname));
  out += element("Firstname", escaped(item.firstname));
  out += element("Picture", item.picture);
  out += element("JSGroupBy", item.jsGroupBy);
  createXMLDialledCallInfoList(item, out);
}

void Reference::createXMLReceivedCallItemBody(ReceivedCallItem const& item, std::string& out,
                                              bool uniqueIdOnly) {
  out += element("UniqueId", item.uniqueId);
  if (uniqueIdOnly) {
    return;
  }
  out += element("EntryId", item.entryId);
  out += element("Surname", escaped(item.surname));
  out += element("Firstname", escaped(item.firstname));
  out += element("Picture", item.picture);
  createXMLReceivedCallInfoList(item, out);
}

void Reference::createXMLForwardedCallItemBody(ForwardedCallItem const& item, std::string& out,
                                               bool uniqueIdOnly) {
  out += element("UniqueId", item.uniqueId);
  if (uniqueIdOnly) {
    return;
  }
  out += element("EntryId", item.entryId);
  out += element("Surname", escaped(item.surname));
  out += element("Firstname", escaped(item.firstname));
  out += element("Picture", item.picture);
  createXMLForwardedCallInfoList(item, out);
}

// ------------------------------------------------------------------------------------------------
// The service's answers

namespace {

std::string handleElement(unsigned int handle) {
  return "<Handle>" + Reference::itos(static_cast<std::int32_t>(handle)) + "</Handle>";
}

template <class Item>
std::string response(std::string const& methodTag, std::deque<Item> const& items,
                     unsigned int handle,
                     void (*writeBody)(Item const&, std::string&, bool uniqueIdOnly)) {
  std::string message = "<Method>" + methodTag + "</Method>";
  for (Item const& item : items) {
    message += "<Entry>";
    writeBody(item, message, false);
    message += "</Entry>";
  }
  return message + handleElement(handle);
}

} // namespace

std::string Reference::respGetMissedCallList(std::deque<MissedCallItem> const& items,
                                             unsigned int handle) {
  return response("<getMissedCallList>", items, handle, &createXMLMissedCallItemBody);
}

std::string Reference::respGetDialledCallList(std::deque<DialledCallItem> const& items,
                                              unsigned int handle) {
  return response("<getDialledCallList>", items, handle, &createXMLDialledCallItemBody);
}

std::string Reference::respGetReceivedCallList(std::deque<ReceivedCallItem> const& items,
                                               unsigned int handle) {
  return response("<getReceivedCallList>", items, handle, &createXMLReceivedCallItemBody);
}

std::string Reference::respGetForwardedCallList(std::deque<ForwardedCallItem> const& items,
                                                unsigned int handle) {
  return response("<getForwardedCallList>", items, handle, &createXMLForwardedCallItemBody);
}

// ------------------------------------------------------------------------------------------------
// The service's notifications

namespace {

std::string updateHead(std::string const& methodTag) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?><Method>" + methodTag + "</Method>";
}

std::string updateTail(std::string const& uniqueIdToDelete,
                       JournalServiceObserverIfc::ActionType action, unsigned int handle) {
  int digit = action;
  if (digit < 0) {
    digit = 0;
  }
  if (digit > 9) {
    digit = 9;
  }
  return element("UniqueIdToDelete", uniqueIdToDelete) + "<ActionType>" + Reference::itos(digit) +
         "</ActionType>" + handleElement(handle);
}

std::string countUpdate(std::string const& methodTag, unsigned int count) {
  std::string message = "<Method>" + methodTag + "</Method>";
  message += Reference::createXMLField("Value", count);
  Reference::addXMLHeaderFooter(message, "");
  return message;
}

} // namespace

std::string Reference::obsReqMissedCallsUpdate(MissedCallItem const& item,
                                               std::string uniqueIdToDelete,
                                               JournalServiceObserverIfc::ActionType action,
                                               unsigned int handle) {
  std::string message = updateHead("<missedCallsUpdate>");
  createXMLMissedCallItemBody(item, message, false);
  return message + updateTail(uniqueIdToDelete, action, handle);
}

std::string Reference::obsReqDialledCallsUpdate(DialledCallItem const& item,
                                                std::string uniqueIdToDelete,
                                                JournalServiceObserverIfc::ActionType action,
                                                unsigned int handle) {
  std::string message = updateHead("<dialledCallsUpdate>");
  createXMLDialledCallItemBody(item, message, false);
  return message + updateTail(uniqueIdToDelete, action, handle);
}

std::string Reference::obsReqReceivedCallsUpdate(ReceivedCallItem const& item,
                                                 std::string uniqueIdToDelete,
                                                 JournalServiceObserverIfc::ActionType action,
                                                 unsigned int handle) {
  std::string message = updateHead("<receivedCallsUpdate>");
  createXMLReceivedCallItemBody(item, message, false);
  return message + updateTail(uniqueIdToDelete, action, handle);
}

std::string Reference::obsReqForwardedCallsUpdate(ForwardedCallItem const& item,
                                                  std::string uniqueIdToDelete,
                                                  JournalServiceObserverIfc::ActionType action,
                                                  unsigned int handle) {
  std::string message = updateHead("<forwardedCallsUpdate>");
  createXMLForwardedCallItemBody(item, message, false);
  return message + updateTail(uniqueIdToDelete, action, handle);
}

std::string Reference::obsReqMissedCallsCountUpdate(unsigned int count) {
  return countUpdate("<missedCallsCountUpdate>", count);
}

std::string Reference::obsReqMissedGroupCallsUpdate(unsigned int count) {
  return countUpdate("<missedGroupCallsUpdate>", count);
}
