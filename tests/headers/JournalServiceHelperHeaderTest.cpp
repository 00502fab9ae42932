// JournalServiceHelper.h, included first and alone: the way in, it brings all that users need.
#include "JournalServiceHelper.h"

namespace {
std::string request() {
  return JournalServiceHelper::reqDeleteMissedCallList({"1"});
}
std::deque<MissedCallItem> const noItems;
std::list<DialledCallItem::DialledCallInfo> const noCalls;
std::set<std::string> const noIds;
constexpr NumberType::NT type = NumberType::MOBILE;
constexpr CallLogEntryEvent::_LogTarget target = CallLogEntryEvent::IN_BUSY;
constexpr JournalServiceObserverIfc::ActionType action = JournalServiceObserverIfc::ENTRY_ADDED;
constexpr std::int32_t number = 1;
} // namespace

#include "JournalServiceHelper.h" // a second time does no harm

#if defined(TRUE) || defined(FALSE)
#error "the header defines a macro that was not there before it"
#endif

#include <type_traits>

#include <gtest/gtest.h>

static_assert(!std::is_default_constructible_v<JournalServiceHelper>, "there are no objects of it");

TEST(JournalServiceHelperHeader, StandsAlone) {
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\"?><Method><deleteMissedCallList></Method>"
            "<EntryId>1</EntryId>",
            request());
  EXPECT_EQ("True", JournalServiceHelper::TRUE);
  EXPECT_EQ("False", JournalServiceHelper::FALSE);
}

TEST(JournalServiceHelperHeader, BringsTheTypesOfItsOperations) {
  EXPECT_TRUE(noItems.empty());
  EXPECT_TRUE(noCalls.empty());
  EXPECT_TRUE(noIds.empty());
  EXPECT_EQ(4, static_cast<int>(type));
  EXPECT_EQ(2, static_cast<int>(target));
  EXPECT_EQ(0, static_cast<int>(action));
  EXPECT_EQ(1, number);
}
