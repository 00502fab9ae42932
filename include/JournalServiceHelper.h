// Turns call-log records into messages of the journal service and messages back into records.
//
// Everything is a static operation of the one class below. Who needs what:
//
//   a client    builds requests                    req..., read..., delete...
//               reads the answers                  parseXML...List, isNonFailureResponse
//               tells notifications apart          getMethodFromXMLMsg
//   the service recognises requests                getMethodFromXMLMsg, getXMLValue
//               answers with a whole log           respGet...List
//               notifies its observers             obsReq...
//   both        one entry, one element, one word   createXML..., getXML..., convert...
//
// A message is flat text without whitespace: elements one after the other, each written
// <Name>value</Name>, read back by searching for the exact begin and close tags. There is no XML
// parser, and no error: a missing or damaged element gives the fallback that each operation states.
//
// Texts are byte strings holding UTF-8. The operations keep no state (but for a size hint that only
// reserves memory), never change a text passed as const (parseLastUniqueId alone does) and may be
// called from any thread at once. Nothing is thrown but what running out of memory throws. None may
// run before this library's static initialisation has finished. What an operation writes to must
// not be a part of what it reads, such as a record's own text to which the record is appended.
#ifndef JOURNALSERVICEHELPER_H
#define JOURNALSERVICEHELPER_H

#include <cstdint>
#include <deque>
#include <list>
#include <set>
#include <string>

#include "CallLogEntryEvent.h"
#include "CallLogItems.h"
#include "JournalServiceHelperExport.h"
#include "JournalServiceObserverIfc.h"
#include "NumberType.h"

// Some platforms define these two as macros. They are set aside for the class and given back after
// it; code on such a platform that names JournalServiceHelper::TRUE has to #undef them itself.
#pragma push_macro("TRUE")
#pragma push_macro("FALSE")
#undef TRUE
#undef FALSE

/// The vocabulary of the journal service's messages, and every operation on them.
class JOURNAL_EXPORT JournalServiceHelper {
public:
  JournalServiceHelper() = delete;

  // ---------------------------------------------------------------------------------------------
  // The vocabulary: 163 constants, created when the library is loaded. Case matters everywhere.

  /// @name Envelope and response words.
  /// @{
  static std::string const XMLHEADER;       ///< <?xml version="1.0" encoding="utf-8"?>
  static std::string const SCHEMA;          ///< Schema
  static std::string const SETTINGS_SCHEMA; ///< CallLogSettings
  static std::string const METHOD;          ///< Method
  static std::string const ENTRY;           ///< Entry
  static std::string const VALUE;           ///< Value
  static std::string const SUCCESS;         ///< Success
  static std::string const FAILURE;         ///< Failure
  static std::string const TRUE;            ///< True
  static std::string const FALSE;           ///< False
  /// @}

  /// @name Names of the elements that identify entries and hold lists.
  /// @{
  static std::string const INDEX;            ///< Index
  static std::string const ENTRYID;          ///< EntryId
  static std::string const UNIQUEID;         ///< UniqueId
  static std::string const UNIQUEIDTODELETE; ///< UniqueIdToDelete
  static std::string const ACTIONTYPE;       ///< ActionType
  static std::string const LOGLIST;          ///< LogList
  static std::string const ITEM;             ///< Item
  /// @}

  /// @name Texts of the enumeration members.
  /// @{
  static std::string const PRIVATE;         ///< PRIVATE
  static std::string const MOBILE;          ///< MOBILE
  static std::string const BUSINESS1;       ///< BUSINESS1
  static std::string const BUSINESS2;       ///< BUSINESS2
  static std::string const NO_ICON;         ///< NO_ICON
  static std::string const IN_ANSWERED;     ///< IN_ANSWERED
  static std::string const IN_NO_ANSWER;    ///< IN_NO_ANSWER
  static std::string const IN_BUSY;         ///< IN_BUSY
  static std::string const IN_GROUP_MISSED; ///< IN_GROUP_MISSED
  static std::string const OUT_ANSWERED;    ///< OUT_ANSWERED
  static std::string const OUT_NO_ANSWER;   ///< OUT_NO_ANSWER
  static std::string const OUT_BUSY;        ///< OUT_BUSY
  static std::string const NOT_AVAILABLE;   ///< NOT_AVAILABLE
  static std::string const ALLOWED;         ///< ALLOWED
  static std::string const NOT_ALLOWED;     ///< NOT_ALLOWED
  static std::string const FORM_24;         ///< FORM_24
  static std::string const FORM_AM;         ///< FORM_AM
  static std::string const FORM_PM;         ///< FORM_PM
  /// @}

