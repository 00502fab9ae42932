// Messages as the reference writes them, kept short so that many texts around them can be tested.
#include "differential/Messages.h"

#include "differential/Edits.h"
#include "differential/KindOperations.h"
#include "differential/RecordFields.h"
#include "reference/Reference.h"

namespace differential {
namespace {

using comparison::Kind;

// Sets every field: texts to different short values, one of them with an entity, and enumerations
// to members that are not their defaults.
class FillWithValues {
public:
  void operator()(std::string& field) {
    static char const* const values[] = {"12", "3", "x&amp;y", "Z", "p", "+4", "07:05"};
    field = values[next_++ % 7];
  }
  void operator()(bool& field) { field = true; }
  void operator()(NumberType::NT& field) { field = NumberType::MOBILE; }
  void operator()(CallLogEntryEvent::_TFormat& field) { field = CallLogEntryEvent::FORM_PM; }
  void operator()(CallLogEntryEvent::_LogTarget& field) { field = CallLogEntryEvent::IN_BUSY; }
  void operator()(CallLogEntryEvent::_PresentationValue& field) {
    field = CallLogEntryEvent::ALLOWED;
  }

private:
  unsigned int next_ = 0;
};

template <class Item>
std::vector<Message> logs(Kind kind) {
  using Oracle = comparison::KindOperations<Item, Reference>;
  auto const full = Oracle::respond({fullItem<Item>()}, 7);
  Item bare = sparseItem<Item>();
  bare.callInfoList.clear();
  auto const sparse = Oracle::respond({bare, sparseItem<Item>()}, 0);
  return {{kind, tokensOf(full)}, {kind, tokensOf(sparse)}, {kind, elementsOf(full)}};
}

void append(std::vector<std::string>& all, std::vector<std::string> const& more) {
  all.insert(all.end(), more.begin(), more.end());
}

std::vector<std::string> methodTags() {
  std::vector<std::string> const methods = {
      "getMissedCallList",
      "setMissedCallListAsViewed",
      "deleteMissedCall",
      "deleteMissedCallList",
      "getDialledCallList",
      "deleteDialledCall",
      "deleteDialledCallList",
      "getLastDialledNumber",
      "getReceivedCallList",
      "deleteReceivedCall",
      "deleteReceivedCallList",
      "getForwardedCallList",
      "deleteForwardedCall",
      "deleteForwardedCallList",
      "subscribe",
      "unsubscribe",
      "refreshCallLog",
      "missedCallsUpdate",
      "dialledCallsUpdate",
      "receivedCallsUpdate",
      "forwardedCallsUpdate",
      "missedGroupCallsUpdate",
      "missedCallsCountUpdate",
  };
  std::vector<std::string> tags;
  for (auto const& method : methods)
    tags.push_back("<" + method + ">");
  return tags;
}

} // namespace

template <class Item>
Item fullItem() {
  Item item;
  FillWithValues fill;
  comparison::forEachField(item, [&fill](auto& field) { fill(field); });
  comparison::forEachField(item.callInfoList.emplace_back(), [&fill](auto& field) { fill(field); });
  return item;
}

template <class Item>
Item sparseItem() {
  Item item;
  item.entryId = "8";
  item.callInfoList.emplace_back();
  return item;
}

template MissedCallItem fullItem();
template DialledCallItem fullItem();
template ReceivedCallItem fullItem();
template ForwardedCallItem fullItem();
template MissedCallItem sparseItem();
template DialledCallItem sparseItem();
template ReceivedCallItem sparseItem();
template ForwardedCallItem sparseItem();

std::vector<Message> logsOf(Kind kind) {
  switch (kind) {
  case Kind::missed:
    return logs<MissedCallItem>(kind);
  case Kind::dialled:
    return logs<DialledCallItem>(kind);
  case Kind::received:
    return logs<ReceivedCallItem>(kind);
  case Kind::forwarded:
    return logs<ForwardedCallItem>(kind);
  }
  return {};
}

std::vector<Message> otherMessages() {
  ForwardedCallItem forwarded;
  forwarded.uniqueId = "1";
  auto const action = JournalServiceObserverIfc::ENTRY_CHANGED;
  auto const setting = "<Schema name=\"CallLogSettings\"><CallLogEnabled>true</CallLogEnabled>";
  return {
      {Kind::missed, tokensOf(Reference::reqDeleteMissedCallList({"1", "22"}))},
      {Kind::dialled, tokensOf(Reference::reqGetLastDialledNumber())},
      {Kind::received, tokensOf(Reference::readEnabledState())},
      {Kind::missed, tokensOf(Reference::obsReqMissedCallsCountUpdate(3))},
      {Kind::missed, tokensOf(Reference::obsReqMissedCallsUpdate({}, "9", action, 7))},
      {Kind::forwarded, tokensOf(Reference::obsReqForwardedCallsUpdate(forwarded, "", action, 7))},
      {Kind::received, tokensOf("<Value>Success</Value>")},
      {Kind::dialled, tokensOf(std::string(setting) + "</Schema>")},
      {Kind::received, tokensOf("<CallLogEnabled></CallLogEnabled>")},
      {Kind::forwarded, tokensOf("<Entry><UniqueId>1</UniqueId></Entry><Entry><UniqueId>2"
                                 "</UniqueId></Entry><Handle>-1</Handle>")},
  };
}

std::vector<std::string> valueTokens() {
  using namespace std::string_literals;
  return {
      // Whitespace and odd bytes.
      " ",
      "\n",
      "\t",
      "\0"s,
      "\xff",
      // Ampersands.
      "&",
      "&amp;",
      "&amp",
      "&amp;lt;",
      "&lt;",
      "&quot;&apos;&gt;",
      "&#38;",
      "&AMP;",
      // Flags and response words.
      "True",
      "true",
      "False",
      "TRUE",
      "True ",
      "Tru",
      "Success",
      "Failure",
      // Enumerations and what is nearly one.
      "NO_ICON",
      "PRIVATE",
      "MOBILE",
      "BUSINESS1",
      "BUSINESS2",
      "BUSINESS3",
      "mobile",
      "MOBILE ",
      "IN_ANSWERED",
      "IN_NO_ANSWER",
      "IN_BUSY",
      "IN_GROUP_MISSED",
      "OUT_ANSWERED",
      "OUT_NO_ANSWER",
      "OUT_BUSY",
      "OUT_BUS",
      "NOT_AVAILABLE",
      "ALLOWED",
      "NOT_ALLOWED",
      "FORM_24",
      "FORM_AM",
      "FORM_PM",
      "FORM_A",
      // Numbers.
      "0",
      "-1",
      "+1",
      "\t\n\v\f\r 7",
      "1x",
      "-",
      "2147483647",
      "2147483648",
      "-2147483648",
      "-2147483649",
      "4294967295",
      "4294967296",
      "18446744073709551616",
  };
}

std::vector<std::string> alphabet(bool withMethods) {
  std::vector<std::string> all;
  for (auto const& name : comparison::elementNames()) {
    bool const hasTags = !name.empty() && name != "Schema" && name != "Index";
    if (hasTags)
      append(all, {"<" + name + ">", "</" + name + ">"});
  }
  // Tags cut short or altered, and the joints at which entries and calls are cut apart.
  append(all, {"<", "</", ">", "<Entry", "</Entry", "<Item>>", "</Item", "<LogList", "/LogList>",
               "<number>", "<Number >", "<Number/>", "<Item></Item>", "<Entry></Entry>",
               "</Item><Item>", "</Entry><Entry>", "<LogList></LogList>",
               "<NamePresentation>ALLOWED</NamePresentation>", "<Number>5</Number>"});
  append(all, valueTokens());
  append(all, withMethods ? methodTags()
                          : std::vector<std::string>{"<getMissedCallList>", "<subscribe>"});
  return all;
}

} // namespace differential
