#include "inspect/Values.h"

#include <algorithm>

#include "ClientUtils.h"
#include "inspect/Tags.h"
#include "vocabulary/Words.h"

namespace inspect {
namespace {

namespace word = journal::word;
using Found = std::optional<RuleId>;

Type typeOf(Content content) {
  switch (content) {
  case Content::flag:
    return Type::flag;
  case Content::numberType:
    return Type::numberType;
  case Content::timeFormat:
    return Type::timeFormat;
  case Content::presentation:
    return Type::presentation;
  default:
    return Type::targetLog;
  }
}

bool isOneOf(Names names, std::string_view raw) {
  return std::find(names.begin(), names.end(), raw) != names.end();
}

bool isBeyond32Bits(std::string_view text) {
  auto at = std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size());
  bool const negative = at < text.size() && text[at] == '-';
  if (negative || (at < text.size() && text[at] == '+'))
    ++at;
  auto digits = text.substr(at, text.find_first_not_of(word::DIGITS, at) - at);
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  std::string_view const most = negative ? "2147483648" : "2147483647";
  return digits.size() > most.size() || (digits.size() == most.size() && digits > most);
}

/// Writers print the value that readers get.
Found judgeNumber(std::string_view raw, std::optional<std::string> const& stored) {
  if (isBeyond32Bits(raw))
    return RuleId::numberRange;
  if (!stored)
    return {};
  std::uint32_t number = 0;
  for (char const digit : *stored)
    number = number * 10 + static_cast<std::uint32_t>(digit - '0');
  return ClientUtils::itos(static_cast<int>(number)) == raw ? Found() : RuleId::numberForm;
}

/// Writers escape five characters: escaping what is read gives the text again.
Found judgeEscaped(std::string_view raw) {
  auto const escaped =
      ClientUtils::escapeXMLString(ClientUtils::unescapeXMLString(std::string(raw)));
  return escaped == raw ? Found() : RuleId::notEscaped;
}

Found when(bool broken, RuleId rule) {
  return broken ? Found(rule) : Found();
}

} // namespace

Found judge(Row const& row, std::string_view raw, std::optional<std::string> const& stored) {
  switch (row.content) {
  case Content::part:
    return {};
  case Content::text:
    return row.escaped ? judgeEscaped(raw) : Found();
  case Content::flag:
    return when(!isOneOf(namesOf(Type::flag), raw), RuleId::notFlag);
  case Content::number:
    return judgeNumber(raw, stored);
  case Content::action:
    return when(raw.size() != 1 || word::DIGITS.find(raw) == std::string_view::npos,
                RuleId::actionForm);
  case Content::outcome:
    return when(raw != word::SUCCESS && raw != word::FAILURE, RuleId::outcomeForm);
  case Content::reason:
    return when(raw != word::READREQUEST && raw != word::DELETEREQUEST, RuleId::reasonForm);
  case Content::enabled:
    return when(raw != word::ENABLED_TRUE && raw != "false" && !raw.empty(), RuleId::settingForm);
  default:
    return when(!isOneOf(namesOf(typeOf(row.content)), raw), RuleId::notMember);
  }
}

bool holdsElement(std::string_view raw) {
  for (Tag tag = nextTag(raw, 0); tag; tag = nextTag(raw, tag.end))
    if (findElement(tag.name) != nullptr)
      return true;
  return false;
}

bool isSchema(std::string_view name) {
  for (auto const known :
       {word::SETTINGS_SCHEMA, word::DAS_CALLLOGMISSEDCALLS, word::DAS_CALLLOGDIALLEDCALLS,
        word::DAS_CALLLOGRECEIVEDCALLS, word::DAS_CALLLOGFORWARDEDCALLS})
    if (known == name)
      return true;
  return false;
}

} // namespace inspect
