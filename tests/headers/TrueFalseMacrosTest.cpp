// JournalServiceHelper.h on a platform that defines TRUE and FALSE as macros.
#define TRUE 1234
#define FALSE (TRUE - 1234)

#include "JournalServiceHelper.h"

static_assert(TRUE == 1234, "the header gives the macro back");
static_assert(FALSE == 0, "the header gives the macro back");

namespace {
constexpr int platformTrue = TRUE;
constexpr int platformFalse = FALSE;
} // namespace

// What code on such a platform has to do before it names the constants.
#undef TRUE
#undef FALSE

#include <gtest/gtest.h>

TEST(TrueFalseMacros, KeepTheirValuesAfterTheHeader) {
  EXPECT_EQ(1234, platformTrue);
  EXPECT_EQ(0, platformFalse);
}

TEST(TrueFalseMacros, DoNotDisturbTheConstants) {
  EXPECT_EQ("True", JournalServiceHelper::TRUE);
  EXPECT_EQ("False", JournalServiceHelper::FALSE);
  EXPECT_EQ("<Viewed>True</Viewed>",
            JournalServiceHelper::createXMLField(JournalServiceHelper::VIEWED, true));
}
