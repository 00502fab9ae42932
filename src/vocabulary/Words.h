// Every word of a message, spelled once. The public constants and all tags that the operations use
// are made from these, so a word cannot differ between the side that writes and the side that
// reads.
#ifndef JOURNAL_VOCABULARY_WORDS_H
#define JOURNAL_VOCABULARY_WORDS_H

#include <string_view>

namespace journal::word {

using Word = std::string_view const;

// The envelope and the words of responses.
inline constexpr Word XMLHEADER = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";
inline constexpr Word SCHEMA = "Schema";
inline constexpr Word SETTINGS_SCHEMA = "CallLogSettings";
inline constexpr Word METHOD = "Method";
inline constexpr Word ENTRY = "Entry";
inline constexpr Word VALUE = "Value";
inline constexpr Word SUCCESS = "Success";
inline constexpr Word FAILURE = "Failure";
inline constexpr Word TRUE = "True";
inline constexpr Word FALSE = "False";

// Elements that identify entries and hold lists.
inline constexpr Word INDEX = "Index";
inline constexpr Word ENTRYID = "EntryId";
inline constexpr Word UNIQUEID = "UniqueId";
inline constexpr Word UNIQUEIDTODELETE = "UniqueIdToDelete";
inline constexpr Word ACTIONTYPE = "ActionType";
inline constexpr Word LOGLIST = "LogList";
inline constexpr Word ITEM = "Item";

// Enumeration members.
inline constexpr Word PRIVATE = "PRIVATE";
inline constexpr Word MOBILE = "MOBILE";
inline constexpr Word BUSINESS1 = "BUSINESS1";
inline constexpr Word BUSINESS2 = "BUSINESS2";
inline constexpr Word NO_ICON = "NO_ICON";
inline constexpr Word IN_ANSWERED = "IN_ANSWERED";
inline constexpr Word IN_NO_ANSWER = "IN_NO_ANSWER";
inline constexpr Word IN_BUSY = "IN_BUSY";
inline constexpr Word IN_GROUP_MISSED = "IN_GROUP_MISSED";
inline constexpr Word OUT_ANSWERED = "OUT_ANSWERED";
inline constexpr Word OUT_NO_ANSWER = "OUT_NO_ANSWER";
inline constexpr Word OUT_BUSY = "OUT_BUSY";
inline constexpr Word NOT_AVAILABLE = "NOT_AVAILABLE";
inline constexpr Word ALLOWED = "ALLOWED";
inline constexpr Word NOT_ALLOWED = "NOT_ALLOWED";
inline constexpr Word FORM_24 = "FORM_24";
inline constexpr Word FORM_AM = "FORM_AM";
inline constexpr Word FORM_PM = "FORM_PM";

// Method tags: the text of a Method element, an opening tag that is never closed.
inline constexpr Word GETMISSEDCALLLIST_XML = "<getMissedCallList>";
inline constexpr Word SETMISSEDCALLLISTASVIEWED_XML = "<setMissedCallListAsViewed>";
inline constexpr Word DELETEMISSEDCALL_XML = "<deleteMissedCall>";
inline constexpr Word DELETEMISSEDCALLLIST_XML = "<deleteMissedCallList>";
inline constexpr Word GETDIALLEDCALLLIST_XML = "<getDialledCallList>";
inline constexpr Word DELETEDIALLEDCALL_XML = "<deleteDialledCall>";
inline constexpr Word DELETEDIALLEDCALLLIST_XML = "<deleteDialledCallList>";
inline constexpr Word GETLASTDIALLEDNUMBER_XML = "<getLastDialledNumber>";
inline constexpr Word GETRECEIVEDCALLLIST_XML = "<getReceivedCallList>";
inline constexpr Word DELETERECEIVEDCALL_XML = "<deleteReceivedCall>";
inline constexpr Word DELETERECEIVEDCALLLIST_XML = "<deleteReceivedCallList>";
inline constexpr Word GETFORWARDEDCALLLIST_XML = "<getForwardedCallList>";
inline constexpr Word DELETEFORWARDEDCALL_XML = "<deleteForwardedCall>";
inline constexpr Word DELETEFORWARDEDCALLLIST_XML = "<deleteForwardedCallList>";
inline constexpr Word SUBSCRIBE_XML = "<subscribe>";
inline constexpr Word UNSUBSCRIBE_XML = "<unsubscribe>";
inline constexpr Word REFRESHCALLLOG_XML = "<refreshCallLog>";
inline constexpr Word MISSEDCALLSUPDATE_XML = "<missedCallsUpdate>";
inline constexpr Word MISSEDCALLSCOUNTUPDATE_XML = "<missedCallsCountUpdate>";
inline constexpr Word MISSEDGROUPCALLSUPDATE_XML = "<missedGroupCallsUpdate>";
inline constexpr Word DIALLEDCALLSUPDATE_XML = "<dialledCallsUpdate>";
inline constexpr Word RECEIVEDCALLSUPDATE_XML = "<receivedCallsUpdate>";
inline constexpr Word FORWARDEDCALLSUPDATE_XML = "<forwardedCallsUpdate>";

// Elements that carry the fields of records and requests.
inline constexpr Word SURNAME = "Surname";
inline constexpr Word FIRSTNAME = "Firstname";
inline constexpr Word PICTURE = "Picture";
inline constexpr Word JSGROUPBY = "JSGroupBy";
inline constexpr Word VIEWED = "Viewed";
inline constexpr Word NUMBER = "Number";
inline constexpr Word NUMBERTYPE = "NumberType";
inline constexpr Word RESOLVEDNUMBER = "ResolvedNumber";
inline constexpr Word TIMEDATE = "TimeDate";
inline constexpr Word CONNECTEDNUMBERPRIORITY = "ConnectedNumberPriority";
inline constexpr Word CONNECTEDNUMBER = "ConnectedNumber";
inline constexpr Word CONNECTEDNUMBERTYPE = "ConnectedNumberType";
inline constexpr Word CONNECTEDSURNAME = "ConnectedSurname";
inline constexpr Word CONNECTEDFIRSTNAME = "ConnectedFirstName";
inline constexpr Word DURATION = "Duration";
inline constexpr Word TARGETLOG = "TargetLog";
inline constexpr Word NUMBERPRESENTATION = "NumberPresentation";
inline constexpr Word NAMEPRESENTATION = "NamePresentation";
inline constexpr Word DEFLECTNUMBERPRESENTATION = "DeflectNumberPresentation";
inline constexpr Word DEFLECTNUMBER = "DeflectNumber";
inline constexpr Word DEFLECTNUMBERTYPE = "DeflectNumberType";
inline constexpr Word DEFLECTNAMEPRESENTATION = "DeflectNamePresentation";
inline constexpr Word DEFLECTNAME = "DeflectName";
inline constexpr Word TIMEFORMAT = "TimeFormat";
inline constexpr Word REASONFORMESSAGE = "ReasonForMessage";
inline constexpr Word CALL_LOG_ENABLED = "CallLogEnabled";

// Kinds of data-store requests, and schema names.
inline constexpr Word READREQUEST = "read_request";
inline constexpr Word UPDATEREQUEST = "update_request";
inline constexpr Word WRITEREQUEST = "write_request";
inline constexpr Word DELETEREQUEST = "delete_request";
inline constexpr Word DAS_CALLLOGMISSEDCALLS = "CallLogMissedCalls";
inline constexpr Word DAS_CALLLOGDIALLEDCALLS = "CallLogDialledCalls";
inline constexpr Word DAS_CALLLOGRECEIVEDCALLS = "CallLogReceivedCalls";
inline constexpr Word DAS_CALLLOGFORWARDEDCALLS = "CallLogForwardedCalls";
inline constexpr Word DAS_CALLLOGENABLEDSTATE = "CallLogEnabledState";

// Words that have no public constant of their own.
inline constexpr Word HANDLE = "Handle";
inline constexpr Word SCHEMA_NAMED_BEGIN = "<Schema name=\"";
inline constexpr Word SCHEMA_NAMED_END = "\">";
inline constexpr Word ENABLED_TRUE = "true"; // the store's flag is in lower case, unlike all others
inline constexpr Word DIGITS = "0123456789";

} // namespace journal::word

#endif
