/// @file
/// Builds the messages of the journal service, the call-log service of the device, from call-log
/// records, and reads them back. Every operation is a static member of the one class below. The
/// library sends and receives nothing; its callers carry the texts.
///
///     client    asks for a log, deletes entries    req...
///               reads a log                        parseXML...List
///               reads an outcome                   isNonFailureResponse
///               reads a notification               getMethodFromXMLMsg, parseXML...Item,
///                                                  getXMLValue
///               asks the data store                read..., delete..., parseXMLEnabledStateItem
///     service   recognises a request               getMethodFromXMLMsg, getAndRemoveXMLValue
///               answers with a log                 respGet...List
///               answers with an outcome            addSuccessResp, respBool, createXMLField
///               notifies its observers             obsReq...
///     both      one entry, one element, one word   createXML..., getXML..., convert...
///
/// A client asks for its missed calls and reads the answer:
///
///     std::string const request = JournalServiceHelper::reqGetMissedCallList();
///     std::string const answer = askService(request); // the caller's transport
///     std::deque<MissedCallItem> log;
///     unsigned int handle = 0;
///     JournalServiceHelper::parseXMLMissedCallList(answer, log, handle);
///     for (MissedCallItem const& entry : log)
///       show(entry.surname, entry.callInfoList.size());
///
/// The service recognises the request, answers it, and later notifies its observers:
///
///     switch (JournalServiceHelper::getMethodFromXMLMsg(request)) {
///     case JournalServiceHelper::GETMISSEDCALLLIST:
///       return JournalServiceHelper::respGetMissedCallList(log, handle);
///     case JournalServiceHelper::DELETEMISSEDCALLLIST:
///       return outcome(eraseAll(entryIdsOf(request))); // see getAndRemoveXMLValue, respBool
///     default:
///       return outcome(false);
///     }
///
///     notifyAll(JournalServiceHelper::obsReqMissedCallsUpdate(
///         entry, removedUniqueId, JournalServiceObserverIfc::ENTRY_CHANGED, handle));
///
/// **Messages** are flat text without whitespace: elements one after another, each written
/// `<Name>value</Name>` and found by searching for the exact begin and close tags. This is not an
/// XML parser, and there are no errors: each operation states what it gives for a missing or
/// damaged element. docs/wire-format.md describes every message byte by byte.
///
/// **Texts** are byte strings that hold UTF-8; nothing checks or converts it. A text passed as
/// const is never changed, except by parseLastUniqueId. An output argument must not be part of an
/// input: do not append a record to one of its own texts.
///
/// **The handle** is a number that the service chooses and sends with each log and each entry
/// notification. The library carries it and gives it no meaning.
///
/// **Threads.** Any operation may run in any number of threads at once, over the same inputs. The
/// operations are stateless, except for a size hint that only affects how much memory a list
/// response reserves. None may run before this library's static initialisation has finished.
///
/// **Exceptions.** Only allocation failures throw. A text that was being appended to then holds
/// what it held before; a log that was being read keeps the entries read so far, the last of which
/// may be incomplete.
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

/// The version of these headers.
/// @{
#define JOURNALSERVICEHELPER_VERSION_MAJOR 1
#define JOURNALSERVICEHELPER_VERSION_MINOR 0
#define JOURNALSERVICEHELPER_VERSION_PATCH 0
#define JOURNALSERVICEHELPER_VERSION "1.0.0"
/// @}

// Some platforms define TRUE and FALSE as macros. They are set aside for the class and restored
// after it. Code on such a platform must #undef them before it names JournalServiceHelper::TRUE.
#pragma push_macro("TRUE")
#pragma push_macro("FALSE")
#undef TRUE
#undef FALSE

/// Every operation on the messages of the journal service, followed by their vocabulary.
class JOURNAL_EXPORT JournalServiceHelper {
public:
  JournalServiceHelper() = delete;

  // ===============================================================================================
  // The client asks the service
  //
  // A request is the XML declaration, the Method element and one EntryId element per id. An id is
  // the entryId of a record, not its uniqueId. Ids are copied unescaped, in ascending byte order.
  // An empty id is left out; a request with no other id names no entry.

  /// @{
  /// Builds the request for a whole log; parseXML...List reads the answer.
  static std::string reqGetMissedCallList();
  static std::string reqGetDialledCallList();
  static std::string reqGetReceivedCallList();
  static std::string reqGetForwardedCallList();
  /// @}

  /// Builds the request for the last dialled entry; parseXMLGetLastDialledNumber reads the answer.
  static std::string reqGetLastDialledNumber();

  /// Builds the request to mark missed entries as viewed. No other log can be marked.
  /// @param entryIds the entries; empty for a request that names none
  static std::string reqSetMissedCallListAsViewed(std::set<std::string> const& entryIds);