  /// @name Method tags: complete opening tags, carried as the text of a Method element, never
  /// closed.
  /// @{
  static std::string const GETMISSEDCALLLIST_XML;         ///< <getMissedCallList>
  static std::string const SETMISSEDCALLLISTASVIEWED_XML; ///< <setMissedCallListAsViewed>
  static std::string const DELETEMISSEDCALL_XML;          ///< <deleteMissedCall>
  static std::string const DELETEMISSEDCALLLIST_XML;      ///< <deleteMissedCallList>
  static std::string const GETDIALLEDCALLLIST_XML;        ///< <getDialledCallList>
  static std::string const DELETEDIALLEDCALL_XML;         ///< <deleteDialledCall>
  static std::string const DELETEDIALLEDCALLLIST_XML;     ///< <deleteDialledCallList>
  static std::string const GETLASTDIALLEDNUMBER_XML;      ///< <getLastDialledNumber>
  static std::string const GETRECEIVEDCALLLIST_XML;       ///< <getReceivedCallList>
  static std::string const DELETERECEIVEDCALL_XML;        ///< <deleteReceivedCall>
  static std::string const DELETERECEIVEDCALLLIST_XML;    ///< <deleteReceivedCallList>
  static std::string const GETFORWARDEDCALLLIST_XML;      ///< <getForwardedCallList>
  static std::string const DELETEFORWARDEDCALL_XML;       ///< <deleteForwardedCall>
  static std::string const DELETEFORWARDEDCALLLIST_XML;   ///< <deleteForwardedCallList>
  static std::string const SUBSCRIBE_XML;                 ///< <subscribe>
  static std::string const UNSUBSCRIBE_XML;               ///< <unsubscribe>
  static std::string const REFRESHCALLLOG_XML;            ///< <refreshCallLog>
  static std::string const MISSEDCALLSUPDATE_XML;         ///< <missedCallsUpdate>
  static std::string const MISSEDCALLSCOUNTUPDATE_XML;    ///< <missedCallsCountUpdate>
  static std::string const MISSEDGROUPCALLSUPDATE_XML;    ///< <missedGroupCallsUpdate>
  static std::string const DIALLEDCALLSUPDATE_XML;        ///< <dialledCallsUpdate>
  static std::string const RECEIVEDCALLSUPDATE_XML;       ///< <receivedCallsUpdate>
  static std::string const FORWARDEDCALLSUPDATE_XML;      ///< <forwardedCallsUpdate>
  /// @}

  /// @name Names of the elements that carry the fields of records and requests.
  /// @{
  static std::string const SURNAME;                   ///< Surname
  static std::string const FIRSTNAME;                 ///< Firstname
  static std::string const PICTURE;                   ///< Picture
  static std::string const JSGROUPBY;                 ///< JSGroupBy
  static std::string const VIEWED;                    ///< Viewed
  static std::string const NUMBER;                    ///< Number
  static std::string const NUMBERTYPE;                ///< NumberType
  static std::string const RESOLVEDNUMBER;            ///< ResolvedNumber
  static std::string const TIMEDATE;                  ///< TimeDate
  static std::string const CONNECTEDNUMBERPRIORITY;   ///< ConnectedNumberPriority
  static std::string const CONNECTEDNUMBER;           ///< ConnectedNumber
  static std::string const CONNECTEDNUMBERTYPE;       ///< ConnectedNumberType
  static std::string const CONNECTEDSURNAME;          ///< ConnectedSurname
  static std::string const CONNECTEDFIRSTNAME;        ///< ConnectedFirstName
  static std::string const DURATION;                  ///< Duration
  static std::string const TARGETLOG;                 ///< TargetLog
  static std::string const NUMBERPRESENTATION;        ///< NumberPresentation
  static std::string const NAMEPRESENTATION;          ///< NamePresentation
  static std::string const DEFLECTNUMBERPRESENTATION; ///< DeflectNumberPresentation
  static std::string const DEFLECTNUMBER;             ///< DeflectNumber
  static std::string const DEFLECTNUMBERTYPE;         ///< DeflectNumberType
  static std::string const DEFLECTNAMEPRESENTATION;   ///< DeflectNamePresentation
  static std::string const DEFLECTNAME;               ///< DeflectName
  static std::string const TIMEFORMAT;                ///< TimeFormat
  static std::string const REASONFORMESSAGE;          ///< ReasonForMessage
  static std::string const CALL_LOG_ENABLED;          ///< CallLogEnabled
  /// @}

