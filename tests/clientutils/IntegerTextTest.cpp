// Integers as decimal texts.
#include <limits>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "ClientUtils.h"
#include "clientutils/GroupingLocale.h"

namespace {

struct Row {
  int value;
  char const* text;
};
constexpr Row rows[] = {
    {0, "0"},
    {1, "1"},
    {-1, "-1"},
    {9, "9"},
    {10, "10"},
    {11, "11"},
    {-9, "-9"},
    {-10, "-10"},
    {99, "99"},
    {100, "100"},
    {-100, "-100"},
    {999, "999"},
    {1000, "1000"},
    {10203, "10203"},
    {99999, "99999"},
    {100000, "100000"},
    {1234567, "1234567"},
    {-1234567, "-1234567"},
    {99999999, "99999999"},
    {100000000, "100000000"},
    {999999999, "999999999"},
    {1000000000, "1000000000"},
    {-1000000000, "-1000000000"},
    {2147483646, "2147483646"},
    {2147483647, "2147483647"},
    {-2147483647, "-2147483647"},
    {std::numeric_limits<int>::min(), "-2147483648"},
};

TEST(Itos, WritesDecimals) {
  for (Row const& row : rows)
    EXPECT_EQ(row.text, ClientUtils::itos(row.value));
}

TEST(Itos, DoesNotFollowTheLocale) {
  GroupingLocale const grouping;
  std::ostringstream stream;
  stream << 1234567;
  ASSERT_EQ("1.234.567", stream.str()) << "the locale of this test does not group";
  for (Row const& row : rows)
    EXPECT_EQ(row.text, ClientUtils::itos(row.value));
}

TEST(Itos, LeavesTheLocaleAsItWas) {
  { GroupingLocale const grouping; }
  std::ostringstream stream;
  stream << 1234567;
  EXPECT_EQ("1234567", stream.str());
}

} // namespace
