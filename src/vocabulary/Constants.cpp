// The 163 public constants, each made from its word when the library is loaded.
#include <string>

#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"
#include "vocabulary/Words.h"

namespace {

using namespace journal;

// Kept out of line: 163 inlined constructions would take three times the code.
[[gnu::noinline]] std::string text(std::string_view word) {
  return std::string(word);
}

} // namespace

// The envelope and the words of responses.
std::string const JournalServiceHelper::XMLHEADER = text(word::XMLHEADER);
std::string const JournalServiceHelper::SCHEMA = text(word::SCHEMA);
std::string const JournalServiceHelper::SETTINGS_SCHEMA = text(word::SETTINGS_SCHEMA);
std::string const JournalServiceHelper::METHOD = text(word::METHOD);
std::string const JournalServiceHelper::ENTRY = text(word::ENTRY);
std::string const JournalServiceHelper::VALUE = text(word::VALUE);
std::string const JournalServiceHelper::SUCCESS = text(word::SUCCESS);
std::string const JournalServiceHelper::FAILURE = text(word::FAILURE);
std::string const JournalServiceHelper::TRUE = text(word::TRUE);
std::string const JournalServiceHelper::FALSE = text(word::FALSE);

// Elements that identify entries and hold lists.
std::string const JournalServiceHelper::INDEX = text(word::INDEX);
std::string const JournalServiceHelper::ENTRYID = text(word::ENTRYID);
std::string const JournalServiceHelper::UNIQUEID = text(word::UNIQUEID);
std::string const JournalServiceHelper::UNIQUEIDTODELETE = text(word::UNIQUEIDTODELETE);
std::string const JournalServiceHelper::ACTIONTYPE = text(word::ACTIONTYPE);
std::string const JournalServiceHelper::LOGLIST = text(word::LOGLIST);
std::string const JournalServiceHelper::ITEM = text(word::ITEM);

// Enumeration members.
std::string const JournalServiceHelper::PRIVATE = text(word::PRIVATE);
std::string const JournalServiceHelper::MOBILE = text(word::MOBILE);
std::string const JournalServiceHelper::BUSINESS1 = text(word::BUSINESS1);
std::string const JournalServiceHelper::BUSINESS2 = text(word::BUSINESS2);
std::string const JournalServiceHelper::NO_ICON = text(word::NO_ICON);
std::string const JournalServiceHelper::IN_ANSWERED = text(word::IN_ANSWERED);
std::string const JournalServiceHelper::IN_NO_ANSWER = text(word::IN_NO_ANSWER);
std::string const JournalServiceHelper::IN_BUSY = text(word::IN_BUSY);
std::string const JournalServiceHelper::IN_GROUP_MISSED = text(word::IN_GROUP_MISSED);
std::string const JournalServiceHelper::OUT_ANSWERED = text(word::OUT_ANSWERED);
std::string const JournalServiceHelper::OUT_NO_ANSWER = text(word::OUT_NO_ANSWER);
std::string const JournalServiceHelper::OUT_BUSY = text(word::OUT_BUSY);
std::string const JournalServiceHelper::NOT_AVAILABLE = text(word::NOT_AVAILABLE);
std::string const JournalServiceHelper::ALLOWED = text(word::ALLOWED);
std::string const JournalServiceHelper::NOT_ALLOWED = text(word::NOT_ALLOWED);
std::string const JournalServiceHelper::FORM_24 = text(word::FORM_24);
std::string const JournalServiceHelper::FORM_AM = text(word::FORM_AM);
std::string const JournalServiceHelper::FORM_PM = text(word::FORM_PM);

// Method tags: the text of a Method element, an opening tag that is never closed.
std::string const JournalServiceHelper::GETMISSEDCALLLIST_XML = text(word::GETMISSEDCALLLIST_XML);
std::string const JournalServiceHelper::SETMISSEDCALLLISTASVIEWED_XML =
    text(word::SETMISSEDCALLLISTASVIEWED_XML);
std::string const JournalServiceHelper::DELETEMISSEDCALL_XML = text(word::DELETEMISSEDCALL_XML);
std::string const JournalServiceHelper::DELETEMISSEDCALLLIST_XML =
    text(word::DELETEMISSEDCALLLIST_XML);