  /// @name Kinds of data-store requests, and the names of the store's schemas.
  /// @{
  static std::string const READREQUEST;               ///< read_request
  static std::string const UPDATEREQUEST;             ///< update_request
  static std::string const WRITEREQUEST;              ///< write_request
  static std::string const DELETEREQUEST;             ///< delete_request
  static std::string const DAS_CALLLOGMISSEDCALLS;    ///< CallLogMissedCalls
  static std::string const DAS_CALLLOGDIALLEDCALLS;   ///< CallLogDialledCalls
  static std::string const DAS_CALLLOGRECEIVEDCALLS;  ///< CallLogReceivedCalls
  static std::string const DAS_CALLLOGFORWARDEDCALLS; ///< CallLogForwardedCalls
  static std::string const DAS_CALLLOGENABLEDSTATE;   ///< CallLogEnabledState
  /// @}

  /// @name Begin and close tags. HANDLE has no element name constant; ENABLED goes with
  /// CALL_LOG_ENABLED.
  /// @{
  static std::string const REASONFORMESSAGE_XML_BEGIN;          ///< <ReasonForMessage>
  static std::string const REASONFORMESSAGE_XML_CLOSE;          ///< </ReasonForMessage>
  static std::string const METHOD_XML_BEGIN;                    ///< <Method>
  static std::string const METHOD_XML_CLOSE;                    ///< </Method>
  static std::string const ENTRY_XML_BEGIN;                     ///< <Entry>
  static std::string const ENTRY_XML_CLOSE;                     ///< </Entry>
  static std::string const LOGLIST_XML_BEGIN;                   ///< <LogList>
  static std::string const LOGLIST_XML_CLOSE;                   ///< </LogList>
  static std::string const ITEM_XML_BEGIN;                      ///< <Item>
  static std::string const ITEM_XML_CLOSE;                      ///< </Item>
  static std::string const ACTIONTYPE_XML_BEGIN;                ///< <ActionType>
  static std::string const ACTIONTYPE_XML_CLOSE;                ///< </ActionType>
  static std::string const UNIQUEIDTODELETE_XML_BEGIN;          ///< <UniqueIdToDelete>
  static std::string const UNIQUEIDTODELETE_XML_CLOSE;          ///< </UniqueIdToDelete>
  static std::string const UNIQUEID_XML_BEGIN;                  ///< <UniqueId>
  static std::string const UNIQUEID_XML_CLOSE;                  ///< </UniqueId>
  static std::string const ENTRYID_XML_BEGIN;                   ///< <EntryId>
  static std::string const ENTRYID_XML_CLOSE;                   ///< </EntryId>
  static std::string const SURNAME_XML_BEGIN;                   ///< <Surname>
  static std::string const SURNAME_XML_CLOSE;                   ///< </Surname>
  static std::string const FIRSTNAME_XML_BEGIN;                 ///< <Firstname>
  static std::string const FIRSTNAME_XML_CLOSE;                 ///< </Firstname>
  static std::string const PICTURE_XML_BEGIN;                   ///< <Picture>
  static std::string const PICTURE_XML_CLOSE;                   ///< </Picture>
  static std::string const JSGROUPBY_XML_BEGIN;                 ///< <JSGroupBy>
  static std::string const JSGROUPBY_XML_CLOSE;                 ///< </JSGroupBy>
  static std::string const NUMBER_XML_BEGIN;                    ///< <Number>
  static std::string const NUMBER_XML_CLOSE;                    ///< </Number>
  static std::string const NUMBERTYPE_XML_BEGIN;                ///< <NumberType>
  static std::string const NUMBERTYPE_XML_CLOSE;                ///< </NumberType>
  static std::string const RESOLVEDNUMBER_XML_BEGIN;            ///< <ResolvedNumber>
  static std::string const RESOLVEDNUMBER_XML_CLOSE;            ///< </ResolvedNumber>
  static std::string const CONNECTEDNUMBER_XML_BEGIN;           ///< <ConnectedNumber>
  static std::string const CONNECTEDNUMBER_XML_CLOSE;           ///< </ConnectedNumber>
  static std::string const CONNECTEDNUMBERPRIORITY_XML_BEGIN;   ///< <ConnectedNumberPriority>
  static std::string const CONNECTEDNUMBERPRIORITY_XML_CLOSE;   ///< </ConnectedNumberPriority>
  static std::string const CONNECTEDNUMBERTYPE_XML_BEGIN;       ///< <ConnectedNumberType>
  static std::string const CONNECTEDNUMBERTYPE_XML_CLOSE;       ///< </ConnectedNumberType>
  static std::string const CONNECTEDSURNAME_XML_BEGIN;          ///< <ConnectedSurname>
  static std::string const CONNECTEDSURNAME_XML_CLOSE;          ///< </ConnectedSurname>
  static std::string const CONNECTEDFIRSTNAME_XML_BEGIN;        ///< <ConnectedFirstName>
  static std::string const CONNECTEDFIRSTNAME_XML_CLOSE;        ///< </ConnectedFirstName>
  static std::string const TIMEDATE_XML_BEGIN;                  ///< <TimeDate>
  static std::string const TIMEDATE_XML_CLOSE;                  ///< </TimeDate>
  static std::string const DURATION_XML_BEGIN;                  ///< <Duration>
  static std::string const DURATION_XML_CLOSE;                  ///< </Duration>
  static std::string const TARGETLOG_XML_BEGIN;                 ///< <TargetLog>
  static std::string const TARGETLOG_XML_CLOSE;                 ///< </TargetLog>
  static std::string const NUMBERPRESENTATION_XML_BEGIN;        ///< <NumberPresentation>
  static std::string const NUMBERPRESENTATION_XML_CLOSE;        ///< </NumberPresentation>
  static std::string const NAMEPRESENTATION_XML_BEGIN;          ///< <NamePresentation>
  static std::string const NAMEPRESENTATION_XML_CLOSE;          ///< </NamePresentation>
  static std::string const TIMEFORMAT_XML_BEGIN;                ///< <TimeFormat>
  static std::string const TIMEFORMAT_XML_CLOSE;                ///< </TimeFormat>
  static std::string const VIEWED_XML_BEGIN;                    ///< <Viewed>
  static std::string const VIEWED_XML_CLOSE;                    ///< </Viewed>
  static std::string const DEFLECTNUMBERPRESENTATION_XML_BEGIN; ///< <DeflectNumberPresentation>
  static std::string const DEFLECTNUMBERPRESENTATION_XML_CLOSE; ///< </DeflectNumberPresentation>
  static std::string const DEFLECTNUMBER_XML_BEGIN;             ///< <DeflectNumber>
  static std::string const DEFLECTNUMBER_XML_CLOSE;             ///< </DeflectNumber>
  static std::string const DEFLECTNUMBERTYPE_XML_BEGIN;         ///< <DeflectNumberType>
  static std::string const DEFLECTNUMBERTYPE_XML_CLOSE;         ///< </DeflectNumberType>
  static std::string const DEFLECTNAMEPRESENTATION_XML_BEGIN;   ///< <DeflectNamePresentation>
  static std::string const DEFLECTNAMEPRESENTATION_XML_CLOSE;   ///< </DeflectNamePresentation>
  static std::string const DEFLECTNAME_XML_BEGIN;               ///< <DeflectName>
  static std::string const DEFLECTNAME_XML_CLOSE;               ///< </DeflectName>
  static std::string const HANDLE_XML_BEGIN;                    ///< <Handle>
  static std::string const HANDLE_XML_CLOSE;                    ///< </Handle>
  static std::string const ENABLED_XML_BEGIN;                   ///< <CallLogEnabled>
  static std::string const ENABLED_XML_CLOSE;                   ///< </CallLogEnabled>
  /// @}