  /// @{
  /// Builds the request to delete one entry.
  /// @param entryId the entry; empty for a request that names none
  static std::string reqDeleteMissedCall(std::string const& entryId);
  static std::string reqDeleteDialledCall(std::string const& entryId);
  static std::string reqDeleteReceivedCall(std::string const& entryId);
  static std::string reqDeleteForwardedCall(std::string const& entryId);
  /// @}

  /// @{
  /// Builds the request to delete several entries.
  /// @param entryIds the entries; empty for a request that names none
  static std::string reqDeleteMissedCallList(std::set<std::string> const& entryIds);
  static std::string reqDeleteDialledCallList(std::set<std::string> const& entryIds);
  static std::string reqDeleteReceivedCallList(std::set<std::string> const& entryIds);
  static std::string reqDeleteForwardedCallList(std::set<std::string> const& entryIds);
  /// @}

  /// @{
  /// Builds the request to start, or to stop, receiving notifications.
  static std::string reqSubscribe();
  static std::string reqUnsubscribe();
  /// @}

  /// Builds the request to refresh the call log.
  static std::string reqRefreshCallLog();

  // ===============================================================================================
  // The client reads an answer

  /// @{
  /// Reads a list response: every entry in order, and the handle. Nothing else in the message
  /// matters; getMethodFromXMLMsg tells an empty log from a message that is no list response.
  ///
  /// An entry is read as by parseXML...Item, into a new record. It ends at its first `</Entry>`: an
  /// entry without close tag runs on to that of the next entry, and the two are read as one. Where
  /// no `</Entry>` follows at all, the list ends.
  /// @param xml the message, up to its first NUL
  /// @param[out] items emptied first; then one record per non-empty Entry
  /// @param[out] handle the number in the first Handle element, wherever it is in the message; 0
  ///        when it is missing or not a number; read as by getXMLValue for numbers
  /// @return always true
  static bool parseXMLMissedCallList(std::string const& xml, std::deque<MissedCallItem>& items,
                                     unsigned int& handle);
  static bool parseXMLDialledCallList(std::string const& xml, std::deque<DialledCallItem>& items,
                                      unsigned int& handle);
  static bool parseXMLReceivedCallList(std::string const& xml, std::deque<ReceivedCallItem>& items,
                                       unsigned int& handle);
  static bool parseXMLForwardedCallList(std::string const& xml,
                                        std::deque<ForwardedCallItem>& items, unsigned int& handle);
  /// @}

  /// @{
  /// The same without the handle.
  /// @param xml the message, up to its first NUL
  /// @param[out] items emptied first; then one record per non-empty Entry
  /// @return always true
  static bool parseXMLMissedCallList(std::string const& xml, std::deque<MissedCallItem>& items);
  static bool parseXMLDialledCallList(std::string const& xml, std::deque<DialledCallItem>& items);
  static bool parseXMLReceivedCallList(std::string const& xml, std::deque<ReceivedCallItem>& items);
  static bool parseXMLForwardedCallList(std::string const& xml,
                                        std::deque<ForwardedCallItem>& items);
  /// @}

  /// Reads the answer to reqGetLastDialledNumber, exactly as parseXMLDialledCallItem would.
  /// @param xml the answer, up to its first NUL
  /// @param[out] item see parseXMLDialledCallItem; an answer without calls leaves its calls as they
  ///        were
  /// @return always true
  static bool parseXMLGetLastDialledNumber(std::string const& xml, DialledCallItem& item);

  /// Tells whether an outcome is no failure. For outcomes only: it searches the whole text for the
  /// word, so a list response in which somebody is called "Failure" counts as failed.
  /// @param message any text, its whole length
  /// @return true exactly when "Failure" occurs nowhere in the message; so true for an empty one
  static bool isNonFailureResponse(std::string const& message);

  /// Reads the UniqueId of the first Entry of a message, and **cuts the message off** there: a NUL
  /// over the "<" of the first `</Entry>` behind the first `<Entry>` stays after the call. Readers
  /// that stop at a NUL then see the message end there; its size() does not change. The string must
  /// not have been defined const, and no other thread may use it during the call.
  /// @param message the message, up to its first NUL; unchanged when no complete Entry is there
  /// @param[out] uniqueId the value, unescaped; unchanged when the result is false
  /// @return false when no complete Entry is there, or its UniqueId is missing or empty
  static bool parseLastUniqueId(std::string const& message, std::string& uniqueId);

  // ===============================================================================================
  // The service, or an observer, recognises a message

  /// What the Method element of a message asks or tells. The missing numbers are never returned.
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

