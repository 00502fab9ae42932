// Encoding with the library's own writers.
#include <set>

#include "inspect/Format.h"
#include "inspect/Written.h"
#include "vocabulary/Words.h"

namespace inspect {
namespace {

using Api = JournalServiceHelper;
using Action = JournalServiceObserverIfc::ActionType;
namespace word = journal::word;

// ---- The writers of each log, selected by the type

std::string listOf(std::deque<MissedCallItem> const& items, unsigned handle) {
  return Api::respGetMissedCallList(items, handle);
}
std::string listOf(std::deque<DialledCallItem> const& items, unsigned handle) {
  return Api::respGetDialledCallList(items, handle);
}
std::string listOf(std::deque<ReceivedCallItem> const& items, unsigned handle) {
  return Api::respGetReceivedCallList(items, handle);
}
std::string listOf(std::deque<ForwardedCallItem> const& items, unsigned handle) {
  return Api::respGetForwardedCallList(items, handle);
}
void writeBody(MissedCallItem const& item, std::string& out) {
  Api::createXMLMissedCallItemBody(item, out, false);
}
void writeBody(DialledCallItem const& item, std::string& out) {
  Api::createXMLDialledCallItemBody(item, out, false);
}
void writeBody(ReceivedCallItem const& item, std::string& out) {
  Api::createXMLReceivedCallItemBody(item, out, false);
}
void writeBody(ForwardedCallItem const& item, std::string& out) {
  Api::createXMLForwardedCallItemBody(item, out, false);
}
std::string updateOf(MissedCallItem const& item, std::string const& removed, Action action,
                     unsigned handle) {
  return Api::obsReqMissedCallsUpdate(item, removed, action, handle);
}
std::string updateOf(DialledCallItem const& item, std::string const& removed, Action action,
                     unsigned handle) {
  return Api::obsReqDialledCallsUpdate(item, removed, action, handle);
}
std::string updateOf(ReceivedCallItem const& item, std::string const& removed, Action action,
                     unsigned handle) {
  return Api::obsReqReceivedCallsUpdate(item, removed, action, handle);
}
std::string updateOf(ForwardedCallItem const& item, std::string const& removed, Action action,
                     unsigned handle) {
  return Api::obsReqForwardedCallsUpdate(item, removed, action, handle);
}

std::string methodElement(std::string_view method) {
  if (method.empty())
    return {};
  std::string const name(word::METHOD);
  return Api::createXMLBegin(name) + Api::createXMLBegin(std::string(method)) +
         Api::createXMLClose(name);
}

std::string idElements(std::vector<std::string> const& ids) {
  return Api::createXMLEntryIDList(std::set<std::string>(ids.begin(), ids.end()));
}

std::string valueElement(std::string const& value) {
  return Api::createXMLField(std::string(word::VALUE), value);
}

/// Each gives the message without its declaration.
struct Encoder {
  std::string operator()(Unknown const& message) const { return message.text; }
  std::string operator()(Request const& message) const {
    return methodElement(message.method) + idElements(message.entryIds);
  }
  std::string operator()(ListResponse const& message) const {
    return std::visit([&](auto const& items) { return listOf(items, message.handle); },
                      message.entries);
  }
  std::string operator()(EntryNotification const& message) const {
    auto const action = static_cast<Action>(message.action.value_or(0));
    auto const text = std::visit(
        [&](auto const& item) {
          return updateOf(item, message.uniqueIdToDelete, action, message.handle);
        },
        message.entry);
    return text.substr(word::XMLHEADER.size());
  }
  std::string operator()(CounterNotification const& message) const {
    return methodElement(message.method) +
           Api::createXMLField(std::string(word::VALUE), static_cast<unsigned>(message.value));
  }
  std::string operator()(StoreRequest const& message) const {
    std::string text = Api::createXMLField(std::string(word::REASONFORMESSAGE), message.reason);
    Api::addXMLHeaderFooter(text, message.schema);
    return text.substr(word::XMLHEADER.size());
  }
  std::string operator()(Outcome const& message) const {
    return methodElement(message.method) + idElements(message.entryIds) +
           valueElement(Api::respBool(message.ok));
  }
  std::string operator()(Setting const& message) const {
    return Api::createXMLField(std::string(word::CALL_LOG_ENABLED),
                               message.enabled ? std::string(word::ENABLED_TRUE) : "false");
  }
  std::string operator()(LastDialled const& message) const {
    std::string text = methodElement(
        word::GETLASTDIALLEDNUMBER_XML.substr(1, word::GETLASTDIALLEDNUMBER_XML.size() - 2));
    writeBody(message.entry, text);
    return text;
  }
  std::string operator()(BareEntry const& message) const {
    std::string text;
    std::visit([&](auto const& item) { writeBody(item, text); }, message.entry);
    return text;
  }
};

/// The message with the values that its writer was given.
Message restored(Decoded const& decoded) {
  Message message = decoded.message;
  restore(decoded.written, message);
  return message;
}

} // namespace

std::string encode(Decoded const& decoded) {
  auto text = decoded.written.empty() ? std::visit(Encoder(), decoded.message)
                                      : std::visit(Encoder(), restored(decoded));
  if (decoded.outcome)
    text += valueElement(Api::respBool(*decoded.outcome));
  if (decoded.declared && kindOf(decoded.message) != Kind::unknown)
    Api::addXMLHeaderFooter(text, {});
  return text;
}

} // namespace inspect
