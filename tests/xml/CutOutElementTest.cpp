// An element cut out of a message together with its tags.
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;

struct Row {
  char const* what;
  std::string message;
  std::string name;
  std::string value;
  std::string rest;
};

void expectCut(Row const& row) {
  SCOPED_TRACE(row.what);
  std::string message = row.message;
  std::string value = "left over";
  EXPECT_TRUE(J::getAndRemoveXMLValue(message, row.name, value));
  EXPECT_EQ(row.value, value);
  EXPECT_EQ(row.rest, message);
}

TEST(GetAndRemoveXMLValue, CutsTheFirstElementOut) {
  Row const rows[] = {
      {"in the middle", "<Entry>1</Entry><Number>2</Number><Item>3</Item>", "Number", "2",
       "<Entry>1</Entry><Item>3</Item>"},
      {"alone", "<Number>2</Number>", "Number", "2", ""},
      {"at the front", "<Number>2</Number>x", "Number", "2", "x"},
      {"at the end", "x<Number>2</Number>", "Number", "2", "x"},
      {"the first of two", "<Number>1</Number>,<Number>2</Number>", "Number", "1",
       ",<Number>2</Number>"},
      {"the begin tag twice", ".<Number><Number>1</Number>.", "Number", "<Number>1", ".."},
      {"NULs are bytes like others", "a\0<N>1\0002</N>b\0c"s, "N", "1\0002"s, "a\0b\0c"s},
      {"an empty name", "a<>1</>b", "", "1", "ab"},
      {"long", std::string(70000, 'a') + "<N>" + std::string(70000, 'x') + "</N>b", "N",
       std::string(70000, 'x'), std::string(70000, 'a') + "b"},
  };
  for (Row const& row : rows)
    expectCut(row);
}

TEST(GetAndRemoveXMLValue, DeliversTheRawText) {
  expectCut({"entities", "<Surname>&lt;&amp;amp;</Surname>", "Surname", "&lt;&amp;amp;", ""});
  expectCut({"markup", "<Entry><Item>&</Item></Entry>", "Entry", "<Item>&</Item>", ""});
}

TEST(GetAndRemoveXMLValue, TouchesNothingWhenAbsentOrEmpty) {
  std::string const messages[] = {
      "",
      "text",
      "<Number></Number>",
      "<Number></Number><Number>2</Number>",
      "<Number>2",
      "</Number><Number>2",
      "</Number><Number>2</Number>",
      "0123456789</Number><Number>2</Number>",
      "<NumberType>MOBILE</NumberType>",
      "</Number>",
      "012345</Number>",
      "0123456</Number>",
  };
  for (std::string const& before : messages) {
    SCOPED_TRACE(before);
    std::string message = before;
    std::string value = "left over";
    EXPECT_FALSE(J::getAndRemoveXMLValue(message, "Number", value));
    EXPECT_EQ(before, message);
    EXPECT_EQ("left over", value);
  }
}

// A missing begin tag counts as position -1. The whole message is then taken as the part before it,
// and the part after the close tag is appended once more.
TEST(GetAndRemoveXMLValue, DoublesTheTailWhenTheBeginTagIsMissing) {
  Row const rows[] = {
      {"with a tail", "01234567</Number>tail", "Number", "7", "01234567</Number>tailtail"},
      {"without a tail", "0123456789</Number>", "Number", "789", "0123456789</Number>"},
      {"a second close tag in the tail", "abc</A>d</A>", "A", "c", "abc</A>d</A>d</A>"},
      {"raw", "ab&lt;</A>\0"s, "A", "&lt;", "ab&lt;</A>\0\0"s},
      {"an empty name", "ab</>c", "", "b", "ab</>cc"},
  };
  for (Row const& row : rows)
    expectCut(row);
}

TEST(GetAndRemoveXMLValue, EmptiesAMessageElementByElement) {
  std::string message = "<N>1</N><N>2</N>.";
  std::string value;
  EXPECT_TRUE(J::getAndRemoveXMLValue(message, "N", value));
  EXPECT_EQ("1", value);
  EXPECT_TRUE(J::getAndRemoveXMLValue(message, "N", value));
  EXPECT_EQ("2", value);
  EXPECT_FALSE(J::getAndRemoveXMLValue(message, "N", value));
  EXPECT_EQ("2", value);
  EXPECT_EQ(".", message);
}

} // namespace
