// The public operations on response words.
#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"
#include "xml/Building.h"

using namespace journal;

std::string JournalServiceHelper::respBool(bool success) {
  return std::string(success ? word::SUCCESS : word::FAILURE);
}

bool JournalServiceHelper::addSuccessResp(std::string& message) {
  append(message, element<word::VALUE>, word::SUCCESS);
  return true;
}

bool JournalServiceHelper::isNonFailureResponse(std::string const& message) {
  return message.find(word::FAILURE) == std::string::npos;
}
