// The clients' requests to the journal service.
#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"
#include "xml/Envelope.h"

using namespace journal;

namespace {

constexpr Element methodElement = element<word::METHOD>;

std::string request(std::string_view method) {
  return enveloped({methodElement.begin(), method, methodElement.close()});
}

// A request about one entry; about none when the id is empty.
std::string request(std::string_view method, std::string const& entryId) {
  constexpr auto id = element<word::ENTRYID>;
  if (entryId.empty())
    return request(method);
  return enveloped(
      {methodElement.begin(), method, methodElement.close(), id.begin(), entryId, id.close()});
}

std::string request(std::string_view method, std::set<std::string> const& entryIds) {
  return enveloped({methodElement.begin(), method, methodElement.close(),
                    JournalServiceHelper::createXMLEntryIDList(entryIds)});
}

} // namespace

std::string JournalServiceHelper::reqGetMissedCallList() {
  return request(word::GETMISSEDCALLLIST_XML);
}

std::string
JournalServiceHelper::reqSetMissedCallListAsViewed(std::set<std::string> const& entryIds) {
  return request(word::SETMISSEDCALLLISTASVIEWED_XML, entryIds);
}

std::string JournalServiceHelper::reqDeleteMissedCall(std::string const& entryId) {
  return request(word::DELETEMISSEDCALL_XML, entryId);
}

std::string JournalServiceHelper::reqDeleteMissedCallList(std::set<std::string> const& entryIds) {
  return request(word::DELETEMISSEDCALLLIST_XML, entryIds);
}

std::string JournalServiceHelper::reqGetDialledCallList() {
  return request(word::GETDIALLEDCALLLIST_XML);
}

std::string JournalServiceHelper::reqDeleteDialledCall(std::string const& entryId) {
  return request(word::DELETEDIALLEDCALL_XML, entryId);
}

std::string JournalServiceHelper::reqDeleteDialledCallList(std::set<std::string> const& entryIds) {
  return request(word::DELETEDIALLEDCALLLIST_XML, entryIds);
}

std::string JournalServiceHelper::reqGetLastDialledNumber() {
  return request(word::GETLASTDIALLEDNUMBER_XML);
}

std::string JournalServiceHelper::reqGetReceivedCallList() {
  return request(word::GETRECEIVEDCALLLIST_XML);
}

std::string JournalServiceHelper::reqDeleteReceivedCall(std::string const& entryId) {
  return request(word::DELETERECEIVEDCALL_XML, entryId);
}

std::string JournalServiceHelper::reqDeleteReceivedCallList(std::set<std::string> const& entryIds) {
  return request(word::DELETERECEIVEDCALLLIST_XML, entryIds);
}

std::string JournalServiceHelper::reqGetForwardedCallList() {
  return request(word::GETFORWARDEDCALLLIST_XML);
}

std::string JournalServiceHelper::reqDeleteForwardedCall(std::string const& entryId) {
  return request(word::DELETEFORWARDEDCALL_XML, entryId);
}

std::string
JournalServiceHelper::reqDeleteForwardedCallList(std::set<std::string> const& entryIds) {
  return request(word::DELETEFORWARDEDCALLLIST_XML, entryIds);
}

std::string JournalServiceHelper::reqSubscribe() {
  return request(word::SUBSCRIBE_XML);
}

std::string JournalServiceHelper::reqUnsubscribe() {
  return request(word::UNSUBSCRIBE_XML);
}

std::string JournalServiceHelper::reqRefreshCallLog() {
  return request(word::REFRESHCALLLOG_XML);
}
