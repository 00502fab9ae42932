// The reference for enumeration words, the envelope, method recognition and all requests.
#include "Reference.h"

#include <cstddef>

// ------------------------------------------------------------------------------------------------
// Enumerations and response words

std::string Reference::convertNumberType(NumberType::NT type) {
  switch (static_cast<int>(type)) {
  case 1:
    return "PRIVATE";
  case 2:
    return "BUSINESS1";
  case 3:
    return "BUSINESS2";
  case 4:
    return "MOBILE";
  default:
    return "NO_ICON";
  }
}

NumberType::NT Reference::convertNumberType(std::string const& text) {
  if (text == "PRIVATE") {
    return NumberType::PRIVATE;
  }
  if (text == "MOBILE") {
    return NumberType::MOBILE;
  }
  if (text == "BUSINESS1") {
    return NumberType::BUSINESS1;
  }
  if (text == "BUSINESS2") {
    return NumberType::BUSINESS2;
  }
  return NumberType::NO_ICON;
}

std::string Reference::convertTimeFormat(CallLogEntryEvent::_TFormat format) {
  switch (static_cast<int>(format)) {
  case 1:
    return "FORM_AM";
  case 2:
    return "FORM_PM";
  default:
    return "FORM_24";
  }
}

CallLogEntryEvent::_TFormat Reference::convertTimeFormat(std::string const& text) {
  if (text == "FORM_AM") {
    return CallLogEntryEvent::FORM_AM;
  }
  if (text == "FORM_PM") {
    return CallLogEntryEvent::FORM_PM;
  }
  return CallLogEntryEvent::FORM_24;
}

std::string
Reference::convertPresentationValue(CallLogEntryEvent::_PresentationValue presentation) {
  switch (static_cast<int>(presentation)) {
  case 1:
    return "ALLOWED";
  case 2:
    return "NOT_ALLOWED";
  default:
    return "NOT_AVAILABLE";
  }
}

CallLogEntryEvent::_PresentationValue Reference::convertPresentationValue(std::string const& text) {
  if (text == "ALLOWED") {
    return CallLogEntryEvent::ALLOWED;
  }
  if (text == "NOT_ALLOWED") {
    return CallLogEntryEvent::NOT_ALLOWED;
  }
  return CallLogEntryEvent::NOT_AVAILABLE;
}

std::string Reference::convertTargetLog(CallLogEntryEvent::_LogTarget target) {
  switch (static_cast<int>(target)) {
  case 0:
    return "IN_ANSWERED";
  case 1:
    return "IN_NO_ANSWER";
  case 2:
    return "IN_BUSY";
  case 3:
    return "IN_GROUP_MISSED";
  case 4:
    return "OUT_ANSWERED";
  case 5:
    return "OUT_NO_ANSWER";
  default:
    return "OUT_BUSY";
  }
}

CallLogEntryEvent::_LogTarget Reference::convertTargetLog(std::string const& text) {
  if (text == "IN_ANSWERED") {
    return CallLogEntryEvent::IN_ANSWERED;
  }
  if (text == "IN_NO_ANSWER") {
    return CallLogEntryEvent::IN_NO_ANSWER;
  }
  if (text == "IN_BUSY") {
    return CallLogEntryEvent::IN_BUSY;
  }
  if (text == "IN_GROUP_MISSED") {
    return CallLogEntryEvent::IN_GROUP_MISSED;
  }
  if (text == "OUT_ANSWERED") {
    return CallLogEntryEvent::OUT_ANSWERED;
  }
  if (text == "OUT_NO_ANSWER") {
    return CallLogEntryEvent::OUT_NO_ANSWER;
  }
  return CallLogEntryEvent::OUT_BUSY;
}

std::string Reference::respBool(bool success) {
  return success ? "Success" : "Failure";
}

bool Reference::isNonFailureResponse(std::string const& message) {
  return message.find("Failure") == std::string::npos;
}

// ------------------------------------------------------------------------------------------------
// Envelope and recognition

void Reference::addXMLHeaderFooter(std::string& message, std::string const& schemaName) {
  std::string const header = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";
  if (schemaName.empty()) {
    message = header + message;
  } else {
    message = header + "<Schema name=\"" + schemaName + "\">" + message + "</Schema>";
  }
}

bool Reference::addSuccessResp(std::string& message) {
  message += "<Value>Success</Value>";
  return true;
}

JournalServiceHelper::MethodCode Reference::getMethodFromXMLMsg(std::string const& message) {
  std::size_t const p0 = message.find("<Method>");
  std::size_t const p2 = message.find("</Method>");
  if (p0 == std::string::npos || p2 == std::string::npos) {
    return JournalServiceHelper::UNKNOWN_METHOD;
  }
  // With the close tag first the difference wraps, and the rest of the message is searched.
  std::string const searched = message.substr(p0, p2 - p0);
  struct {
    char const* tag;
    unsigned int code;
  } const methods[] = {
      {"<getMissedCallList>", 1U},
      {"<setMissedCallListAsViewed>", 3U},
      {"<deleteMissedCall>", 5U},
      {"<deleteMissedCallList>", 6U},
      {"<getDialledCallList>", 8U},
      {"<deleteDialledCall>", 9U},
      {"<deleteDialledCallList>", 10U},
      {"<getLastDialledNumber>", 17U},
      {"<getReceivedCallList>", 11U},
      {"<deleteReceivedCall>", 12U},
      {"<deleteReceivedCallList>", 13U},
      {"<getForwardedCallList>", 14U},
      {"<deleteForwardedCall>", 15U},
      {"<deleteForwardedCallList>", 16U},
      {"<subscribe>", 18U},
      {"<unsubscribe>", 19U},
      {"<refreshCallLog>", 20U},
      {"<missedCallsUpdate>", 22U},
      {"<missedCallsCountUpdate>", 21U},
      {"<dialledCallsUpdate>", 24U},
      {"<receivedCallsUpdate>", 25U},
      {"<forwardedCallsUpdate>", 26U},
  };
  for (auto const& method : methods) {
    if (searched.find(method.tag) != std::string::npos) {
      return static_cast<JournalServiceHelper::MethodCode>(method.code);
    }
  }
  return JournalServiceHelper::UNKNOWN_METHOD;
}

