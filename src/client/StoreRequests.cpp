// The clients' requests to the settings and data store.
#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"
#include "xml/Envelope.h"

using namespace journal;

namespace {

std::string request(std::string_view kind, std::string_view schemaName) {
  constexpr auto reason = element<word::REASONFORMESSAGE>;
  return enveloped({reason.begin(), kind, reason.close()}, schemaName);
}

} // namespace

// The schema alone tells the store what to read: an element without a value is not written. It is
// the settings' schema, not DAS_CALLLOGENABLEDSTATE.
std::string JournalServiceHelper::readEnabledState() {
  return request(word::READREQUEST, word::SETTINGS_SCHEMA);
}

std::string JournalServiceHelper::readMissedCallList() {
  return request(word::READREQUEST, word::DAS_CALLLOGMISSEDCALLS);
}

std::string JournalServiceHelper::deleteMissedCallList() {
  return request(word::DELETEREQUEST, word::DAS_CALLLOGMISSEDCALLS);
}

std::string JournalServiceHelper::readDialledCallList() {
  return request(word::READREQUEST, word::DAS_CALLLOGDIALLEDCALLS);
}

std::string JournalServiceHelper::deleteDialledCallList() {
  return request(word::DELETEREQUEST, word::DAS_CALLLOGDIALLEDCALLS);
}

std::string JournalServiceHelper::readReceivedCallList() {
  return request(word::READREQUEST, word::DAS_CALLLOGRECEIVEDCALLS);
}

std::string JournalServiceHelper::deleteReceivedCallList() {
  return request(word::DELETEREQUEST, word::DAS_CALLLOGRECEIVEDCALLS);
}

std::string JournalServiceHelper::readForwardedCallList() {
  return request(word::READREQUEST, word::DAS_CALLLOGFORWARDEDCALLS);
}

std::string JournalServiceHelper::deleteForwardedCallList() {
  return request(word::DELETEREQUEST, word::DAS_CALLLOGFORWARDEDCALLS);
}
