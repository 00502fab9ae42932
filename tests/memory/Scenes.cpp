// Inputs with which every operation that can allocate does allocate.
#include "memory/Scenes.h"

#include <string>
#include <tuple>
#include <type_traits>

#include "members/Members.h"

namespace scenes {
namespace {

using operations::Input;
using operations::NO_KIND;
using operations::Operation;
using operations::Outputs;

template <class Record>
void fill(Record& record, std::string const& text) {
  members::forEachValue(record, [&text](auto& field) {
    if constexpr (std::is_same_v<std::decay_t<decltype(field)>, std::string>)
      field = text + ", which no string holds in itself, & has <markup>";
  });
}

template <class Item>
Item item(std::string const& text, int calls) {
  Item item;
  fill(item, text);
  for (int call = 0; call < calls; ++call)
    fill(item.callInfoList.emplace_back(), "Call " + std::to_string(call));
  return item;
}

template <class Item>
void fillKind(Input& input) {
  std::get<Item>(input.records) = item<Item>("An entry", 2);
  std::get<std::deque<Item>>(input.records) = {item<Item>("The first entry", 1),
                                               item<Item>("The second entry", 2)};
}

Input base() {
  Input input;
  input.name = "ConnectedNumberPriority";
  input.begin = "<ConnectedNumberPriority>";
  input.close = "</ConnectedNumberPriority>";
  input.ids = {"a first id that is a long one", "a second id that is a long one"};
  input.number = 4294967295;
  input.flag = false;
  fillKind<operations::Missed>(input);
  fillKind<operations::Dialled>(input);
  fillKind<operations::Received>(input);
  fillKind<operations::Forwarded>(input);
  return input;
}

// In texts that are copied raw, markup would damage the message.
std::string withoutMarkup(std::string text) {
  std::string const markup = "<markup>";
  for (auto at = text.find(markup); at != std::string::npos; at = text.find(markup))
    text.replace(at, markup.size(), "&lt;markup&gt;");
  return text;
}

struct Messages {
  std::string body;  // the inside of an Entry
  std::string calls; // a LogList
  std::string log;   // a list response
};

Messages messagesOf(int kind, Input const& input) {
  Messages messages;
  for (auto const& operation : operations::all()) {
    if (operation.kind != kind || !operation.writesRecords)
      continue;
    Outputs outputs(input);
    outputs.text.clear();
    operation.run(input, outputs);
    auto const written = withoutMarkup(outputs.resultText + outputs.text);
    if (operation.name.find("ItemBody") != std::string::npos)
      messages.body = written;
    else if (operation.name.find("InfoList") != std::string::npos)
      messages.calls = written;
    else if (operation.name.find("resp") == 0)
      messages.log = written;
  }
  return messages;
}

std::string insideOfFirst(std::string const& text, std::string const& name) {
  auto const begin = text.find("<" + name + ">") + name.size() + 2;
  return text.substr(begin, text.find("</" + name + ">") - begin);
}

std::string without(std::string text, std::string const& cut) {
  auto const at = text.find(cut);
  return at == std::string::npos ? text : text.erase(at, cut.size());
}

// The last entry unclosed, whitespace in the first, an element without its close tag.
std::string damagedLog(std::string log) {
  log.insert(log.find("<EntryId>"), " ");
  log.insert(log.find("<Item>"), "<Item></Item>");
  log.resize(log.rfind("</Entry>"));
  return without(log, "</Surname>");
}

} // namespace

bool fits(Operation const& operation, Scene const& scene) {
  if (scene.kind == NO_KIND)
    return operation.kind == NO_KIND || !operation.readsText;
  return operation.readsText && operation.kind == scene.kind;
}

std::vector<Scene> all() {
  std::vector<Scene> scenes;
  Input input = base();
  auto const add = [&](std::string const& name, int kind, std::string const& text) {
    input.text = text;
    scenes.push_back({name, kind, input});
  };
  std::string const value = "a value of some length &amp; with an entity";
  add("element in order", NO_KIND,
      input.begin + value + input.close + "<CallLogEnabled>" + value +
          "</CallLogEnabled><Entry><UniqueId>" + value + "</UniqueId></Entry>");
  add("element out of order", NO_KIND,
      value + input.close + input.begin + value + input.close + "</Entry><Entry>" + value +
          "<UniqueId>" + value + "</UniqueId></Entry><CallLogEnabled>" + value);
  for (int kind = 0; kind < 4; ++kind) {
    auto const messages = messagesOf(kind, input);
    auto const call = insideOfFirst(messages.calls, "Item");
    add("log", kind, messages.log);
    add("damaged log", kind, damagedLog(messages.log));
    add("entry", kind, messages.body);
    add("damaged entry", kind, " " + without(messages.body, "</EntryId>"));
    add("entry without calls", kind, without(messages.body, messages.calls));
    add("call", kind, call);
    add("damaged call", kind, "\n" + without(call, "</Number>"));
  }
  return scenes;
}

} // namespace scenes
