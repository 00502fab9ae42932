// Single elements, written: tags, text, number and flag fields, id lists.
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;

TEST(CreateXMLBegin, PutsTheNameInBrackets) {
  struct {
    std::string name, begin, close;
  } const rows[] = {
      {"Number", "<Number>", "</Number>"},
      {"CallLogEnabled", "<CallLogEnabled>", "</CallLogEnabled>"},
      {"", "<>", "</>"},
      {"a b", "<a b>", "</a b>"},
      {"<&>", "<<&>>", "</<&>>"},
      {"a\0b"s, "<a\0b>"s, "</a\0b>"s},
      {"\xC3\xA4", "<\xC3\xA4>", "</\xC3\xA4>"},
      {"Schema name=\"x\"", "<Schema name=\"x\">", "</Schema name=\"x\">"},
  };
  for (auto const& row : rows) {
    EXPECT_EQ(row.begin, J::createXMLBegin(row.name));
    EXPECT_EQ(row.close, J::createXMLClose(row.name));
  }
}

TEST(CreateXMLField, CopiesATextUnescaped) {
  struct {
    std::string name, value, field;
  } const rows[] = {
      {"Number", "0", "<Number>0</Number>"},
      {"Number", " ", "<Number> </Number>"},
      {"Number", "+49 89 1", "<Number>+49 89 1</Number>"},
      {"Surname", "<&>\"'", "<Surname><&>\"'</Surname>"},
      {"Surname", "&amp;", "<Surname>&amp;</Surname>"},
      {"Surname", "M\xC3\xBCller", "<Surname>M\xC3\xBCller</Surname>"},
      {"Number", "1\0002"s, "<Number>1\0002</Number>"s},
      {"Number", "\0"s, "<Number>\0</Number>"s},
      {"Method", "<getMissedCallList>", "<Method><getMissedCallList></Method>"},
      {"", "x", "<>x</>"},
      {"N\0m"s, "x", "<N\0m>x</N\0m>"s},
      {"Entry", "</Entry>", "<Entry></Entry></Entry>"},
  };
  for (auto const& row : rows)
    EXPECT_EQ(row.field, J::createXMLField(row.name, row.value));
}

TEST(CreateXMLField, LeavesAnEmptyTextOut) {
  EXPECT_EQ("", J::createXMLField(J::NUMBER, ""s));
  EXPECT_EQ("", J::createXMLField("", ""s));
  EXPECT_EQ("", J::createXMLField(J::NUMBER, std::string()));
}

TEST(CreateXMLField, CopiesALongText) {
  std::string const value(100000, 'x');
  EXPECT_EQ("<Number>" + value + "</Number>", J::createXMLField("Number", value));
}

// A literal must not select the overload for flags.
TEST(CreateXMLField, TakesALiteralAsText) {
  EXPECT_EQ("<Number>text</Number>", J::createXMLField(J::NUMBER, "text"));
  EXPECT_EQ("<Number>0</Number>", J::createXMLField("Number", "0"));
  EXPECT_EQ("<Number><&></Number>", J::createXMLField(J::NUMBER, "<&>"));
  EXPECT_EQ("", J::createXMLField(J::NUMBER, ""));
  EXPECT_EQ("<Number>ab</Number>", J::createXMLField(J::NUMBER, "ab\0cd"));
  char writable[] = "7";
  EXPECT_EQ("<Number>7</Number>", J::createXMLField(J::NUMBER, writable));
}

TEST(CreateXMLField, TakesANullPointerAsEmpty) {
  char const* none = nullptr;
  EXPECT_EQ("", J::createXMLField(J::NUMBER, none));
}

TEST(CreateXMLField, WritesANumberAsSigned32BitDecimal) {
  struct {
    unsigned int value;
    char const* field;
  } const rows[] = {
      {0u, "<Value>0</Value>"},
      {1u, "<Value>1</Value>"},
      {9u, "<Value>9</Value>"},
      {10u, "<Value>10</Value>"},
      {4096u, "<Value>4096</Value>"},
      {999999999u, "<Value>999999999</Value>"},
      {1000000000u, "<Value>1000000000</Value>"},
      {1234567890u, "<Value>1234567890</Value>"},
      {2147483646u, "<Value>2147483646</Value>"},
      {2147483647u, "<Value>2147483647</Value>"},
      {2147483648u, "<Value>-2147483648</Value>"},
      {2147483649u, "<Value>-2147483647</Value>"},
      {4294967286u, "<Value>-10</Value>"},
      {4294967294u, "<Value>-2</Value>"},
      {4294967295u, "<Value>-1</Value>"},
  };
  for (auto const& row : rows)
    EXPECT_EQ(row.field, J::createXMLField(J::VALUE, row.value));
  EXPECT_EQ("<>0</>", J::createXMLField("", 0u));
}

TEST(CreateXMLField, AlwaysWritesAFlag) {
  EXPECT_EQ("<Viewed>True</Viewed>", J::createXMLField(J::VIEWED, true));
  EXPECT_EQ("<Viewed>False</Viewed>", J::createXMLField(J::VIEWED, false));
  EXPECT_EQ("<>False</>", J::createXMLField("", false));
}

TEST(CreateXMLSchemaField, HasNoCloseTag) {
  EXPECT_EQ("<Schema>CallLogSettings", J::createXMLSchemaField("CallLogSettings"));
  EXPECT_EQ("<Schema>x", J::createXMLSchemaField("x"));
  EXPECT_EQ("<Schema><&\"", J::createXMLSchemaField("<&\""));
  EXPECT_EQ("<Schema>a\0b"s, J::createXMLSchemaField("a\0b"s));
  EXPECT_EQ("", J::createXMLSchemaField(""));
}

TEST(CreateXMLEntryIDList, WritesIdsInByteOrderWithoutTheEmptyOne) {
  struct {
    std::set<std::string> ids;
    std::string list;
  } const rows[] = {
      {{}, ""},
      {{""}, ""},
      {{"17"}, "<EntryId>17</EntryId>"},
      {{"b", "a", ""}, "<EntryId>a</EntryId><EntryId>b</EntryId>"},
      {{"10", "9", "2"}, "<EntryId>10</EntryId><EntryId>2</EntryId><EntryId>9</EntryId>"},
      {{"a", "B"}, "<EntryId>B</EntryId><EntryId>a</EntryId>"},
      {{"ab", "a", "aa"}, "<EntryId>a</EntryId><EntryId>aa</EntryId><EntryId>ab</EntryId>"},
      {{"\xFF", "z"}, "<EntryId>z</EntryId><EntryId>\xFF</EntryId>"},
      {{"a\1"s, "a\0b"s}, "<EntryId>a\0b</EntryId><EntryId>a\1</EntryId>"s},
      {{"<&>"}, "<EntryId><&></EntryId>"},
      {{" "}, "<EntryId> </EntryId>"},
  };
  for (auto const& row : rows)
    EXPECT_EQ(row.list, J::createXMLEntryIDList(row.ids));
}

} // namespace
