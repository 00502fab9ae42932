// The records themselves: what a new one holds, and how they are copied.
#include <type_traits>

#include "records/TestedKinds.h"

namespace {

template <class KindType>
class Records : public ::testing::Test {};
TYPED_TEST_SUITE(Records, kinds::All, kinds::KindNames);

std::string defaultOf(std::string const&) {
  return "";
}
bool defaultOf(bool) {
  return false;
}
NumberType::NT defaultOf(NumberType::NT) {
  return NumberType::NO_ICON;
}
CallLogEntryEvent::_LogTarget defaultOf(CallLogEntryEvent::_LogTarget) {
  return CallLogEntryEvent::OUT_BUSY;
}
CallLogEntryEvent::_PresentationValue defaultOf(CallLogEntryEvent::_PresentationValue) {
  return CallLogEntryEvent::NOT_AVAILABLE;
}
CallLogEntryEvent::_TFormat defaultOf(CallLogEntryEvent::_TFormat) {
  return CallLogEntryEvent::FORM_24;
}

TYPED_TEST(Records, HoldTheDefaultsWhenFresh) {
  auto const expectDefault = [](auto const& value) { EXPECT_EQ(value, defaultOf(value)); };
  typename TypeParam::Item const item;
  typename TypeParam::Info const call;
  members::forEachValue(item, expectDefault);
  members::forEachValue(call, expectDefault);
  EXPECT_TRUE(item.callInfoList.empty());
}

TYPED_TEST(Records, AreValues) {
  using Item = typename TypeParam::Item;
  using Info = typename TypeParam::Info;
  static_assert(std::is_same_v<decltype(Item::callInfoList), std::list<Info>>);
  static_assert(std::is_default_constructible_v<Item> && std::is_default_constructible_v<Info>);
  static_assert(std::is_copy_constructible_v<Item> && std::is_copy_assignable_v<Item>);
  static_assert(std::is_nothrow_move_constructible_v<Info>);
}

TYPED_TEST(Records, ACopyHoldsItsOwnCalls) {
  typename TypeParam::Item source = TypeParam::full();
  source.callInfoList.emplace_back();
  source.callInfoList.back().number = "third";
  auto const before = TypeParam::full().callInfoList;

  typename TypeParam::Item copy = source;
  EXPECT_EQ(copy, source);
  EXPECT_EQ(copy.callInfoList.size(), 3U);

  copy.uniqueId = "changed";
  copy.callInfoList.front().number = "changed";
  copy.callInfoList.pop_back();
  EXPECT_EQ(source.uniqueId, TypeParam::full().uniqueId);
  ASSERT_EQ(source.callInfoList.size(), 3U);
  EXPECT_EQ(source.callInfoList.front(), before.front());
  EXPECT_EQ(source.callInfoList.back().number, "third");
}

} // namespace
