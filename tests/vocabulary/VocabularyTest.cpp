// The 163 words of the messages, each against its own literal.
#include <iterator>
#include <set>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using J = JournalServiceHelper;

struct Word {
  std::string const* constant;
  char const* literal;
};

// clang-format off
constexpr Word words[] = {
    // Envelope and response words
    {&J::XMLHEADER, "<?xml version=\"1.0\" encoding=\"utf-8\"?>"},
    {&J::SCHEMA, "Schema"},
    {&J::SETTINGS_SCHEMA, "CallLogSettings"},
    {&J::METHOD, "Method"},
    {&J::ENTRY, "Entry"},
    {&J::VALUE, "Value"},
    {&J::SUCCESS, "Success"},
    {&J::FAILURE, "Failure"},
    {&J::TRUE, "True"},
    {&J::FALSE, "False"},
    // Identifier and list element names
    {&J::INDEX, "Index"},
    {&J::ENTRYID, "EntryId"},
    {&J::UNIQUEID, "UniqueId"},
    {&J::UNIQUEIDTODELETE, "UniqueIdToDelete"},
    {&J::ACTIONTYPE, "ActionType"},
    {&J::LOGLIST, "LogList"},
    {&J::ITEM, "Item"},
    // Enumeration texts
    {&J::PRIVATE, "PRIVATE"},
    {&J::MOBILE, "MOBILE"},
    {&J::BUSINESS1, "BUSINESS1"},
    {&J::BUSINESS2, "BUSINESS2"},
    {&J::NO_ICON, "NO_ICON"},
    {&J::IN_ANSWERED, "IN_ANSWERED"},
    {&J::IN_NO_ANSWER, "IN_NO_ANSWER"},
    {&J::IN_BUSY, "IN_BUSY"},
    {&J::IN_GROUP_MISSED, "IN_GROUP_MISSED"},
    {&J::OUT_ANSWERED, "OUT_ANSWERED"},
    {&J::OUT_NO_ANSWER, "OUT_NO_ANSWER"},
    {&J::OUT_BUSY, "OUT_BUSY"},
    {&J::NOT_AVAILABLE, "NOT_AVAILABLE"},
    {&J::ALLOWED, "ALLOWED"},
    {&J::NOT_ALLOWED, "NOT_ALLOWED"},
    {&J::FORM_24, "FORM_24"},
    {&J::FORM_AM, "FORM_AM"},
    {&J::FORM_PM, "FORM_PM"},
    // Method tags
    {&J::GETMISSEDCALLLIST_XML, "<getMissedCallList>"},
    {&J::SETMISSEDCALLLISTASVIEWED_XML, "<setMissedCallListAsViewed>"},
    {&J::DELETEMISSEDCALL_XML, "<deleteMissedCall>"},
    {&J::DELETEMISSEDCALLLIST_XML, "<deleteMissedCallList>"},
    {&J::GETDIALLEDCALLLIST_XML, "<getDialledCallList>"},
    {&J::DELETEDIALLEDCALL_XML, "<deleteDialledCall>"},
    {&J::DELETEDIALLEDCALLLIST_XML, "<deleteDialledCallList>"},
    {&J::GETLASTDIALLEDNUMBER_XML, "<getLastDialledNumber>"},
    {&J::GETRECEIVEDCALLLIST_XML, "<getReceivedCallList>"},
    {&J::DELETERECEIVEDCALL_XML, "<deleteReceivedCall>"},
    {&J::DELETERECEIVEDCALLLIST_XML, "<deleteReceivedCallList>"},
    {&J::GETFORWARDEDCALLLIST_XML, "<getForwardedCallList>"},
    {&J::DELETEFORWARDEDCALL_XML, "<deleteForwardedCall>"},
    {&J::DELETEFORWARDEDCALLLIST_XML, "<deleteForwardedCallList>"},
    {&J::SUBSCRIBE_XML, "<subscribe>"},
    {&J::UNSUBSCRIBE_XML, "<unsubscribe>"},
    {&J::REFRESHCALLLOG_XML, "<refreshCallLog>"},
    {&J::MISSEDCALLSUPDATE_XML, "<missedCallsUpdate>"},
    {&J::MISSEDCALLSCOUNTUPDATE_XML, "<missedCallsCountUpdate>"},
    {&J::MISSEDGROUPCALLSUPDATE_XML, "<missedGroupCallsUpdate>"},
    {&J::DIALLEDCALLSUPDATE_XML, "<dialledCallsUpdate>"},
    {&J::RECEIVEDCALLSUPDATE_XML, "<receivedCallsUpdate>"},
    {&J::FORWARDEDCALLSUPDATE_XML, "<forwardedCallsUpdate>"},
    // Record element names
    {&J::SURNAME, "Surname"},
    {&J::FIRSTNAME, "Firstname"},
    {&J::PICTURE, "Picture"},
    {&J::JSGROUPBY, "JSGroupBy"},
    {&J::VIEWED, "Viewed"},
    {&J::NUMBER, "Number"},
    {&J::NUMBERTYPE, "NumberType"},
    {&J::RESOLVEDNUMBER, "ResolvedNumber"},
    {&J::TIMEDATE, "TimeDate"},
    {&J::CONNECTEDNUMBERPRIORITY, "ConnectedNumberPriority"},
    {&J::CONNECTEDNUMBER, "ConnectedNumber"},
    {&J::CONNECTEDNUMBERTYPE, "ConnectedNumberType"},
    {&J::CONNECTEDSURNAME, "ConnectedSurname"},
    {&J::CONNECTEDFIRSTNAME, "ConnectedFirstName"},
    {&J::DURATION, "Duration"},
    {&J::TARGETLOG, "TargetLog"},
    {&J::NUMBERPRESENTATION, "NumberPresentation"},
    {&J::NAMEPRESENTATION, "NamePresentation"},
    {&J::DEFLECTNUMBERPRESENTATION, "DeflectNumberPresentation"},
    {&J::DEFLECTNUMBER, "DeflectNumber"},
    {&J::DEFLECTNUMBERTYPE, "DeflectNumberType"},
    {&J::DEFLECTNAMEPRESENTATION, "DeflectNamePresentation"},
    {&J::DEFLECTNAME, "DeflectName"},
    {&J::TIMEFORMAT, "TimeFormat"},
    {&J::REASONFORMESSAGE, "ReasonForMessage"},
    {&J::CALL_LOG_ENABLED, "CallLogEnabled"},
    // Data-store request kinds and schema names
    {&J::READREQUEST, "read_request"},
    {&J::UPDATEREQUEST, "update_request"},
    {&J::WRITEREQUEST, "write_request"},
    {&J::DELETEREQUEST, "delete_request"},
    {&J::DAS_CALLLOGMISSEDCALLS, "CallLogMissedCalls"},
    {&J::DAS_CALLLOGDIALLEDCALLS, "CallLogDialledCalls"},
    {&J::DAS_CALLLOGRECEIVEDCALLS, "CallLogReceivedCalls"},
    {&J::DAS_CALLLOGFORWARDEDCALLS, "CallLogForwardedCalls"},
    {&J::DAS_CALLLOGENABLEDSTATE, "CallLogEnabledState"},
    // Begin and close tags
    {&J::REASONFORMESSAGE_XML_BEGIN, "<ReasonForMessage>"},
    {&J::REASONFORMESSAGE_XML_CLOSE, "</ReasonForMessage>"},
    {&J::METHOD_XML_BEGIN, "<Method>"},
    {&J::METHOD_XML_CLOSE, "</Method>"},
    {&J::ENTRY_XML_BEGIN, "<Entry>"},
    {&J::ENTRY_XML_CLOSE, "</Entry>"},
    {&J::LOGLIST_XML_BEGIN, "<LogList>"},
    {&J::LOGLIST_XML_CLOSE, "</LogList>"},
    {&J::ITEM_XML_BEGIN, "<Item>"},
    {&J::ITEM_XML_CLOSE, "</Item>"},
    {&J::ACTIONTYPE_XML_BEGIN, "<ActionType>"},
    {&J::ACTIONTYPE_XML_CLOSE, "</ActionType>"},
    {&J::UNIQUEIDTODELETE_XML_BEGIN, "<UniqueIdToDelete>"},
    {&J::UNIQUEIDTODELETE_XML_CLOSE, "</UniqueIdToDelete>"},
    {&J::UNIQUEID_XML_BEGIN, "<UniqueId>"},
    {&J::UNIQUEID_XML_CLOSE, "</UniqueId>"},
    {&J::ENTRYID_XML_BEGIN, "<EntryId>"},
    {&J::ENTRYID_XML_CLOSE, "</EntryId>"},
    {&J::SURNAME_XML_BEGIN, "<Surname>"},
    {&J::SURNAME_XML_CLOSE, "</Surname>"},
    {&J::FIRSTNAME_XML_BEGIN, "<Firstname>"},
    {&J::FIRSTNAME_XML_CLOSE, "</Firstname>"},
    {&J::PICTURE_XML_BEGIN, "<Picture>"},
    {&J::PICTURE_XML_CLOSE, "</Picture>"},
    {&J::JSGROUPBY_XML_BEGIN, "<JSGroupBy>"},
    {&J::JSGROUPBY_XML_CLOSE, "</JSGroupBy>"},
    {&J::NUMBER_XML_BEGIN, "<Number>"},
    {&J::NUMBER_XML_CLOSE, "</Number>"},
    {&J::NUMBERTYPE_XML_BEGIN, "<NumberType>"},
    {&J::NUMBERTYPE_XML_CLOSE, "</NumberType>"},
    {&J::RESOLVEDNUMBER_XML_BEGIN, "<ResolvedNumber>"},
    {&J::RESOLVEDNUMBER_XML_CLOSE, "</ResolvedNumber>"},
    {&J::CONNECTEDNUMBER_XML_BEGIN, "<ConnectedNumber>"},
    {&J::CONNECTEDNUMBER_XML_CLOSE, "</ConnectedNumber>"},
    {&J::CONNECTEDNUMBERPRIORITY_XML_BEGIN, "<ConnectedNumberPriority>"},
    {&J::CONNECTEDNUMBERPRIORITY_XML_CLOSE, "</ConnectedNumberPriority>"},
    {&J::CONNECTEDNUMBERTYPE_XML_BEGIN, "<ConnectedNumberType>"},
    {&J::CONNECTEDNUMBERTYPE_XML_CLOSE, "</ConnectedNumberType>"},
    {&J::CONNECTEDSURNAME_XML_BEGIN, "<ConnectedSurname>"},
    {&J::CONNECTEDSURNAME_XML_CLOSE, "</ConnectedSurname>"},
    {&J::CONNECTEDFIRSTNAME_XML_BEGIN, "<ConnectedFirstName>"},
    {&J::CONNECTEDFIRSTNAME_XML_CLOSE, "</ConnectedFirstName>"},
    {&J::TIMEDATE_XML_BEGIN, "<TimeDate>"},
    {&J::TIMEDATE_XML_CLOSE, "</TimeDate>"},
    {&J::DURATION_XML_BEGIN, "<Duration>"},
    {&J::DURATION_XML_CLOSE, "</Duration>"},
    {&J::TARGETLOG_XML_BEGIN, "<TargetLog>"},
    {&J::TARGETLOG_XML_CLOSE, "</TargetLog>"},
    {&J::NUMBERPRESENTATION_XML_BEGIN, "<NumberPresentation>"},
    {&J::NUMBERPRESENTATION_XML_CLOSE, "</NumberPresentation>"},
    {&J::NAMEPRESENTATION_XML_BEGIN, "<NamePresentation>"},
    {&J::NAMEPRESENTATION_XML_CLOSE, "</NamePresentation>"},
    {&J::TIMEFORMAT_XML_BEGIN, "<TimeFormat>"},
    {&J::TIMEFORMAT_XML_CLOSE, "</TimeFormat>"},
    {&J::VIEWED_XML_BEGIN, "<Viewed>"},
    {&J::VIEWED_XML_CLOSE, "</Viewed>"},
    {&J::DEFLECTNUMBERPRESENTATION_XML_BEGIN, "<DeflectNumberPresentation>"},
    {&J::DEFLECTNUMBERPRESENTATION_XML_CLOSE, "</DeflectNumberPresentation>"},
    {&J::DEFLECTNUMBER_XML_BEGIN, "<DeflectNumber>"},
    {&J::DEFLECTNUMBER_XML_CLOSE, "</DeflectNumber>"},
    {&J::DEFLECTNUMBERTYPE_XML_BEGIN, "<DeflectNumberType>"},
    {&J::DEFLECTNUMBERTYPE_XML_CLOSE, "</DeflectNumberType>"},
    {&J::DEFLECTNAMEPRESENTATION_XML_BEGIN, "<DeflectNamePresentation>"},
    {&J::DEFLECTNAMEPRESENTATION_XML_CLOSE, "</DeflectNamePresentation>"},
    {&J::DEFLECTNAME_XML_BEGIN, "<DeflectName>"},
    {&J::DEFLECTNAME_XML_CLOSE, "</DeflectName>"},
    {&J::HANDLE_XML_BEGIN, "<Handle>"},
    {&J::HANDLE_XML_CLOSE, "</Handle>"},
    {&J::ENABLED_XML_BEGIN, "<CallLogEnabled>"},
    {&J::ENABLED_XML_CLOSE, "</CallLogEnabled>"},
};
// clang-format on

