// The tables of elements and methods.
#include "Elements.h"

#include <unordered_map>

namespace {

using J = JournalServiceHelper;

std::string const handleName = "Handle";

constexpr unsigned missed = static_cast<unsigned>(Log::MISSED);
constexpr unsigned dialled = static_cast<unsigned>(Log::DIALLED);
constexpr unsigned received = static_cast<unsigned>(Log::RECEIVED);
constexpr unsigned forwarded = static_cast<unsigned>(Log::FORWARDED);
constexpr unsigned all = missed | dialled | received | forwarded;

Row const entryTable[] = {
    {&J::UNIQUEID, Value::TEXT, Count::MAY, all},
    {&J::ENTRYID, Value::TEXT, Count::MAY, all},
    {&J::SURNAME, Value::TEXT, Count::MAY, all},
    {&J::FIRSTNAME, Value::TEXT, Count::MAY, all},
    {&J::PICTURE, Value::TEXT, Count::MAY, all},
    {&J::JSGROUPBY, Value::TEXT, Count::MAY, dialled},
    {&J::VIEWED, Value::FLAG, Count::MUST, missed},
    {&J::LOGLIST, Value::PART, Count::MUST, all},
};

Row const callTable[] = {
    {&J::NUMBER, Value::TEXT, Count::MAY, all},
    {&J::NUMBERTYPE, Value::NUMBER_TYPE, Count::MUST, all},
    {&J::RESOLVEDNUMBER, Value::TEXT, Count::MAY, dialled},
    {&J::CONNECTEDNUMBER, Value::TEXT, Count::MAY, all},
    {&J::CONNECTEDNUMBERPRIORITY, Value::FLAG, Count::MUST, dialled},
    {&J::CONNECTEDNUMBERTYPE, Value::NUMBER_TYPE, Count::MUST, all},
    {&J::CONNECTEDSURNAME, Value::TEXT, Count::MAY, all},
    {&J::CONNECTEDFIRSTNAME, Value::TEXT, Count::MAY, all},
    {&J::TIMEDATE, Value::TEXT, Count::MAY, all},
    {&J::DURATION, Value::TEXT, Count::MAY, dialled | received | forwarded},
    {&J::TARGETLOG, Value::TARGET_LOG, Count::MUST, missed | dialled | received},
    {&J::NUMBERPRESENTATION, Value::PRESENTATION, Count::MUST, missed | dialled | received},
    {&J::NAMEPRESENTATION, Value::PRESENTATION, Count::MUST, missed | dialled | received},
    {&J::DEFLECTNUMBERPRESENTATION, Value::PRESENTATION, Count::MUST, missed | received},
    {&J::DEFLECTNUMBER, Value::TEXT, Count::MAY, missed | received},
    {&J::DEFLECTNUMBERTYPE, Value::NUMBER_TYPE, Count::MUST, missed | received},
    {&J::DEFLECTNAMEPRESENTATION, Value::PRESENTATION, Count::MUST, missed | received},
    {&J::DEFLECTNAME, Value::TEXT, Count::MAY, missed | received},
    {&J::TIMEFORMAT, Value::TIME_FORMAT, Count::MUST, missed | dialled | received},
};

Row const methodRow = {&J::METHOD, Value::PART, Count::MUST, all};
Row const schemaRow = {&J::SCHEMA, Value::PART, Count::MUST, all};
Row const reasonRow = {&J::REASONFORMESSAGE, Value::REASON, Count::MUST, all};
Row const entryRow = {&J::ENTRY, Value::PART, Count::MANY, all};
Row const itemRow = {&J::ITEM, Value::PART, Count::MANY, all};
Row const toDeleteRow = {&J::UNIQUEIDTODELETE, Value::TEXT, Count::MAY, all};
Row const actionRow = {&J::ACTIONTYPE, Value::ACTION, Count::MUST, all};
Row const handleRow = {&handleName, Value::NUMBER, Count::MUST, all};
Row const counterRow = {&J::VALUE, Value::NUMBER, Count::MUST, all};
Row const outcomeRow = {&J::VALUE, Value::OUTCOME, Count::MAY, all};
Row const enabledRow = {&J::CALL_LOG_ENABLED, Value::ENABLED, Count::MAY, all};
Row const entryIdsRow = {&J::ENTRYID, Value::TEXT, Count::MANY, all};

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
    // Sent, but known by its tag alone: recognition gives the code of an unknown method.
    {J::UNKNOWN_METHOD, &J::MISSEDGROUPCALLSUPDATE_XML, Role::COUNTER, Log::MISSED, NONE},
};

/// Without a log to go by, every log's elements are right and none is missed.
template <std::size_t size>
void append(Rows& rows, Row const (&table)[size], Log log) {
  for (Row row : table) {
    if (log == Log::NONE && row.count == Count::MUST)
      row.count = Count::MAY;
    if (log == Log::NONE || (row.logs & static_cast<unsigned>(log)) != 0)
      rows.push_back(row);
  }
}

Rows rowsOfMessage(MessageKind kind, Log log) {
  Rows rows{methodRow};
  switch (kind) {
  case MessageKind::REQUEST:
    rows.push_back(entryIdsRow);
    break;
  case MessageKind::LIST_RESPONSE:
    rows.insert(rows.end(), {entryRow, handleRow, outcomeRow});
    break;
  case MessageKind::NOTIFICATION:
    append(rows, entryTable, log);
    rows.insert(rows.end(), {toDeleteRow, actionRow, handleRow});
    break;
  case MessageKind::COUNTER:
    rows.push_back(counterRow);
    break;
  case MessageKind::STORE_REQUEST:
    rows = {schemaRow};
    break;
  default:
    rows.clear();
  }
  return rows;
}

std::unordered_map<std::string_view, Row> allElements() {
  std::unordered_map<std::string_view, Row> elements;
  for (Row const& row : entryTable)
    elements.emplace(*row.name, row);
  for (Row const& row : callTable)
    elements.emplace(*row.name, row);
  for (Row const& row : {methodRow, schemaRow, reasonRow, entryRow, itemRow, toDeleteRow, actionRow,
                         handleRow, outcomeRow, enabledRow})
    elements.emplace(*row.name, row);
  return elements;
}

} // namespace

Rows rowsOf(std::string_view part, MessageKind kind, Log log) {
  Rows rows;
  if (part.empty())
    rows = rowsOfMessage(kind, log);
  else if (part == J::ENTRY)
    append(rows, entryTable, log);
  else if (part == J::ITEM)
    append(rows, callTable, log);
  else if (part == J::LOGLIST)
    rows.push_back(itemRow);
  else if (part == J::SCHEMA && kind == MessageKind::STORE_REQUEST)
    rows.push_back(reasonRow);
  return rows;
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
