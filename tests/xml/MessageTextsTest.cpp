// Texts, flags and number types read from a whole message by element name.
#include <cstddef>
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
};

void expectFound(Row const& row) {
  SCOPED_TRACE(row.what);
  std::string const before = row.message;
  std::string value = "left over";
  EXPECT_TRUE(J::getXMLValue(row.message, row.name, value));
  EXPECT_EQ(row.value, value);
  EXPECT_EQ(before, row.message);
}

void expectNotFound(char const* what, std::string const& message, std::string const& name) {
  SCOPED_TRACE(what);
  std::string value = "left over";
  EXPECT_FALSE(J::getXMLValue(message, name, value));
  EXPECT_EQ("left over", value);
}

TEST(MessageText, IsTakenFromTheFirstElement) {
  Row const rows[] = {
      {"alone", "<Number>12</Number>", "Number", "12"},
      {"one byte", "<Number>1</Number>", "Number", "1"},
      {"further on", "<Entry>1</Entry><Number>2</Number>x", "Number", "2"},
      {"the first of two", "<Number>1</Number><Number>2</Number>", "Number", "1"},
      {"the begin tag twice", "<Number><Number>1</Number>", "Number", "<Number>1"},
      {"behind a longer name", "<NumberType>M</NumberType><Number>1</Number>", "Number", "1"},
      {"a longer name inside", "<Number><NumberType></Number>", "Number", "<NumberType>"},
      {"unescaped", "<Surname>&lt;&amp;lt;&quot;&apos;&gt;</Surname>", "Surname", "<&lt;\"'>"},
      {"blank", "<Number> </Number>", "Number", " "},
      {"NULs are bytes like others", "\0<Number>1\0002</Number>"s, "Number", "1\0002"s},
      {"a NUL alone", "<Number>\0</Number>"s, "Number", "\0"s},
      {"a name with a NUL", "<N\0m>1</N\0m>"s, "N\0m"s, "1"},
      {"an empty name", "<>1</>", "", "1"},
      {"long", "<Number>" + std::string(70000, 'x') + "</Number>", "Number",
       std::string(70000, 'x')},
      {"far behind", std::string(70000, '<') + "<Number>x</Number>", "Number", "x"},
  };
  for (Row const& row : rows)
    expectFound(row);
}

TEST(MessageText, IsUntouchedWhenAbsentOrEmpty) {
  struct {
    char const* what;
    std::string message, name;
  } const rows[] = {
      {"nothing", "", "Number"},
      {"neither tag", "text", "Number"},
      {"an empty element", "<Number></Number>", "Number"},
      {"an empty element, a full one behind", "<Number></Number><Number>2</Number>", "Number"},
      {"no close tag", "<Number>12", "Number"},
      {"no close tag, a longer name's", "<Number>12</NumberType>", "Number"},
      {"close tag before the begin tag", "</Number><Number>12", "Number"},
      {"close tag before a whole element", "</Number><Number>12</Number>", "Number"},
      {"close tag and text before a whole element", "012345678</Number><Number>1</Number>",
       "Number"},
      {"a longer name only", "<NumberType>MOBILE</NumberType>", "Number"},
      {"another case", "<number>12</number>", "Number"},
      {"a NUL in the begin tag", "<Num\0ber>12</Num\0ber>"s, "Number"},
      {"a NUL in the name", "<Number>12</Number>", "Num\0ber"s},
      {"an empty name", "<a>1</a>", ""},
  };
  for (auto const& row : rows)
    expectNotFound(row.what, row.message, row.name);
}

TEST(MessageText, IsAbsentInEveryTruncation) {
  std::string const whole = "<Number>12</Number>";
  for (std::size_t length = 0; length < whole.size(); ++length)
    expectNotFound("truncated", whole.substr(0, length), "Number");
}