  // ---------------------------------------------------------------------------------------------
  // Single elements, written

  /// @param name an element's name, without brackets
  /// @return "<" + name + ">"
  static std::string createXMLBegin(std::string const& name);

  /// @param name an element's name, without brackets
  /// @return "</" + name + ">"
  static std::string createXMLClose(std::string const& name);

  /// Builds <name>value</name>.
  /// @param name an element's name, without brackets
  /// @param value copied as it is, never escaped
  /// @return the element; an empty text when value is empty, for an empty element is not written
  static std::string createXMLField(std::string const& name, std::string const& value);

  /// The same for a literal or C string, which would otherwise convert to the flag overload.
  /// @param value ends at its first NUL; a null pointer counts as empty
  static std::string createXMLField(std::string const& name, char const* value) {
    return createXMLField(name, std::string(value != nullptr ? value : ""));
  }

  /// Builds <name>value</name>, for 0 too.
  /// @param name an element's name, without brackets
  /// @param value written as a signed 32-bit decimal: 2147483648 and above come out negative, the
  ///        largest value as "-1"
  static std::string createXMLField(std::string const& name, unsigned int value);

  /// Builds <name>True</name> or <name>False</name>.
  /// @param name an element's name, without brackets
  static std::string createXMLField(std::string const& name, bool value);

  /// Builds "<Schema>" + name, with no close tag.
  /// @param name copied as it is
  /// @return an empty text when name is empty
  static std::string createXMLSchemaField(std::string const& name);

  /// Builds one EntryId element per id, in the set's ascending byte order.
  /// @param ids copied as they are, never escaped; an empty id adds nothing
  /// @return the elements; an empty text for an empty set
  static std::string createXMLEntryIDList(std::set<std::string> const& ids);

  // ---------------------------------------------------------------------------------------------
  // Single elements, read at a cursor