  /// Tells which request or notification a message is. A list response has the code of its request.
  ///
  /// It searches the text from the first `<Method>` up to the first `</Method>` of the message; if
  /// `</Method>` comes first, from `<Method>` to the end of the message. Of several methods in that
  /// text, the first in the order of MethodCode decides, except that GETLASTDIALLEDNUMBER comes
  /// directly behind DELETEDIALLEDCALLLIST, and MISSEDCALLSUPDATE before MISSEDCALLSCOUNTUPDATE.
  /// @param message the message, its whole length
  /// @return the code; UNKNOWN_METHOD when `<Method>` or `</Method>` is missing or the method is
  ///         not known (that of obsReqMissedGroupCallsUpdate is not)
  static MethodCode getMethodFromXMLMsg(std::string const& message);

  // ===============================================================================================
  // The service answers
  //
  // A request for a log is answered with a list response, one for the last dialled number with the
  // body of a dialled entry, any other, and any that is refused, with an outcome:
  // "<Value>Success</Value>" or "<Value>Failure</Value>".
  //
  //     std::string outcome(bool success) {
  //       return JournalServiceHelper::createXMLField(JournalServiceHelper::VALUE,
  //                                                   JournalServiceHelper::respBool(success));
  //     }

  /// @{
  /// Builds a list response: the Method element, one Entry per item, the Handle. It has no XML
  /// declaration.
  ///
  /// It reserves the length of the longest list response that this process has built so far, of any
  /// kind, plus 4096 characters. That length never decreases, and the result is not shrunk: copy it
  /// to keep it for long.
  /// @param items the log, front first; no other thread may change it meanwhile
  /// @param handle any number; written as a signed 32-bit decimal, which the list readers undo
  static std::string respGetMissedCallList(std::deque<MissedCallItem> const& items,
                                           unsigned int handle);
  static std::string respGetDialledCallList(std::deque<DialledCallItem> const& items,
                                            unsigned int handle);
  static std::string respGetReceivedCallList(std::deque<ReceivedCallItem> const& items,
                                             unsigned int handle);
  static std::string respGetForwardedCallList(std::deque<ForwardedCallItem> const& items,
                                              unsigned int handle);
  /// @}

  /// Appends "<Value>Success</Value>", always. See respBool for a failure.
  /// @param[in,out] message keeps what it held
  /// @return always true
  static bool addSuccessResp(std::string& message);

  /// Gives the word of an outcome.
  /// @param success the outcome
  /// @return "Success" or "Failure"
  static std::string respBool(bool success);

  /// Finishes a message in place: puts the XML declaration in front and, with a schema name, the
  /// Schema element around the body. Requests, list responses and notifications need no finishing.
  /// @param[in,out] message the body; afterwards the finished message
  /// @param schemaName copied unescaped into the name attribute; empty for no Schema element
  static void addXMLHeaderFooter(std::string& message, std::string const& schemaName);

  // ===============================================================================================
  // The service notifies its observers
  //
  // There is one notification per log for a changed entry, and two for counters. Each begins with
  // the XML declaration and the Method element. An observer reads them like this:
  //
  //     which notification   getMethodFromXMLMsg(message)
  //     the changed entry    parseXMLMissedCallItem(message, item) and its siblings
  //     a removed entry      getXMLValue(message, UNIQUEIDTODELETE, text); false when there is none
  //     the kind of change   getXMLValue(message, ACTIONTYPE, number); see ActionType
  //     the handle           getXMLValue(message, "Handle", number); there is no constant HANDLE
  //     a counter            getXMLValue(message, VALUE, number)
  //
  // getMethodFromXMLMsg does not know the group counter: it gives UNKNOWN_METHOD for it, and the
  // text holds MISSEDGROUPCALLSUPDATE_XML.

  /// @{
  /// Builds the notification of a changed entry: declaration, Method, the entry's body,
  /// UniqueIdToDelete, ActionType and Handle. No Entry element surrounds the body.
  /// @param item the entry; no other thread may change it meanwhile
  /// @param uniqueIdToDelete the uniqueId of an entry that the change removed, copied unescaped;
  ///        empty when none was, which leaves the element out
  /// @param action the kind of change, written as one digit; below 0 as "0", above 9 as "9"
  /// @param handle any number; written as a signed 32-bit decimal, which getXMLValue undoes
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
  /// @}

  /// @{
  /// Builds the notification of a counter's new value: declaration, Method and Value.
  /// @param count any number; written as a signed 32-bit decimal, which getXMLValue undoes
  static std::string obsReqMissedCallsCountUpdate(unsigned int count);
  static std::string obsReqMissedGroupCallsUpdate(unsigned int count);
  /// @}

