// ClientUtils.h, included first and alone.
#include "ClientUtils.h"

namespace {
std::string escapedBracket() {
  return ClientUtils::escapeXMLString("<");
}
} // namespace

#include "ClientUtils.h" // a second time does no harm

#include <type_traits>

#include <gtest/gtest.h>

static_assert(!std::is_default_constructible_v<ClientUtils>, "there are no objects of it");

TEST(ClientUtilsHeader, StandsAlone) {
  EXPECT_EQ("&lt;", escapedBracket());
  EXPECT_EQ("<", ClientUtils::unescapeXMLString(escapedBracket()));
  EXPECT_EQ("17", ClientUtils::itos(17));
}