  /// Reads the first element from a cursor on: the first begin tag, then the first close tag behind
  /// it.
  /// @param text the cursor, in a NUL-terminated text; a null pointer reads as an empty text
  /// @param begin the complete begin tag, brackets included
  /// @param close the complete close tag
  /// @param[out] value the text between the tags, unescaped by ClientUtils; empty when a tag is
  ///        missing
  /// @return the position behind the close tag when the begin tag stands exactly at text;
  ///         otherwise text itself, whether the element was found further on or not at all
  static char const* getXMLValue(char const* text, std::string const& begin,
                                 std::string const& close, std::string& value);

  /// Reads a flag in the same way.
  /// @param[out] value true exactly when the raw text between the tags is "True"; false for any
  ///        other text and when a tag is missing
  /// @return as for a text
  static char const* getXMLValue(char const* text, std::string const& begin,
                                 std::string const& close, bool& value);

  // ---------------------------------------------------------------------------------------------
  // Single elements, read from a whole message
  //
  // The first begin tag and the first close tag of the whole message are taken, wherever each of
  // them stands; the value lies between them when the begin tag ends before the close tag starts,
  // the positions compared as signed 32-bit numbers. A missing begin tag counts as standing at -1:
  // when a close tag stands far enough behind, the text up to it is delivered from the offset where
  // such a begin tag would end. Callers take false as "absent or empty".

  /// Reads a text.
  /// @param text the message, its whole length, NULs included
  /// @param name the element's name, without brackets
  /// @param[out] value the value, unescaped by ClientUtils; untouched when the result is false
  /// @return whether a non-empty value was found
  static bool getXMLValue(std::string const& text, std::string const& name, std::string& value);

  /// Reads a number type; an unknown text gives NO_ICON.
  /// @param[out] value untouched when the result is false
  static bool getXMLValue(std::string const& text, std::string const& name, NumberType::NT& value);

  /// Reads a flag: true exactly for "True".
  /// @param[out] value untouched when the result is false
  static bool getXMLValue(std::string const& text, std::string const& name, bool& value);

  /// Reads a number: whitespace, a sign and digits; what follows is ignored.
  /// @param[out] value 0 when the result is false or the text holds no digits; a negative number is
  ///        stored as its 32-bit two's complement; a number outside -2147483648..2147483647 counts
  ///        as the nearer of the two
  static bool getXMLValue(std::string const& text, std::string const& name, unsigned int& value);

  /// Cuts an element out of a message, tags included. To cut out one after the other, go on while
  /// the text holds the begin tag: without one the result may be true for ever, see text.
  /// @param[in,out] text the message; untouched when the result is false. With the begin tag
  ///        missing and a value delivered all the same, the whole former text, followed once more
  ///        by what stands behind the close tag
  /// @param name the element's name, without brackets
  /// @param[out] value the raw value, not unescaped; untouched when the result is false
  /// @return whether a non-empty value was found
  static bool getAndRemoveXMLValue(std::string& text, std::string const& name, std::string& value);

  // ---------------------------------------------------------------------------------------------
  // Enumerations and response words
  //
  // A value outside an enumeration's members is written as its default member. A text is a
  // member's only when it equals that member's name byte for byte; any other is read as the
  // default member.

  static std::string convertNumberType(NumberType::NT type); ///< default "NO_ICON"
  static NumberType::NT convertNumberType(std::string const& text);

  static std::string convertTimeFormat(CallLogEntryEvent::_TFormat format); ///< default "FORM_24"
  static CallLogEntryEvent::_TFormat convertTimeFormat(std::string const& text);

  /// default "NOT_AVAILABLE"
  static std::string convertPresentationValue(CallLogEntryEvent::_PresentationValue presentation);
  static CallLogEntryEvent::_PresentationValue convertPresentationValue(std::string const& text);

  static std::string convertTargetLog(CallLogEntryEvent::_LogTarget target); ///< default "OUT_BUSY"
  static CallLogEntryEvent::_LogTarget convertTargetLog(std::string const& text);

  /// @return "Success" or "Failure"
  static std::string respBool(bool success);

  /// @param message any text, its whole length
  /// @return true exactly when "Failure" occurs nowhere in the message, not even inside a name
  static bool isNonFailureResponse(std::string const& message);

  // ---------------------------------------------------------------------------------------------
  // Envelope and recognition

