// Every golden message: written byte for byte, and read back where there is a reader.
#include <functional>
#include <set>
#include <vector>

#include "records/TestedKinds.h"

namespace {

using Helper = JournalServiceHelper;

template <typename KindType>
class GoldenEntries : public ::testing::Test {
protected:
  static std::string named(std::string const& suffix) {
    return golden::message(std::string(KindType::NAME) + "-" + suffix);
  }

  static std::string body(typename KindType::Item const& item) {
    std::string text;
    KindType::writeBody(item, text, false);
    return text;
  }

  static typename KindType::Item item(std::string const& text) {
    typename KindType::Item item;
    EXPECT_TRUE(KindType::readItemText(text, item));
    return item;
  }
};

TYPED_TEST_SUITE(GoldenEntries, kinds::All, kinds::KindNames);

TYPED_TEST(GoldenEntries, Full) {
  EXPECT_EQ(this->body(TypeParam::full()), this->named("full"));
  EXPECT_EQ(this->item(this->named("full")), TypeParam::decodedFull());
}

TYPED_TEST(GoldenEntries, Sparse) {
  EXPECT_EQ(this->body(TypeParam::sparse()), this->named("sparse"));
  EXPECT_EQ(this->item(this->named("sparse")), TypeParam::sparse());
}

TYPED_TEST(GoldenEntries, Log) {
  EXPECT_EQ(TypeParam::respond(TypeParam::log(), TypeParam::HANDLE), this->named("log"));
  typename TypeParam::Log items;
  unsigned int handle = 99;
  EXPECT_TRUE(TypeParam::readLogAndHandle(this->named("log"), items, handle));
  EXPECT_EQ(items, TypeParam::decodedLog());
  EXPECT_EQ(handle, TypeParam::HANDLE);
}

std::string updateOf(kinds::Missed) {
  return "obsReqMissedCallsUpdate";
}
std::string updateOf(kinds::Dialled) {
  return "obsReqDialledCallsUpdate";
}
std::string updateOf(kinds::Received) {
  return "obsReqReceivedCallsUpdate";
}
std::string updateOf(kinds::Forwarded) {
  return "obsReqForwardedCallsUpdate";
}

TYPED_TEST(GoldenEntries, Notification) {
  std::string const text = golden::message(updateOf(TypeParam()));
  EXPECT_EQ(TypeParam::notify(TypeParam::full(), "", JournalServiceObserverIfc::ENTRY_CHANGED, 12),
            text);
  EXPECT_EQ(this->item(text), TypeParam::decodedFull());
}

TYPED_TEST(GoldenEntries, NotificationWithAnEntryRemoved) {
  std::string const text = golden::message(updateOf(TypeParam()) + "-removing");
  EXPECT_EQ(TypeParam::notify(TypeParam::full(), "17", JournalServiceObserverIfc::ENTRY_ADDED, 0),
            text);
  EXPECT_EQ(this->item(text), TypeParam::decodedFull());
}

struct Row {
  char const* name;
  std::function<std::string()> build;
  unsigned int code;
};

TEST(GoldenMessages, RequestsAndCounters) {
  std::set<std::string> const ids = {"a&b", "9", "", "10"};
  std::vector<Row> const rows = {
      {"reqGetMissedCallList", Helper::reqGetMissedCallList, 1},
      {"reqSetMissedCallListAsViewed", [&] { return Helper::reqSetMissedCallListAsViewed(ids); },
       3},
      {"reqDeleteMissedCall", [] { return Helper::reqDeleteMissedCall("17"); }, 5},
      {"reqDeleteMissedCallList", [&] { return Helper::reqDeleteMissedCallList(ids); }, 6},
      {"reqGetDialledCallList", Helper::reqGetDialledCallList, 8},
      {"reqDeleteDialledCall", [] { return Helper::reqDeleteDialledCall("17"); }, 9},
      {"reqDeleteDialledCallList", [&] { return Helper::reqDeleteDialledCallList(ids); }, 10},
      {"reqGetLastDialledNumber", Helper::reqGetLastDialledNumber, 17},
      {"reqGetReceivedCallList", Helper::reqGetReceivedCallList, 11},
      {"reqDeleteReceivedCall", [] { return Helper::reqDeleteReceivedCall("17"); }, 12},
      {"reqDeleteReceivedCallList", [&] { return Helper::reqDeleteReceivedCallList(ids); }, 13},
      {"reqGetForwardedCallList", Helper::reqGetForwardedCallList, 14},
      {"reqDeleteForwardedCall", [] { return Helper::reqDeleteForwardedCall("17"); }, 15},
      {"reqDeleteForwardedCallList", [&] { return Helper::reqDeleteForwardedCallList(ids); }, 16},
      {"reqSubscribe", Helper::reqSubscribe, 18},
      {"reqUnsubscribe", Helper::reqUnsubscribe, 19},
      {"reqRefreshCallLog", Helper::reqRefreshCallLog, 20},
      {"readEnabledState", Helper::readEnabledState, 27},
      {"readMissedCallList", Helper::readMissedCallList, 27},
      {"deleteMissedCallList", Helper::deleteMissedCallList, 27},
      {"readDialledCallList", Helper::readDialledCallList, 27},
      {"deleteDialledCallList", Helper::deleteDialledCallList, 27},
      {"readReceivedCallList", Helper::readReceivedCallList, 27},
      {"deleteReceivedCallList", Helper::deleteReceivedCallList, 27},
      {"readForwardedCallList", Helper::readForwardedCallList, 27},
      {"deleteForwardedCallList", Helper::deleteForwardedCallList, 27},
      {"obsReqMissedCallsCountUpdate", [] { return Helper::obsReqMissedCallsCountUpdate(3); }, 21},
      {"obsReqMissedGroupCallsUpdate", [] { return Helper::obsReqMissedGroupCallsUpdate(0); }, 27}};
  for (Row const& row : rows) {
    EXPECT_EQ(row.build(), golden::message(row.name)) << row.name;
    EXPECT_EQ(Helper::getMethodFromXMLMsg(golden::message(row.name)), row.code) << row.name;
  }
}

} // namespace
