// Single elements, read at a cursor: the search, the value and the cursor that is returned.
#include <cstddef>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;

struct Row {
  char const* what;
  std::string text;
  std::string begin;
  std::string close;
  std::string value;
  std::size_t cursor; // how far the cursor moves; 0 when it stays
};

void expectRow(Row const& row) {
  SCOPED_TRACE(row.what);
  std::string const before = row.text;
  std::string value = "left over";
  char const* const cursor = J::getXMLValue(row.text.c_str(), row.begin, row.close, value);
  EXPECT_EQ(row.value, value);
  EXPECT_EQ(row.cursor, static_cast<std::size_t>(cursor - row.text.c_str()));
  EXPECT_EQ(before, row.text);
}

Row entry(char const* what, std::string text, std::string value, std::size_t cursor) {
  return {what, std::move(text), "<Entry>", "</Entry>", std::move(value), cursor};
}

TEST(CursorText, IsTakenFromTheFirstElement) {
  Row const rows[] = {
      entry("alone", "<Entry>x</Entry>", "x", 16),
      entry("the first of two", "<Entry>x</Entry><Entry>y</Entry>", "x", 16),
      entry("text behind", "<Entry>x</Entry> tail", "x", 16),
      entry("empty value", "<Entry></Entry>z", "", 15),
      entry("empty value, a full one behind", "<Entry></Entry><Entry>y</Entry>", "", 15),
      entry("blank value", "<Entry> </Entry>", " ", 16),
      entry("another element inside", "<Entry><Item>x</Item></Entry>", "<Item>x</Item>", 29),
      entry("the same begin tag inside", "<Entry><Entry>x</Entry></Entry>", "<Entry>x", 23),
      entry("half a close tag inside", "<Entry></Ent</Entry>", "</Ent", 20),
      entry("value begins with a bracket", "<Entry><</Entry>", "<", 16),
      entry("long value", "<Entry>" + std::string(70000, 'x') + "</Entry>", std::string(70000, 'x'),
            70015),
  };
  for (Row const& row : rows)
    expectRow(row);
}

TEST(CursorText, LeavesTheCursorWhenTheElementIsFurtherOn) {
  Row const rows[] = {
      entry("a blank in front", " <Entry>x</Entry><Entry>y</Entry>", "x", 0),
      entry("an element in front", "<Item>1</Item><Entry>x</Entry>", "x", 0),
      entry("empty value", ".<Entry></Entry>", "", 0),
      entry("a close tag in front", "</Entry><Entry>x</Entry>", "x", 0),
      entry("half a begin tag in front", "<Ent<Entry>x</Entry>", "x", 0),
      entry("a bracket in front", "<<Entry>x</Entry>", "x", 0),
  };
  for (Row const& row : rows)
    expectRow(row);
}

TEST(CursorText, ClearsTheValueWhenATagIsMissing) {
  Row const rows[] = {
      entry("nothing", "", "", 0),
      entry("neither tag", "text", "", 0),
      entry("no begin tag", "x</Entry>", "", 0),
      entry("no begin tag, far from the front", "0123456789</Entry>", "", 0),
      entry("no close tag", "<Entry>x", "", 0),
      entry("begin tag alone", "<Entry>", "", 0),
      entry("close tag before the begin tag only", "</Entry><Entry>x", "", 0),
      entry("begin tag in another case", "<entry>x</Entry>", "", 0),
      entry("close tag in another case", "<Entry>x</entry>", "", 0),
      entry("a longer name", "<EntryId>x</EntryId>", "", 0),
      entry("a blank in the begin tag", "<Entry >x</Entry>", "", 0),
      entry("a blank in the close tag", "<Entry>x</Entry >", "", 0),
      entry("the begin tag twice", "<Entry>x<Entry>", "", 0),
      entry("an empty element's short form", "<Entry/>", "", 0),
  };
  for (Row const& row : rows)
    expectRow(row);
}

TEST(CursorText, IsMissingInEveryTruncation) {
  std::string const whole = "<Entry>x</Entry>";
  for (std::size_t length = 0; length < whole.size(); ++length)
    expectRow(entry("truncated", whole.substr(0, length), "", 0));
  for (std::size_t length = 1; length < whole.size(); ++length)
    expectRow(entry("truncated, further on", "-" + whole.substr(0, length), "", 0));
}