  /// What a message's Method element asks or tells; the gaps in the numbering are never returned.
  enum MethodCode : std::uint32_t {
    GETMISSEDCALLLIST = 1,
    SETMISSEDCALLLISTASVIEWED = 3,
    DELETEMISSEDCALL = 5,
    DELETEMISSEDCALLLIST = 6,
    GETDIALLEDCALLLIST = 8,
    DELETEDIALLEDCALL = 9,
    DELETEDIALLEDCALLLIST = 10,
    GETRECEIVEDCALLLIST = 11,
    DELETERECEIVEDCALL = 12,
    DELETERECEIVEDCALLLIST = 13,
    GETFORWARDEDCALLLIST = 14,
    DELETEFORWARDEDCALL = 15,
    DELETEFORWARDEDCALLLIST = 16,
    GETLASTDIALLEDNUMBER = 17,
    SUBSCRIBE = 18,
    UNSUBSCRIBE = 19,
    REFRESHCALLLOG = 20,
    MISSEDCALLSCOUNTUPDATE = 21,
    MISSEDCALLSUPDATE = 22,
    DIALLEDCALLSUPDATE = 24,
    RECEIVEDCALLSUPDATE = 25,
    FORWARDEDCALLSUPDATE = 26,
    UNKNOWN_METHOD = 27 ///< no Method element, or none of these methods in it
  };

  /// Finishes a message in place: the XML declaration in front and, with a schema name, the Schema
  /// element around the body.
  /// @param[in,out] message the body; the finished message afterwards
  /// @param schemaName copied as it is into the name attribute; empty for no Schema element
  static void addXMLHeaderFooter(std::string& message, std::string const& schemaName);

  /// Appends "<Value>Success</Value>".
  /// @return always true
  static bool addSuccessResp(std::string& message);

  /// Tells which method a request or notification carries. Searched is the text from the first
  /// "<Method>" up to the first "</Method>", or to the end of the message when that stands earlier.
  /// When several methods stand there, the order of the search decides: that of the members above,
  /// but with GETLASTDIALLEDNUMBER right after DELETEDIALLEDCALLLIST and MISSEDCALLSUPDATE before
  /// MISSEDCALLSCOUNTUPDATE.
  /// @param message the message, its whole length
  /// @return the code; UNKNOWN_METHOD when either Method tag is missing or the method is not known,
  ///         as the missed group calls update is not
  static MethodCode getMethodFromXMLMsg(std::string const& message);

  /// Reads the UniqueId of the first Entry.
  ///
  /// Writes into the message: a NUL over the "<" of the first "</Entry>" behind the first
  /// "<Entry>", which stays after the call: read as a NUL-terminated text, the message then ends
  /// there; its length is unchanged. The string itself must not be defined const, and no other
  /// thread may use it during the call.
  /// @param message the message, up to its first NUL
  /// @param[out] uniqueId the value, unescaped; untouched when the result is false
  /// @return false when no complete Entry is there, or its UniqueId is missing or empty
  static bool parseLastUniqueId(std::string const& message, std::string& uniqueId);

  /// Reads the call-log setting from the store's answer.
  /// @param message the answer, up to its first NUL
  /// @return true when CallLogEnabled is missing, empty or exactly "true"; false for anything else,
  ///         "True" included
  static bool parseXMLEnabledStateItem(std::string const& message);

  // ---------------------------------------------------------------------------------------------
  // One entry, written
  //
  // Text elements are left out when empty; enumerations and flags are always written. The party's
  // surname and first name are escaped; every other text is copied as it is, but for the connected
  // names of a forwarded call, which are escaped too. infoKey is never written.

  /// Appends an entry's body: its own elements, then its LogList.
  /// @param item the entry; must not be changed by another thread meanwhile
  /// @param[in,out] out keeps what it held; the body is appended
  /// @param uniqueIdOnly true for the UniqueId element alone (nothing when it is empty)
  static void createXMLMissedCallItemBody(MissedCallItem const& item, std::string& out,
                                          bool uniqueIdOnly);
  static void createXMLDialledCallItemBody(DialledCallItem const& item, std::string& out,
                                           bool uniqueIdOnly);
  static void createXMLReceivedCallItemBody(ReceivedCallItem const& item, std::string& out,
                                            bool uniqueIdOnly);
  static void createXMLForwardedCallItemBody(ForwardedCallItem const& item, std::string& out,
                                             bool uniqueIdOnly);

  /// Appends an entry's LogList: one Item per call, "<LogList></LogList>" when there is none.
  /// @param[in,out] out keeps what it held; the list is appended
  static void createXMLMissedCallInfoList(MissedCallItem const& item, std::string& out);
  static void createXMLDialledCallInfoList(DialledCallItem const& item, std::string& out);
  static void createXMLReceivedCallInfoList(ReceivedCallItem const& item, std::string& out);
  static void createXMLForwardedCallInfoList(ForwardedCallItem const& item, std::string& out);

