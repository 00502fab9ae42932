// The comparison of what reads and writes single elements, words and messages.
#include "differential/Comparison.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "ClientUtils.h"
#include "differential/Shown.h"
#include "reference/Reference.h"
#include "vocabulary/Constants.h"

namespace comparison {
namespace {

using Library = JournalServiceHelper;

// Compares the results of one operation. The description is built only when they differ.
#define JOURNAL_COMPARE(OPERATION, INPUT, LIBRARY, REFERENCE)                                      \
  if (auto const library = (LIBRARY), reference = (REFERENCE); library != reference)               \
  return difference(OPERATION, INPUT, library, reference)

#define JOURNAL_COMPARE_CALL(CALL, INPUT)                                                          \
  JOURNAL_COMPARE(#CALL, INPUT, Library::CALL, Reference::CALL)

// Results with their outputs, which are not empty before the call.

template <class Operations, class Value>
std::pair<long long, Value> atCursor(char const* text, std::string const& begin,
                                     std::string const& close, Value value) {
  auto const* const cursor = Operations::getXMLValue(text, begin, close, value);
  return {cursor - text, std::move(value)};
}

template <class Operations, class Value>
std::pair<bool, Value> fromMessage(std::string const& text, std::string const& name, Value value) {
  bool const found = Operations::getXMLValue(text, name, value);
  return {found, std::move(value)};
}

template <class Operations>
std::pair<bool, std::pair<std::string, std::string>> cutOut(std::string text,
                                                            std::string const& name) {
  std::string value = "before";
  bool const found = Operations::getAndRemoveXMLValue(text, name, value);
  return {found, {std::move(text), std::move(value)}};
}

template <class Operations>
std::pair<bool, std::pair<std::string, std::string>> lastUniqueId(std::string message) {
  std::string uniqueId = "before";
  bool const found = Operations::parseLastUniqueId(message, uniqueId);
  return {found, {std::move(message), std::move(uniqueId)}};
}

template <class Operations>
std::string wrapped(std::string message, std::string const& schemaName) {
  Operations::addXMLHeaderFooter(message, schemaName);
  return message;
}

template <class Operations>
std::pair<bool, std::string> acknowledged(std::string message) {
  bool const result = Operations::addSuccessResp(message);
  return {result, std::move(message)};
}

template <class Value>
Difference compareAtCursor(char const* text, std::string const& name, Value const& before) {
  auto const begin = "<" + name + ">";
  auto const close = "</" + name + ">";
  JOURNAL_COMPARE("at the cursor, " + begin, text,
                  (atCursor<Library, Value>(text, begin, close, before)),
                  (atCursor<Reference, Value>(text, begin, close, before)));
  return {};
}

// From the start of the text, and from the first begin tag, where the cursor has to move.
template <class Value>
Difference compareAtCursors(std::string const& text, std::string const& name, Value const& before) {
  auto const at = text.find("<" + name + ">");
  if (at != 0 && at != std::string::npos)
    if (auto found = compareAtCursor(text.c_str() + at, name, before); !found.empty())
      return found;
  return compareAtCursor(text.c_str(), name, before);
}

template <class Value>
Difference compareFromMessage(std::string const& text, std::string const& name,
                              Value const& before) {
  JOURNAL_COMPARE("from the message, " + name, text,
                  (fromMessage<Library, Value>(text, name, before)),
                  (fromMessage<Reference, Value>(text, name, before)));
  return {};
}

Difference compareConversions(std::string const& text) {
  JOURNAL_COMPARE_CALL(convertNumberType(text), text);
  JOURNAL_COMPARE_CALL(convertTimeFormat(text), text);
  JOURNAL_COMPARE_CALL(convertPresentationValue(text), text);
  JOURNAL_COMPARE_CALL(convertTargetLog(text), text);
  return {};
}

std::string const* nameCalled(std::string_view name) {
  auto const& names = vocabulary::elementNames();
  auto const found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? nullptr : &*found;
}

} // namespace

void namesIn(std::string const& text, std::vector<std::string const*>& names) {
  names.clear();
  std::string_view rest = text;
  for (auto at = rest.find('<'); at != std::string_view::npos; at = rest.find('<')) {
    rest.remove_prefix(at + 1);
    bool const closes = !rest.empty() && rest.front() == '/';
    auto const end = rest.find('>');
    if (end == std::string_view::npos)
      return;
    auto const* const name = nameCalled(rest.substr(closes ? 1 : 0, end - (closes ? 1 : 0)));
    if (name != nullptr && std::find(names.begin(), names.end(), name) == names.end())
      names.push_back(name);
  }
}

Difference compareElement(std::string const& text, std::string const& name, Reading reading) {
  // The flag starts as true or as false, so that one that is not set is noticed in some texts.
  bool const flag = text.size() % 2 == 0;
  switch (reading) {
  case Reading::textAtCursor:
    return compareAtCursors(text, name, std::string("before"));
  case Reading::flagAtCursor:
    return compareAtCursors(text, name, flag);
  case Reading::text:
    return compareFromMessage(text, name, std::string("before"));
  case Reading::numberType:
    return compareFromMessage(text, name, NumberType::MOBILE);
  case Reading::flag:
    return compareFromMessage(text, name, flag);
  case Reading::number:
    return compareFromMessage(text, name, 77U);
  case Reading::cutOut:
    JOURNAL_COMPARE("cut out " + name, text, cutOut<Library>(text, name),
                    cutOut<Reference>(text, name));
  }
  return {};
}

Difference compareElement(std::string const& text, std::string const& name) {
  for (int reading = 0; reading < READINGS; ++reading)
    if (auto found = compareElement(text, name, static_cast<Reading>(reading)); !found.empty())
      return found;
  return {};
}

Difference compareMessage(std::string const& text, Whole operation) {
  switch (operation) {
  case Whole::method:
    JOURNAL_COMPARE_CALL(getMethodFromXMLMsg(text), text);
    break;
  case Whole::failure:
    JOURNAL_COMPARE_CALL(isNonFailureResponse(text), text);
    break;
  case Whole::setting:
    JOURNAL_COMPARE_CALL(parseXMLEnabledStateItem(text), text);
    break;
  case Whole::lastUniqueId:
    JOURNAL_COMPARE("parseLastUniqueId", text, lastUniqueId<Library>(text),
                    lastUniqueId<Reference>(text));
    break;
  case Whole::envelope:
    JOURNAL_COMPARE("addXMLHeaderFooter without a name", text, wrapped<Library>(text, ""),
                    wrapped<Reference>(text, ""));
    break;
  case Whole::schema:
    JOURNAL_COMPARE("addXMLHeaderFooter with a name", text, wrapped<Library>(text, "Name\"<&"),
                    wrapped<Reference>(text, "Name\"<&"));
    break;
  case Whole::success:
    JOURNAL_COMPARE("addSuccessResp", text, acknowledged<Library>(text),
                    acknowledged<Reference>(text));
  }
  return {};
}

Difference compareMessage(std::string const& text) {
  for (int operation = 0; operation < WHOLES; ++operation)
    if (auto found = compareMessage(text, static_cast<Whole>(operation)); !found.empty())
      return found;
  return {};
}

Difference compareEscaped(std::string const& text) {
  JOURNAL_COMPARE("escapeXMLString", text, ClientUtils::escapeXMLString(text),
                  Reference::escapeXMLString(text));
  return {};
}

Difference compareUnescaped(std::string const& text) {
  JOURNAL_COMPARE("unescapeXMLString", text, ClientUtils::unescapeXMLString(text),
                  Reference::unescapeXMLString(text));
  return {};
}

Difference compareEscaping(std::string const& text) {
  if (auto found = compareEscaped(text); !found.empty())
    return found;
  if (auto found = compareUnescaped(text); !found.empty())
    return found;
  JOURNAL_COMPARE("unescaping what was escaped", text,
                  ClientUtils::unescapeXMLString(ClientUtils::escapeXMLString(text)), text);
  return {};
}

Difference compareWord(std::string const& text) {
  if (auto found = compareConversions(text); !found.empty())
    return found;
  if (auto found = compareEscaping(text); !found.empty())
    return found;
  JOURNAL_COMPARE_CALL(createXMLBegin(text), text);
  JOURNAL_COMPARE_CALL(createXMLClose(text), text);
  JOURNAL_COMPARE_CALL(createXMLField("Number", text), text);
  JOURNAL_COMPARE_CALL(createXMLField("Number", text.c_str()), text);
  JOURNAL_COMPARE_CALL(createXMLField(text, text), text);
  JOURNAL_COMPARE_CALL(createXMLField(text, true), text);
  JOURNAL_COMPARE_CALL(createXMLField(text, 4294967295U), text);
  JOURNAL_COMPARE_CALL(createXMLSchemaField(text), text);
  JOURNAL_COMPARE("addXMLHeaderFooter around nothing", text, wrapped<Library>("", text),
                  wrapped<Reference>("", text));
  return {};
}

Difference compareNumber(int value) {
  auto const input = std::to_string(value);
  auto const number = static_cast<unsigned int>(value);
  JOURNAL_COMPARE("itos", input, ClientUtils::itos(value), Reference::itos(value));
  JOURNAL_COMPARE_CALL(convertNumberType(static_cast<NumberType::NT>(value)), input);
  JOURNAL_COMPARE_CALL(convertTimeFormat(static_cast<CallLogEntryEvent::_TFormat>(value)), input);
  JOURNAL_COMPARE_CALL(
      convertPresentationValue(static_cast<CallLogEntryEvent::_PresentationValue>(value)), input);
  JOURNAL_COMPARE_CALL(convertTargetLog(static_cast<CallLogEntryEvent::_LogTarget>(value)), input);
  JOURNAL_COMPARE_CALL(createXMLField("Value", number), input);
  JOURNAL_COMPARE_CALL(createXMLField("Viewed", value % 2 == 0), input);
  JOURNAL_COMPARE_CALL(respBool(value % 2 == 0), input);
  JOURNAL_COMPARE_CALL(obsReqMissedCallsCountUpdate(number), input);
  JOURNAL_COMPARE_CALL(obsReqMissedGroupCallsUpdate(number), input);
  return {};
}

namespace {

// The elements that are read from this text.
std::vector<std::string const*> const& elementsInTurn(std::string const& text,
                                                      std::string const& about, unsigned int turn) {
  static thread_local std::vector<std::string const*> chosen;
  static thread_local std::vector<std::string const*> held;
  auto const& all = vocabulary::elementNames();
  namesIn(about, chosen);
  namesIn(text, held);
  if (!held.empty())
    chosen.push_back(held[turn % held.size()]);
  chosen.push_back(&all[turn % all.size()]);
  return chosen;
}

} // namespace

Difference compareReading(std::string const& text, Kind own, std::string const& about,
                          unsigned int turn) {
  auto const inTurn = static_cast<Reading>(turn % READINGS);
  for (auto const* const name : elementsInTurn(text, about, turn))
    for (auto const reading : {Reading::textAtCursor, Reading::text, inTurn})
      if (auto found = compareElement(text, *name, reading); !found.empty())
        return found;
  if (auto found = compareMessage(text); !found.empty())
    return found;
  // Filled outputs show more: whether a field is set, and to what.
  auto const outputs = turn % 4 == 0 ? Outputs::fresh : Outputs::filled;
  if (auto found = compareDecoders(text, own, outputs); !found.empty())
    return found;
  auto const other = (static_cast<int>(own) + 1 + static_cast<int>(turn % 3)) % KINDS;
  auto const level = static_cast<Level>(turn / 3 % LEVELS);
  return compareDecoder(text, static_cast<Kind>(other), level, outputs);
}

} // namespace comparison