  // ===============================================================================================
  // The client asks the settings and data store
  //
  // A store request is the XML declaration and a Schema element, which names what is read or
  // deleted and holds the ReasonForMessage.

  /// Builds the request for the call-log setting; parseXMLEnabledStateItem reads the answer.
  static std::string readEnabledState();

  /// Reads the call-log setting from the store's answer. This flag alone is spelled "true": the
  /// "True" that createXMLField writes counts as disabled.
  /// @param message the answer, up to its first NUL
  /// @return true when CallLogEnabled is missing, empty or exactly "true"; false for anything else
  static bool parseXMLEnabledStateItem(std::string const& message);

  /// @{
  /// Builds the request to read a log from the store.
  static std::string readMissedCallList();
  static std::string readDialledCallList();
  static std::string readReceivedCallList();
  static std::string readForwardedCallList();
  /// @}

  /// @{
  /// Builds the request to delete a whole log in the store.
  static std::string deleteMissedCallList();
  static std::string deleteDialledCallList();
  static std::string deleteReceivedCallList();
  static std::string deleteForwardedCallList();
  /// @}

  // ===============================================================================================
  // One entry, read
  //
  // An element is missing when its begin tag, or a close tag behind it, is not in the text. Every
  // text is unescaped by ClientUtils. What is read of the names, by log:
  //
  //                 Surname, Firstname   connected names   NamePresentation
  //     missed      read                 read              read
  //     dialled     read                 read              never: NOT_AVAILABLE
  //     received    read                 not read          read
  //     forwarded   read                 not read          has none
  //
  // Connected names that are not read keep their value in the record. (A dialled NamePresentation
  // would be read up to a second `<NamePresentation>`, which no message written here holds.)
  //
  // Elements are read in a fixed order with a cursor. An element exactly at the cursor moves the
  // cursor behind it; one that is missing or further on does not. So elements in the order of
  // writing are always found, and others as long as they are behind the cursor.

  /// @{
  /// Reads one entry: its own elements, then its calls.
  /// @param xml the inside of an Entry, or a notification, up to its first NUL. Of a message with
  ///        several entries, it reads the first of each element, whichever entry holds it
  /// @param[out] item a missing text becomes empty, a missing flag false. callInfoList is replaced
  ///        when at least one call is read from the first LogList behind the cursor; otherwise **it
  ///        keeps its calls**. Pass a new record unless you want that
  /// @return always true
  static bool parseXMLMissedCallItem(std::string const& xml, MissedCallItem& item);
  static bool parseXMLDialledCallItem(std::string const& xml, DialledCallItem& item);
  static bool parseXMLReceivedCallItem(std::string const& xml, ReceivedCallItem& item);
  static bool parseXMLForwardedCallItem(std::string const& xml, ForwardedCallItem& item);
  /// @}

  /// @{
  /// The same for a C string.
  /// @param xml NUL-terminated; a null pointer reads as an empty text
  /// @param[out] item as above
  /// @return always true
  static bool parseXMLMissedCallItem(char const* xml, MissedCallItem& item);
  static bool parseXMLDialledCallItem(char const* xml, DialledCallItem& item);
  static bool parseXMLReceivedCallItem(char const* xml, ReceivedCallItem& item);
  static bool parseXMLForwardedCallItem(char const* xml, ForwardedCallItem& item);
  /// @}

  /// @{
  /// Reads the calls in the first LogList: one per non-empty Item, in their order. An Item without
  /// close tag runs on to that of the next one; where none follows, the list ends.
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
  /// @}

  /// @{
  /// Reads one call, the inside of an Item.
  /// @param xml NUL-terminated; a null pointer reads as an empty text
  /// @param[out] info a missing text becomes empty, a missing flag false, a missing enumeration its
  ///        default member. infoKey, and connected names that are not read, keep their value
  /// @return always true
  static bool getXMLMissedCallInfo(char const* xml, MissedCallItem::MissedCallInfo& info);
  static bool getXMLDialledCallInfo(char const* xml, DialledCallItem::DialledCallInfo& info);
  static bool getXMLReceivedCallInfo(char const* xml, ReceivedCallItem::ReceivedCallInfo& info);
  static bool getXMLForwardedCallInfo(char const* xml, ForwardedCallItem::ForwardedCallInfo& info);
  /// @}

  // ===============================================================================================
  // One entry, written
  //
  // A text is left out when it is empty; enumerations and flags are always written. Surname and
  // first name are escaped, and in a forwarded call the connected names. Every other text is copied
  // unescaped: markup in it becomes markup of the message. infoKey is never written.

  /// @{
  /// Appends an entry's body: its own elements, then its LogList.
  /// @param item the entry; no other thread may change it meanwhile
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
  /// @}