  // ---------------------------------------------------------------------------------------------
  // One entry, read
  //
  // Elements are read in a fixed order with a cursor: an element that starts exactly at the cursor
  // moves the cursor behind it, one that is missing or starts further on leaves it. So elements in
  // the order in which they are written are always found, and others as long as they stand behind
  // the cursor. Every text passes through ClientUtils::unescapeXMLString.
  //
  // Irregular, and to stay so: a received or forwarded call's connected names are passed over and
  // their fields left alone; a dialled call's NamePresentation counts only when a second
  // "<NamePresentation>" follows the first, and is NOT_AVAILABLE in all messages written here.

  /// Reads one call's elements, the inside of an Item.
  /// @param xml NUL-terminated; a null pointer reads as an empty text
  /// @param[out] info every field that is read is set: a missing text to empty, a missing flag to
  ///        false, a missing enumeration to its default; infoKey is left alone
  /// @return always true
  static bool getXMLMissedCallInfo(char const* xml, MissedCallItem::MissedCallInfo& info);
  static bool getXMLDialledCallInfo(char const* xml, DialledCallItem::DialledCallInfo& info);
  static bool getXMLReceivedCallInfo(char const* xml, ReceivedCallItem::ReceivedCallInfo& info);
  static bool getXMLForwardedCallInfo(char const* xml, ForwardedCallItem::ForwardedCallInfo& info);

  /// Reads the calls in the first LogList: one per non-empty, closed Item, in their order.
  /// @param xml NUL-terminated; a null pointer reads as an empty text
  /// @param[out] list emptied first
  /// @return whether list holds any call; false when the LogList is missing, unclosed or empty
  static bool getXMLMissedCallInfoList(char const* xml,
                                       std::list<MissedCallItem::MissedCallInfo>& list);
  static bool getXMLDialledCallInfoList(char const* xml,
                                        std::list<DialledCallItem::DialledCallInfo>& list);
  static bool getXMLReceivedCallInfoList(char const* xml,
                                         std::list<ReceivedCallItem::ReceivedCallInfo>& list);
  static bool getXMLForwardedCallInfoList(char const* xml,
                                          std::list<ForwardedCallItem::ForwardedCallInfo>& list);

  /// Reads one entry's elements and its LogList, the inside of an Entry. Given a whole message, it
  /// reads the first of each element, whichever entry that stands in.
  /// @param xml NUL-terminated; a null pointer reads as an empty text
  /// @param[out] item texts and flags are set as for a call; callInfoList is replaced when the
  ///        LogList holds any call, otherwise left as it was
  /// @return always true
  static bool parseXMLMissedCallItem(char const* xml, MissedCallItem& item);
  static bool parseXMLDialledCallItem(char const* xml, DialledCallItem& item);
  static bool parseXMLReceivedCallItem(char const* xml, ReceivedCallItem& item);
  static bool parseXMLForwardedCallItem(char const* xml, ForwardedCallItem& item);

  /// The same for a std::string, read up to its first NUL.
  static bool parseXMLMissedCallItem(std::string const& xml, MissedCallItem& item);
  static bool parseXMLDialledCallItem(std::string const& xml, DialledCallItem& item);
  static bool parseXMLReceivedCallItem(std::string const& xml, ReceivedCallItem& item);
  static bool parseXMLForwardedCallItem(std::string const& xml, ForwardedCallItem& item);

  /// Reads the answer to reqGetLastDialledNumber; the same as parseXMLDialledCallItem.
  static bool parseXMLGetLastDialledNumber(std::string const& xml, DialledCallItem& item);

  // ---------------------------------------------------------------------------------------------
  // A whole log, read

  /// Reads every entry of a list response, in order. Nothing outside the Entry elements matters.
  /// @param xml the message, up to its first NUL
  /// @param[out] items emptied first; one per non-empty Entry. An Entry without close tag ends the
  ///        list, those before it are kept. Where memory ran out, the last one may be incomplete
  /// @return always true
  static bool parseXMLMissedCallList(std::string const& xml, std::deque<MissedCallItem>& items);
  static bool parseXMLDialledCallList(std::string const& xml, std::deque<DialledCallItem>& items);
  static bool parseXMLReceivedCallList(std::string const& xml, std::deque<ReceivedCallItem>& items);
  static bool parseXMLForwardedCallList(std::string const& xml,
                                        std::deque<ForwardedCallItem>& items);

  /// Reads the entries and the handle.
  /// @param[out] handle the number in the first Handle element, wherever it stands; 0 when it is
  ///        missing or not a number. Read as by getXMLValue for numbers
  static bool parseXMLMissedCallList(std::string const& xml, std::deque<MissedCallItem>& items,
                                     unsigned int& handle);
  static bool parseXMLDialledCallList(std::string const& xml, std::deque<DialledCallItem>& items,
                                      unsigned int& handle);
  static bool parseXMLReceivedCallList(std::string const& xml, std::deque<ReceivedCallItem>& items,
                                       unsigned int& handle);
  static bool parseXMLForwardedCallList(std::string const& xml,
                                        std::deque<ForwardedCallItem>& items, unsigned int& handle);

