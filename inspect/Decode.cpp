// Decoding with the library's own readers.
#include <algorithm>

#include "inspect/Format.h"
#include "inspect/Tags.h"
#include "inspect/Written.h"
#include "vocabulary/Tags.h"

namespace inspect {
namespace {

using Api = JournalServiceHelper;
namespace word = journal::word;
using journal::element;
constexpr auto npos = std::string::npos;

// ---- The readers of each log, selected by the type

bool readList(std::string const& text, std::deque<MissedCallItem>& items, unsigned& handle) {
  return Api::parseXMLMissedCallList(text, items, handle);
}
bool readList(std::string const& text, std::deque<DialledCallItem>& items, unsigned& handle) {
  return Api::parseXMLDialledCallList(text, items, handle);
}
bool readList(std::string const& text, std::deque<ReceivedCallItem>& items, unsigned& handle) {
  return Api::parseXMLReceivedCallList(text, items, handle);
}
bool readList(std::string const& text, std::deque<ForwardedCallItem>& items, unsigned& handle) {
  return Api::parseXMLForwardedCallList(text, items, handle);
}
bool readEntry(std::string const& text, MissedCallItem& item) {
  return Api::parseXMLMissedCallItem(text, item);
}
bool readEntry(std::string const& text, DialledCallItem& item) {
  return Api::parseXMLDialledCallItem(text, item);
}
bool readEntry(std::string const& text, ReceivedCallItem& item) {
  return Api::parseXMLReceivedCallItem(text, item);
}
bool readEntry(std::string const& text, ForwardedCallItem& item) {
  return Api::parseXMLForwardedCallItem(text, item);
}

Entry readEntryOf(Log log, std::string const& text) {
  Entry entry = entryOf(log);
  std::visit([&](auto& item) { readEntry(text, item); }, entry);
  return entry;
}

std::string textIn(std::string const& text, std::string_view name) {
  std::string value;
  Api::getXMLValue(text, std::string(name), value);
  return value;
}

std::optional<std::uint32_t> numberIn(std::string const& text, std::string_view name) {
  unsigned value = 0;
  if (!Api::getXMLValue(text, std::string(name), value))
    return {};
  return value;
}

// ---- The ids of a request

/// Cuts out one id after another, as receivers do, until none is left or one cannot be cut out.
void cutIds(std::string& text, std::vector<std::string>& ids) {
  static std::string const name(word::ENTRYID);
  std::string id;
  while (text.find(element<word::ENTRYID>.begin()) != npos &&
         Api::getAndRemoveXMLValue(text, name, id))
    ids.push_back(id);
}

/// A part of the text at a time, because cutting moves all that follows. What cannot be cut out
/// blocks all that is behind it, in the whole text as in a part.
std::vector<std::string> idsIn(std::string_view text) {
  constexpr std::size_t partSize = 4096;
  auto const close = element<word::ENTRYID>.close();
  std::vector<std::string> ids;
  std::string part;
  while (!text.empty()) {
    auto const end = text.size() <= partSize ? npos : text.find(close, partSize);
    auto const size = end == npos ? text.size() : end + close.size();
    part.append(text.substr(0, size));
    text.remove_prefix(size);
    cutIds(part, ids);
    if (part.find(close) != npos || part.find(element<word::ENTRYID>.begin()) != npos)
      break;
    // A tag may begin in what is left.
    part.erase(0, part.size() - std::min(part.size(), close.size()));
  }
  return ids;
}

// ---- The message of each kind

/// The word of success or failure behind the records.
std::optional<bool> outcomeBehind(std::string const& text) {
  auto const close = element<word::LOGLIST>.close();
  auto const last = text.rfind(close);
  auto const value = textIn(last == npos ? text : text.substr(last), word::VALUE);
  if (value == word::SUCCESS || value == word::FAILURE)
    return value == word::SUCCESS;
  return {};
}

ListResponse listIn(std::string const& text, Log log) {
  ListResponse list{entriesOf(log), 0};
  unsigned handle = 0;
  std::visit([&](auto& entries) { readList(text, entries, handle); }, list.entries);
  list.handle = handle;
  return list;
}

EntryNotification notificationIn(std::string const& text, Log log) {
  return {readEntryOf(log, text), textIn(text, word::UNIQUEIDTODELETE),
          numberIn(text, word::ACTIONTYPE), numberIn(text, word::HANDLE).value_or(0)};
}

StoreRequest storeRequestIn(std::string const& text) {
  auto const at = text.find(word::SCHEMA_NAMED_BEGIN);
  Tag const schema = at == npos ? Tag() : tagAt(text, at);
  return {std::string(schema.attribute), textIn(text, word::REASONFORMESSAGE)};
}

LastDialled lastDialledIn(std::string const& text) {
  LastDialled answer;
  Api::parseXMLGetLastDialledNumber(text, answer.entry);
  return answer;
}

Message messageOf(Identity const& identity, std::string const& text) {
  std::string const method(identity.method);
  switch (identity.kind) {
  case Kind::request:
    return Request{method, idsIn(text)};
  case Kind::listResponse:
    return listIn(text, *identity.log);
  case Kind::entryNotification:
    return notificationIn(text, *identity.log);
  case Kind::counterNotification:
    return CounterNotification{method, numberIn(text, word::VALUE).value_or(0)};
  case Kind::storeRequest:
    return storeRequestIn(text);
  case Kind::outcome:
    return Outcome{method, idsIn(text), Api::isNonFailureResponse(text)};
  case Kind::setting:
    return Setting{Api::parseXMLEnabledStateItem(text)};
  case Kind::lastDialled:
    return lastDialledIn(text);
  case Kind::entry:
    if (identity.log)
      return BareEntry{readEntryOf(*identity.log, text)};
    [[fallthrough]];
  default:
    return Unknown{text};
  }
}

template <class Record>
RecordView viewOf(Record const& record, Log log) {
  return {log, const_cast<Record*>(&record)};
}

struct RecordsOf {
  std::vector<RecordView> records;

