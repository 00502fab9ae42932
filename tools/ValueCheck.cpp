// The library decides: it reads each value and writes it again. Writers write only values that come
// back as the same text.
#include "ValueCheck.h"

#include "ClientUtils.h"

namespace {

using J = JournalServiceHelper;

std::string readBack(Value value, std::string const& text) {
  switch (value) {
  case Value::NUMBER_TYPE:
    return J::convertNumberType(J::convertNumberType(text));
  case Value::TIME_FORMAT:
    return J::convertTimeFormat(J::convertTimeFormat(text));
  case Value::PRESENTATION:
    return J::convertPresentationValue(J::convertPresentationValue(text));
  default:
    return J::convertTargetLog(J::convertTargetLog(text));
  }
}

std::string judgeMember(Value value, std::string const& text) {
  std::string const read = readBack(value, text);
  return read == text ? "" : "is no member, read as " + read;
}

std::string judgeFlag(std::string const& text) {
  return text == J::TRUE || text == J::FALSE ? "" : "is neither True nor False, read as False";
}

bool isBeyond32Bits(std::string const& text) {
  std::size_t at = text.find_first_not_of(" \t\n\v\f\r");
  if (at == std::string::npos)
    return false;
  bool const negative = text[at] == '-';
  if (negative || text[at] == '+')
    ++at;
  std::string digits = text.substr(at, text.find_first_not_of("0123456789", at) - at);
  digits.erase(0, digits.find_first_not_of('0'));
  std::string const most = negative ? "2147483648" : "2147483647";
  return digits.size() > most.size() || (digits.size() == most.size() && digits > most);
}

std::string judgeNumber(std::string const& text) {
  static std::string const name = "Handle";
  unsigned int number = 0;
  J::getXMLValue(J::createXMLField(name, text), name, number);
  std::string const written = ClientUtils::itos(static_cast<int>(number));
  if (isBeyond32Bits(text))
    return "does not fit 32 bits with a sign, read as " + std::to_string(number);
  return written == text ? ""
                         : "is no number as writers print it, read as " + std::to_string(number);
}

std::string judgeAction(std::string const& text) {
  return text.size() == 1 && text[0] >= '0' && text[0] <= '9' ? "" : "is not one digit";
}

std::string judgeOutcome(std::string const& text) {
  if (text == J::FAILURE)
    return "tells of a failure";
  return text == J::SUCCESS ? "" : "is neither Success nor Failure";
}

std::string judgeReason(std::string const& text) {
  if (text == J::READREQUEST || text == J::DELETEREQUEST)
    return "";
  bool const reserved = text == J::UPDATEREQUEST || text == J::WRITEREQUEST;
  return reserved ? "is a reason that no store request gives" : "is no reason of a store request";
}

std::string judgeEnabled(std::string const& text) {
  bool const usual = text.empty() || text == "true" || text == "false";
  return usual ? "" : "is not true, read as disabled";
}

} // namespace

std::string judgeValue(Value value, std::string const& text) {
  switch (value) {
  case Value::FLAG:
    return judgeFlag(text);
  case Value::NUMBER_TYPE:
  case Value::TIME_FORMAT:
  case Value::PRESENTATION:
  case Value::TARGET_LOG:
    return judgeMember(value, text);
  case Value::NUMBER:
    return judgeNumber(text);
  case Value::ACTION:
    return judgeAction(text);
  case Value::OUTCOME:
    return judgeOutcome(text);
  case Value::REASON:
    return judgeReason(text);
  case Value::ENABLED:
    return judgeEnabled(text);
  default:
    return "";
  }
}
