// The clients' requests to the settings and data store.
#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"
#include "xml/Envelope.h"

using namespace journal;

namespace {

std::string request(Word kind, Word schemaName) {
  constexpr auto reason = element<word::REASONFORMESSAGE>;
  return enveloped({reason.begin(), textOf(kind), reason.close()}, textOf(schemaName));
}

} // namespace

// The schema alone tells the store what to read: an element without a value is not written. It is
// the settings' schema, not DAS_CALLLOGENABLEDSTATE.
std::string JournalServiceHelper::readEnabledState() {
  return request(Word::READREQUEST, Word::SETTINGS_SCHEMA);
}

std::string JournalServiceHelper::readMissedCallList() {
  return request(Word::READREQUEST, Word::DAS_CALLLOGMISSEDCALLS);
}

std::string JournalServiceHelper::deleteMissedCallList() {
  return request(Word::DELETEREQUEST, Word::DAS_CALLLOGMISSEDCALLS);
}

std::string JournalServiceHelper::readDialledCallList() {
  return request(Word::READREQUEST, Word::DAS_CALLLOGDIALLEDCALLS);
}

std::string JournalServiceHelper::deleteDialledCallList() {
  return request(Word::DELETEREQUEST, Word::DAS_CALLLOGDIALLEDCALLS);
}

std::string JournalServiceHelper::readReceivedCallList() {
  return request(Word::READREQUEST, Word::DAS_CALLLOGRECEIVEDCALLS);
}

std::string JournalServiceHelper::deleteReceivedCallList() {
  return request(Word::DELETEREQUEST, Word::DAS_CALLLOGRECEIVEDCALLS);
}

std::string JournalServiceHelper::readForwardedCallList() {
  return request(Word::READREQUEST, Word::DAS_CALLLOGFORWARDEDCALLS);
}

std::string JournalServiceHelper::deleteForwardedCallList() {
  return request(Word::DELETEREQUEST, Word::DAS_CALLLOGFORWARDEDCALLS);
}