TEST(CursorText, IsUnescapedOnce) {
  Row const rows[] = {
      entry("all five", "<Entry>&lt;&gt;&amp;&quot;&apos;</Entry>", "<>&\"'", 40),
      entry("an escaped entity", "<Entry>&amp;lt;</Entry>", "&lt;", 23),
      entry("an escaped close tag", "<Entry>&lt;/Entry&gt;</Entry>", "</Entry>", 29),
      entry("further on", "-<Entry>&lt;</Entry>", "<", 0),
      entry("an unknown entity", "<Entry>&nbsp;&#60;</Entry>", "&nbsp;&#60;", 26),
      entry("an entity cut by the close tag", "<Entry>&lt</Entry>", "&lt", 18),
  };
  for (Row const& row : rows)
    expectRow(row);
}

// Any two texts serve as tags.
TEST(CursorText, TakesTagsOfAnyForm) {
  Row const rows[] = {
      {"begin equals close", "|x|y", "|", "|", "x", 3},
      {"begin equals close, further on", "a|x|", "|", "|", "x", 0},
      {"begin equals close, once only", "|", "|", "|", "", 0},
      {"begin equals close, nothing between", "||x", "|", "|", "", 2},
      {"close overlaps the begin tag only", "<a>b", "<a>", ">b", "", 0},
      {"close overlaps, then follows", "<a>b>b.", "<a>", ">b", "b", 6},
      {"begin repeats itself", "aaab1;", "aab", ";", "1", 0},
      {"close repeats itself", "bxaaab.", "b", "aab", "xa", 6},
      {"entities in the tags", "&lt;1&gt;", "&lt;", "&gt;", "1", 9},
      {"empty begin tag", "x</E>y", "", "</E>", "x", 5},
      {"empty close tag", "<E>x", "<E>", "", "", 3},
  };
  for (Row const& row : rows)
    expectRow(row);
}

TEST(CursorText, EndsAtTheFirstNul) {
  Row const rows[] = {
      entry("before the element", "\0<Entry>x</Entry>"s, "", 0),
      entry("inside the begin tag", "<Ent\0ry>x</Entry>"s, "", 0),
      entry("behind the begin tag", "<Entry>\0</Entry>"s, "", 0),
      entry("inside the value", "<Entry>x\0y</Entry>"s, "", 0),
      entry("inside the close tag", "<Entry>x</Entry\0>"s, "", 0),
      entry("behind the element", "<Entry>x</Entry>\0<Entry>y</Entry>"s, "x", 16),
  };
  for (Row const& row : rows)
    expectRow(row);
}

// A text that ends at its first NUL cannot hold such a tag.
TEST(CursorText, NeverFindsATagThatHoldsANul) {
  Row const rows[] = {
      {"in the middle of begin", "<En\0try>x</Entry>"s, "<En\0try>"s, "</Entry>", "", 0},
      {"begin's front matches", "<En>x</Entry>", "<En\0>"s, "</Entry>", "", 0},
      {"at begin's end", "<Entry>x</Entry>", "<Entry>\0"s, "</Entry>", "", 0},
      {"at begin's front", "<Entry>x</Entry>", "\0<Entry>"s, "</Entry>", "", 0},
      {"at close's end", "<Entry>x</Entry>", "<Entry>", "</Entry>\0"s, "", 0},
      {"at close's front", "<Entry>x</Entry>", "<Entry>", "\0</Entry>"s, "", 0},
      {"close's front matches", "<Entry>x</Entry>", "<Entry>", "</E\0ntry>"s, "", 0},
      {"nothing but a NUL", "<Entry>x", "<Entry>", "\0"s, "", 0},
  };
  for (Row const& row : rows)
    expectRow(row);
}

struct FlagRow {
  std::string text;
  bool value;
  std::size_t cursor;
};