  void operator()(ListResponse const& list) {
    forEachEntry(const_cast<Entries&>(list.entries),
                 [&](RecordView entry) { records.push_back(entry); });
  }
  void operator()(EntryNotification const& message) { add(message.entry); }
  void operator()(BareEntry const& message) { add(message.entry); }
  void operator()(LastDialled const& message) {
    records.push_back(viewOf(message.entry, Log::dialled));
  }
  template <class Other>
  void operator()(Other const&) {}
  void add(Entry const& entry) { records.push_back(inspect::viewOf(const_cast<Entry&>(entry))); }
};

} // namespace

std::vector<RecordView> entriesOf(Message const& message) {
  RecordsOf entries;
  std::visit(entries, message);
  return std::move(entries.records);
}

std::optional<Log> logOf(Message const& message) {
  if (auto const* list = std::get_if<ListResponse>(&message))
    return logOf(list->entries);
  auto const entries = entriesOf(message);
  return entries.empty() ? std::optional<Log>() : entries[0].log;
}

std::optional<std::uint32_t> handleOf(Message const& message) {
  if (auto const* list = std::get_if<ListResponse>(&message))
    return list->handle;
  if (auto const* notification = std::get_if<EntryNotification>(&message))
    return notification->handle;
  return {};
}

Decoded read(std::string const& text, std::optional<Log> log) {
  Identity identity = identify(text);
  if (!identity.log && identity.kind == Kind::entry)
    identity.log = log;
  Decoded decoded{messageOf(identity, text), {}, identity.declared, {}};
  if (identity.kind == Kind::listResponse || identity.kind == Kind::entryNotification)
    decoded.outcome = outcomeBehind(text);
  return decoded;
}

Decoded decode(std::string const& text, std::optional<Log> log) {
  Decoded decoded = read(text, log);
  decoded.written = writtenIn(text, decoded.message);
  return decoded;
}

} // namespace inspect
