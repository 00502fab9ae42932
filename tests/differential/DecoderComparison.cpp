// The comparison of the decoders, one by one and a kind at a time.
#include <cstring>
#include <utility>

#include "differential/Comparison.h"
#include "differential/KindOperations.h"
#include "differential/Shown.h"
#include "members/Equality.h"
#include "reference/Reference.h"

namespace comparison {
namespace {

// Sets every field to something that is no default and occurs in no message here.
struct Fill {
  void operator()(std::string& field) const { field = "before"; }
  void operator()(bool& field) const { field = true; }
  template <class Enumeration>
  void operator()(Enumeration& field) const {
    field = static_cast<Enumeration>(77);
  }
};

template <class Item>
using InfoOf = typename KindOperations<Item, JournalServiceHelper>::Info;

template <class Item>
InfoOf<Item> const& filledInfo() {
  static InfoOf<Item> const info = [] {
    InfoOf<Item> filled;
    members::forEachValue(filled, Fill());
    return filled;
  }();
  return info;
}

template <class Item>
Item const& filledItem() {
  static Item const item = [] {
    Item filled;
    members::forEachValue(filled, Fill());
    filled.callInfoList.push_back(filledInfo<Item>());
    return filled;
  }();
  return item;
}

// What a decoder returns and writes; the handle only where there is one.
template <class Output>
struct Decoded {
  Output output;
  bool result = false;
  unsigned int handle = 77;
};

template <class Output>
bool operator!=(Decoded<Output> const& left, Decoded<Output> const& right) {
  return left.result != right.result || left.handle != right.handle ||
         !members::equal(left.output, right.output);
}

template <class Output>
std::string shownDecoded(Decoded<Output> const& decoded) {
  return std::string(decoded.result ? "true, " : "false, ") + shown(decoded.output) + ", handle " +
         std::to_string(decoded.handle);
}

template <class Item>
class Decoders {
  using Info = InfoOf<Item>;
  using Library = KindOperations<Item, JournalServiceHelper>;
  using Oracle = KindOperations<Item, Reference>;

public:
  static Difference compare(std::string const& text, Level level, Outputs outputs) {
    switch (level) {
    case Level::call:
      return compareCall(text, outputs);
    case Level::calls:
      return compareCalls(text, outputs);
    case Level::item:
      return told("item", text, item<Library>(text, outputs), item<Oracle>(text, outputs));
    case Level::itemText:
      return compareItemText(text, item<Oracle>(text, outputs), outputs);
    case Level::log:
      return told("log", text, log<Library>(text, outputs), log<Oracle>(text, outputs));
    case Level::logAndHandle:
      return told("log and handle", text, logAndHandle<Library>(text, outputs),
                  logAndHandle<Oracle>(text, outputs));
    }
    return {};
  }

  // The reference decodes each level once; operations that differ only in the argument's type
  // or in the handle are compared with the same result.
  static Difference compareAll(std::string const& text, Outputs outputs) {
    if (auto found = compareCall(text, outputs); !found.empty())
      return found;
    if (auto found = compareCalls(text, outputs); !found.empty())
      return found;
    auto const oneItem = item<Oracle>(text, outputs);
    if (auto found = told("item", text, item<Library>(text, outputs), oneItem); !found.empty())
      return found;
    if (auto found = compareItemText(text, oneItem, outputs); !found.empty())
      return found;
    auto wholeLog = logAndHandle<Oracle>(text, outputs);
    if (auto found = told("log and handle", text, logAndHandle<Library>(text, outputs), wholeLog);
        !found.empty())
      return found;
    wholeLog.handle = Decoded<Log>().handle;
    return told("log", text, log<Library>(text, outputs), wholeLog);
  }

private:
  using InfoList = std::list<Info>;
  using Log = std::deque<Item>;

  template <class Output>
  static Difference told(char const* what, std::string const& text, Decoded<Output> const& library,
                         Decoded<Output> const& reference) {
    if (library != reference)
      return std::string(Library::NAME) + " " + what + "\n  on:        " + readable(text) +
             "\n  library:   " + shownDecoded(library) +
             "\n  reference: " + shownDecoded(reference) + "\n";
    return {};
  }