std::string const JournalServiceHelper::GETDIALLEDCALLLIST_XML = text(word::GETDIALLEDCALLLIST_XML);
std::string const JournalServiceHelper::DELETEDIALLEDCALL_XML = text(word::DELETEDIALLEDCALL_XML);
std::string const JournalServiceHelper::DELETEDIALLEDCALLLIST_XML =
    text(word::DELETEDIALLEDCALLLIST_XML);
std::string const JournalServiceHelper::GETLASTDIALLEDNUMBER_XML =
    text(word::GETLASTDIALLEDNUMBER_XML);
std::string const JournalServiceHelper::GETRECEIVEDCALLLIST_XML =
    text(word::GETRECEIVEDCALLLIST_XML);
std::string const JournalServiceHelper::DELETERECEIVEDCALL_XML = text(word::DELETERECEIVEDCALL_XML);
std::string const JournalServiceHelper::DELETERECEIVEDCALLLIST_XML =
    text(word::DELETERECEIVEDCALLLIST_XML);
std::string const JournalServiceHelper::GETFORWARDEDCALLLIST_XML =
    text(word::GETFORWARDEDCALLLIST_XML);
std::string const JournalServiceHelper::DELETEFORWARDEDCALL_XML =
    text(word::DELETEFORWARDEDCALL_XML);
std::string const JournalServiceHelper::DELETEFORWARDEDCALLLIST_XML =
    text(word::DELETEFORWARDEDCALLLIST_XML);
std::string const JournalServiceHelper::SUBSCRIBE_XML = text(word::SUBSCRIBE_XML);
std::string const JournalServiceHelper::UNSUBSCRIBE_XML = text(word::UNSUBSCRIBE_XML);
std::string const JournalServiceHelper::REFRESHCALLLOG_XML = text(word::REFRESHCALLLOG_XML);
std::string const JournalServiceHelper::MISSEDCALLSUPDATE_XML = text(word::MISSEDCALLSUPDATE_XML);
std::string const JournalServiceHelper::MISSEDCALLSCOUNTUPDATE_XML =
    text(word::MISSEDCALLSCOUNTUPDATE_XML);
std::string const JournalServiceHelper::MISSEDGROUPCALLSUPDATE_XML =
    text(word::MISSEDGROUPCALLSUPDATE_XML);
std::string const JournalServiceHelper::DIALLEDCALLSUPDATE_XML = text(word::DIALLEDCALLSUPDATE_XML);
std::string const JournalServiceHelper::RECEIVEDCALLSUPDATE_XML =
    text(word::RECEIVEDCALLSUPDATE_XML);
std::string const JournalServiceHelper::FORWARDEDCALLSUPDATE_XML =
    text(word::FORWARDEDCALLSUPDATE_XML);

// Elements that carry the fields of records and requests.
std::string const JournalServiceHelper::SURNAME = text(word::SURNAME);
std::string const JournalServiceHelper::FIRSTNAME = text(word::FIRSTNAME);
std::string const JournalServiceHelper::PICTURE = text(word::PICTURE);
std::string const JournalServiceHelper::JSGROUPBY = text(word::JSGROUPBY);
std::string const JournalServiceHelper::VIEWED = text(word::VIEWED);
std::string const JournalServiceHelper::NUMBER = text(word::NUMBER);
std::string const JournalServiceHelper::NUMBERTYPE = text(word::NUMBERTYPE);
std::string const JournalServiceHelper::RESOLVEDNUMBER = text(word::RESOLVEDNUMBER);
std::string const JournalServiceHelper::TIMEDATE = text(word::TIMEDATE);
std::string const JournalServiceHelper::CONNECTEDNUMBERPRIORITY =
    text(word::CONNECTEDNUMBERPRIORITY);