// A missing begin tag counts as position -1, so its end is one byte earlier than that of a begin
// tag at the front. Clients have come to rely on this.
TEST(MessageText, IsDeliveredWithoutABeginTagFromWhereThatWouldEnd) {
  Row const rows[] = {
      {"one byte", "01234567</Number>", "Number", "7"},
      {"several", "0123456789</Number>tail", "Number", "789"},
      {"a short name", "abc</A>", "A", "c"},
      {"an empty name", "ab</>", "", "b"},
      {"unescaped", "0123456&lt;</Number>", "Number", "<"},
      {"starting inside an entity", "012345&lt;</Number>", "Number", "lt;"},
      {"the first close tag counts", "01234567</Number>8</Number>", "Number", "7"},
      {"a begin tag in another case", "<number>1</Number>", "Number", ">1"},
  };
  for (Row const& row : rows)
    expectFound(row);
  expectNotFound("close tag at the front", "</Number>", "Number");
  expectNotFound("close tag too early", "012345</Number>", "Number");
  expectNotFound("nothing between", "0123456</Number>", "Number");
  expectNotFound("a short name, nothing between", "ab</A>", "A");
  expectNotFound("an empty name, nothing between", "a</>", "");
}

TEST(MessageFlag, IsTrueForExactlyTrue) {
  struct {
    std::string message;
    bool value;
  } const rows[] = {
      {"<Viewed>True</Viewed>", true},
      {"<Viewed>False</Viewed>", false},
      {"-<Viewed>True</Viewed><Viewed>False</Viewed>", true},
      {"<Viewed>true</Viewed>", false},
      {"<Viewed>TRUE</Viewed>", false},
      {"<Viewed>True </Viewed>", false},
      {"<Viewed> True</Viewed>", false},
      {"<Viewed>Tru</Viewed>", false},
      {"<Viewed>True\0</Viewed>"s, false},
      {"<Viewed>1</Viewed>", false},
      {"<Viewed>&#84;rue</Viewed>", false},
      {"0123456True</Viewed>", true},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.message);
    for (bool leftOver : {false, true}) {
      bool value = leftOver;
      EXPECT_TRUE(J::getXMLValue(row.message, "Viewed", value));
      EXPECT_EQ(row.value, value);
    }
  }
}

TEST(MessageFlag, IsUntouchedWhenAbsentOrEmpty) {
  for (std::string const& message :
       {""s, "<Viewed></Viewed>"s, "<Viewed>True"s, "True</Viewed>"s, "</Viewed><Viewed>True"s}) {
    SCOPED_TRACE(message);
    for (bool leftOver : {false, true}) {
      bool value = leftOver;
      EXPECT_FALSE(J::getXMLValue(message, "Viewed", value));
      EXPECT_EQ(leftOver, value);
    }
  }
}

TEST(MessageNumberType, IsNoIconForAnUnknownText) {
  struct {
    std::string message;
    NumberType::NT value;
  } const rows[] = {
      {"<NumberType>NO_ICON</NumberType>", NumberType::NO_ICON},
      {"<NumberType>PRIVATE</NumberType>", NumberType::PRIVATE},
      {"<NumberType>BUSINESS1</NumberType>", NumberType::BUSINESS1},
      {"<NumberType>BUSINESS2</NumberType>", NumberType::BUSINESS2},
      {"-<NumberType>MOBILE</NumberType>", NumberType::MOBILE},
      {"<NumberType>MOBILE </NumberType>", NumberType::NO_ICON},
      {"<NumberType>mobile</NumberType>", NumberType::NO_ICON},
      {"<NumberType>MOBILE\0</NumberType>"s, NumberType::NO_ICON},
      {"<NumberType>4</NumberType>", NumberType::NO_ICON},
      {"01234567890MOBILE</NumberType>", NumberType::MOBILE},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.message);
    for (NumberType::NT leftOver : {NumberType::NO_ICON, NumberType::PRIVATE}) {
      NumberType::NT value = leftOver;
      EXPECT_TRUE(J::getXMLValue(row.message, "NumberType", value));
      EXPECT_EQ(row.value, value);
    }
  }
}

TEST(MessageNumberType, IsUntouchedWhenAbsentOrEmpty) {
  for (std::string const& message : {""s, "<NumberType></NumberType>"s, "<NumberType>MOBILE"s,
                                     "<Number>MOBILE</Number>"s, "MOBILE</NumberType>"s}) {
    SCOPED_TRACE(message);
    NumberType::NT value = NumberType::BUSINESS2;
    EXPECT_FALSE(J::getXMLValue(message, "NumberType", value));
    EXPECT_EQ(NumberType::BUSINESS2, value);
  }
}

} // namespace
