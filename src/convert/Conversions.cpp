// The public conversions of enumerations.
#include "JournalServiceHelper.h"
#include "convert/EnumTexts.h"

using namespace journal;

namespace {

std::string textOf(Enumeration const& enumeration, std::int32_t value) {
  return std::string(std::string_view(enumeration.textOf(value)));
}

} // namespace

std::string JournalServiceHelper::convertNumberType(NumberType::NT type) {
  return textOf(numberTypes, type);
}

NumberType::NT JournalServiceHelper::convertNumberType(std::string const& text) {
  return static_cast<NumberType::NT>(numberTypes.memberOf(text));
}

std::string JournalServiceHelper::convertTimeFormat(CallLogEntryEvent::_TFormat format) {
  return textOf(timeFormats, format);
}

CallLogEntryEvent::_TFormat JournalServiceHelper::convertTimeFormat(std::string const& text) {
  return static_cast<CallLogEntryEvent::_TFormat>(timeFormats.memberOf(text));
}

std::string
JournalServiceHelper::convertPresentationValue(CallLogEntryEvent::_PresentationValue presentation) {
  return textOf(presentations, presentation);
}

CallLogEntryEvent::_PresentationValue
JournalServiceHelper::convertPresentationValue(std::string const& text) {
  return static_cast<CallLogEntryEvent::_PresentationValue>(presentations.memberOf(text));
}

std::string JournalServiceHelper::convertTargetLog(CallLogEntryEvent::_LogTarget target) {
  return textOf(targetLogs, target);
}

CallLogEntryEvent::_LogTarget JournalServiceHelper::convertTargetLog(std::string const& text) {
  return static_cast<CallLogEntryEvent::_LogTarget>(targetLogs.memberOf(text));
}