bool Reference::parseLastUniqueId(std::string const& message, std::string& uniqueId) {
  std::string const text = untilNul(message.c_str());
  std::size_t const beginAt = text.find("<Entry>");
  if (beginAt == std::string::npos) {
    return false;
  }
  std::size_t const entryAt = beginAt + 7;
  std::size_t const closeAt = text.find("</Entry>", entryAt);
  if (closeAt == std::string::npos) {
    return false;
  }
  // The caller's message is to end here from now on, const or not.
  const_cast<std::string&>(message)[closeAt] = '\0';
  std::string const entry = text.substr(entryAt, closeAt - entryAt);
  std::string value;
  getXMLValue(entry.c_str(), "<UniqueId>", "</UniqueId>", value);
  if (value.empty()) {
    return false;
  }
  uniqueId = value;
  return true;
}

bool Reference::parseXMLEnabledStateItem(std::string const& message) {
  std::string value;
  getXMLValue(message.c_str(), "<CallLogEnabled>", "</CallLogEnabled>", value);
  return value.empty() || value == "true";
}

// ------------------------------------------------------------------------------------------------
// Requests to the journal service

namespace {

std::string request(std::string const& methodTag, std::string const& entryIds) {
  std::string message = "<Method>" + methodTag + "</Method>" + entryIds;
  Reference::addXMLHeaderFooter(message, "");
  return message;
}

std::string requestForOne(std::string const& methodTag, std::string const& entryId) {
  return request(methodTag, Reference::createXMLField("EntryId", entryId));
}

std::string requestForMany(std::string const& methodTag, std::set<std::string> const& entryIds) {
  return request(methodTag, Reference::createXMLEntryIDList(entryIds));
}

} // namespace

std::string Reference::reqGetMissedCallList() {
  return request("<getMissedCallList>", "");
}

std::string Reference::reqSetMissedCallListAsViewed(std::set<std::string> const& entryIds) {
  return requestForMany("<setMissedCallListAsViewed>", entryIds);
}

std::string Reference::reqDeleteMissedCall(std::string const& entryId) {
  return requestForOne("<deleteMissedCall>", entryId);
}

std::string Reference::reqDeleteMissedCallList(std::set<std::string> const& entryIds) {
  return requestForMany("<deleteMissedCallList>", entryIds);
}

std::string Reference::reqGetDialledCallList() {
  return request("<getDialledCallList>", "");
}

std::string Reference::reqDeleteDialledCall(std::string const& entryId) {
  return requestForOne("<deleteDialledCall>", entryId);
}

std::string Reference::reqDeleteDialledCallList(std::set<std::string> const& entryIds) {
  return requestForMany("<deleteDialledCallList>", entryIds);
}

std::string Reference::reqGetLastDialledNumber() {
  return request("<getLastDialledNumber>", "");
}

std::string Reference::reqGetReceivedCallList() {
  return request("<getReceivedCallList>", "");
}

std::string Reference::reqDeleteReceivedCall(std::string const& entryId) {
  return requestForOne("<deleteReceivedCall>", entryId);
}

std::string Reference::reqDeleteReceivedCallList(std::set<std::string> const& entryIds) {
  return requestForMany("<deleteReceivedCallList>", entryIds);
}

std::string Reference::reqGetForwardedCallList() {
  return request("<getForwardedCallList>", "");
}

std::string Reference::reqDeleteForwardedCall(std::string const& entryId) {
  return requestForOne("<deleteForwardedCall>", entryId);
}

std::string Reference::reqDeleteForwardedCallList(std::set<std::string> const& entryIds) {
  return requestForMany("<deleteForwardedCallList>", entryIds);
}

std::string Reference::reqSubscribe() {
  return request("<subscribe>", "");
}

std::string Reference::reqUnsubscribe() {
  return request("<unsubscribe>", "");
}

std::string Reference::reqRefreshCallLog() {
  return request("<refreshCallLog>", "");
}

// ------------------------------------------------------------------------------------------------
// Requests to the settings and data store

namespace {

std::string storeRequest(std::string const& kind, std::string const& schemaName) {
  std::string message = "<ReasonForMessage>" + kind + "</ReasonForMessage>";
  Reference::addXMLHeaderFooter(message, schemaName);
  return message;
}

} // namespace

std::string Reference::readEnabledState() {
  return storeRequest("read_request", "CallLogSettings");
}

std::string Reference::readMissedCallList() {
  return storeRequest("read_request", "CallLogMissedCalls");
}

std::string Reference::deleteMissedCallList() {
  return storeRequest("delete_request", "CallLogMissedCalls");
}

std::string Reference::readDialledCallList() {
  return storeRequest("read_request", "CallLogDialledCalls");
}

std::string Reference::deleteDialledCallList() {
  return storeRequest("delete_request", "CallLogDialledCalls");
}

std::string Reference::readReceivedCallList() {
  return storeRequest("read_request", "CallLogReceivedCalls");
}

std::string Reference::deleteReceivedCallList() {
  return storeRequest("delete_request", "CallLogReceivedCalls");
}

std::string Reference::readForwardedCallList() {
  return storeRequest("read_request", "CallLogForwardedCalls");
}

std::string Reference::deleteForwardedCallList() {
  return storeRequest("delete_request", "CallLogForwardedCalls");
}
