// Every rule of check with a message that breaks it and one that just does not.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>
#include <string>

#include "inspect/Explain.h"

namespace {

using namespace inspect;

std::string const declaration = R"(<?xml version="1.0" encoding="utf-8"?>)";
std::string const method = "<Method><getForwardedCallList></Method>";
std::string const handle = "<Handle>7</Handle>";
std::string const types =
    "<NumberType>MOBILE</NumberType><ConnectedNumberType>NO_ICON</ConnectedNumberType>";

std::string request(std::string const& more) {
  return declaration + "<Method><deleteMissedCallList></Method>" + more;
}
std::string list(std::string const& entries) {
  return method + entries + handle;
}
std::string entry(std::string const& fields, std::string const& calls = {}) {
  return "<Entry>" + fields + "<LogList>" + calls + "</LogList></Entry>";
}
std::string call(std::string const& fields) {
  return list(entry({}, "<Item>" + fields + "</Item>"));
}
std::string dialled(std::string const& name) {
  return "<Method><getDialledCallList></Method>" +
         entry({}, "<Item><NumberType>MOBILE</NumberType><ConnectedNumberPriority>True"
                   "</ConnectedNumberPriority><ConnectedNumberType>NO_ICON</ConnectedNumberType>"
                   "<TargetLog>OUT_BUSY</TargetLog><NumberPresentation>ALLOWED"
                   "</NumberPresentation>" +
                       name + "<TimeFormat>FORM_24</TimeFormat></Item>") +
         handle;
}
std::string missed(std::string const& viewed) {
  return "<Method><getMissedCallList></Method><Entry><Viewed>" + viewed +
         "</Viewed><LogList></LogList></Entry>" + handle;
}
std::string update(std::string const& action) {
  return declaration + "<Method><forwardedCallsUpdate></Method><LogList></LogList><ActionType>" +
         action + "</ActionType>" + handle;
}
std::string store(std::string const& schema, std::string const& reason) {
  return declaration + "<Schema name=\"" + schema + "\"><ReasonForMessage>" + reason +
         "</ReasonForMessage></Schema>";
}
std::string withNul(std::string text, std::string const& before) {
  return text.insert(text.find(before), 1, '\0');
}

std::string withoutLast(std::string const& element, std::string text) {
  return text.erase(text.rfind(element), element.size());
}

struct Case {
  RuleId rule;
  std::string breaks;
  std::string keeps;
};

Case const cases[] = {
    {RuleId::unknownMessage, "hello", "<Value>Success</Value>"},
    {RuleId::unknownMethod, declaration + "<Method><getAll></Method>", request("")},
    {RuleId::severalMethods, declaration + "<Method><subscribe><unsubscribe></Method>",
     declaration + "<Method><subscribe></Method>"},
    {RuleId::logNotTold, "<UniqueId>1</UniqueId><LogList></LogList>",
     "<UniqueId>1</UniqueId><Viewed>True</Viewed><LogList></LogList>"},
    {RuleId::byteOrderMark, "\xEF\xBB\xBF" + request(""), request("")},
    {RuleId::noDeclaration, "<Method><subscribe></Method>",
     declaration + "<Method><subscribe></Method>"},
    {RuleId::declaration, declaration + list(entry("")), list(entry(""))},
    {RuleId::nul, withNul(list(entry("")), "<Handle>"), list(entry(""))},
    {RuleId::notUtf8, list(entry("<UniqueId>\xFF</UniqueId>")),
     list(entry("<UniqueId>\xC3\xBF</UniqueId>"))},
    {RuleId::whiteSpace, method + "\n" + handle, method + handle + "\n"},
    {RuleId::text, method + "x" + handle, method + handle},
    {RuleId::failure, list(entry("<Surname>Failure</Surname>")),
     list(entry("<Surname>failure</Surname>"))},
    {RuleId::unknownElement, list(entry("<SurName>a</SurName>")),
     list(entry("<Surname>a</Surname>"))},
    {RuleId::misplaced, list(entry("<Viewed>True</Viewed>")), missed("True")},
    {RuleId::misplaced, declaration + "<Method><subscribe>" + handle + "</Method>", request("")},
    {RuleId::order, list(entry("<EntryId>1</EntryId><UniqueId>2</UniqueId>")),
     list(entry("<UniqueId>2</UniqueId><EntryId>1</EntryId>"))},
    {RuleId::passedOver,
     dialled("<NamePresentation>ALLOWED</NamePresentation><TimeFormat>FORM_PM</TimeFormat>"
             "<NamePresentation>ALLOWED</NamePresentation><TimeFormat>FORM_AM</TimeFormat>"),
     dialled("<NamePresentation>ALLOWED</NamePresentation>")},
    {RuleId::repeated, list(entry("<UniqueId>1</UniqueId><UniqueId>2</UniqueId>")),
     list(entry("<UniqueId>1</UniqueId>"))},
    {RuleId::missing, call("<NumberType>MOBILE</NumberType>"), call(types)},
    {RuleId::emptyPart, list("<Entry></Entry>"), list(entry(""))},
    {RuleId::unterminated, list(entry("<Surname>a")), list(entry("<Surname>a</Surname>"))},
    {RuleId::dropped, method + "<Entry>" + handle, list(entry(""))},
    {RuleId::merged, method + "<Entry><UniqueId>1</UniqueId>" + entry("") + handle,
     list(entry("") + entry(""))},
    {RuleId::strayClose, list(entry("a</Surname>")), list(entry("<Surname>a</Surname>"))},
    {RuleId::firstClose,
     declaration + "<Method><forwardedCallsUpdate></Method><LogList></LogList>0</ActionType>" +
         handle,
     update("0")},
    {RuleId::hiddenByClose,
     declaration + "<Method><missedCallsCountUpdate></Method></Value><Value>3</Value>",
     declaration + "<Method><missedCallsCountUpdate></Method><Value>3</Value></Value>"},
    {RuleId::hiddenByClose, update("0</ActionType></Handle><ActionType>0"), update("0")},
    {RuleId::holdsTag, list(entry("<Picture><UniqueId>7</UniqueId></Picture>")),
     list(entry("<Picture><b>7</b></Picture>"))},
    {RuleId::otherValue,
     withoutLast("<TimeFormat>FORM_24</TimeFormat>",
                 dialled("<NamePresentation>ALLOWED</NamePresentation><TimeFormat>FORM_PM"
                         "</TimeFormat><NamePresentation>ALLOWED</NamePresentation>")),
     dialled("<NamePresentation>ALLOWED</NamePresentation>")},
    {RuleId::notEscaped, list(entry("<Surname>a & b</Surname>")),
     list(entry("<Surname>a &amp; b</Surname>"))},
    {RuleId::notMember, call("<NumberType>Mobile</NumberType>"), call(types)},
    {RuleId::notFlag, missed("true"), missed("False")},
    {RuleId::numberForm, method + "<Handle>07</Handle>", method + "<Handle>-1</Handle>"},
    {RuleId::numberRange, method + "<Handle>2147483648</Handle>",
     method + "<Handle>2147483647</Handle>"},
    {RuleId::actionForm, update("10"), update("9")},
    {RuleId::outcomeForm, "<Value>success</Value>", "<Value>Failure</Value>"},
    {RuleId::reasonForm, store("CallLogSettings", "write_request"),
     store("CallLogSettings", "delete_request")},
    {RuleId::schemaForm, store("CallLogSetting", "read_request"),
     store("CallLogSettings", "read_request")},
    {RuleId::settingForm, "<CallLogEnabled>True</CallLogEnabled>",
     "<CallLogEnabled>false</CallLogEnabled>"},
    {RuleId::blocked, request("<EntryId>1</EntryId><EntryId></EntryId><EntryId>2</EntryId>"),
     request("<EntryId>1</EntryId><EntryId>2</EntryId>")},
};

bool isBroken(RuleId rule, std::string const& text) {
  auto const found = check(text);
  return std::any_of(found.begin(), found.end(),
                     [&](Finding const& finding) { return finding.rule == rule; });
}

TEST(Rules, AreBrokenByOneMessageAndKeptByAnother) {
  for (Case const& one : cases) {
    EXPECT_TRUE(isBroken(one.rule, one.breaks)) << ruleOf(one.rule).id << ": " << one.breaks;
    EXPECT_FALSE(isBroken(one.rule, one.keeps)) << ruleOf(one.rule).id << ": " << one.keeps;
  }
}

TEST(Rules, HaveACaseEach) {
  std::set<RuleId> named;
  for (Case const& one : cases)
    named.insert(one.rule);
  for (std::size_t at = 0; at < rules().size(); ++at)
    EXPECT_TRUE(rules()[at].severity == Severity::none || named.count(static_cast<RuleId>(at)) == 1)
        << rules()[at].id;
}

TEST(Rules, FindOncePerMessageWhatIsOneFault) {
  EXPECT_EQ(check("\xEF\xBB\xBF" + request("")).size(), 1u);
  EXPECT_EQ(check(method + "\n <Entry>\n <LogList>\n </LogList>\n</Entry>\n" + handle).size(), 1u);
  EXPECT_TRUE(check(request("") + "\n").empty());
}

} // namespace
