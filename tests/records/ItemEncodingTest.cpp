// One entry written: which elements, in which order, and which are left out.
#include <string>

#include "records/TestedKinds.h"

namespace {

template <class KindType>
class ItemEncoding : public ::testing::Test {
protected:
  static std::string uniqueId(typename KindType::Item const& item) {
    std::string out;
    KindType::writeBody(item, out, true);
    return out;
  }

  static std::string calls(typename KindType::Item const& item) {
    std::string out;
    KindType::writeCalls(item, out);
    return out;
  }
};

TYPED_TEST_SUITE(ItemEncoding, kinds::All, kinds::KindNames);

TYPED_TEST(ItemEncoding, TheUniqueIdAlone) {
  auto item = TypeParam::full();
  item.uniqueId = "a&b";
  EXPECT_EQ(this->uniqueId(item), "<UniqueId>a&b</UniqueId>");
  item.uniqueId.clear();
  EXPECT_EQ(this->uniqueId(item), "");
}

TYPED_TEST(ItemEncoding, WhatTheOutputHeldIsKept) {
  auto const item = TypeParam::full();
  for (std::string const& held :
       {std::string("before"), std::string("a\0b", 3), std::string(5000, '<')}) {
    std::string out = held;
    TypeParam::writeBody(item, out, false);
    EXPECT_EQ(out, held + TypeParam::body(item));
    out = held;
    TypeParam::writeBody(item, out, true);
    EXPECT_EQ(out, held + this->uniqueId(item));
    out = held;
    TypeParam::writeCalls(item, out);
    EXPECT_EQ(out, held + this->calls(item));
    out = held;
    TypeParam::writeBody({}, out, true);
    EXPECT_EQ(out, held);
  }
}

TYPED_TEST(ItemEncoding, NoCalls) {
  EXPECT_EQ(this->calls({}), "<LogList></LogList>");
  auto item = TypeParam::full();
  item.callInfoList.clear();
  EXPECT_EQ(this->calls(item), "<LogList></LogList>");
}

TYPED_TEST(ItemEncoding, CallsKeepTheirOrder) {
  std::string const open = "<LogList>";
  std::string const close = "</LogList>";
  typename TypeParam::Item item;
  std::string expected;
  for (char const* number : {"3", "1", "2", "1"}) {
    item.callInfoList.emplace_back();
    item.callInfoList.back().number = number;
    std::string const alone = TypeParam::oneCall(item.callInfoList.back());
    expected += alone.substr(open.size(), alone.size() - open.size() - close.size());
  }
  EXPECT_EQ(this->calls(item), open + expected + close);
}

// Texts of every length, appended to outputs with more and with less capacity left.
TYPED_TEST(ItemEncoding, TextsOfEveryLength) {
  auto const fresh = TypeParam::body({});
  auto const flags = fresh.substr(0, fresh.find("<LogList></LogList>"));
  for (std::string::size_type length = 1; length <= 200; ++length) {
    std::string const value(length, static_cast<char>('a' + length % 26));
    typename TypeParam::Item item;
    item.surname = value;
    item.picture = value;
    item.callInfoList.emplace_back();
    item.callInfoList.back().number = value;
    std::string const call = TypeParam::oneCall({});
    auto const callAt = std::string("<LogList><Item>").size();
    std::string expected(length * 7, '.');
    std::string out = expected;
    out.shrink_to_fit();
    TypeParam::writeBody(item, out, false);
    expected += "<Surname>" + value + "</Surname><Picture>" + value + "</Picture>";
    expected +=
        flags + call.substr(0, callAt) + "<Number>" + value + "</Number>" + call.substr(callAt);
    EXPECT_EQ(out, expected);
  }
}

TYPED_TEST(ItemEncoding, TheBodyEndsWithTheList) {
  auto const item = TypeParam::full();
  std::string const whole = TypeParam::body(item);
  std::string const list = this->calls(item);
  ASSERT_GE(whole.size(), list.size());
  EXPECT_EQ(whole.substr(whole.size() - list.size()), list);
}

TYPED_TEST(ItemEncoding, TheRecordStaysAsItWas) {
  auto const item = TypeParam::full();
  TypeParam::body(item);
  EXPECT_EQ(item, TypeParam::full());
}

} // namespace
