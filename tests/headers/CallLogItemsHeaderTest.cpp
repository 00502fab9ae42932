// CallLogItems.h, included first and alone.
#include "CallLogItems.h"

namespace {
MissedCallItem missedCall() {
  MissedCallItem item;
  item.callInfoList.push_back(MissedCallItem::MissedCallInfo());
  item.callInfoList.back().number = "17";
  return item;
}
DialledCallItem const dialled = DialledCallItem();
ReceivedCallItem const received = ReceivedCallItem();
ForwardedCallItem const forwarded = ForwardedCallItem();
} // namespace

#include "CallLogItems.h" // a second time does no harm

#include <gtest/gtest.h>

TEST(CallLogItemsHeader, StandsAlone) {
  EXPECT_EQ("17", missedCall().callInfoList.front().number);
  EXPECT_TRUE(dialled.callInfoList.empty());
  EXPECT_TRUE(received.callInfoList.empty());
  EXPECT_TRUE(forwarded.callInfoList.empty());
}
