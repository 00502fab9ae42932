// The clients' requests to the journal service.
#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"
#include "xml/Envelope.h"

using namespace journal;

namespace {

constexpr Element methodElement = element<word::METHOD>;

std::string request(Word method) {
  return enveloped({methodElement.begin(), textOf(method), methodElement.close()});
}

// A request about one entry; about none when the id is empty.
std::string request(Word method, std::string const& entryId) {
  constexpr auto id = element<word::ENTRYID>;
  if (entryId.empty())
    return request(method);
  return enveloped({methodElement.begin(), textOf(method), methodElement.close(), id.begin(),
                    entryId, id.close()});
}

std::string request(Word method, std::set<std::string> const& entryIds) {
  return enveloped({methodElement.begin(), textOf(method), methodElement.close(),
                    JournalServiceHelper::createXMLEntryIDList(entryIds)});
}

} // namespace

std::string JournalServiceHelper::reqGetMissedCallList() {
  return request(Word::GETMISSEDCALLLIST_XML);
}

std::string
JournalServiceHelper::reqSetMissedCallListAsViewed(std::set<std::string> const& entryIds) {
  return request(Word::SETMISSEDCALLLISTASVIEWED_XML, entryIds);
}

std::string JournalServiceHelper::reqDeleteMissedCall(std::string const& entryId) {
  return request(Word::DELETEMISSEDCALL_XML, entryId);
}

std::string JournalServiceHelper::reqDeleteMissedCallList(std::set<std::string> const& entryIds) {
  return request(Word::DELETEMISSEDCALLLIST_XML, entryIds);
}

std::string JournalServiceHelper::reqGetDialledCallList() {
  return request(Word::GETDIALLEDCALLLIST_XML);
}

std::string JournalServiceHelper::reqDeleteDialledCall(std::string const& entryId) {
  return request(Word::DELETEDIALLEDCALL_XML, entryId);
}

std::string JournalServiceHelper::reqDeleteDialledCallList(std::set<std::string> const& entryIds) {
  return request(Word::DELETEDIALLEDCALLLIST_XML, entryIds);
}

std::string JournalServiceHelper::reqGetLastDialledNumber() {
  return request(Word::GETLASTDIALLEDNUMBER_XML);
}

std::string JournalServiceHelper::reqGetReceivedCallList() {
  return request(Word::GETRECEIVEDCALLLIST_XML);
}

std::string JournalServiceHelper::reqDeleteReceivedCall(std::string const& entryId) {
  return request(Word::DELETERECEIVEDCALL_XML, entryId);
}

std::string JournalServiceHelper::reqDeleteReceivedCallList(std::set<std::string> const& entryIds) {
  return request(Word::DELETERECEIVEDCALLLIST_XML, entryIds);
}

std::string JournalServiceHelper::reqGetForwardedCallList() {
  return request(Word::GETFORWARDEDCALLLIST_XML);
}

std::string JournalServiceHelper::reqDeleteForwardedCall(std::string const& entryId) {
  return request(Word::DELETEFORWARDEDCALL_XML, entryId);
}

std::string
JournalServiceHelper::reqDeleteForwardedCallList(std::set<std::string> const& entryIds) {
  return request(Word::DELETEFORWARDEDCALLLIST_XML, entryIds);
}

std::string JournalServiceHelper::reqSubscribe() {
  return request(Word::SUBSCRIBE_XML);
}

std::string JournalServiceHelper::reqUnsubscribe() {
  return request(Word::UNSUBSCRIBE_XML);
}

std::string JournalServiceHelper::reqRefreshCallLog() {
  return request(Word::REFRESHCALLLOG_XML);
}
