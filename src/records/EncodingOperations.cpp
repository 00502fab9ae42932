// The public operations that write one entry or its calls.
#include "JournalServiceHelper.h"
#include "records/Encoder.h"

void JournalServiceHelper::createXMLMissedCallItemBody(MissedCallItem const& item, std::string& out,
                                                       bool uniqueIdOnly) {
  journal::appendEntryBody(item, out, uniqueIdOnly);
}

void JournalServiceHelper::createXMLDialledCallItemBody(DialledCallItem const& item,
                                                        std::string& out, bool uniqueIdOnly) {
  journal::appendEntryBody(item, out, uniqueIdOnly);
}

void JournalServiceHelper::createXMLReceivedCallItemBody(ReceivedCallItem const& item,
                                                         std::string& out, bool uniqueIdOnly) {
  journal::appendEntryBody(item, out, uniqueIdOnly);
}

void JournalServiceHelper::createXMLForwardedCallItemBody(ForwardedCallItem const& item,
                                                          std::string& out, bool uniqueIdOnly) {
  journal::appendEntryBody(item, out, uniqueIdOnly);
}

void JournalServiceHelper::createXMLMissedCallInfoList(MissedCallItem const& item,
                                                       std::string& out) {
  journal::appendCalls(item, out);
}

void JournalServiceHelper::createXMLDialledCallInfoList(DialledCallItem const& item,
                                                        std::string& out) {
  journal::appendCalls(item, out);
}

void JournalServiceHelper::createXMLReceivedCallInfoList(ReceivedCallItem const& item,
                                                         std::string& out) {
  journal::appendCalls(item, out);
}

void JournalServiceHelper::createXMLForwardedCallInfoList(ForwardedCallItem const& item,
                                                          std::string& out) {
  journal::appendCalls(item, out);
}