  /// @{
  /// Appends an entry's LogList: one Item per call, "<LogList></LogList>" when there are none.
  /// @param item the entry; no other thread may change it meanwhile
  /// @param[in,out] out keeps what it held; the list is appended
  static void createXMLMissedCallInfoList(MissedCallItem const& item, std::string& out);
  static void createXMLDialledCallInfoList(DialledCallItem const& item, std::string& out);
  static void createXMLReceivedCallInfoList(ReceivedCallItem const& item, std::string& out);
  static void createXMLForwardedCallInfoList(ForwardedCallItem const& item, std::string& out);
  /// @}

  // ===============================================================================================
  // One element, read from a whole message
  //
  // The value is the text between the first begin tag and the first close tag of the whole message,
  // each searched for from the front. There is none when the close tag is missing or comes before
  // the end of the begin tag, or when nothing is between them: false means absent, empty or out of
  // order. Positions are compared as signed 32-bit numbers.
  //
  // A missing begin tag counts as position -1. A close tag far enough on then gives true and the
  // text before it, from the offset where such a begin tag would end. Where a message may hold
  // a stray close tag, search for the begin tag first.

  /// Reads a text.
  /// @param text the message, its whole length, NULs included
  /// @param name the element's name, without brackets
  /// @param[out] value the value, unescaped by ClientUtils; unchanged when the result is false
  /// @return whether a non-empty value was found
  static bool getXMLValue(std::string const& text, std::string const& name, std::string& value);

  /// Reads a number: whitespace, a sign and digits; what follows them is ignored.
  /// @param text the message, its whole length
  /// @param name the element's name, without brackets
  /// @param[out] value 0 when the result is false or the text holds no digits. A negative number is
  ///        stored as its 32-bit two's complement; a number outside -2147483648..2147483647 counts
  ///        as the nearer of the two
  /// @return whether a non-empty value was found
  static bool getXMLValue(std::string const& text, std::string const& name, unsigned int& value);

  /// Reads a flag.
  /// @param text the message, its whole length
  /// @param name the element's name, without brackets
  /// @param[out] value true exactly for "True"; unchanged when the result is false
  /// @return whether a non-empty value was found
  static bool getXMLValue(std::string const& text, std::string const& name, bool& value);

  /// Reads a number type.
  /// @param text the message, its whole length
  /// @param name the element's name, without brackets
  /// @param[out] value NO_ICON for an unknown text; unchanged when the result is false
  /// @return whether a non-empty value was found
  static bool getXMLValue(std::string const& text, std::string const& name, NumberType::NT& value);

  /// Cuts an element out of a message, tags included. The service reads the entry ids of a request
  /// with it, from a copy of the message:
  ///
  ///     std::set<std::string> entryIdsOf(std::string message) {
  ///       using Helper = JournalServiceHelper;
  ///       std::set<std::string> ids;
  ///       std::string id;
  ///       while (message.find(Helper::ENTRYID_XML_BEGIN) != std::string::npos &&
  ///              Helper::getAndRemoveXMLValue(message, Helper::ENTRYID, id))
  ///         ids.insert(id);
  ///       return ids;
  ///     }
  ///
  /// Both conditions are needed. Without the first, a stray close tag can give true for ever;
  /// without the second, the loop never ends at an element that cannot be cut out. Such an element,
  /// empty or behind a stray close tag, blocks those behind it. Each step copies the rest of the
  /// message, so the loop takes quadratic time in the number of ids: limit the size of requests
  /// from strangers.
  /// @param[in,out] text the message; unchanged when the result is false. When the begin tag is
  ///        missing and the result is true: the whole former text, then once more what is behind
  ///        the close tag
  /// @param name the element's name, without brackets
  /// @param[out] value the raw value, not unescaped; unchanged when the result is false
  /// @return whether a non-empty value was found
  static bool getAndRemoveXMLValue(std::string& text, std::string const& name, std::string& value);

  // ===============================================================================================
  // One element, written

  /// Builds `<name>value</name>`.
  /// @param name an element's name, without brackets
  /// @param value copied unescaped
  /// @return the element; an empty text when value is empty, as empty elements are not written
  static std::string createXMLField(std::string const& name, std::string const& value);

  /// The same for a C string. Without this overload, a string literal would be written as a flag,
  /// because it converts to bool before it converts to std::string.
  /// @param name an element's name, without brackets
  /// @param value ends at its first NUL; a null pointer counts as empty
  /// @return the element; an empty text when value is empty
  static std::string createXMLField(std::string const& name, char const* value) {
    return createXMLField(name, std::string(value != nullptr ? value : ""));
  }