  // ---------------------------------------------------------------------------------------------
  // Requests to the journal service
  //
  // Each is the XML declaration, the Method element and, for requests about entries, one EntryId
  // element per id, in ascending byte order. Ids are copied as they are; an empty id is left out.

  static std::string reqGetMissedCallList();
  static std::string reqSetMissedCallListAsViewed(std::set<std::string> const& entryIds);
  static std::string reqDeleteMissedCall(std::string const& entryId);
  static std::string reqDeleteMissedCallList(std::set<std::string> const& entryIds);

  static std::string reqGetDialledCallList();
  static std::string reqDeleteDialledCall(std::string const& entryId);
  static std::string reqDeleteDialledCallList(std::set<std::string> const& entryIds);
  static std::string reqGetLastDialledNumber();

  static std::string reqGetReceivedCallList();
  static std::string reqDeleteReceivedCall(std::string const& entryId);
  static std::string reqDeleteReceivedCallList(std::set<std::string> const& entryIds);

  static std::string reqGetForwardedCallList();
  static std::string reqDeleteForwardedCall(std::string const& entryId);
  static std::string reqDeleteForwardedCallList(std::set<std::string> const& entryIds);

  static std::string reqSubscribe();
  static std::string reqUnsubscribe();
  static std::string reqRefreshCallLog();

  // ---------------------------------------------------------------------------------------------
  // Requests to the settings and data store
  //
  // Each is the XML declaration and a Schema element that names what is read or deleted and holds
  // the ReasonForMessage.

  static std::string readEnabledState(); ///< see parseXMLEnabledStateItem for the answer

  static std::string readMissedCallList();
  static std::string deleteMissedCallList();
  static std::string readDialledCallList();
  static std::string deleteDialledCallList();
  static std::string readReceivedCallList();
  static std::string deleteReceivedCallList();
  static std::string readForwardedCallList();
  static std::string deleteForwardedCallList();

  // ---------------------------------------------------------------------------------------------
  // The service's answers

  /// Builds the answer to a list request: the Method element, one Entry per item, the Handle. No
  /// XML declaration stands in front. Memory is reserved for the longest answer so far and 4096
  /// characters more.
  /// @param items the log, front first
  /// @param handle carried to the client; written as a signed 32-bit decimal
  static std::string respGetMissedCallList(std::deque<MissedCallItem> const& items,
                                           unsigned int handle);
  static std::string respGetDialledCallList(std::deque<DialledCallItem> const& items,
                                            unsigned int handle);
  static std::string respGetReceivedCallList(std::deque<ReceivedCallItem> const& items,
                                             unsigned int handle);
  static std::string respGetForwardedCallList(std::deque<ForwardedCallItem> const& items,
                                              unsigned int handle);

  // ---------------------------------------------------------------------------------------------
  // The service's notifications

  /// Builds the notification of a changed entry: the XML declaration, the Method element, the
  /// entry's body, UniqueIdToDelete, ActionType and Handle, with nothing around them.
  /// @param item the entry concerned
  /// @param uniqueIdToDelete the uniqueId of an entry that the change removed, copied as it is;
  ///        empty when none was, which leaves the element out
  /// @param action the kind of change, one digit; below 0 written as "0", above 9 as "9"
  /// @param handle carried to the client; written as a signed 32-bit decimal
  static std::string obsReqMissedCallsUpdate(MissedCallItem const& item,
                                             std::string uniqueIdToDelete,
                                             JournalServiceObserverIfc::ActionType action,
                                             unsigned int handle);
  static std::string obsReqDialledCallsUpdate(DialledCallItem const& item,
                                              std::string uniqueIdToDelete,
                                              JournalServiceObserverIfc::ActionType action,
                                              unsigned int handle);
  static std::string obsReqReceivedCallsUpdate(ReceivedCallItem const& item,
                                               std::string uniqueIdToDelete,
                                               JournalServiceObserverIfc::ActionType action,
                                               unsigned int handle);
  static std::string obsReqForwardedCallsUpdate(ForwardedCallItem const& item,
                                                std::string uniqueIdToDelete,
                                                JournalServiceObserverIfc::ActionType action,
                                                unsigned int handle);

  /// Builds the notification of a counter's new value.
  /// @param count written as a signed 32-bit decimal
  static std::string obsReqMissedCallsCountUpdate(unsigned int count);
  /// The same for group calls. getMethodFromXMLMsg does not recognise it.
  static std::string obsReqMissedGroupCallsUpdate(unsigned int count);
};

#pragma pop_macro("FALSE")
#pragma pop_macro("TRUE")

#endif
