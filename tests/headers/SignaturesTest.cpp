// The signatures that users compile against.
#include <set>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "ClientUtils.h"
#include "JournalServiceHelper.h"

namespace {

using J = JournalServiceHelper;
using Text = std::string;
using Ids = std::set<std::string>;

template <class Signature>
constexpr bool has(Signature*) {
  return true;
}
template <class Actual, class Expected>
constexpr bool is = std::is_same_v<Actual, Expected*>;

static_assert(!std::is_default_constructible_v<J>, "there are no objects of it");
static_assert(!std::is_default_constructible_v<ClientUtils>, "there are no objects of it");

static_assert(is<decltype(&J::createXMLBegin), Text(Text const&)>);
static_assert(is<decltype(&J::createXMLClose), Text(Text const&)>);
static_assert(is<decltype(&J::createXMLSchemaField), Text(Text const&)>);
static_assert(is<decltype(&J::createXMLEntryIDList), Text(Ids const&)>);
static_assert(is<decltype(&J::getAndRemoveXMLValue), bool(Text&, Text const&, Text&)>);
static_assert(is<decltype(&J::respBool), Text(bool)>);
static_assert(is<decltype(&J::isNonFailureResponse), bool(Text const&)>);
static_assert(is<decltype(&J::addXMLHeaderFooter), void(Text&, Text const&)>);
static_assert(is<decltype(&J::addSuccessResp), bool(Text&)>);
static_assert(is<decltype(&J::getMethodFromXMLMsg), J::MethodCode(Text const&)>);
static_assert(is<decltype(&J::parseLastUniqueId), bool(Text const&, Text&)>);
static_assert(is<decltype(&J::parseXMLEnabledStateItem), bool(Text const&)>);
static_assert(is<decltype(&J::reqSubscribe), Text()>);
static_assert(is<decltype(&J::reqDeleteMissedCall), Text(Text const&)>);
static_assert(is<decltype(&J::reqSetMissedCallListAsViewed), Text(Ids const&)>);
static_assert(is<decltype(&J::readEnabledState), Text()>);
static_assert(is<decltype(&ClientUtils::escapeXMLString), Text(Text const&)>);
static_assert(is<decltype(&ClientUtils::unescapeXMLString), Text(Text const&)>);
static_assert(is<decltype(&ClientUtils::itos), Text(int)>);

// Of overloaded operations each form must be there under its own argument list.
static_assert(has<Text(Text const&, Text const&)>(&J::createXMLField));
static_assert(has<Text(Text const&, unsigned int)>(&J::createXMLField));
static_assert(has<Text(Text const&, bool)>(&J::createXMLField));
static_assert(has<Text(NumberType::NT)>(&J::convertNumberType));
static_assert(has<NumberType::NT(Text const&)>(&J::convertNumberType));
static_assert(has<CallLogEntryEvent::_TFormat(Text const&)>(&J::convertTimeFormat));
static_assert(has<Text(CallLogEntryEvent::_LogTarget)>(&J::convertTargetLog));
static_assert(has<bool(Text const&, Text const&, Text&)>(&J::getXMLValue));
static_assert(has<bool(Text const&, Text const&, bool&)>(&J::getXMLValue));
static_assert(has<bool(Text const&, Text const&, unsigned int&)>(&J::getXMLValue));
static_assert(has<bool(Text const&, Text const&, NumberType::NT&)>(&J::getXMLValue));
static_assert(has<char const*(char const*, Text const&, Text const&, Text&)>(&J::getXMLValue));
static_assert(has<char const*(char const*, Text const&, Text const&, bool&)>(&J::getXMLValue));

// Each kind of argument reaches the overload that is meant for it.
TEST(Signatures, SendEachValueToItsOwnOverload) {
  std::string const text = "1";
  bool const flag = true;
  unsigned int const number = 1;
  EXPECT_EQ("<N>1</N>", J::createXMLField("N", text));
  EXPECT_EQ("<N>1</N>", J::createXMLField("N", "1"));
  EXPECT_EQ("<N>1</N>", J::createXMLField("N", number));
  EXPECT_EQ("<N>True</N>", J::createXMLField("N", flag));
}

// A literal as the message makes a whole-message read, and two tags a read at a cursor.
TEST(Signatures, TellTheExtractorsApartByTheirArguments) {
  std::string value;
  EXPECT_TRUE(J::getXMLValue("-<N>1</N>", "N", value));
  EXPECT_EQ("1", value);
  char const* const message = "<N>2</N>";
  EXPECT_EQ(message + 8, J::getXMLValue(message, "<N>", "</N>", value));
  EXPECT_EQ("2", value);
}

} // namespace
