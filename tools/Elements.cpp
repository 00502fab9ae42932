// The tables of elements and methods.
#include "Elements.h"

#include <map>
#include <type_traits>
#include <unordered_map>

#include "members/Members.h"

namespace {

using J = JournalServiceHelper;

Value valueOf(std::string const&) {
  return Value::TEXT;
}
Value valueOf(bool) {
  return Value::FLAG;
}
Value valueOf(NumberType::NT) {
  return Value::NUMBER_TYPE;
}
Value valueOf(CallLogEntryEvent::_TFormat) {
  return Value::TIME_FORMAT;
}
Value valueOf(CallLogEntryEvent::_PresentationValue) {
  return Value::PRESENTATION;
}
Value valueOf(CallLogEntryEvent::_LogTarget) {
  return Value::TARGET_LOG;
}

/// The row of a record's element. Writers leave out only empty texts.
template <class Record>
Row rowOf(std::string_view element) {
  Row row = {J::LOGLIST, Value::PART, Count::MUST};
  members::forEachField<Record>([&](auto const& member) {
    Value const value = valueOf(member.in(Record()));
    if (member.element == element)
      row = {member.element, value, value == Value::TEXT ? Count::MAY : Count::MUST};
  });
  return row;
}

template <class Record>
Record withAllTexts() {
  Record record;
  members::forEachField<Record>([&](auto const& member) {
    if constexpr (std::is_same_v<std::decay_t<decltype(member.in(record))>, std::string>)
      member.in(record) = "text";
  });
  return record;
}

struct EntryRows {
  Rows entry;
  Rows call;
};

/// The library shows its order of writing: it writes an entry of which nothing is left out.
template <class Entry>
EntryRows rowsAsWritten(void (*write)(Entry const&, std::string&, bool)) {
  using Call = members::CallOf<Entry>;
  auto entry = withAllTexts<Entry>();
  entry.callInfoList.push_back(withAllTexts<Call>());
  std::string text;
  write(entry, text, false);

  EntryRows rows;
  bool inCall = false;
  for (auto at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
    auto const name = std::string_view(text).substr(at + 1, text.find('>', at) - at - 1);
    if (name == J::ITEM)
      inCall = true;
    else if (name.front() != '/' && inCall)
      rows.call.push_back(rowOf<Call>(name));
    else if (name.front() != '/')
      rows.entry.push_back(rowOf<Entry>(name));
  }
  return rows;
}

/// The elements of one log's entries; none when the log is unknown.
EntryRows const& entryRowsOf(Log log) {
  static std::map<Log, EntryRows> const rows = {
      {Log::NONE, {}},
      {Log::MISSED, rowsAsWritten(&J::createXMLMissedCallItemBody)},
      {Log::DIALLED, rowsAsWritten(&J::createXMLDialledCallItemBody)},
      {Log::RECEIVED, rowsAsWritten(&J::createXMLReceivedCallItemBody)},
      {Log::FORWARDED, rowsAsWritten(&J::createXMLForwardedCallItemBody)}};
  return rows.at(log);
}

/// The elements outside entries. Created on first use, when the library's constants exist.
struct OuterRows {
  Row method = {J::METHOD, Value::PART, Count::MUST};
  Row schema = {J::SCHEMA, Value::PART, Count::MUST};
  Row reason = {J::REASONFORMESSAGE, Value::REASON, Count::MUST};
  Row entry = {J::ENTRY, Value::PART, Count::MANY};
  Row item = {J::ITEM, Value::PART, Count::MANY};
  Row toDelete = {J::UNIQUEIDTODELETE, Value::TEXT, Count::MAY};
  Row action = {J::ACTIONTYPE, Value::ACTION, Count::MUST};
  Row handle = {"Handle", Value::NUMBER, Count::MUST};
  Row counter = {J::VALUE, Value::NUMBER, Count::MUST};
  Row outcome = {J::VALUE, Value::OUTCOME, Count::MAY};
  Row enabled = {J::CALL_LOG_ENABLED, Value::ENABLED, Count::MAY};
  Row entryIds = {J::ENTRYID, Value::TEXT, Count::MANY};
};

OuterRows const& outerRows() {
  static OuterRows const rows;
  return rows;
}

constexpr auto NONE = Count::MAY;

Method const methodTable[] = {
    {J::GETMISSEDCALLLIST, &J::GETMISSEDCALLLIST_XML, Role::LIST, Log::MISSED, NONE},
    {J::SETMISSEDCALLLISTASVIEWED, &J::SETMISSEDCALLLISTASVIEWED_XML, Role::REQUEST, Log::MISSED,
     Count::MANY},
    {J::DELETEMISSEDCALL, &J::DELETEMISSEDCALL_XML, Role::REQUEST, Log::MISSED, Count::MUST},
    {J::DELETEMISSEDCALLLIST, &J::DELETEMISSEDCALLLIST_XML, Role::REQUEST, Log::MISSED,
     Count::MANY},
    {J::GETDIALLEDCALLLIST, &J::GETDIALLEDCALLLIST_XML, Role::LIST, Log::DIALLED, NONE},
    {J::DELETEDIALLEDCALL, &J::DELETEDIALLEDCALL_XML, Role::REQUEST, Log::DIALLED, Count::MUST},
    {J::DELETEDIALLEDCALLLIST, &J::DELETEDIALLEDCALLLIST_XML, Role::REQUEST, Log::DIALLED,
     Count::MANY},
    {J::GETLASTDIALLEDNUMBER, &J::GETLASTDIALLEDNUMBER_XML, Role::LAST_NUMBER, Log::DIALLED, NONE},
    {J::GETRECEIVEDCALLLIST, &J::GETRECEIVEDCALLLIST_XML, Role::LIST, Log::RECEIVED, NONE},
    {J::DELETERECEIVEDCALL, &J::DELETERECEIVEDCALL_XML, Role::REQUEST, Log::RECEIVED, Count::MUST},
    {J::DELETERECEIVEDCALLLIST, &J::DELETERECEIVEDCALLLIST_XML, Role::REQUEST, Log::RECEIVED,
     Count::MANY},
    {J::GETFORWARDEDCALLLIST, &J::GETFORWARDEDCALLLIST_XML, Role::LIST, Log::FORWARDED, NONE},
    {J::DELETEFORWARDEDCALL, &J::DELETEFORWARDEDCALL_XML, Role::REQUEST, Log::FORWARDED,
     Count::MUST},
    {J::DELETEFORWARDEDCALLLIST, &J::DELETEFORWARDEDCALLLIST_XML, Role::REQUEST, Log::FORWARDED,
     Count::MANY},
    {J::SUBSCRIBE, &J::SUBSCRIBE_XML, Role::REQUEST, Log::NONE, NONE},
    {J::UNSUBSCRIBE, &J::UNSUBSCRIBE_XML, Role::REQUEST, Log::NONE, NONE},
    {J::REFRESHCALLLOG, &J::REFRESHCALLLOG_XML, Role::REQUEST, Log::NONE, NONE},
    {J::MISSEDCALLSUPDATE, &J::MISSEDCALLSUPDATE_XML, Role::NOTIFICATION, Log::MISSED, NONE},
    {J::MISSEDCALLSCOUNTUPDATE, &J::MISSEDCALLSCOUNTUPDATE_XML, Role::COUNTER, Log::MISSED, NONE},
    {J::DIALLEDCALLSUPDATE, &J::DIALLEDCALLSUPDATE_XML, Role::NOTIFICATION, Log::DIALLED, NONE},
    {J::RECEIVEDCALLSUPDATE, &J::RECEIVEDCALLSUPDATE_XML, Role::NOTIFICATION, Log::RECEIVED, NONE},
    {J::FORWARDEDCALLSUPDATE, &J::FORWARDEDCALLSUPDATE_XML, Role::NOTIFICATION, Log::FORWARDED,
     NONE},
    // Sent, but getMethodFromXMLMsg does not recognise it: only its tag identifies it.
    {J::UNKNOWN_METHOD, &J::MISSEDGROUPCALLSUPDATE_XML, Role::COUNTER, Log::MISSED, NONE},
};

void append(Rows& rows, Rows const& more) {
  rows.insert(rows.end(), more.begin(), more.end());
}

Rows rowsOfMessage(MessageKind kind, Log log) {
  OuterRows const& outer = outerRows();
  Rows rows{outer.method};
  switch (kind) {
  case MessageKind::REQUEST:
    rows.push_back(outer.entryIds);
    break;
  case MessageKind::LIST_RESPONSE:
    append(rows, {outer.entry, outer.handle, outer.outcome});
    break;
  case MessageKind::NOTIFICATION:
    append(rows, entryRowsOf(log).entry);
    append(rows, {outer.toDelete, outer.action, outer.handle});
    break;
  case MessageKind::COUNTER:
    rows.push_back(outer.counter);
    break;
  case MessageKind::STORE_REQUEST:
    rows = {outer.schema};
    break;
  default:
    rows.clear();
  }
  return rows;
}

std::unordered_map<std::string_view, Row> allElements() {
  OuterRows const& outer = outerRows();
  Rows rows = {outer.method,   outer.schema, outer.reason, outer.entry,   outer.item,
               outer.toDelete, outer.action, outer.handle, outer.outcome, outer.enabled};
  for (Log const log : {Log::MISSED, Log::DIALLED, Log::RECEIVED, Log::FORWARDED}) {
    append(rows, entryRowsOf(log).entry);
    append(rows, entryRowsOf(log).call);
  }
  std::unordered_map<std::string_view, Row> elements;
  for (Row const& row : rows)
    elements.emplace(row.name, row);
  return elements;
}

} // namespace

