// Decodes a message with the library's own readers and shows the outcome.
#include "Reading.h"

#include <algorithm>
#include <deque>
#include <ostream>

#include "Fields.h"
#include "SafeText.h"

namespace {

using J = JournalServiceHelper;

/// The two readers of one kind of log.
template <class Item>
struct Readers {
  bool (*list)(std::string const&, std::deque<Item>&, unsigned int&);
  bool (*entry)(std::string const&, Item&);
};

Readers<MissedCallItem> const missedReaders = {&J::parseXMLMissedCallList,
                                               &J::parseXMLMissedCallItem};
Readers<DialledCallItem> const dialledReaders = {&J::parseXMLDialledCallList,
                                                 &J::parseXMLDialledCallItem};
Readers<ReceivedCallItem> const receivedReaders = {&J::parseXMLReceivedCallList,
                                                   &J::parseXMLReceivedCallItem};
Readers<ForwardedCallItem> const forwardedReaders = {&J::parseXMLForwardedCallList,
                                                     &J::parseXMLForwardedCallItem};
Readers<DialledCallItem> const lastNumberReaders = {&J::parseXMLDialledCallList,
                                                    &J::parseXMLGetLastDialledNumber};

class Reading {
public:
  Reading(std::ostream& stream, std::string const& message, Nodes const& pieces,
          Subject const& sort, bool all)
      : out(stream), text(message), nodes(pieces), subject(sort), values(all) {}

  void print() {
    out << "Read as\n";
    switch (subject.kind) {
    case MessageKind::REQUEST:
      return request();
    case MessageKind::LIST_RESPONSE:
      return withReaders([&](auto const& readers) { list(readers); });
    case MessageKind::LAST_NUMBER_RESPONSE:
      line("kind", "answer with the last dialled number");
      return entry(lastNumberReaders);
    case MessageKind::NOTIFICATION:
      return notification();
    case MessageKind::COUNTER:
      return counter();
    case MessageKind::STORE_REQUEST:
      return storeRequest();
    case MessageKind::STORE_ANSWER:
      line("kind", "store answer");
      return line("call log", J::parseXMLEnabledStateItem(text) ? "enabled" : "disabled");
    case MessageKind::OUTCOME:
      line("kind", "answer with an outcome");
      return line("outcome", J::isNonFailureResponse(text) ? "not failed" : "failed");
    default:
      return line("kind", "no message of the journal service");
    }
  }

private:
  void line(char const* name, std::string_view value) {
    out << "  " << name << ": " << safeText(value) << '\n';
  }

  void element(char const* label, std::string const& name) {
    std::string value;
    line(label, J::getXMLValue(text, name, value) ? value : "none");
  }

  void number(char const* label, std::string const& name) {
    unsigned int value = 0;
    bool const there = J::getXMLValue(text, name, value);
    line(label, there ? std::to_string(value) : "none, read as 0");
  }

  std::string ofLog() const { return std::string(", ") + nameOf(subject.log) + " calls"; }

  void request() {
    line("kind", "request");
    line("method", nameOf(*subject.method));
    if (subject.method->entryIds == Count::MAY)
      return;
    auto const ids = std::count_if(nodes.begin(), nodes.end(), [](Node const& node) {
      return node.kind == Node::Kind::LEAF && node.name == J::ENTRYID;
    });
    line("entries named", std::to_string(ids));
  }

  /// Calls the action with the readers of the message's log.
  template <class Action>
  void withReaders(Action const& action) {
    switch (subject.log) {
    case Log::DIALLED:
      return action(dialledReaders);
    case Log::RECEIVED:
      return action(receivedReaders);
    case Log::FORWARDED:
      return action(forwardedReaders);
    default:
      return action(missedReaders);
    }
  }

  template <class Item>
  void list(Readers<Item> const& readers) {
    std::deque<Item> items;
    unsigned int handle = 0;
    readers.list(text, items, handle);
    std::size_t calls = 0;
    for (Item const& item : items)
      calls += item.callInfoList.size();
    line("kind", "list response" + ofLog());
    line("entries", std::to_string(items.size()));
    line("calls", std::to_string(calls));
    line("handle", std::to_string(handle));
    if (values)
      for (std::size_t i = 0; i < items.size(); ++i)
        printEntry(out, i + 1, items[i]);
  }

  template <class Item>
  void entry(Readers<Item> const& readers) {
    Item item;
    readers.entry(text, item);
    line("uniqueId", item.uniqueId);
    line("calls", std::to_string(item.callInfoList.size()));
    if (values)
      printEntry(out, 1, item);
  }

  void notification() {
    line("kind", "notification" + ofLog());
    element("action", J::ACTIONTYPE);
    element("removed entry", J::UNIQUEIDTODELETE);
    number("handle", "Handle");
    withReaders([&](auto const& readers) { entry(readers); });
  }

  void counter() {
    line("kind", "counter");
    line("method", nameOf(*subject.method));
    number("value", J::VALUE);
  }

  void storeRequest() {
    line("kind", "store request");
    for (Node const& node : nodes)
      if (node.kind == Node::Kind::PART && node.name == J::SCHEMA)
        line("schema", node.value);
    element("reason", J::REASONFORMESSAGE);
  }

  std::ostream& out;
  std::string const& text;
  Nodes const& nodes;
  Subject const& subject;
  bool values;
};

} // namespace

void printReading(std::ostream& out, std::string const& text, Nodes const& nodes,
                  Subject const& subject, bool values) {
  Reading(out, text, nodes, subject, values).print();
}
