// NumberType.h, included first and alone.
#include "NumberType.h"

namespace {
constexpr NumberType::NT mobile = NumberType::MOBILE;
}

#include "NumberType.h" // a second time does no harm

#include <gtest/gtest.h>

TEST(NumberTypeHeader, StandsAlone) {
  EXPECT_EQ(4, static_cast<int>(mobile));
}