  /// Builds an element with a number, for 0 too. A literal needs its suffix, as in 5u: an int is
  /// ambiguous.
  /// @param name an element's name, without brackets
  /// @param value written as a signed 32-bit decimal: 2147483648 and above come out negative, the
  ///        largest value as "-1"
  static std::string createXMLField(std::string const& name, unsigned int value);

  /// Builds an element with a flag.
  /// @param name an element's name, without brackets
  /// @param value written as "True" or "False"
  static std::string createXMLField(std::string const& name, bool value);

  /// Builds one EntryId element per id, in ascending byte order.
  /// @param ids copied unescaped; an empty id adds nothing
  /// @return the elements; an empty text for an empty set
  static std::string createXMLEntryIDList(std::set<std::string> const& ids);

  /// @{
  /// Builds a begin tag `<name>` or a close tag `</name>`.
  /// @param name an element's name, without brackets; copied as it is
  static std::string createXMLBegin(std::string const& name);
  static std::string createXMLClose(std::string const& name);
  /// @}

  /// Builds "<Schema>" + name, with no close tag. No message holds this text.
  /// @param name copied unescaped
  /// @return an empty text when name is empty
  static std::string createXMLSchemaField(std::string const& name);

  // ===============================================================================================
  // One element, read at a cursor

  /// Reads the first element from a cursor on: the first begin tag, then the first close tag behind
  /// it.
  /// @param text the cursor, in a NUL-terminated text; a null pointer reads as an empty text
  /// @param begin the complete begin tag, brackets included
  /// @param close the complete close tag
  /// @param[out] value the text between the tags, unescaped by ClientUtils; empty when a tag is
  ///        missing
  /// @return the position behind the close tag when the begin tag is exactly at text; otherwise
  ///         text itself, whether the element was found further on or not at all
  static char const* getXMLValue(char const* text, std::string const& begin,
                                 std::string const& close, std::string& value);

  /// Reads a flag in the same way.
  /// @param text the cursor, in a NUL-terminated text; a null pointer reads as an empty text
  /// @param begin the complete begin tag, brackets included
  /// @param close the complete close tag
  /// @param[out] value true exactly when the raw text between the tags is "True"; false for any
  ///        other text and when a tag is missing
  /// @return as for a text
  static char const* getXMLValue(char const* text, std::string const& begin,
                                 std::string const& close, bool& value);

  // ===============================================================================================
  // Enumerations and their words

  /// @{
  /// Gives the word of a member: its own name. A value outside the members gives the default:
  /// "NO_ICON", "FORM_24", "NOT_AVAILABLE", "OUT_BUSY".
  static std::string convertNumberType(NumberType::NT type);
  static std::string convertTimeFormat(CallLogEntryEvent::_TFormat format);
  static std::string convertPresentationValue(CallLogEntryEvent::_PresentationValue presentation);
  static std::string convertTargetLog(CallLogEntryEvent::_LogTarget target);
  /// @}

  /// @{
  /// Gives the member of a word.
  /// @param text compared with the members' names byte for byte, its whole length
  /// @return the default member for any other text: NO_ICON, FORM_24, NOT_AVAILABLE, OUT_BUSY
  static NumberType::NT convertNumberType(std::string const& text);
  static CallLogEntryEvent::_TFormat convertTimeFormat(std::string const& text);
  static CallLogEntryEvent::_PresentationValue convertPresentationValue(std::string const& text);
  static CallLogEntryEvent::_LogTarget convertTargetLog(std::string const& text);
  /// @}

  // ===============================================================================================
  // The vocabulary: constants, created when the library is loaded. Case matters everywhere.
  //
  // 35 of them are for callers only; no operation uses them: the element names INDEX, ENTRY,
  // UNIQUEIDTODELETE, ACTIONTYPE, LOGLIST, ITEM and SURNAME to TIMEFORMAT (operations use the tag
  // pairs), the tag pair of REASONFORMESSAGE (operations use the name), UPDATEREQUEST, WRITEREQUEST
  // and DAS_CALLLOGENABLEDSTATE. Of these, INDEX and the last three occur in no message.

  /// @name Envelope and response words.
  /// @{
  static std::string const XMLHEADER;       ///< `<?xml version="1.0" encoding="utf-8"?>`
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

