// Messages as the reference writes them, kept short so that many texts near them can be tested.
#include "differential/Messages.h"

#include "differential/Edits.h"
#include "differential/KindOperations.h"
#include "members/Enumerations.h"
#include "members/Members.h"
#include "reference/Reference.h"
#include "vocabulary/Constants.h"

namespace differential {
namespace {

using comparison::Kind;

// Sets every field: texts to different short values, one of them with an entity, and enumerations
// to the member after the default.
class FillWithValues {
public:
  void operator()(std::string& field) {
    static char const* const values[] = {"12", "3", "x&amp;y", "Z", "p", "+4", "07:05"};
    field = values[next_++ % 7];
  }
  void operator()(bool& field) { field = true; }
  template <class Enumeration>
  void operator()(Enumeration& field) {
    auto const& all = members::enumerators<Enumeration>;
    std::size_t at = 0;
    while (all[at].value != field)
      ++at;
    field = all[(at + 1) % all.size()].value;
  }

private:
  unsigned int next_ = 0;
};

Message messageOf(Kind kind, std::string const& text) {
  auto const tokens = tokensOf(text);
  return {kind, {tokens.begin(), tokens.end()}};
}

template <class Item>
std::vector<Message> logs(Kind kind) {
  using Oracle = comparison::KindOperations<Item, Reference>;
  auto const full = Oracle::respond({fullItem<Item>()}, 7);
  Item bare = sparseItem<Item>();
  bare.callInfoList.clear();
  auto const sparse = Oracle::respond({bare, sparseItem<Item>()}, 0);
  return {messageOf(kind, full), messageOf(kind, sparse), {kind, elementsOf(full)}};
}

void append(std::vector<std::string>& all, std::vector<std::string> const& more) {
  all.insert(all.end(), more.begin(), more.end());
}

template <class Enumeration>
void appendNames(std::vector<std::string>& all) {
  for (auto const& enumerator : members::enumerators<Enumeration>)
    all.emplace_back(enumerator.name);
}

} // namespace

template <class Item>
Item fullItem() {
  Item item;
  FillWithValues fill;
  members::forEachValue(item, fill);
  members::forEachValue(item.callInfoList.emplace_back(), fill);
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
  return comparison::withKind(
      kind, [kind](auto const& item) { return logs<std::decay_t<decltype(item)>>(kind); });
}

std::vector<Message> otherMessages() {
  ForwardedCallItem forwarded;
  forwarded.uniqueId = "1";
  auto const action = JournalServiceObserverIfc::ENTRY_CHANGED;
  auto const setting = "<Schema name=\"CallLogSettings\"><CallLogEnabled>true</CallLogEnabled>";
  return {
      messageOf(Kind::missed, Reference::reqDeleteMissedCallList({"1", "22"})),
      messageOf(Kind::dialled, Reference::reqGetLastDialledNumber()),
      messageOf(Kind::received, Reference::readEnabledState()),
      messageOf(Kind::missed, Reference::obsReqMissedCallsCountUpdate(3)),
      messageOf(Kind::missed, Reference::obsReqMissedCallsUpdate({}, "9", action, 7)),
      messageOf(Kind::forwarded, Reference::obsReqForwardedCallsUpdate(forwarded, "", action, 7)),
      messageOf(Kind::received, "<Value>Success</Value>"),
      messageOf(Kind::dialled, std::string(setting) + "</Schema>"),
      messageOf(Kind::received, "<CallLogEnabled></CallLogEnabled>"),
      messageOf(Kind::forwarded, "<Entry><UniqueId>1</UniqueId></Entry><Entry><UniqueId>2"
                                 "</UniqueId></Entry><Handle>-1</Handle>"),
  };
}

std::vector<std::string> valueTokens() {
  using namespace std::string_literals;
  std::vector<std::string> all = {
      // Whitespace and odd bytes.
      " ", "\n", "\t", "\0"s, "\xff",
      // Ampersands.
      "&", "&amp;", "&amp", "&amp;lt;", "&lt;", "&quot;&apos;&gt;", "&#38;", "&AMP;",
      // Flags and response words.
      "True", "true", "False", "TRUE", "True ", "Tru", "Success", "Failure",
      // What is nearly a member of an enumeration.
      "BUSINESS3", "mobile", "MOBILE ", "OUT_BUS", "FORM_A",
      // Numbers.
      "0", "-1", "+1", "\t\n\v\f\r 7", "1x", "-", "2147483647", "2147483648", "-2147483648",
      "-2147483649", "4294967295", "4294967296", "18446744073709551616"};
  appendNames<NumberType::NT>(all);
  appendNames<CallLogEntryEvent::_LogTarget>(all);
  appendNames<CallLogEntryEvent::_PresentationValue>(all);
  appendNames<CallLogEntryEvent::_TFormat>(all);
  return all;
}

std::vector<std::string> alphabet(bool withMethods) {
  std::vector<std::string> all;
  for (auto const& name : vocabulary::elementNames()) {
    bool const hasTags = !name.empty() && name != "Schema" && name != "Index";
    if (hasTags)
      append(all, {"<" + name + ">", "</" + name + ">"});
  }
  // Tags cut short or altered, and the tags between which entries and calls are cut apart.
  append(all, {"<", "</", ">", "<Entry", "</Entry", "<Item>>", "</Item", "<LogList", "/LogList>",
               "<number>", "<Number >", "<Number/>", "<Item></Item>", "<Entry></Entry>",
               "</Item><Item>", "</Entry><Entry>", "<LogList></LogList>",
               "<NamePresentation>ALLOWED</NamePresentation>", "<Number>5</Number>"});
  append(all, valueTokens());
  append(all, withMethods ? vocabulary::methodTags()
                          : std::vector<std::string>{"<getMissedCallList>", "<subscribe>"});
  return all;
}

} // namespace differential
