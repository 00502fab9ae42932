// The table of operations. Each row is made from the types of the operation's parameters.
#include "operations/Operations.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <list>
#include <set>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace operations {
namespace {

template <class Parameter>
using Plain = std::remove_const_t<std::remove_reference_t<Parameter>>;
template <class Parameter>
constexpr bool isOutput =
    std::is_reference_v<Parameter> && !std::is_const_v<std::remove_reference_t<Parameter>>;

template <class Record, class Item>
constexpr bool belongsTo =
    std::is_same_v<Record, Item> || std::is_same_v<Record, std::deque<Item>> ||
    std::is_same_v<Record, InfoOf<Item>> || std::is_same_v<Record, std::list<InfoOf<Item>>>;
template <class Parameter>
constexpr int kindOf = belongsTo<Plain<Parameter>, Missed>      ? 0
                       : belongsTo<Plain<Parameter>, Dialled>   ? 1
                       : belongsTo<Plain<Parameter>, Received>  ? 2
                       : belongsTo<Plain<Parameter>, Forwarded> ? 3
                                                                : NO_KIND;
template <class Parameter>
constexpr bool isRecord = kindOf<Parameter> != NO_KIND;
template <class Parameter>
constexpr bool isText =
    std::is_same_v<Plain<Parameter>, std::string> || std::is_same_v<Parameter, char const*>;

template <class... Parameters>
constexpr int kindOfAny() {
  int kind = NO_KIND;
  (void)((kind = kindOf<Parameters>, kind != NO_KIND) || ...);
  return kind;
}

template <class First = void, class...>
constexpr bool startsWithText = isText<First>;
template <class First = void, class...>
constexpr bool startsAtCursor = std::is_same_v<First, char const*>;

// The output that is passed for a parameter.
template <class Parameter, std::size_t index, class Where>
auto& output(Where& out) {
  using Value = Plain<Parameter>;
  if constexpr (isRecord<Parameter>)
    return std::get<Value>(out.records);
  else if constexpr (std::is_same_v<Value, bool>)
    return out.flag;
  else if constexpr (std::is_same_v<Value, unsigned int>)
    return out.number;
  else if constexpr (std::is_same_v<Value, NumberType::NT>)
    return out.numberType;
  else if constexpr (index == 0)
    return out.edited;
  else
    return out.text;
}

// What is passed for a parameter.
template <class Parameter, std::size_t index, bool atCursor>
Parameter pass(Input const& in, Outputs& out) {
  using Value = Plain<Parameter>;
  if constexpr (isOutput<Parameter>)
    return output<Parameter, index>(out);
  else if constexpr (isRecord<Parameter>)
    return std::get<Value>(in.records);
  else if constexpr (std::is_same_v<Parameter, std::string>)
    return std::move(out.argument);
  else if constexpr (std::is_same_v<Parameter, char const*>)
    return (index == 0 ? in.text : in.name).c_str();
  else if constexpr (std::is_same_v<Value, std::string>)
    return index == 0 ? in.text : !atCursor ? in.name : index == 1 ? in.begin : in.close;
  else if constexpr (std::is_same_v<Value, std::set<std::string>>)
    return in.ids;
  else if constexpr (std::is_same_v<Value, bool>)
    return in.flag;
  else
    return static_cast<Parameter>(static_cast<std::int32_t>(in.number));
}

template <class Result>
void keep(Result&& result, Input const& in, Outputs& out) {
  using Value = std::decay_t<Result>;
  if constexpr (std::is_same_v<Value, std::string>)
    out.resultText = std::forward<Result>(result);
  else if constexpr (std::is_same_v<Value, char const*>)
    out.result = static_cast<std::int32_t>(result - in.text.c_str());
  else
    out.result = static_cast<std::int32_t>(result);
}

template <class Result, class... Parameters, std::size_t... index>
Operation make(char const* name, Result (*function)(Parameters...), std::index_sequence<index...>) {
  constexpr bool atCursor = startsAtCursor<Parameters...>;
  Operation made;
  made.name = name;
  made.kind = kindOfAny<Parameters...>();
  made.readsText = startsWithText<Parameters...>;
  made.writesRecords = made.kind != NO_KIND && !made.readsText;
  made.readsIds = (std::is_same_v<Plain<Parameters>, std::set<std::string>> || ...);
  made.run = [function](Input const& in, [[maybe_unused]] Outputs& out) {
    if constexpr (std::is_void_v<Result>)
      function(pass<Parameters, index, atCursor>(in, out)...);
    else
      keep(function(pass<Parameters, index, atCursor>(in, out)...), in, out);
  };
  made.feed = [](Outputs const& out, ResultHash& hash) {
    if constexpr (std::is_same_v<Result, std::string>)
      hash.feed(out.resultText);
    else if constexpr (!std::is_void_v<Result>)
      hash.feed(out.result);
    [[maybe_unused]] auto const feedOutput = [&](bool written, auto const& value) {
      if (written)
        hash.feed(value);
    };
    (feedOutput(isOutput<Parameters>, output<Parameters, index>(out)), ...);
  };
  return made;
}

template <class Result, class... Parameters>
Operation row(char const* name, Result (*function)(Parameters...)) {
  return make(name, function, std::index_sequence_for<Parameters...>());
}

// The row of an overloaded operation, chosen by its signature.
template <class Signature>
Operation overload(char const* name, Signature* function) {
  return row(name, function);
}

// The kind is part of the names, which only the preprocessor can vary.
#define JOURNAL_ROW(NAME) row(#NAME, &JournalServiceHelper::NAME)
#define JOURNAL_ROWS_OF_KIND(KIND)                                                                 \
  JOURNAL_ROW(createXML##KIND##CallItemBody), JOURNAL_ROW(createXML##KIND##CallInfoList),          \
      JOURNAL_ROW(getXML##KIND##CallInfo), JOURNAL_ROW(getXML##KIND##CallInfoList),                \
      overload<bool(char const*, KIND&)>("parseXML" #KIND "CallItem/cursor",                       \
                                         &JournalServiceHelper::parseXML##KIND##CallItem),         \
      overload<bool(std::string const&, KIND&)>("parseXML" #KIND "CallItem/text",                  \
                                                &JournalServiceHelper::parseXML##KIND##CallItem),  \
      overload<bool(std::string const&, std::deque<KIND>&)>(                                       \
          "parseXML" #KIND "CallList", &JournalServiceHelper::parseXML##KIND##CallList),           \
      overload<bool(std::string const&, std::deque<KIND>&, unsigned int&)>(                        \
          "parseXML" #KIND "CallList/handle", &JournalServiceHelper::parseXML##KIND##CallList),    \
      JOURNAL_ROW(reqGet##KIND##CallList), JOURNAL_ROW(reqDelete##KIND##Call),                     \
      JOURNAL_ROW(reqDelete##KIND##CallList), JOURNAL_ROW(read##KIND##CallList),                   \
      JOURNAL_ROW(delete##KIND##CallList), JOURNAL_ROW(respGet##KIND##CallList),                   \
      JOURNAL_ROW(obsReq##KIND##CallsUpdate)

} // namespace

std::vector<Operation> all() {
  using Text = std::string const&;
  using Event = CallLogEntryEvent;
  return {
      JOURNAL_ROW(createXMLBegin),
      JOURNAL_ROW(createXMLClose),
      overload<std::string(Text, Text)>("createXMLField/text",
                                        &JournalServiceHelper::createXMLField),
      overload<std::string(Text, char const*)>("createXMLField/literal",
                                               &JournalServiceHelper::createXMLField),
      overload<std::string(Text, unsigned int)>("createXMLField/number",
                                                &JournalServiceHelper::createXMLField),
      overload<std::string(Text, bool)>("createXMLField/flag",
                                        &JournalServiceHelper::createXMLField),
      JOURNAL_ROW(createXMLSchemaField),
      JOURNAL_ROW(createXMLEntryIDList),
      overload<char const*(char const*, Text, Text, std::string&)>(
          "getXMLValue/cursor,text", &JournalServiceHelper::getXMLValue),
      overload<char const*(char const*, Text, Text, bool&)>("getXMLValue/cursor,flag",
                                                            &JournalServiceHelper::getXMLValue),
      overload<bool(Text, Text, std::string&)>("getXMLValue/text",
                                               &JournalServiceHelper::getXMLValue),
      overload<bool(Text, Text, NumberType::NT&)>("getXMLValue/numberType",
                                                  &JournalServiceHelper::getXMLValue),
      overload<bool(Text, Text, bool&)>("getXMLValue/flag", &JournalServiceHelper::getXMLValue),
      overload<bool(Text, Text, unsigned int&)>("getXMLValue/number",
                                                &JournalServiceHelper::getXMLValue),
      JOURNAL_ROW(getAndRemoveXMLValue),
      overload<std::string(NumberType::NT)>("convertNumberType/write",
                                            &JournalServiceHelper::convertNumberType),
      overload<NumberType::NT(Text)>("convertNumberType/read",
                                     &JournalServiceHelper::convertNumberType),
      overload<std::string(Event::_TFormat)>("convertTimeFormat/write",
                                             &JournalServiceHelper::convertTimeFormat),
      overload<Event::_TFormat(Text)>("convertTimeFormat/read",
                                      &JournalServiceHelper::convertTimeFormat),
      overload<std::string(Event::_PresentationValue)>(
          "convertPresentationValue/write", &JournalServiceHelper::convertPresentationValue),
      overload<Event::_PresentationValue(Text)>("convertPresentationValue/read",
                                                &JournalServiceHelper::convertPresentationValue),
      overload<std::string(Event::_LogTarget)>("convertTargetLog/write",
                                               &JournalServiceHelper::convertTargetLog),
      overload<Event::_LogTarget(Text)>("convertTargetLog/read",
                                        &JournalServiceHelper::convertTargetLog),
      JOURNAL_ROW(respBool),
      JOURNAL_ROW(isNonFailureResponse),
      JOURNAL_ROW(addXMLHeaderFooter),
      JOURNAL_ROW(addSuccessResp),
      JOURNAL_ROW(getMethodFromXMLMsg),
      // It writes into the message, so it is given a copy, which is an output.
      row(
          "parseLastUniqueId",
          +[](std::string& message, std::string& uniqueId) {
            return JournalServiceHelper::parseLastUniqueId(message, uniqueId);
          }),
      JOURNAL_ROW(parseXMLEnabledStateItem),
      JOURNAL_ROWS_OF_KIND(Missed),
      JOURNAL_ROWS_OF_KIND(Dialled),
      JOURNAL_ROWS_OF_KIND(Received),
      JOURNAL_ROWS_OF_KIND(Forwarded),
      JOURNAL_ROW(parseXMLGetLastDialledNumber),
      JOURNAL_ROW(reqSetMissedCallListAsViewed),
      JOURNAL_ROW(reqGetLastDialledNumber),
      JOURNAL_ROW(reqSubscribe),
      JOURNAL_ROW(reqUnsubscribe),
      JOURNAL_ROW(reqRefreshCallLog),
      JOURNAL_ROW(readEnabledState),
      JOURNAL_ROW(obsReqMissedCallsCountUpdate),
      JOURNAL_ROW(obsReqMissedGroupCallsUpdate),
  };
}

#undef JOURNAL_ROWS_OF_KIND
#undef JOURNAL_ROW

} // namespace operations