static_assert(std::size(words) == 163, "every constant has its row");
static_assert(std::is_same_v<decltype(J::METHOD), std::string const>);
static_assert(std::is_same_v<decltype(J::TRUE), std::string const>);
static_assert(std::is_same_v<decltype(J::ENTRY_XML_BEGIN), std::string const>);

TEST(Vocabulary, SpellsEachWordExactly) {
  for (Word const& word : words)
    EXPECT_EQ(word.literal, *word.constant);
}

TEST(Vocabulary, HasNoRowTwice) {
  std::set<std::string const*> constants;
  std::set<std::string> literals;
  for (Word const& word : words) {
    constants.insert(word.constant);
    literals.insert(word.literal);
  }
  EXPECT_EQ(163u, constants.size());
  EXPECT_EQ(163u, literals.size());
}

TEST(Vocabulary, IsPrintableAscii) {
  for (Word const& word : words)
    for (char c : *word.constant)
      EXPECT_TRUE(c >= ' ' && c <= '~') << word.literal;
}

// Names that a reader would expect to be spelled alike, and are not.
TEST(Vocabulary, KeepsTheDifferencesBetweenNeighbours) {
  EXPECT_EQ("Firstname", J::FIRSTNAME);
  EXPECT_EQ("ConnectedFirstName", J::CONNECTEDFIRSTNAME);
  EXPECT_EQ("CallLogSettings", J::SETTINGS_SCHEMA);
  EXPECT_EQ("CallLogEnabledState", J::DAS_CALLLOGENABLEDSTATE);
  EXPECT_EQ("CallLogEnabled", J::CALL_LOG_ENABLED);
}

} // namespace
