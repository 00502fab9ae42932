// The library's operations, each bound by the types of its parameters.
//
// Python passes what C++ takes, but for the lists that the library only fills. The result is what
// C++ returns and, behind it, all that it changes in place; in a tuple where that is more than one.
#include "LowLevel.h"

#include <tuple>
#include <type_traits>
#include <utility>

#include "Casters.h"

namespace python {
namespace {

using Api = JournalServiceHelper;

template <class Parameter>
using Plain = std::remove_const_t<std::remove_reference_t<Parameter>>;
template <class Parameter>
constexpr bool isText =
    std::is_same_v<Plain<Parameter>, std::string> || std::is_same_v<Parameter, char const*>;
template <class Parameter>
constexpr bool isOutput =
    std::is_reference_v<Parameter> && !std::is_const_v<std::remove_reference_t<Parameter>>;

template <class Value>
constexpr bool isList = false;
template <class Record>
constexpr bool isList<std::list<Record>> = true;
template <class Record>
constexpr bool isList<std::deque<Record>> = true;
/// Whether the library only fills it, so that Python does not pass it.
template <class Parameter>
constexpr bool isFilled = isOutput<Parameter>&& isList<Plain<Parameter>>;

/// What holds an argument during a call, and how Python sees it.
template <class Parameter>
using Held = std::conditional_t<isText<Parameter>, std::string, Plain<Parameter>>;
template <class Parameter>
using Seen = std::conditional_t<
    isText<Parameter>, Text,
    std::conditional_t<std::is_same_v<Plain<Parameter>, bool>, Flag, Plain<Parameter>>>;

std::string held(Text&& text) {
  return std::move(text.bytes);
}
bool held(Flag&& flag) {
  return flag.value;
}
template <class Value>
Value held(Value&& value) {
  return std::forward<Value>(value);
}
Text seen(std::string&& bytes) {
  return {std::move(bytes)};
}
Flag seen(bool&& value) {
  return {value};
}
template <class Value>
Value seen(Value&& value) {
  return std::forward<Value>(value);
}

template <class Parameter>
Parameter pass(Held<Parameter>& value) {
  if constexpr (std::is_same_v<Parameter, char const*>)
    return value.c_str();
  else
    return static_cast<Parameter>(value);
}

/// How many arguments Python passes in front of the one at this index.
template <std::size_t index, class... Parameters>
constexpr std::size_t placeOf() {
  std::size_t place = 0, at = 0;
  ((place += at++ < index && !isFilled<Parameters> ? 1 : 0), ...);
  return place;
}

template <class... Parameters>
using Passed = decltype(std::tuple_cat(
    std::conditional_t<isFilled<Parameters>, std::tuple<>, std::tuple<Seen<Parameters>>>()...));

// ---- The result

template <class Parameter>
auto changed(Held<Parameter>& value) {
  if constexpr (isOutput<Parameter>)
    return std::tuple<Seen<Parameter>>(seen(std::move(value)));
  else
    return std::tuple<>();
}

/// A position in a text becomes its offset.
template <class Result>
auto returned(Result&& result, [[maybe_unused]] char const* text) {
  if constexpr (std::is_same_v<std::decay_t<Result>, char const*>)
    return std::tuple<std::size_t>(static_cast<std::size_t>(result - text));
  else
    return std::tuple<Seen<std::decay_t<Result>>>(seen(std::forward<Result>(result)));
}

template <class Only>
Only unwrapped(std::tuple<Only>&& single) {
  return std::get<0>(std::move(single));
}
template <class... Several>
std::tuple<Several...> unwrapped(std::tuple<Several...>&& all) {
  return std::move(all);
}

template <class First = void, class... Others>
char const* cursorIn(std::tuple<First, Others...>& values) {
  if constexpr (std::is_same_v<First, std::string>)
    return std::get<0>(values).c_str();
  else
    return nullptr;
}

// ---- Binding

template <class Result, class... Parameters, std::size_t... index, class... Given>
void bind(py::module_& module, char const* name, Result (*function)(Parameters...),
          std::index_sequence<index...>, std::tuple<Given...> const*) {
  module.def(name, [function](Given... given) {
    [[maybe_unused]] auto all = std::forward_as_tuple(std::move(given)...);
    [[maybe_unused]] auto const take = [&](auto at, auto filled) {
      if constexpr (decltype(filled)::value)
        return std::tuple_element_t<decltype(at)::value, std::tuple<Held<Parameters>..., int>>();
      else
        return held(std::get<placeOf<decltype(at)::value, Parameters...>()>(std::move(all)));
    };
    std::tuple<Held<Parameters>...> values{take(std::integral_constant<std::size_t, index>(),
                                                std::bool_constant<isFilled<Parameters>>())...};
    if constexpr (std::is_void_v<Result>) {
      function(pass<Parameters>(std::get<index>(values))...);
      return unwrapped(std::tuple_cat(changed<Parameters>(std::get<index>(values))...));
    } else if constexpr (sizeof...(Parameters) == 0) {
      return unwrapped(returned(function(), nullptr));
    } else {
      auto result =
          returned(function(pass<Parameters>(std::get<index>(values))...), cursorIn(values));
      return unwrapped(
          std::tuple_cat(std::move(result), changed<Parameters>(std::get<index>(values))...));
    }
  });
}

template <class Result, class... Parameters>
void bind(py::module_& module, char const* name, Result (*function)(Parameters...)) {
  bind(module, name, function, std::index_sequence_for<Parameters...>(),
       static_cast<Passed<Parameters...> const*>(nullptr));
}

/// One of several operations of a name, chosen by its signature.
template <class Signature>
void overload(py::module_& module, char const* name, Signature* function) {
  bind(module, name, function);
}

#define BIND(name) bind(module, #name, &Api::name)
#define OVERLOAD(name, ...) overload<__VA_ARGS__>(module, #name, &Api::name)

using Bytes = std::string const&;

// The kind is part of the names, which only the preprocessor can vary.
#define BIND_KIND(Kind)                                                                            \
  BIND(reqGet##Kind##CallList);                                                                    \
  BIND(reqDelete##Kind##Call);                                                                     \
  BIND(reqDelete##Kind##CallList);                                                                 \
  BIND(read##Kind##CallList);                                                                      \
  BIND(delete##Kind##CallList);                                                                    \
  BIND(respGet##Kind##CallList);                                                                   \
  BIND(obsReq##Kind##CallsUpdate);                                                                 \
  OVERLOAD(parseXML##Kind##CallList, bool(Bytes, std::deque<Kind##CallItem>&));                    \
  OVERLOAD(parseXML##Kind##CallList, bool(Bytes, std::deque<Kind##CallItem>&, unsigned int&));     \
  OVERLOAD(parseXML##Kind##CallItem, bool(Bytes, Kind##CallItem&));                                \
  BIND(getXML##Kind##CallInfoList);                                                                \
  BIND(getXML##Kind##CallInfo);                                                                    \
  BIND(createXML##Kind##CallItemBody);                                                             \
  BIND(createXML##Kind##CallInfoList)

void bindElements(py::module_& module) {
  OVERLOAD(createXMLField, std::string(Bytes, bool));
  OVERLOAD(createXMLField, std::string(Bytes, unsigned int));
  OVERLOAD(createXMLField, std::string(Bytes, Bytes));
  BIND(createXMLEntryIDList);
  BIND(createXMLBegin);
  BIND(createXMLClose);
  BIND(createXMLSchemaField);
  OVERLOAD(getXMLValue, bool(Bytes, Bytes, NumberType::NT&));
  OVERLOAD(getXMLValue, bool(Bytes, Bytes, bool&));
  OVERLOAD(getXMLValue, bool(Bytes, Bytes, unsigned int&));
  OVERLOAD(getXMLValue, bool(Bytes, Bytes, std::string&));
  OVERLOAD(getXMLValue, char const*(char const*, Bytes, Bytes, bool&));
  OVERLOAD(getXMLValue, char const*(char const*, Bytes, Bytes, std::string&));
  BIND(getAndRemoveXMLValue);
}

template <class Enumeration>
void bindConversions(py::module_& module, char const* name, std::string (*write)(Enumeration),
                     Enumeration (*read)(Bytes)) {
  bind(module, name, write);
  bind(module, name, read);
}

} // namespace

void addLowLevel(py::module_& module) {
  BIND_KIND(Missed);
  BIND_KIND(Dialled);
  BIND_KIND(Received);
  BIND_KIND(Forwarded);
  BIND(reqSetMissedCallListAsViewed);
  BIND(reqGetLastDialledNumber);
  BIND(reqSubscribe);
  BIND(reqUnsubscribe);
  BIND(reqRefreshCallLog);
  BIND(readEnabledState);
  BIND(parseXMLGetLastDialledNumber);
  BIND(parseXMLEnabledStateItem);
  BIND(isNonFailureResponse);
  BIND(getMethodFromXMLMsg);
  BIND(addSuccessResp);
  BIND(respBool);
  BIND(addXMLHeaderFooter);
  BIND(obsReqMissedCallsCountUpdate);
  BIND(obsReqMissedGroupCallsUpdate);
  // It writes into the message, so what it changes is the message too.
  bind(
      module, "parseLastUniqueId", +[](std::string& message, std::string& uniqueId) {
        return Api::parseLastUniqueId(message, uniqueId);
      });
  bindElements(module);
  bindConversions<NumberType::NT>(module, "convertNumberType", &Api::convertNumberType,
                                  &Api::convertNumberType);
  bindConversions<CallLogEntryEvent::_TFormat>(module, "convertTimeFormat", &Api::convertTimeFormat,
                                               &Api::convertTimeFormat);
  bindConversions<CallLogEntryEvent::_PresentationValue>(module, "convertPresentationValue",
                                                         &Api::convertPresentationValue,
                                                         &Api::convertPresentationValue);
  bindConversions<CallLogEntryEvent::_LogTarget>(module, "convertTargetLog", &Api::convertTargetLog,
                                                 &Api::convertTargetLog);
#define WORD(NAME, text) module.attr(#NAME) = textOf(Api::NAME);
#define ELEMENT(NAME, text)                                                                        \
  WORD(NAME, text)                                                                                 \
  module.attr(#NAME "_XML_BEGIN") = textOf(Api::NAME##_XML_BEGIN);                                 \
  module.attr(#NAME "_XML_CLOSE") = textOf(Api::NAME##_XML_CLOSE);
#include "vocabulary/Words.def"
  module.attr("HANDLE_XML_BEGIN") = textOf(Api::HANDLE_XML_BEGIN);
  module.attr("HANDLE_XML_CLOSE") = textOf(Api::HANDLE_XML_CLOSE);
  module.attr("ENABLED_XML_BEGIN") = textOf(Api::ENABLED_XML_BEGIN);
  module.attr("ENABLED_XML_CLOSE") = textOf(Api::ENABLED_XML_CLOSE);
}

} // namespace python