std::string const JournalServiceHelper::CONNECTEDNUMBER = text(word::CONNECTEDNUMBER);
std::string const JournalServiceHelper::CONNECTEDNUMBERTYPE = text(word::CONNECTEDNUMBERTYPE);
std::string const JournalServiceHelper::CONNECTEDSURNAME = text(word::CONNECTEDSURNAME);
std::string const JournalServiceHelper::CONNECTEDFIRSTNAME = text(word::CONNECTEDFIRSTNAME);
std::string const JournalServiceHelper::DURATION = text(word::DURATION);
std::string const JournalServiceHelper::TARGETLOG = text(word::TARGETLOG);
std::string const JournalServiceHelper::NUMBERPRESENTATION = text(word::NUMBERPRESENTATION);
std::string const JournalServiceHelper::NAMEPRESENTATION = text(word::NAMEPRESENTATION);
std::string const JournalServiceHelper::DEFLECTNUMBERPRESENTATION =
    text(word::DEFLECTNUMBERPRESENTATION);
std::string const JournalServiceHelper::DEFLECTNUMBER = text(word::DEFLECTNUMBER);
std::string const JournalServiceHelper::DEFLECTNUMBERTYPE = text(word::DEFLECTNUMBERTYPE);
std::string const JournalServiceHelper::DEFLECTNAMEPRESENTATION =
    text(word::DEFLECTNAMEPRESENTATION);
std::string const JournalServiceHelper::DEFLECTNAME = text(word::DEFLECTNAME);
std::string const JournalServiceHelper::TIMEFORMAT = text(word::TIMEFORMAT);
std::string const JournalServiceHelper::REASONFORMESSAGE = text(word::REASONFORMESSAGE);
std::string const JournalServiceHelper::CALL_LOG_ENABLED = text(word::CALL_LOG_ENABLED);

// Kinds of data-store requests, and schema names.
std::string const JournalServiceHelper::READREQUEST = text(word::READREQUEST);
std::string const JournalServiceHelper::UPDATEREQUEST = text(word::UPDATEREQUEST);
std::string const JournalServiceHelper::WRITEREQUEST = text(word::WRITEREQUEST);
std::string const JournalServiceHelper::DELETEREQUEST = text(word::DELETEREQUEST);
std::string const JournalServiceHelper::DAS_CALLLOGMISSEDCALLS = text(word::DAS_CALLLOGMISSEDCALLS);
std::string const JournalServiceHelper::DAS_CALLLOGDIALLEDCALLS =
    text(word::DAS_CALLLOGDIALLEDCALLS);
std::string const JournalServiceHelper::DAS_CALLLOGRECEIVEDCALLS =
    text(word::DAS_CALLLOGRECEIVEDCALLS);
std::string const JournalServiceHelper::DAS_CALLLOGFORWARDEDCALLS =
    text(word::DAS_CALLLOGFORWARDEDCALLS);
std::string const JournalServiceHelper::DAS_CALLLOGENABLEDSTATE =
    text(word::DAS_CALLLOGENABLEDSTATE);

// Begin and close tags.
std::string const JournalServiceHelper::REASONFORMESSAGE_XML_BEGIN =
    text(element<word::REASONFORMESSAGE>.begin());
std::string const JournalServiceHelper::REASONFORMESSAGE_XML_CLOSE =
    text(element<word::REASONFORMESSAGE>.close());
std::string const JournalServiceHelper::METHOD_XML_BEGIN = text(element<word::METHOD>.begin());
std::string const JournalServiceHelper::METHOD_XML_CLOSE = text(element<word::METHOD>.close());
std::string const JournalServiceHelper::ENTRY_XML_BEGIN = text(element<word::ENTRY>.begin());
std::string const JournalServiceHelper::ENTRY_XML_CLOSE = text(element<word::ENTRY>.close());
std::string const JournalServiceHelper::LOGLIST_XML_BEGIN = text(element<word::LOGLIST>.begin());
std::string const JournalServiceHelper::LOGLIST_XML_CLOSE = text(element<word::LOGLIST>.close());
std::string const JournalServiceHelper::ITEM_XML_BEGIN = text(element<word::ITEM>.begin());
std::string const JournalServiceHelper::ITEM_XML_CLOSE = text(element<word::ITEM>.close());
std::string const JournalServiceHelper::ACTIONTYPE_XML_BEGIN =
    text(element<word::ACTIONTYPE>.begin());
std::string const JournalServiceHelper::ACTIONTYPE_XML_CLOSE =
    text(element<word::ACTIONTYPE>.close());