TEST(CursorFlag, IsTrueForExactlyTrue) {
  FlagRow const rows[] = {
      {"<Viewed>True</Viewed>", true, 21},
      {"<Viewed>True</Viewed><Viewed>False</Viewed>", true, 21},
      {"<Viewed>False</Viewed><Viewed>True</Viewed>", false, 22},
      {"-<Viewed>True</Viewed>", true, 0},
      {"<Item></Item><Viewed>False</Viewed>", false, 0},
      {"<Viewed>true</Viewed>", false, 21},
      {"<Viewed>TRUE</Viewed>", false, 21},
      {"<Viewed>True </Viewed>", false, 22},
      {"<Viewed> True</Viewed>", false, 22},
      {"<Viewed>Tru</Viewed>", false, 20},
      {"<Viewed>Truer</Viewed>", false, 22},
      {"<Viewed>TrueTrue</Viewed>", false, 25},
      {"<Viewed>rue</Viewed>", false, 20},
      {"<Viewed>1</Viewed>", false, 18},
      {"<Viewed></Viewed>", false, 17},
      {"<Viewed>&#84;rue</Viewed>", false, 25},
      {"<Viewed>Tr&amp;ue</Viewed>", false, 26},
      {"<Viewed><Viewed>True</Viewed>", false, 29},
      {"", false, 0},
      {"True", false, 0},
      {"<Viewed>True", false, 0},
      {"True</Viewed>", false, 0},
      {"</Viewed><Viewed>True", false, 0},
      {"</Viewed><Viewed>True</Viewed>", true, 0},
      {"<Viewed>True\0</Viewed>"s, false, 0},
      {"\0<Viewed>True</Viewed>"s, false, 0},
      {"<Viewed>True</Viewed>\0"s, true, 21},
  };
  for (FlagRow const& row : rows) {
    SCOPED_TRACE(row.text);
    for (bool leftOver : {false, true}) {
      bool value = leftOver;
      char const* const text = row.text.c_str();
      char const* const cursor = J::getXMLValue(text, "<Viewed>", "</Viewed>", value);
      EXPECT_EQ(row.value, value);
      EXPECT_EQ(row.cursor, static_cast<std::size_t>(cursor - text));
    }
  }
}

TEST(CursorFlag, NeverFindsATagThatHoldsANul) {
  char const* const text = "<Viewed>True</Viewed>";
  bool value = true;
  EXPECT_EQ(text, J::getXMLValue(text, "<Viewed>\0"s, "</Viewed>", value));
  EXPECT_FALSE(value);
  value = true;
  EXPECT_EQ(text, J::getXMLValue(text, "<Viewed>", "</Viewed>\0"s, value));
  EXPECT_FALSE(value);
}

TEST(CursorExtractors, ReadANullPointerAsAnEmptyText) {
  char const* const none = nullptr;
  std::string text = "left over";
  EXPECT_EQ(nullptr, J::getXMLValue(none, "<Entry>", "</Entry>", text));
  EXPECT_EQ("", text);
  bool flag = true;
  EXPECT_EQ(nullptr, J::getXMLValue(none, "<Viewed>", "</Viewed>", flag));
  EXPECT_FALSE(flag);
}

TEST(CursorExtractors, WalkThroughElementsInTheirOrder) {
  char const* cursor = "<Number>1</Number><Viewed>True</Viewed><Entry>x</Entry>";
  std::string number, entryText;
  bool viewed = false;
  cursor = J::getXMLValue(cursor, J::NUMBER_XML_BEGIN, J::NUMBER_XML_CLOSE, number);
  EXPECT_STREQ("<Viewed>True</Viewed><Entry>x</Entry>", cursor);
  cursor = J::getXMLValue(cursor, J::VIEWED_XML_BEGIN, J::VIEWED_XML_CLOSE, viewed);
  EXPECT_STREQ("<Entry>x</Entry>", cursor);
  cursor = J::getXMLValue(cursor, J::ENTRY_XML_BEGIN, J::ENTRY_XML_CLOSE, entryText);
  EXPECT_STREQ("", cursor);
  EXPECT_EQ("1", number);
  EXPECT_TRUE(viewed);
  EXPECT_EQ("x", entryText);
}

} // namespace
