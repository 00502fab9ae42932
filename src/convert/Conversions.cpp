// The public conversions of enumerations and response words.
#include "JournalServiceHelper.h"
#include "convert/EnumTexts.h"

using namespace journal;

std::string JournalServiceHelper::convertNumberType(NumberType::NT type) {
  return std::string(std::string_view(textOf(type)));
}

NumberType::NT JournalServiceHelper::convertNumberType(std::string const& text) {
  return memberOf<NumberType::NT>(text);
}

std::string JournalServiceHelper::convertTimeFormat(CallLogEntryEvent::_TFormat format) {
  return std::string(std::string_view(textOf(format)));
}

CallLogEntryEvent::_TFormat JournalServiceHelper::convertTimeFormat(std::string const& text) {
  return memberOf<CallLogEntryEvent::_TFormat>(text);
}

std::string
JournalServiceHelper::convertPresentationValue(CallLogEntryEvent::_PresentationValue presentation) {
  return std::string(std::string_view(textOf(presentation)));
}

CallLogEntryEvent::_PresentationValue
JournalServiceHelper::convertPresentationValue(std::string const& text) {
  return memberOf<CallLogEntryEvent::_PresentationValue>(text);
}

std::string JournalServiceHelper::convertTargetLog(CallLogEntryEvent::_LogTarget target) {
  return std::string(std::string_view(textOf(target)));
}

CallLogEntryEvent::_LogTarget JournalServiceHelper::convertTargetLog(std::string const& text) {
  return memberOf<CallLogEntryEvent::_LogTarget>(text);
}

std::string JournalServiceHelper::respBool(bool success) {
  return std::string(success ? word::SUCCESS : word::FAILURE);
}

bool JournalServiceHelper::isNonFailureResponse(std::string const& message) {
  return message.find(word::FAILURE) == std::string::npos;
}
