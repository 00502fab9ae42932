// Every golden message: written byte for byte, and read back where there is a reader.
#include <functional>
#include <set>
#include <vector>

#include "records/TestedKinds.h"

namespace {

using Helper = JournalServiceHelper;

template <class KindType>
class GoldenEntries : public ::testing::Test {
protected:
  static typename KindType::Item item(std::string const& text) {
    typename KindType::Item item;
    EXPECT_TRUE(KindType::readItemText(text, item));
    return item;
  }

  static std::string updateOf(std::string const& suffix) {
    std::string name = KindType::NAME;
    name[0] = static_cast<char>(name[0] - 'a' + 'A');
    return golden::message("obsReq" + name + "CallsUpdate" + suffix);
  }
};

TYPED_TEST_SUITE(GoldenEntries, kinds::All, kinds::KindNames);

TYPED_TEST(GoldenEntries, Log) {
  auto const text = golden::message(std::string(TypeParam::NAME) + "-log");
  EXPECT_EQ(TypeParam::respond(TypeParam::log(), TypeParam::HANDLE), text);
  typename TypeParam::Log items;
  unsigned int handle = 99;
  EXPECT_TRUE(TypeParam::readLogAndHandle(text, items, handle));
  EXPECT_EQ(items, TypeParam::decodedLog());
  EXPECT_EQ(handle, TypeParam::HANDLE);
}

TYPED_TEST(GoldenEntries, BodiesOfTheLog) {
  EXPECT_EQ(TypeParam::body(TypeParam::full()), TypeParam::goldenBody(TypeParam::full()));
  EXPECT_EQ(this->item(TypeParam::goldenBody(TypeParam::full())), TypeParam::decodedFull());
  EXPECT_EQ(this->item(TypeParam::goldenBody(TypeParam::sparse())), TypeParam::sparse());
}

TYPED_TEST(GoldenEntries, Notifications) {
  auto item = TypeParam::full();
  auto decoded = TypeParam::decodedFull();
  item.callInfoList.clear();
  decoded.callInfoList.clear();
  EXPECT_EQ(TypeParam::notify(item, "", JournalServiceObserverIfc::ENTRY_CHANGED, 12),
            this->updateOf(""));
  EXPECT_EQ(TypeParam::notify(item, "17", JournalServiceObserverIfc::ENTRY_ADDED, 0),
            this->updateOf("-removing"));
  EXPECT_EQ(this->item(this->updateOf("")), decoded);
  EXPECT_EQ(this->item(this->updateOf("-removing")), decoded);
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
