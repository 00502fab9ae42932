// The public constants: each with its name and the text that it must hold, typed by hand.
//
// Everything else under tests/ and fuzz/ that needs a list of words derives it from this one.
#ifndef TESTS_VOCABULARY_CONSTANTS_H
#define TESTS_VOCABULARY_CONSTANTS_H

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "JournalServiceHelper.h"

namespace vocabulary {

struct Word {
  std::string_view name;
  std::string const* constant;
  std::string_view literal;
};

#define WORD(NAME, LITERAL)                                                                        \
  Word {                                                                                           \
#NAME, &JournalServiceHelper::NAME, LITERAL                                                    \
  }

// clang-format off
inline constexpr Word words[] = {
    // Envelope and response words
    WORD(XMLHEADER, "<?xml version=\"1.0\" encoding=\"utf-8\"?>"),
    WORD(SCHEMA, "Schema"),
    WORD(SETTINGS_SCHEMA, "CallLogSettings"),
    WORD(METHOD, "Method"),
    WORD(ENTRY, "Entry"),
    WORD(VALUE, "Value"),
    WORD(SUCCESS, "Success"),
    WORD(FAILURE, "Failure"),
    WORD(TRUE, "True"),
    WORD(FALSE, "False"),
    // Identifier and list element names
    WORD(INDEX, "Index"),
    WORD(ENTRYID, "EntryId"),
    WORD(UNIQUEID, "UniqueId"),
    WORD(UNIQUEIDTODELETE, "UniqueIdToDelete"),
    WORD(ACTIONTYPE, "ActionType"),
    WORD(LOGLIST, "LogList"),
    WORD(ITEM, "Item"),
    // Enumeration texts
    WORD(PRIVATE, "PRIVATE"),
    WORD(MOBILE, "MOBILE"),
    WORD(BUSINESS1, "BUSINESS1"),
    WORD(BUSINESS2, "BUSINESS2"),
    WORD(NO_ICON, "NO_ICON"),
    WORD(IN_ANSWERED, "IN_ANSWERED"),
    WORD(IN_NO_ANSWER, "IN_NO_ANSWER"),
    WORD(IN_BUSY, "IN_BUSY"),
    WORD(IN_GROUP_MISSED, "IN_GROUP_MISSED"),
    WORD(OUT_ANSWERED, "OUT_ANSWERED"),
    WORD(OUT_NO_ANSWER, "OUT_NO_ANSWER"),
    WORD(OUT_BUSY, "OUT_BUSY"),
    WORD(NOT_AVAILABLE, "NOT_AVAILABLE"),
    WORD(ALLOWED, "ALLOWED"),
    WORD(NOT_ALLOWED, "NOT_ALLOWED"),
    WORD(FORM_24, "FORM_24"),
    WORD(FORM_AM, "FORM_AM"),
    WORD(FORM_PM, "FORM_PM"),
    // Method tags
    WORD(GETMISSEDCALLLIST_XML, "<getMissedCallList>"),
    WORD(SETMISSEDCALLLISTASVIEWED_XML, "<setMissedCallListAsViewed>"),
    WORD(DELETEMISSEDCALL_XML, "<deleteMissedCall>"),
    WORD(DELETEMISSEDCALLLIST_XML, "<deleteMissedCallList>"),
    WORD(GETDIALLEDCALLLIST_XML, "<getDialledCallList>"),
    WORD(DELETEDIALLEDCALL_XML, "<deleteDialledCall>"),
    WORD(DELETEDIALLEDCALLLIST_XML, "<deleteDialledCallList>"),
    WORD(GETLASTDIALLEDNUMBER_XML, "<getLastDialledNumber>"),
    WORD(GETRECEIVEDCALLLIST_XML, "<getReceivedCallList>"),
    WORD(DELETERECEIVEDCALL_XML, "<deleteReceivedCall>"),
    WORD(DELETERECEIVEDCALLLIST_XML, "<deleteReceivedCallList>"),
    WORD(GETFORWARDEDCALLLIST_XML, "<getForwardedCallList>"),
    WORD(DELETEFORWARDEDCALL_XML, "<deleteForwardedCall>"),
    WORD(DELETEFORWARDEDCALLLIST_XML, "<deleteForwardedCallList>"),
    WORD(SUBSCRIBE_XML, "<subscribe>"),
    WORD(UNSUBSCRIBE_XML, "<unsubscribe>"),
    WORD(REFRESHCALLLOG_XML, "<refreshCallLog>"),
    WORD(MISSEDCALLSUPDATE_XML, "<missedCallsUpdate>"),
    WORD(MISSEDCALLSCOUNTUPDATE_XML, "<missedCallsCountUpdate>"),
    WORD(MISSEDGROUPCALLSUPDATE_XML, "<missedGroupCallsUpdate>"),
    WORD(DIALLEDCALLSUPDATE_XML, "<dialledCallsUpdate>"),
    WORD(RECEIVEDCALLSUPDATE_XML, "<receivedCallsUpdate>"),
    WORD(FORWARDEDCALLSUPDATE_XML, "<forwardedCallsUpdate>"),
    // Record element names
    WORD(SURNAME, "Surname"),
    WORD(FIRSTNAME, "Firstname"),
    WORD(PICTURE, "Picture"),
    WORD(JSGROUPBY, "JSGroupBy"),
    WORD(VIEWED, "Viewed"),
    WORD(NUMBER, "Number"),
    WORD(NUMBERTYPE, "NumberType"),
    WORD(RESOLVEDNUMBER, "ResolvedNumber"),
    WORD(TIMEDATE, "TimeDate"),
    WORD(CONNECTEDNUMBERPRIORITY, "ConnectedNumberPriority"),
    WORD(CONNECTEDNUMBER, "ConnectedNumber"),
    WORD(CONNECTEDNUMBERTYPE, "ConnectedNumberType"),
    WORD(CONNECTEDSURNAME, "ConnectedSurname"),
    WORD(CONNECTEDFIRSTNAME, "ConnectedFirstName"),
    WORD(DURATION, "Duration"),
    WORD(TARGETLOG, "TargetLog"),
    WORD(NUMBERPRESENTATION, "NumberPresentation"),
    WORD(NAMEPRESENTATION, "NamePresentation"),
    WORD(DEFLECTNUMBERPRESENTATION, "DeflectNumberPresentation"),
    WORD(DEFLECTNUMBER, "DeflectNumber"),
    WORD(DEFLECTNUMBERTYPE, "DeflectNumberType"),
    WORD(DEFLECTNAMEPRESENTATION, "DeflectNamePresentation"),
    WORD(DEFLECTNAME, "DeflectName"),
    WORD(TIMEFORMAT, "TimeFormat"),
    WORD(REASONFORMESSAGE, "ReasonForMessage"),
    WORD(CALL_LOG_ENABLED, "CallLogEnabled"),
    // Data-store request kinds and schema names
    WORD(READREQUEST, "read_request"),
    WORD(UPDATEREQUEST, "update_request"),
    WORD(WRITEREQUEST, "write_request"),
    WORD(DELETEREQUEST, "delete_request"),
    WORD(DAS_CALLLOGMISSEDCALLS, "CallLogMissedCalls"),
    WORD(DAS_CALLLOGDIALLEDCALLS, "CallLogDialledCalls"),
    WORD(DAS_CALLLOGRECEIVEDCALLS, "CallLogReceivedCalls"),
    WORD(DAS_CALLLOGFORWARDEDCALLS, "CallLogForwardedCalls"),
    WORD(DAS_CALLLOGENABLEDSTATE, "CallLogEnabledState"),
    // Begin and close tags
    WORD(REASONFORMESSAGE_XML_BEGIN, "<ReasonForMessage>"),
    WORD(REASONFORMESSAGE_XML_CLOSE, "</ReasonForMessage>"),
    WORD(METHOD_XML_BEGIN, "<Method>"),
    WORD(METHOD_XML_CLOSE, "</Method>"),
    WORD(ENTRY_XML_BEGIN, "<Entry>"),
    WORD(ENTRY_XML_CLOSE, "</Entry>"),
    WORD(LOGLIST_XML_BEGIN, "<LogList>"),
    WORD(LOGLIST_XML_CLOSE, "</LogList>"),
    WORD(ITEM_XML_BEGIN, "<Item>"),
    WORD(ITEM_XML_CLOSE, "</Item>"),
    WORD(ACTIONTYPE_XML_BEGIN, "<ActionType>"),
    WORD(ACTIONTYPE_XML_CLOSE, "</ActionType>"),
    WORD(UNIQUEIDTODELETE_XML_BEGIN, "<UniqueIdToDelete>"),
    WORD(UNIQUEIDTODELETE_XML_CLOSE, "</UniqueIdToDelete>"),
    WORD(UNIQUEID_XML_BEGIN, "<UniqueId>"),
    WORD(UNIQUEID_XML_CLOSE, "</UniqueId>"),
    WORD(ENTRYID_XML_BEGIN, "<EntryId>"),
    WORD(ENTRYID_XML_CLOSE, "</EntryId>"),
    WORD(SURNAME_XML_BEGIN, "<Surname>"),
    WORD(SURNAME_XML_CLOSE, "</Surname>"),
    WORD(FIRSTNAME_XML_BEGIN, "<Firstname>"),
    WORD(FIRSTNAME_XML_CLOSE, "</Firstname>"),
    WORD(PICTURE_XML_BEGIN, "<Picture>"),
    WORD(PICTURE_XML_CLOSE, "</Picture>"),
    WORD(JSGROUPBY_XML_BEGIN, "<JSGroupBy>"),
    WORD(JSGROUPBY_XML_CLOSE, "</JSGroupBy>"),
    WORD(NUMBER_XML_BEGIN, "<Number>"),
    WORD(NUMBER_XML_CLOSE, "</Number>"),
    WORD(NUMBERTYPE_XML_BEGIN, "<NumberType>"),
    WORD(NUMBERTYPE_XML_CLOSE, "</NumberType>"),
    WORD(RESOLVEDNUMBER_XML_BEGIN, "<ResolvedNumber>"),
    WORD(RESOLVEDNUMBER_XML_CLOSE, "</ResolvedNumber>"),
    WORD(CONNECTEDNUMBER_XML_BEGIN, "<ConnectedNumber>"),
    WORD(CONNECTEDNUMBER_XML_CLOSE, "</ConnectedNumber>"),
    WORD(CONNECTEDNUMBERPRIORITY_XML_BEGIN, "<ConnectedNumberPriority>"),
    WORD(CONNECTEDNUMBERPRIORITY_XML_CLOSE, "</ConnectedNumberPriority>"),
    WORD(CONNECTEDNUMBERTYPE_XML_BEGIN, "<ConnectedNumberType>"),
    WORD(CONNECTEDNUMBERTYPE_XML_CLOSE, "</ConnectedNumberType>"),
    WORD(CONNECTEDSURNAME_XML_BEGIN, "<ConnectedSurname>"),
    WORD(CONNECTEDSURNAME_XML_CLOSE, "</ConnectedSurname>"),
    WORD(CONNECTEDFIRSTNAME_XML_BEGIN, "<ConnectedFirstName>"),
    WORD(CONNECTEDFIRSTNAME_XML_CLOSE, "</ConnectedFirstName>"),
    WORD(TIMEDATE_XML_BEGIN, "<TimeDate>"),
    WORD(TIMEDATE_XML_CLOSE, "</TimeDate>"),
    WORD(DURATION_XML_BEGIN, "<Duration>"),
    WORD(DURATION_XML_CLOSE, "</Duration>"),
    WORD(TARGETLOG_XML_BEGIN, "<TargetLog>"),
    WORD(TARGETLOG_XML_CLOSE, "</TargetLog>"),
    WORD(NUMBERPRESENTATION_XML_BEGIN, "<NumberPresentation>"),
    WORD(NUMBERPRESENTATION_XML_CLOSE, "</NumberPresentation>"),
    WORD(NAMEPRESENTATION_XML_BEGIN, "<NamePresentation>"),
    WORD(NAMEPRESENTATION_XML_CLOSE, "</NamePresentation>"),
    WORD(TIMEFORMAT_XML_BEGIN, "<TimeFormat>"),
    WORD(TIMEFORMAT_XML_CLOSE, "</TimeFormat>"),
    WORD(VIEWED_XML_BEGIN, "<Viewed>"),
    WORD(VIEWED_XML_CLOSE, "</Viewed>"),
    WORD(DEFLECTNUMBERPRESENTATION_XML_BEGIN, "<DeflectNumberPresentation>"),
    WORD(DEFLECTNUMBERPRESENTATION_XML_CLOSE, "</DeflectNumberPresentation>"),
    WORD(DEFLECTNUMBER_XML_BEGIN, "<DeflectNumber>"),
    WORD(DEFLECTNUMBER_XML_CLOSE, "</DeflectNumber>"),
    WORD(DEFLECTNUMBERTYPE_XML_BEGIN, "<DeflectNumberType>"),
    WORD(DEFLECTNUMBERTYPE_XML_CLOSE, "</DeflectNumberType>"),
    WORD(DEFLECTNAMEPRESENTATION_XML_BEGIN, "<DeflectNamePresentation>"),
    WORD(DEFLECTNAMEPRESENTATION_XML_CLOSE, "</DeflectNamePresentation>"),
    WORD(DEFLECTNAME_XML_BEGIN, "<DeflectName>"),
    WORD(DEFLECTNAME_XML_CLOSE, "</DeflectName>"),
    WORD(HANDLE_XML_BEGIN, "<Handle>"),
    WORD(HANDLE_XML_CLOSE, "</Handle>"),
    WORD(ENABLED_XML_BEGIN, "<CallLogEnabled>"),
    WORD(ENABLED_XML_CLOSE, "</CallLogEnabled>"),
};
// clang-format on

#undef WORD

static_assert(std::size(words) == 163, "every constant has its row");

inline bool endsWith(std::string_view text, std::string_view ending) {
  return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

/// A tag without its brackets.
inline std::string_view insideTag(std::string_view tag) {
  return tag.substr(1, tag.size() - 2);
}

/// Every element name of the messages: those of the begin tags, those without constants for their
/// tags, and the empty name.
inline std::vector<std::string> const& elementNames() {
  static auto const names = [] {
    std::vector<std::string> all;
    for (auto const& word : words)
      if (endsWith(word.name, "_XML_BEGIN"))
        all.emplace_back(insideTag(word.literal));
    all.insert(all.end(), {"Schema", "Value", "Index", ""});
    return all;
  }();
  return names;
}

/// The tags that name methods.
inline std::vector<std::string> const& methodTags() {
  static auto const tags = [] {
    std::vector<std::string> all;
    for (auto const& word : words)
      if (endsWith(word.name, "_XML"))
        all.emplace_back(word.literal);
    return all;
  }();
  return tags;
}

} // namespace vocabulary

#endif
