// The records themselves: what a fresh one holds, and how they copy.
#include <type_traits>

#include "records/TestedKinds.h"

using kinds::Dialled;
using kinds::Forwarded;
using kinds::Missed;
using kinds::Received;
using record_fields::Fields;
using record_fields::of;

namespace {

TEST(FreshRecord, MissedCall) {
  EXPECT_EQ(of(Missed::Info()), (Fields{{"infoKey", ""},
                                        {"TargetLog", "OUT_BUSY"},
                                        {"NumberPresentation", "NOT_AVAILABLE"},
                                        {"Number", ""},
                                        {"NamePresentation", "NOT_AVAILABLE"},
                                        {"NumberType", "NO_ICON"},
                                        {"ConnectedNumber", ""},
                                        {"ConnectedNumberType", "NO_ICON"},
                                        {"ConnectedSurname", ""},
                                        {"ConnectedFirstName", ""},
                                        {"DeflectNumberPresentation", "NOT_AVAILABLE"},
                                        {"DeflectNumber", ""},
                                        {"DeflectNumberType", "NO_ICON"},
                                        {"DeflectNamePresentation", "NOT_AVAILABLE"},
                                        {"DeflectName", ""},
                                        {"TimeFormat", "FORM_24"},
                                        {"TimeDate", ""}}));
}

TEST(FreshRecord, DialledCall) {
  EXPECT_EQ(of(Dialled::Info()), (Fields{{"infoKey", ""},
                                         {"TargetLog", "OUT_BUSY"},
                                         {"NumberPresentation", "NOT_AVAILABLE"},
                                         {"Number", ""},
                                         {"ResolvedNumber", ""},
                                         {"ConnectedNumberPriority", "False"},
                                         {"NamePresentation", "NOT_AVAILABLE"},
                                         {"NumberType", "NO_ICON"},
                                         {"ConnectedNumber", ""},
                                         {"ConnectedNumberType", "NO_ICON"},
                                         {"ConnectedSurname", ""},
                                         {"ConnectedFirstName", ""},
                                         {"Duration", ""},
                                         {"TimeFormat", "FORM_24"},
                                         {"TimeDate", ""}}));
}

TEST(FreshRecord, ReceivedCall) {
  EXPECT_EQ(of(Received::Info()), (Fields{{"infoKey", ""},
                                          {"TargetLog", "OUT_BUSY"},
                                          {"NumberPresentation", "NOT_AVAILABLE"},
                                          {"Number", ""},
                                          {"NamePresentation", "NOT_AVAILABLE"},
                                          {"NumberType", "NO_ICON"},
                                          {"DeflectNumberPresentation", "NOT_AVAILABLE"},
                                          {"ConnectedNumber", ""},
                                          {"DeflectNumber", ""},
                                          {"ConnectedNumberType", "NO_ICON"},
                                          {"ConnectedSurname", ""},
                                          {"ConnectedFirstName", ""},
                                          {"DeflectNumberType", "NO_ICON"},
                                          {"DeflectNamePresentation", "NOT_AVAILABLE"},
                                          {"DeflectName", ""},
                                          {"Duration", ""},
                                          {"TimeFormat", "FORM_24"},
                                          {"TimeDate", ""}}));
}

TEST(FreshRecord, ForwardedCall) {
  EXPECT_EQ(of(Forwarded::Info()), (Fields{{"infoKey", ""},
                                           {"Number", ""},
                                           {"NumberType", "NO_ICON"},
                                           {"ConnectedNumber", ""},
                                           {"ConnectedNumberType", "NO_ICON"},
                                           {"ConnectedSurname", ""},
                                           {"ConnectedFirstName", ""},
                                           {"Duration", ""},
                                           {"TimeDate", ""}}));
}

template <typename KindType>
class Records : public ::testing::Test {};
TYPED_TEST_SUITE(Records, kinds::All, kinds::KindNames);

TYPED_TEST(Records, AFreshEntryIsEmpty) {
  typename TypeParam::Item const item;
  for (auto const& [name, value] : of(item))
    EXPECT_EQ(value, name == "Viewed" ? "False" : "") << name;
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

TYPED_TEST(Records, ACopyOfAnEntryWithoutCallsHasNone) {
  typename TypeParam::Item source = TypeParam::full();
  source.callInfoList.clear();
  typename TypeParam::Item const copy = source;
  EXPECT_EQ(copy, source);
  EXPECT_TRUE(copy.callInfoList.empty());
}

TYPED_TEST(Records, AssigningReplacesLongerAndShorterLists) {
  typename TypeParam::Item const one = TypeParam::sparse();
  typename TypeParam::Item const two = TypeParam::full();
  typename TypeParam::Item target = two;
  target = one;
  EXPECT_EQ(target, one);
  target = two;
  EXPECT_EQ(target, two);
}

TYPED_TEST(Records, InfoKeyIsCopiedAndNeverWritten) {
  typename TypeParam::Item item;
  item.callInfoList.emplace_back();
  item.callInfoList.back().infoKey = "a-key-of-the-holder";

  typename TypeParam::Item const copy = item;
  typename TypeParam::Item assigned;
  assigned = item;
  EXPECT_EQ(copy.callInfoList.front().infoKey, "a-key-of-the-holder");
  EXPECT_EQ(assigned.callInfoList.front().infoKey, "a-key-of-the-holder");

  std::string body;
  TypeParam::writeBody(item, body, false);
  EXPECT_EQ(body.find("a-key-of-the-holder"), std::string::npos) << body;
  EXPECT_EQ(body.find("nfoKey"), std::string::npos) << body;
}

// The order of declaration is part of the records: aggregate initialisation shows it.
TEST(Records, MembersStandInTheirOrder) {
  MissedCallItem const missed{"id", "entry", "sur", "first", "picture", {}, true};
  EXPECT_EQ(of(missed), (Fields{{"UniqueId", "id"},
                                {"EntryId", "entry"},
                                {"Surname", "sur"},
                                {"Firstname", "first"},
                                {"Picture", "picture"},
                                {"Viewed", "True"}}));
  DialledCallItem const dialled{"id", "entry", "sur", "first", "group", {}, "picture"};
  EXPECT_EQ(dialled.jsGroupBy, "group");
  EXPECT_EQ(dialled.picture, "picture");
  ReceivedCallItem const received{"id", "entry", "sur", "first", "picture", {}};
  EXPECT_EQ(received.picture, "picture");
  ForwardedCallItem const forwarded{"id", "entry", "sur", "first", "picture", {}};
  EXPECT_EQ(forwarded.picture, "picture");
}

TEST(Records, CallsHaveTheirMembersInTheirOrder) {
  using Event = CallLogEntryEvent;
  MissedCallItem::MissedCallInfo const missed{"key",
                                              Event::IN_BUSY,
                                              Event::ALLOWED,
                                              "number",
                                              Event::NOT_ALLOWED,
                                              NumberType::MOBILE,
                                              "connected",
                                              NumberType::PRIVATE,
                                              "surname",
                                              "first",
                                              Event::ALLOWED,
                                              "deflect",
                                              NumberType::BUSINESS1,
                                              Event::NOT_ALLOWED,
                                              "deflect name",
                                              Event::FORM_AM,
                                              "date"};
  EXPECT_EQ(missed.deflectNumberType, NumberType::BUSINESS1);
  EXPECT_EQ(missed.timeDate, "date");
  DialledCallItem::DialledCallInfo const dialled{"key",
                                                 Event::IN_BUSY,
                                                 Event::ALLOWED,
                                                 "number",
                                                 "resolved",
                                                 true,
                                                 Event::NOT_ALLOWED,
                                                 NumberType::MOBILE,
                                                 "connected",
                                                 NumberType::PRIVATE,
                                                 "surname",
                                                 "first",
                                                 "duration",
                                                 Event::FORM_AM,
                                                 "date"};
  EXPECT_EQ(dialled.resolvedNumber, "resolved");
  EXPECT_EQ(dialled.duration, "duration");
  ReceivedCallItem::ReceivedCallInfo const received{"key",
                                                    Event::IN_BUSY,
                                                    Event::ALLOWED,
                                                    "number",
                                                    Event::NOT_ALLOWED,
                                                    NumberType::MOBILE,
                                                    Event::ALLOWED,
                                                    "connected",
                                                    "deflect",
                                                    NumberType::PRIVATE,
                                                    "surname",
                                                    "first",
                                                    NumberType::BUSINESS1,
                                                    Event::NOT_ALLOWED,
                                                    "deflect name",
                                                    "duration",
                                                    Event::FORM_AM,
                                                    "date"};
  EXPECT_EQ(received.deflectNumber, "deflect");
  EXPECT_EQ(received.duration, "duration");
  ForwardedCallItem::ForwardedCallInfo const forwarded{
      "key",     "number", NumberType::MOBILE, "connected", NumberType::PRIVATE,
      "surname", "first",  "duration",         "date"};
  EXPECT_EQ(forwarded.duration, "duration");
  EXPECT_EQ(forwarded.timeDate, "date");
}

} // namespace