  /// @name Method tags: opening tags that are never closed, the text of a Method element.
  /// @{
  static std::string const GETMISSEDCALLLIST_XML;         ///< `<getMissedCallList>`
  static std::string const SETMISSEDCALLLISTASVIEWED_XML; ///< `<setMissedCallListAsViewed>`
  static std::string const DELETEMISSEDCALL_XML;          ///< `<deleteMissedCall>`
  static std::string const DELETEMISSEDCALLLIST_XML;      ///< `<deleteMissedCallList>`
  static std::string const GETDIALLEDCALLLIST_XML;        ///< `<getDialledCallList>`
  static std::string const DELETEDIALLEDCALL_XML;         ///< `<deleteDialledCall>`
  static std::string const DELETEDIALLEDCALLLIST_XML;     ///< `<deleteDialledCallList>`
  static std::string const GETLASTDIALLEDNUMBER_XML;      ///< `<getLastDialledNumber>`
  static std::string const GETRECEIVEDCALLLIST_XML;       ///< `<getReceivedCallList>`
  static std::string const DELETERECEIVEDCALL_XML;        ///< `<deleteReceivedCall>`
  static std::string const DELETERECEIVEDCALLLIST_XML;    ///< `<deleteReceivedCallList>`
  static std::string const GETFORWARDEDCALLLIST_XML;      ///< `<getForwardedCallList>`
  static std::string const DELETEFORWARDEDCALL_XML;       ///< `<deleteForwardedCall>`
  static std::string const DELETEFORWARDEDCALLLIST_XML;   ///< `<deleteForwardedCallList>`
  static std::string const SUBSCRIBE_XML;                 ///< `<subscribe>`
  static std::string const UNSUBSCRIBE_XML;               ///< `<unsubscribe>`
  static std::string const REFRESHCALLLOG_XML;            ///< `<refreshCallLog>`
  static std::string const MISSEDCALLSUPDATE_XML;         ///< `<missedCallsUpdate>`
  static std::string const MISSEDCALLSCOUNTUPDATE_XML;    ///< `<missedCallsCountUpdate>`
  static std::string const MISSEDGROUPCALLSUPDATE_XML;    ///< `<missedGroupCallsUpdate>`
  static std::string const DIALLEDCALLSUPDATE_XML;        ///< `<dialledCallsUpdate>`
  static std::string const RECEIVEDCALLSUPDATE_XML;       ///< `<receivedCallsUpdate>`
  static std::string const FORWARDEDCALLSUPDATE_XML;      ///< `<forwardedCallsUpdate>`
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