std::string const JournalServiceHelper::UNIQUEIDTODELETE_XML_BEGIN =
    text(element<word::UNIQUEIDTODELETE>.begin());
std::string const JournalServiceHelper::UNIQUEIDTODELETE_XML_CLOSE =
    text(element<word::UNIQUEIDTODELETE>.close());
std::string const JournalServiceHelper::UNIQUEID_XML_BEGIN = text(element<word::UNIQUEID>.begin());
std::string const JournalServiceHelper::UNIQUEID_XML_CLOSE = text(element<word::UNIQUEID>.close());
std::string const JournalServiceHelper::ENTRYID_XML_BEGIN = text(element<word::ENTRYID>.begin());
std::string const JournalServiceHelper::ENTRYID_XML_CLOSE = text(element<word::ENTRYID>.close());
std::string const JournalServiceHelper::SURNAME_XML_BEGIN = text(element<word::SURNAME>.begin());
std::string const JournalServiceHelper::SURNAME_XML_CLOSE = text(element<word::SURNAME>.close());
std::string const JournalServiceHelper::FIRSTNAME_XML_BEGIN =
    text(element<word::FIRSTNAME>.begin());
std::string const JournalServiceHelper::FIRSTNAME_XML_CLOSE =
    text(element<word::FIRSTNAME>.close());
std::string const JournalServiceHelper::PICTURE_XML_BEGIN = text(element<word::PICTURE>.begin());
std::string const JournalServiceHelper::PICTURE_XML_CLOSE = text(element<word::PICTURE>.close());
std::string const JournalServiceHelper::JSGROUPBY_XML_BEGIN =
    text(element<word::JSGROUPBY>.begin());
std::string const JournalServiceHelper::JSGROUPBY_XML_CLOSE =
    text(element<word::JSGROUPBY>.close());
std::string const JournalServiceHelper::NUMBER_XML_BEGIN = text(element<word::NUMBER>.begin());
std::string const JournalServiceHelper::NUMBER_XML_CLOSE = text(element<word::NUMBER>.close());
std::string const JournalServiceHelper::NUMBERTYPE_XML_BEGIN =
    text(element<word::NUMBERTYPE>.begin());
std::string const JournalServiceHelper::NUMBERTYPE_XML_CLOSE =
    text(element<word::NUMBERTYPE>.close());
std::string const JournalServiceHelper::RESOLVEDNUMBER_XML_BEGIN =
    text(element<word::RESOLVEDNUMBER>.begin());
std::string const JournalServiceHelper::RESOLVEDNUMBER_XML_CLOSE =
    text(element<word::RESOLVEDNUMBER>.close());
std::string const JournalServiceHelper::CONNECTEDNUMBER_XML_BEGIN =
    text(element<word::CONNECTEDNUMBER>.begin());
std::string const JournalServiceHelper::CONNECTEDNUMBER_XML_CLOSE =
    text(element<word::CONNECTEDNUMBER>.close());
std::string const JournalServiceHelper::CONNECTEDNUMBERPRIORITY_XML_BEGIN =
    text(element<word::CONNECTEDNUMBERPRIORITY>.begin());
std::string const JournalServiceHelper::CONNECTEDNUMBERPRIORITY_XML_CLOSE =
    text(element<word::CONNECTEDNUMBERPRIORITY>.close());
std::string const JournalServiceHelper::CONNECTEDNUMBERTYPE_XML_BEGIN =
    text(element<word::CONNECTEDNUMBERTYPE>.begin());
std::string const JournalServiceHelper::CONNECTEDNUMBERTYPE_XML_CLOSE =
    text(element<word::CONNECTEDNUMBERTYPE>.close());
std::string const JournalServiceHelper::CONNECTEDSURNAME_XML_BEGIN =
    text(element<word::CONNECTEDSURNAME>.begin());
std::string const JournalServiceHelper::CONNECTEDSURNAME_XML_CLOSE =
    text(element<word::CONNECTEDSURNAME>.close());
std::string const JournalServiceHelper::CONNECTEDFIRSTNAME_XML_BEGIN =
    text(element<word::CONNECTEDFIRSTNAME>.begin());
