// JournalServiceObserverIfc.h, included first and alone.
#include "JournalServiceObserverIfc.h"

namespace {
constexpr JournalServiceObserverIfc::ActionType added = JournalServiceObserverIfc::ENTRY_ADDED;
constexpr JournalServiceObserverIfc::ActionType changed = JournalServiceObserverIfc::ENTRY_CHANGED;
constexpr JournalServiceObserverIfc::ActionType deleted = JournalServiceObserverIfc::ENTRY_DELETED;
} // namespace

#include "JournalServiceObserverIfc.h" // a second time does no harm

#include <gtest/gtest.h>

TEST(JournalServiceObserverIfcHeader, StandsAlone) {
  EXPECT_EQ(0, static_cast<int>(added));
  EXPECT_EQ(1, static_cast<int>(changed));
  EXPECT_EQ(2, static_cast<int>(deleted));
}
