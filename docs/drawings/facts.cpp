// Prints what the drawings show, one fact per line, its columns separated by tabs:
//
//   field    kind, record, member, element, content, escaped, reading, place in the reading order
//   message  operation, code of getMethodFromXMLMsg, text
//   step     begin tag, close tag, cursor before, cursor after, value
//   walk     the text of the steps
//
// Fields are in the order of writing. scripts/drawings builds and runs this.
#include <JournalServiceHelper.h>

#include <algorithm>
#include <iostream>
#include <iterator>
#include <string>

#include "members/Members.h"
#include "records/Kinds.h"

namespace {

using Helper = JournalServiceHelper;

template <class... Columns>
void fact(Columns const&... columns) {
  std::string separator;
  ((std::cout << separator << columns, separator = "\t"), ...);
  std::cout << '\n';
}

// ---- Fields

char const* nameOf(journal::Content content) {
  static constexpr char const* names[] = {"text",       "flag",         "number type",
                                          "log target", "presentation", "time format"};
  static_assert(std::size(names) == std::size(journal::enumerations));
  return names[static_cast<std::size_t>(content)];
}

char const* nameOf(journal::Reading reading) {
  static constexpr char const* names[] = {"stored", "discarded", "unclosed"};
  return names[static_cast<std::size_t>(reading)];
}

template <class Record>
std::string memberOf(std::string const& element) {
  std::string name;
  members::forEachMember<Record>([&](auto const& member) {
    if (member.element == element)
      name = member.name;
  });
  return name;
}

template <class Fields>
std::ptrdiff_t placeOf(journal::FieldDescriptor const& field, Fields const& order) {
  auto const isMeant = [&](auto const& other) { return other.begin() == field.begin(); };
  return std::find_if(std::begin(order), std::end(order), isMeant) - std::begin(order) + 1;
}

template <class Record, class Written, class Read>
void fields(char const* kind, char const* record, Written const& written, Read const& read) {
  for (auto const& field : written) {
    std::string const element(field.begin().substr(1, field.nameSize()));
    fact("field", kind, record, memberOf<Record>(element), element, nameOf(field.content()),
         field.isEscaped() ? "escaped" : "raw", nameOf(field.reading()), placeOf(field, read));
  }
}

template <class Entry>
void kind(char const* name) {
  using Kind = journal::Kind<Entry>;
  fields<Entry>(name, "entry", Kind::entry, Kind::entry);
  fact("field", name, "entry", memberOf<Entry>("LogList"), "LogList", "calls", "raw", "stored",
       std::size(Kind::entry) + 1);
  fields<typename Kind::Call>(name, "call", Kind::call, Kind::callRead);
}

// ---- Messages

void message(std::string const& operation, std::string const& text) {
  fact("message", operation, Helper::getMethodFromXMLMsg(text), text);
}
#define MESSAGE(operation, ...) message(#operation, Helper::operation(__VA_ARGS__))

void requests() {
  MESSAGE(reqGetMissedCallList);
  MESSAGE(reqGetDialledCallList);
  MESSAGE(reqGetReceivedCallList);
  MESSAGE(reqGetForwardedCallList);
  MESSAGE(reqGetLastDialledNumber);
  MESSAGE(reqSetMissedCallListAsViewed, {"12", "7"});
  MESSAGE(reqDeleteMissedCall, "12");
  MESSAGE(reqDeleteDialledCall, "12");
  MESSAGE(reqDeleteReceivedCall, "12");
  MESSAGE(reqDeleteForwardedCall, "12");
  MESSAGE(reqDeleteMissedCallList, {"12", "7"});
  MESSAGE(reqDeleteDialledCallList, {"12", "7"});
  MESSAGE(reqDeleteReceivedCallList, {"12", "7"});
  MESSAGE(reqDeleteForwardedCallList, {"12", "7"});
  MESSAGE(reqSubscribe);
  MESSAGE(reqUnsubscribe);
  MESSAGE(reqRefreshCallLog);
}

template <class Item>
Item sample() {
  Item item;
  item.uniqueId = "m-204";
  item.entryId = "31";
  item.surname = "Berg & Sohn";
  item.callInfoList.emplace_back();
  item.callInfoList.back().number = "5550123";
  return item;
}

void answers() {
  MESSAGE(respGetMissedCallList, {sample<MissedCallItem>()}, 7);
  MESSAGE(respGetDialledCallList, {sample<DialledCallItem>()}, 7);
  MESSAGE(respGetReceivedCallList, {sample<ReceivedCallItem>()}, 7);
  MESSAGE(respGetForwardedCallList, {sample<ForwardedCallItem>()}, 7);
  std::string lastDialled;
  Helper::createXMLDialledCallItemBody(sample<DialledCallItem>(), lastDialled, false);
  message("createXMLDialledCallItemBody", lastDialled);
  std::string outcome;
  Helper::addSuccessResp(outcome);
  message("addSuccessResp", outcome);
  message("createXMLField", Helper::createXMLField(Helper::VALUE, Helper::respBool(false)));
}

void notifications() {
  auto const changed = JournalServiceObserverIfc::ENTRY_CHANGED;
  MESSAGE(obsReqMissedCallsUpdate, sample<MissedCallItem>(), "m-17", changed, 8);
  MESSAGE(obsReqDialledCallsUpdate, sample<DialledCallItem>(), "m-17", changed, 8);
  MESSAGE(obsReqReceivedCallsUpdate, sample<ReceivedCallItem>(), "m-17", changed, 8);
  MESSAGE(obsReqForwardedCallsUpdate, sample<ForwardedCallItem>(), "m-17", changed, 8);
  MESSAGE(obsReqMissedCallsCountUpdate, 3);
  MESSAGE(obsReqMissedGroupCallsUpdate, 3);
}

void store() {
  MESSAGE(readEnabledState);
  MESSAGE(readMissedCallList);
  MESSAGE(readDialledCallList);
  MESSAGE(readReceivedCallList);
  MESSAGE(readForwardedCallList);
  MESSAGE(deleteMissedCallList);
  MESSAGE(deleteDialledCallList);
  MESSAGE(deleteReceivedCallList);
  MESSAGE(deleteForwardedCallList);
  message("setting", Helper::createXMLField(Helper::CALL_LOG_ENABLED, "true"));
}

// ---- The cursor: four elements of a call, one of them missing, two exchanged.

void walk() {
  std::string const call = Helper::createXMLField(Helper::NUMBER, "12") +
                           Helper::createXMLField(Helper::DURATION, "00:09") +
                           Helper::createXMLField(Helper::TIMEDATE, "17:45");
  fact("walk", call);
  char const* cursor = call.c_str();
  for (auto const& name :
       {Helper::NUMBER, Helper::CONNECTEDNUMBER, Helper::TIMEDATE, Helper::DURATION}) {
    auto const begin = Helper::createXMLBegin(name);
    auto const close = Helper::createXMLClose(name);
    std::string value;
    char const* const next = Helper::getXMLValue(cursor, begin, close, value);
    fact("step", begin, close, cursor - call.c_str(), next - call.c_str(), value);
    cursor = next;
  }
}

} // namespace

int main() {
  kind<MissedCallItem>("missed");
  kind<DialledCallItem>("dialled");
  kind<ReceivedCallItem>("received");
  kind<ForwardedCallItem>("forwarded");
  requests();
  answers();
  notifications();
  store();
  walk();
}