  static Difference compareCall(std::string const& text, Outputs outputs) {
    return told("call", text, call<Library>(text, outputs), call<Oracle>(text, outputs));
  }

  static Difference compareCalls(std::string const& text, Outputs outputs) {
    return told("list of calls", text, calls<Library>(text, outputs), calls<Oracle>(text, outputs));
  }

  static Difference compareItemText(std::string const& text, Decoded<Item> const& expected,
                                    Outputs outputs) {
    if (auto found = told("item text", text, itemText(text, outputs), expected); !found.empty())
      return found;
    if constexpr (std::is_same_v<Item, DialledCallItem>)
      return told("last number", text, lastDialledNumber(text, outputs), expected);
    return {};
  }

  template <class Output, class Filled>
  static Decoded<Output> before(Outputs outputs, Filled const& filled) {
    Decoded<Output> decoded;
    if (outputs == Outputs::filled) {
      if constexpr (std::is_same_v<Output, Filled>)
        decoded.output = filled;
      else
        decoded.output.assign(2, filled);
    }
    return decoded;
  }

  template <class Operations>
  static Decoded<Info> call(std::string const& text, Outputs outputs) {
    auto decoded = before<Info>(outputs, filledInfo<Item>());
    decoded.result = Operations::readCall(text.c_str(), decoded.output);
    return decoded;
  }

  template <class Operations>
  static Decoded<InfoList> calls(std::string const& text, Outputs outputs) {
    auto decoded = before<InfoList>(outputs, filledInfo<Item>());
    decoded.result = Operations::readCalls(text.c_str(), decoded.output);
    return decoded;
  }

  template <class Operations>
  static Decoded<Item> item(std::string const& text, Outputs outputs) {
    auto decoded = before<Item>(outputs, filledItem<Item>());
    decoded.result = Operations::readItem(text.c_str(), decoded.output);
    return decoded;
  }

  static Decoded<Item> itemText(std::string const& text, Outputs outputs) {
    auto decoded = before<Item>(outputs, filledItem<Item>());
    decoded.result = Library::readItemText(text, decoded.output);
    return decoded;
  }

  static Decoded<DialledCallItem> lastDialledNumber(std::string const& text, Outputs outputs) {
    auto decoded = before<DialledCallItem>(outputs, filledItem<DialledCallItem>());
    decoded.result = JournalServiceHelper::parseXMLGetLastDialledNumber(text, decoded.output);
    return decoded;
  }

  template <class Operations>
  static Decoded<Log> log(std::string const& text, Outputs outputs) {
    auto decoded = before<Log>(outputs, filledItem<Item>());
    decoded.result = Operations::readLog(text, decoded.output);
    return decoded;
  }

  template <class Operations>
  static Decoded<Log> logAndHandle(std::string const& text, Outputs outputs) {
    auto decoded = before<Log>(outputs, filledItem<Item>());
    decoded.result = Operations::readLogAndHandle(text, decoded.output, decoded.handle);
    return decoded;
  }
};

// Also checks that the text has not been written into.
template <class Compare>
Difference unchanged(std::string const& text, Compare compare) {
  static thread_local std::string copy;
  copy.assign(text);
  auto found = compare();
  if (found.empty() && std::memcmp(copy.data(), text.data(), copy.size() + 1) != 0)
    return "A decoder changed the text\n  from: " + readable(copy) + "\n  to:   " + readable(text);
  return found;
}

} // namespace

Difference compareDecoder(std::string const& text, Kind kind, Level level, Outputs outputs) {
  return unchanged(text, [&] {
    return withKind(kind, [&](auto const& item) {
      return Decoders<std::decay_t<decltype(item)>>::compare(text, level, outputs);
    });
  });
}

Difference compareDecoders(std::string const& text, Kind kind, Outputs outputs) {
  return unchanged(text, [&] {
    return withKind(kind, [&](auto const& item) {
      return Decoders<std::decay_t<decltype(item)>>::compareAll(text, outputs);
    });
  });
}

} // namespace comparison
