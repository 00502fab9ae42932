// The words of the messages: each against its own literal, and how they belong together.
#include <algorithm>
#include <set>
#include <type_traits>

#include <gtest/gtest.h>

#include "members/Enumerations.h"
#include "vocabulary/Constants.h"

namespace {

using J = JournalServiceHelper;
using vocabulary::endsWith;
using vocabulary::words;

static_assert(std::is_same_v<decltype(J::METHOD), std::string const>);
static_assert(std::is_same_v<decltype(J::TRUE), std::string const>);
static_assert(std::is_same_v<decltype(J::ENTRY_XML_BEGIN), std::string const>);

std::string literalOf(std::string const& name) {
  auto const* const found = std::find_if(std::begin(words), std::end(words),
                                         [&](auto const& word) { return word.name == name; });
  return found == std::end(words) ? "" : std::string(found->literal);
}

TEST(Vocabulary, SpellsEachWordExactly) {
  for (auto const& word : words)
    EXPECT_EQ(word.literal, *word.constant) << word.name;
}

TEST(Vocabulary, HasNoRowTwice) {
  std::set<std::string const*> constants;
  std::set<std::string_view> literals;
  for (auto const& word : words) {
    constants.insert(word.constant);
    literals.insert(word.literal);
  }
  EXPECT_EQ(std::size(words), constants.size());
  EXPECT_EQ(std::size(words), literals.size());
}

TEST(Vocabulary, IsPrintableAscii) {
  for (auto const& word : words)
    for (char c : *word.constant)
      EXPECT_TRUE(c >= ' ' && c <= '~') << word.literal;
}

// Names that one would expect to be spelled alike, but are not.
TEST(Vocabulary, KeepsTheDifferencesBetweenSimilarWords) {
  EXPECT_EQ("Firstname", J::FIRSTNAME);
  EXPECT_EQ("ConnectedFirstName", J::CONNECTEDFIRSTNAME);
  EXPECT_EQ("CallLogSettings", J::SETTINGS_SCHEMA);
  EXPECT_EQ("CallLogEnabledState", J::DAS_CALLLOGENABLEDSTATE);
  EXPECT_EQ("CallLogEnabled", J::CALL_LOG_ENABLED);
}

// A pair of tags is named after the constant that holds its element's name. Two are irregular:
// ENABLED belongs to CALL_LOG_ENABLED, and the name of Handle has no constant.
TEST(TagPairs, HoldTheirElementNameInBrackets) {
  int pairs = 0;
  for (auto const& word : words) {
    if (!endsWith(word.name, "_XML_BEGIN"))
      continue;
    auto const name = std::string(word.name.substr(0, word.name.find("_XML_BEGIN")));
    auto const element = name == "ENABLED"  ? "CallLogEnabled"
                         : name == "HANDLE" ? "Handle"
                                            : literalOf(name);
    EXPECT_EQ("<" + element + ">", word.literal) << name;
    EXPECT_EQ("</" + element + ">", literalOf(name + "_XML_CLOSE")) << name;
    EXPECT_EQ(*word.constant, J::createXMLBegin(element));
    EXPECT_EQ(literalOf(name + "_XML_CLOSE"), J::createXMLClose(element));
    ++pairs;
  }
  EXPECT_EQ(pairs, std::count_if(std::begin(words), std::end(words), [](auto const& word) {
              return endsWith(word.name, "_XML_CLOSE");
            }));
}

template <class Enumeration>
void expectConstants() {
  for (auto const& enumerator : members::enumerators<Enumeration>)
    EXPECT_EQ(enumerator.name, literalOf(std::string(enumerator.name)));
}

TEST(EnumerationTexts, AreConstantsThatHoldTheirOwnName) {
  expectConstants<NumberType::NT>();
  expectConstants<CallLogEntryEvent::_TFormat>();
  expectConstants<CallLogEntryEvent::_PresentationValue>();
  expectConstants<CallLogEntryEvent::_LogTarget>();
}

// What method recognition relies on.
TEST(MethodTags, AreOpeningTagsOfLowerCaseNames) {
  for (auto const& tag : vocabulary::methodTags()) {
    ASSERT_GT(tag.size(), 3u);
    EXPECT_EQ('<', tag.front());
    EXPECT_TRUE(tag[1] >= 'a' && tag[1] <= 'z') << tag;
    EXPECT_EQ(tag.size() - 1, tag.find('>')) << tag;
    EXPECT_EQ(std::string::npos, tag.find('/')) << tag;
  }
}

TEST(MethodTags, NoneIsPartOfAnother) {
  for (auto const& inner : vocabulary::methodTags())
    for (auto const& outer : vocabulary::methodTags())
      EXPECT_EQ(inner == outer, outer.find(inner) != std::string::npos) << inner << outer;
}

} // namespace