Rows rowsOf(std::string_view part, MessageKind kind, Log log) {
  if (part.empty())
    return rowsOfMessage(kind, log);
  if (part == J::ENTRY)
    return entryRowsOf(log).entry;
  if (part == J::ITEM)
    return entryRowsOf(log).call;
  if (part == J::LOGLIST)
    return {outerRows().item};
  if (part == J::SCHEMA && kind == MessageKind::STORE_REQUEST)
    return {outerRows().reason};
  return {};
}

Row const* findElement(std::string_view name) {
  static auto const elements = allElements();
  auto const found = elements.find(name);
  return found == elements.end() ? nullptr : &found->second;
}

Method const* findMethod(JournalServiceHelper::MethodCode code) {
  for (Method const& method : methodTable)
    if (method.code == code && code != J::UNKNOWN_METHOD)
      return &method;
  return nullptr;
}

Method const* findMethod(std::string_view name) {
  for (Method const& method : methodTable)
    if (nameOf(method) == name)
      return &method;
  return nullptr;
}

std::string_view nameOf(Method const& method) {
  return std::string_view(*method.tag).substr(1, method.tag->size() - 2);
}

char const* nameOf(Log log) {
  switch (log) {
  case Log::MISSED:
    return "missed";
  case Log::DIALLED:
    return "dialled";
  case Log::RECEIVED:
    return "received";
  case Log::FORWARDED:
    return "forwarded";
  default:
    return "no";
  }
}