  /// @name Begin and close tags. There is no constant HANDLE; ENABLED goes with CALL_LOG_ENABLED.
  /// @{
  static std::string const REASONFORMESSAGE_XML_BEGIN;          ///< `<ReasonForMessage>`
  static std::string const REASONFORMESSAGE_XML_CLOSE;          ///< `</ReasonForMessage>`
  static std::string const METHOD_XML_BEGIN;                    ///< `<Method>`
  static std::string const METHOD_XML_CLOSE;                    ///< `</Method>`
  static std::string const ENTRY_XML_BEGIN;                     ///< `<Entry>`
  static std::string const ENTRY_XML_CLOSE;                     ///< `</Entry>`
  static std::string const LOGLIST_XML_BEGIN;                   ///< `<LogList>`
  static std::string const LOGLIST_XML_CLOSE;                   ///< `</LogList>`
  static std::string const ITEM_XML_BEGIN;                      ///< `<Item>`
  static std::string const ITEM_XML_CLOSE;                      ///< `</Item>`
  static std::string const ACTIONTYPE_XML_BEGIN;                ///< `<ActionType>`
  static std::string const ACTIONTYPE_XML_CLOSE;                ///< `</ActionType>`
  static std::string const UNIQUEIDTODELETE_XML_BEGIN;          ///< `<UniqueIdToDelete>`
  static std::string const UNIQUEIDTODELETE_XML_CLOSE;          ///< `</UniqueIdToDelete>`
  static std::string const UNIQUEID_XML_BEGIN;                  ///< `<UniqueId>`
  static std::string const UNIQUEID_XML_CLOSE;                  ///< `</UniqueId>`
  static std::string const ENTRYID_XML_BEGIN;                   ///< `<EntryId>`
  static std::string const ENTRYID_XML_CLOSE;                   ///< `</EntryId>`
  static std::string const SURNAME_XML_BEGIN;                   ///< `<Surname>`
  static std::string const SURNAME_XML_CLOSE;                   ///< `</Surname>`
  static std::string const FIRSTNAME_XML_BEGIN;                 ///< `<Firstname>`
  static std::string const FIRSTNAME_XML_CLOSE;                 ///< `</Firstname>`
  static std::string const PICTURE_XML_BEGIN;                   ///< `<Picture>`
  static std::string const PICTURE_XML_CLOSE;                   ///< `</Picture>`
  static std::string const JSGROUPBY_XML_BEGIN;                 ///< `<JSGroupBy>`
  static std::string const JSGROUPBY_XML_CLOSE;                 ///< `</JSGroupBy>`
  static std::string const NUMBER_XML_BEGIN;                    ///< `<Number>`
  static std::string const NUMBER_XML_CLOSE;                    ///< `</Number>`
  static std::string const NUMBERTYPE_XML_BEGIN;                ///< `<NumberType>`
  static std::string const NUMBERTYPE_XML_CLOSE;                ///< `</NumberType>`
  static std::string const RESOLVEDNUMBER_XML_BEGIN;            ///< `<ResolvedNumber>`
  static std::string const RESOLVEDNUMBER_XML_CLOSE;            ///< `</ResolvedNumber>`
  static std::string const CONNECTEDNUMBER_XML_BEGIN;           ///< `<ConnectedNumber>`
  static std::string const CONNECTEDNUMBER_XML_CLOSE;           ///< `</ConnectedNumber>`
  static std::string const CONNECTEDNUMBERPRIORITY_XML_BEGIN;   ///< `<ConnectedNumberPriority>`
  static std::string const CONNECTEDNUMBERPRIORITY_XML_CLOSE;   ///< `</ConnectedNumberPriority>`
  static std::string const CONNECTEDNUMBERTYPE_XML_BEGIN;       ///< `<ConnectedNumberType>`
  static std::string const CONNECTEDNUMBERTYPE_XML_CLOSE;       ///< `</ConnectedNumberType>`
  static std::string const CONNECTEDSURNAME_XML_BEGIN;          ///< `<ConnectedSurname>`
  static std::string const CONNECTEDSURNAME_XML_CLOSE;          ///< `</ConnectedSurname>`
  static std::string const CONNECTEDFIRSTNAME_XML_BEGIN;        ///< `<ConnectedFirstName>`
  static std::string const CONNECTEDFIRSTNAME_XML_CLOSE;        ///< `</ConnectedFirstName>`
  static std::string const TIMEDATE_XML_BEGIN;                  ///< `<TimeDate>`
  static std::string const TIMEDATE_XML_CLOSE;                  ///< `</TimeDate>`
  static std::string const DURATION_XML_BEGIN;                  ///< `<Duration>`
  static std::string const DURATION_XML_CLOSE;                  ///< `</Duration>`
  static std::string const TARGETLOG_XML_BEGIN;                 ///< `<TargetLog>`
  static std::string const TARGETLOG_XML_CLOSE;                 ///< `</TargetLog>`
  static std::string const NUMBERPRESENTATION_XML_BEGIN;        ///< `<NumberPresentation>`
  static std::string const NUMBERPRESENTATION_XML_CLOSE;        ///< `</NumberPresentation>`
  static std::string const NAMEPRESENTATION_XML_BEGIN;          ///< `<NamePresentation>`
  static std::string const NAMEPRESENTATION_XML_CLOSE;          ///< `</NamePresentation>`
  static std::string const TIMEFORMAT_XML_BEGIN;                ///< `<TimeFormat>`
  static std::string const TIMEFORMAT_XML_CLOSE;                ///< `</TimeFormat>`
  static std::string const VIEWED_XML_BEGIN;                    ///< `<Viewed>`
  static std::string const VIEWED_XML_CLOSE;                    ///< `</Viewed>`
  static std::string const DEFLECTNUMBERPRESENTATION_XML_BEGIN; ///< `<DeflectNumberPresentation>`
  static std::string const DEFLECTNUMBERPRESENTATION_XML_CLOSE; ///< `</DeflectNumberPresentation>`
  static std::string const DEFLECTNUMBER_XML_BEGIN;             ///< `<DeflectNumber>`
  static std::string const DEFLECTNUMBER_XML_CLOSE;             ///< `</DeflectNumber>`
  static std::string const DEFLECTNUMBERTYPE_XML_BEGIN;         ///< `<DeflectNumberType>`
  static std::string const DEFLECTNUMBERTYPE_XML_CLOSE;         ///< `</DeflectNumberType>`
  static std::string const DEFLECTNAMEPRESENTATION_XML_BEGIN;   ///< `<DeflectNamePresentation>`
  static std::string const DEFLECTNAMEPRESENTATION_XML_CLOSE;   ///< `</DeflectNamePresentation>`
  static std::string const DEFLECTNAME_XML_BEGIN;               ///< `<DeflectName>`
  static std::string const DEFLECTNAME_XML_CLOSE;               ///< `</DeflectName>`
  static std::string const HANDLE_XML_BEGIN;                    ///< `<Handle>`
  static std::string const HANDLE_XML_CLOSE;                    ///< `</Handle>`
  static std::string const ENABLED_XML_BEGIN;                   ///< `<CallLogEnabled>`
  static std::string const ENABLED_XML_CLOSE;                   ///< `</CallLogEnabled>`
  /// @}
};

#pragma pop_macro("FALSE")
#pragma pop_macro("TRUE")

#endif
