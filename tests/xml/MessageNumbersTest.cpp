// Numbers read from a whole message: how a text becomes a number.
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"
#include "clientutils/GroupingLocale.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;

struct Row {
  std::string text;
  unsigned int number;
};

void expectRow(Row const& row) {
  SCOPED_TRACE(row.text);
  for (unsigned int leftOver : {0u, 77u}) {
    unsigned int value = leftOver;
    EXPECT_TRUE(J::getXMLValue("<Handle>" + row.text + "</Handle>", "Handle", value));
    EXPECT_EQ(row.number, value);
  }
}

TEST(MessageNumber, IsReadFromDecimalDigits) {
  Row const rows[] = {
      {"0", 0u},
      {"1", 1u},
      {"9", 9u},
      {"007", 7u},
      {"1234567890", 1234567890u},
      {"2147483646", 2147483646u},
      {"2147483647", 2147483647u},
      {std::string(100, '0') + "7", 7u},
  };
  for (Row const& row : rows)
    expectRow(row);
}

TEST(MessageNumber, MayFollowBlanksAndOneSign) {
  Row const rows[] = {
      {" 7", 7u},
      {"   7", 7u},
      {"\t\n\v\f\r 7", 7u},
      {"+7", 7u},
      {" +7", 7u},
      {"+ 7", 0u},
      {"- 7", 0u},
      {"+-7", 0u},
      {"-+7", 0u},
      {"--7", 0u},
      {"++7", 0u},
      {"+", 0u},
      {"-", 0u},
      {"-0", 0u},
      {"\b7", 0u},
      {"\x1F"
       "7",
       0u},
      {"\x0E"
       "7",
       0u},
      {"\xA0"
       "7",
       0u},
      {"\xC2\xA0"
       "7",
       0u},
  };
  for (Row const& row : rows)
    expectRow(row);
}

TEST(MessageNumber, EndsAtTheFirstOtherByte) {
  Row const rows[] = {
      {"7x", 7u},
      {"7 8", 7u},
      {"7-8", 7u},
      {"1.9", 1u},
      {"1,234", 1u},
      {"1e3", 1u},
      {"0x10", 0u},
      {"12/3", 12u},
      {"12:3", 12u},
      {"7\0"
       "8"s,
       7u},
      {"7&amp;8", 7u},
      {"7&lt;", 7u},
      {"7<8>", 7u},
      {"7\xFF", 7u},
  };
  for (Row const& row : rows)
    expectRow(row);
}

TEST(MessageNumber, IsZeroWithoutDigits) {
  Row const rows[] = {
      {" ", 0u},
      {"x", 0u},
      {"x7", 0u},
      {"&#55;", 0u},
      {"&quot;7", 0u},
      {"\0"
       "7"s,
       0u},
      {"True", 0u},
      {".7", 0u},
      {"/", 0u},
      {":", 0u},
      {"\xEF\xBC\x97", 0u},
  };
  for (Row const& row : rows)
    expectRow(row);
}

TEST(MessageNumber, IsStoredAsTwosComplementWhenNegative) {
  Row const rows[] = {
      {"-1", 4294967295u},          {"-7", 4294967289u},          {" -10x", 4294967286u},
      {"-2147483647", 2147483649u}, {"-2147483648", 2147483648u},
  };
  for (Row const& row : rows)
    expectRow(row);
}

TEST(MessageNumber, StopsAtTheLimitsOfASigned32BitNumber) {
  Row const rows[] = {
      {"2147483648", 2147483647u},
      {"2147483649", 2147483647u},
      {"2147483650", 2147483647u},
      {"4294967295", 2147483647u},
      {"4294967296", 2147483647u},
      {"4294967297", 2147483647u},
      {"+99999999999", 2147483647u},
      {"9223372036854775807", 2147483647u},
      {"9223372036854775808", 2147483647u},
      {"18446744073709551617", 2147483647u},
      {std::string(100, '9'), 2147483647u},
      {"99999999999x1", 2147483647u},
      {"-2147483649", 2147483648u},
      {"-2147483650", 2147483648u},
      {"-4294967295", 2147483648u},
      {"-4294967296", 2147483648u},
      {"-99999999999", 2147483648u},
      {"-9223372036854775809", 2147483648u},
      {"-" + std::string(100, '9'), 2147483648u},
  };
  for (Row const& row : rows)
    expectRow(row);
}

TEST(MessageNumber, IsZeroWhenAbsentOrEmpty) {
  for (std::string const& message :
       {""s, "7"s, "<Handle></Handle>"s, "<Handle>7"s, "7</Handle>"s, "</Handle><Handle>7"s,
        "<Handle></Handle><Handle>7</Handle>"s, "</Handle><Handle>7</Handle>"s}) {
    unsigned int value = 77u;
    EXPECT_FALSE(J::getXMLValue(message, "Handle", value)) << message;
    EXPECT_EQ(0u, value) << message;
  }
}

TEST(MessageNumber, IsReadFromWhereAMissingBeginTagWouldEnd) {
  unsigned int value = 77u;
  EXPECT_TRUE(J::getXMLValue("0123456789</Handle>", "Handle", value));
  EXPECT_EQ(789u, value);
}

TEST(MessageNumber, DoesNotFollowTheLocale) {
  GroupingLocale const grouping;
  expectRow({"1.234", 1u});
  expectRow({"1234567", 1234567u});
  EXPECT_EQ("<Handle>1234567</Handle>", J::createXMLField("Handle", 1234567u));
  EXPECT_EQ("<Handle>-2147483648</Handle>", J::createXMLField("Handle", 2147483648u));
}

} // namespace