std::string const JournalServiceHelper::CONNECTEDFIRSTNAME_XML_CLOSE =
    text(element<word::CONNECTEDFIRSTNAME>.close());
std::string const JournalServiceHelper::TIMEDATE_XML_BEGIN = text(element<word::TIMEDATE>.begin());
std::string const JournalServiceHelper::TIMEDATE_XML_CLOSE = text(element<word::TIMEDATE>.close());
std::string const JournalServiceHelper::DURATION_XML_BEGIN = text(element<word::DURATION>.begin());
std::string const JournalServiceHelper::DURATION_XML_CLOSE = text(element<word::DURATION>.close());
std::string const JournalServiceHelper::TARGETLOG_XML_BEGIN =
    text(element<word::TARGETLOG>.begin());
std::string const JournalServiceHelper::TARGETLOG_XML_CLOSE =
    text(element<word::TARGETLOG>.close());
std::string const JournalServiceHelper::NUMBERPRESENTATION_XML_BEGIN =
    text(element<word::NUMBERPRESENTATION>.begin());
std::string const JournalServiceHelper::NUMBERPRESENTATION_XML_CLOSE =
    text(element<word::NUMBERPRESENTATION>.close());
std::string const JournalServiceHelper::NAMEPRESENTATION_XML_BEGIN =
    text(element<word::NAMEPRESENTATION>.begin());
std::string const JournalServiceHelper::NAMEPRESENTATION_XML_CLOSE =
    text(element<word::NAMEPRESENTATION>.close());
std::string const JournalServiceHelper::TIMEFORMAT_XML_BEGIN =
    text(element<word::TIMEFORMAT>.begin());
std::string const JournalServiceHelper::TIMEFORMAT_XML_CLOSE =
    text(element<word::TIMEFORMAT>.close());
std::string const JournalServiceHelper::VIEWED_XML_BEGIN = text(element<word::VIEWED>.begin());
std::string const JournalServiceHelper::VIEWED_XML_CLOSE = text(element<word::VIEWED>.close());
std::string const JournalServiceHelper::DEFLECTNUMBERPRESENTATION_XML_BEGIN =
    text(element<word::DEFLECTNUMBERPRESENTATION>.begin());
std::string const JournalServiceHelper::DEFLECTNUMBERPRESENTATION_XML_CLOSE =
    text(element<word::DEFLECTNUMBERPRESENTATION>.close());
std::string const JournalServiceHelper::DEFLECTNUMBER_XML_BEGIN =
    text(element<word::DEFLECTNUMBER>.begin());
std::string const JournalServiceHelper::DEFLECTNUMBER_XML_CLOSE =
    text(element<word::DEFLECTNUMBER>.close());
std::string const JournalServiceHelper::DEFLECTNUMBERTYPE_XML_BEGIN =
    text(element<word::DEFLECTNUMBERTYPE>.begin());
std::string const JournalServiceHelper::DEFLECTNUMBERTYPE_XML_CLOSE =
    text(element<word::DEFLECTNUMBERTYPE>.close());
std::string const JournalServiceHelper::DEFLECTNAMEPRESENTATION_XML_BEGIN =
    text(element<word::DEFLECTNAMEPRESENTATION>.begin());
std::string const JournalServiceHelper::DEFLECTNAMEPRESENTATION_XML_CLOSE =
    text(element<word::DEFLECTNAMEPRESENTATION>.close());
std::string const JournalServiceHelper::DEFLECTNAME_XML_BEGIN =
    text(element<word::DEFLECTNAME>.begin());
std::string const JournalServiceHelper::DEFLECTNAME_XML_CLOSE =
    text(element<word::DEFLECTNAME>.close());
std::string const JournalServiceHelper::HANDLE_XML_BEGIN = text(element<word::HANDLE>.begin());
std::string const JournalServiceHelper::HANDLE_XML_CLOSE = text(element<word::HANDLE>.close());
std::string const JournalServiceHelper::ENABLED_XML_BEGIN =
    text(element<word::CALL_LOG_ENABLED>.begin());
std::string const JournalServiceHelper::ENABLED_XML_CLOSE =
    text(element<word::CALL_LOG_ENABLED>.close());
