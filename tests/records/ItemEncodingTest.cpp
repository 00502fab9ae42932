// One entry written: which elements, in which order, and which are left out.
#include <vector>

#include "records/TestedKinds.h"

using kinds::Dialled;
using kinds::Forwarded;
using kinds::Missed;
using kinds::Received;

namespace {

// An element as it is written for the full record, and the text that leaves it out when empty;
// none for elements that are always written.
template <typename Record>
struct Row {
  std::string element;
  std::string Record::*text;
};
template <typename Record>
using Rows = std::vector<Row<Record>>;

Rows<Missed::Info> callRows(Missed) {
  using Info = Missed::Info;
  return {{"<Number>+4930901820</Number>", &Info::number},
          {"<NumberType>MOBILE</NumberType>", nullptr},
          {"<ConnectedNumber>+4930901821</ConnectedNumber>", &Info::connectedNumber},
          {"<ConnectedNumberType>BUSINESS1</ConnectedNumberType>", nullptr},
          {"<ConnectedSurname>Łukasiewicz</ConnectedSurname>", &Info::connectedSurname},
          {"<ConnectedFirstName>Anna & Co</ConnectedFirstName>", &Info::connectedFirstName},
          {"<TimeDate>2007-05-14 09:31:07</TimeDate>", &Info::timeDate},
          {"<TargetLog>IN_NO_ANSWER</TargetLog>", nullptr},
          {"<NumberPresentation>ALLOWED</NumberPresentation>", nullptr},
          {"<NamePresentation>NOT_ALLOWED</NamePresentation>", nullptr},
          {"<DeflectNumberPresentation>NOT_ALLOWED</DeflectNumberPresentation>", nullptr},
          {"<DeflectNumber>5559</DeflectNumber>", &Info::deflectNumber},
          {"<DeflectNumberType>BUSINESS2</DeflectNumberType>", nullptr},
          {"<DeflectNamePresentation>ALLOWED</DeflectNamePresentation>", nullptr},
          {"<DeflectName>Zentrale <1></DeflectName>", &Info::deflectName},
          {"<TimeFormat>FORM_PM</TimeFormat>", nullptr}};
}

Rows<Dialled::Info> callRows(Dialled) {
  using Info = Dialled::Info;
  return {{"<Number>0049891234</Number>", &Info::number},
          {"<NumberType>BUSINESS1</NumberType>", nullptr},
          {"<ResolvedNumber>+49891234</ResolvedNumber>", &Info::resolvedNumber},
          {"<ConnectedNumber>+49895678</ConnectedNumber>", &Info::connectedNumber},
          {"<ConnectedNumberPriority>True</ConnectedNumberPriority>", nullptr},
          {"<ConnectedNumberType>MOBILE</ConnectedNumberType>", nullptr},
          {"<ConnectedSurname>Weiß & Sohn</ConnectedSurname>", &Info::connectedSurname},
          {"<ConnectedFirstName>Jürgen &lt;J&gt;</ConnectedFirstName>", &Info::connectedFirstName},
          {"<TimeDate>2007-05-14 18:00:00</TimeDate>", &Info::timeDate},
          {"<Duration>00:03:21</Duration>", &Info::duration},
          {"<TargetLog>OUT_ANSWERED</TargetLog>", nullptr},
          {"<NumberPresentation>NOT_ALLOWED</NumberPresentation>", nullptr},
          {"<NamePresentation>ALLOWED</NamePresentation>", nullptr},
          {"<TimeFormat>FORM_AM</TimeFormat>", nullptr}};
}

Rows<Received::Info> callRows(Received) {
  using Info = Received::Info;
  return {{"<Number>5551234</Number>", &Info::number},
          {"<NumberType>BUSINESS2</NumberType>", nullptr},
          {"<ConnectedNumber>5551235</ConnectedNumber>", &Info::connectedNumber},
          {"<ConnectedNumberType>PRIVATE</ConnectedNumberType>", nullptr},
          {"<ConnectedSurname>Smith & Wesson</ConnectedSurname>", &Info::connectedSurname},
          {"<ConnectedFirstName><Ann></ConnectedFirstName>", &Info::connectedFirstName},
          {"<TimeDate>2007-05-14 20:15:00</TimeDate>", &Info::timeDate},
          {"<Duration>65 s</Duration>", &Info::duration},
          {"<TargetLog>IN_ANSWERED</TargetLog>", nullptr},
          {"<NumberPresentation>NOT_ALLOWED</NumberPresentation>", nullptr},
          {"<NamePresentation>ALLOWED</NamePresentation>", nullptr},
          {"<DeflectNumberPresentation>ALLOWED</DeflectNumberPresentation>", nullptr},
          {"<DeflectNumber>5551236</DeflectNumber>", &Info::deflectNumber},
          {"<DeflectNumberType>MOBILE</DeflectNumberType>", nullptr},
          {"<DeflectNamePresentation>NOT_ALLOWED</DeflectNamePresentation>", nullptr},
          {"<DeflectName>Büro</DeflectName>", &Info::deflectName},
          {"<TimeFormat>FORM_PM</TimeFormat>", nullptr}};
}

Rows<Forwarded::Info> callRows(Forwarded) {
  using Info = Forwarded::Info;
  return {
      {"<Number>333</Number>", &Info::number},
      {"<NumberType>MOBILE</NumberType>", nullptr},
      {"<ConnectedNumber>444&555</ConnectedNumber>", &Info::connectedNumber},
      {"<ConnectedNumberType>BUSINESS1</ConnectedNumberType>", nullptr},
      {"<ConnectedSurname>Черных &amp; &lt;Сын&gt;</ConnectedSurname>", &Info::connectedSurname},
      {"<ConnectedFirstName>D&apos;Arc</ConnectedFirstName>", &Info::connectedFirstName},
      {"<TimeDate>2007-05-15 00:00:01</TimeDate>", &Info::timeDate},
      {"<Duration>00:00:59</Duration>", &Info::duration}};
}

Rows<Missed::Item> entryRows(Missed) {
  using Item = Missed::Item;
  return {{"<UniqueId>M-1001</UniqueId>", &Item::uniqueId},
          {"<EntryId>71</EntryId>", &Item::entryId},
          {"<Surname>Müller &amp; Söhne &lt;&quot;Köln&quot;&gt;</Surname>", &Item::surname},
          {"<Firstname>Zoë &apos;Z&apos;</Firstname>", &Item::firstname},
          {"<Picture>pics/71.png?a=1&amp;b=2</Picture>", &Item::picture},
          {"<Viewed>True</Viewed>", nullptr}};
}

Rows<Dialled::Item> entryRows(Dialled) {
  using Item = Dialled::Item;
  return {{"<UniqueId>D-2001</UniqueId>", &Item::uniqueId},
          {"<EntryId>72&73</EntryId>", &Item::entryId},
          {"<Surname>O&apos;Brien</Surname>", &Item::surname},
          {"<Firstname>Siobhán &lt;Sí&gt;</Firstname>", &Item::firstname},
          {"<Picture>tel:72.jpg</Picture>", &Item::picture},
          {"<JSGroupBy>day=2007-05-14&amp;week=20</JSGroupBy>", &Item::jsGroupBy}};
}

Rows<Received::Item> entryRows(Received) {
  using Item = Received::Item;
  return {{"<UniqueId>R-3001</UniqueId>", &Item::uniqueId},
          {"<EntryId>74</EntryId>", &Item::entryId},
          {"<Surname>Ångström</Surname>", &Item::surname},
          {"<Firstname>Åsa &quot;Å&quot; &amp;amp;</Firstname>", &Item::firstname},
          {"<Picture>74.bmp</Picture>", &Item::picture}};
}

Rows<Forwarded::Item> entryRows(Forwarded) {
  using Item = Forwarded::Item;
  return {{"<UniqueId>F-4001</UniqueId>", &Item::uniqueId},
          {"<EntryId>75</EntryId>", &Item::entryId},
          {"<Surname>Nováková</Surname>", &Item::surname},
          {"<Firstname>Jiřina &quot;Jiří&quot;</Firstname>", &Item::firstname},
          {"<Picture>75</Picture>", &Item::picture}};
}

// The rows' elements, but for the one that is left out.
template <typename Record>
std::string joined(Rows<Record> const& rows, Row<Record> const* without = nullptr) {
  std::string text;
  for (Row<Record> const& row : rows)
    if (&row != without)
      text += row.element;
  return text;
}

template <typename KindType>
class ItemEncoding : public ::testing::Test {
protected:
  using Item = typename KindType::Item;
  using Info = typename KindType::Info;

  static std::string body(Item const& item, bool uniqueIdOnly = false) {
    std::string out;
    KindType::writeBody(item, out, uniqueIdOnly);
    return out;
  }

  static std::string calls(Item const& item) {
    std::string out;
    KindType::writeCalls(item, out);
    return out;
  }

  static std::string oneCall(Info const& call) {
    Item item;
    item.callInfoList.push_back(call);
    return calls(item);
  }

  static std::string wrapped(std::string const& elements) {
    return "<LogList><Item>" + elements + "</Item></LogList>";
  }
};

TYPED_TEST_SUITE(ItemEncoding, kinds::All, kinds::KindNames);

TYPED_TEST(ItemEncoding, ACallWithEverything) {
  auto const rows = callRows(TypeParam());
  EXPECT_EQ(this->oneCall(TypeParam::full().callInfoList.front()), this->wrapped(joined(rows)));
}

TYPED_TEST(ItemEncoding, EachEmptyTextOfACallIsLeftOut) {
  auto const rows = callRows(TypeParam());
  for (auto const& row : rows) {
    if (row.text == nullptr)
      continue;
    auto call = TypeParam::full().callInfoList.front();
    (call.*row.text).clear();
    EXPECT_EQ(this->oneCall(call), this->wrapped(joined(rows, &row)));
  }
}

TYPED_TEST(ItemEncoding, EnumerationsAndFlagsOfACallAreWrittenWithoutTheirTexts) {
  auto call = TypeParam::full().callInfoList.front();
  std::string expected;
  for (auto const& row : callRows(TypeParam())) {
    if (row.text == nullptr)
      expected += row.element;
    else
      (call.*row.text).clear();
  }
  EXPECT_EQ(this->oneCall(call), this->wrapped(expected));
}

TYPED_TEST(ItemEncoding, AnEntryWithEverything) {
  auto const rows = entryRows(TypeParam());
  auto item = TypeParam::full();
  item.callInfoList.pop_back();
  EXPECT_EQ(this->body(item), joined(rows) + this->wrapped(joined(callRows(TypeParam()))));
}

TYPED_TEST(ItemEncoding, EachEmptyTextOfAnEntryIsLeftOut) {
  auto const rows = entryRows(TypeParam());
  for (auto const& row : rows) {
    if (row.text == nullptr)
      continue;
    auto item = TypeParam::full();
    item.callInfoList.clear();
    (item.*row.text).clear();
    EXPECT_EQ(this->body(item), joined(rows, &row) + "<LogList></LogList>");
  }
}

TYPED_TEST(ItemEncoding, AFreshEntry) {
  bool const isMissed = std::is_same_v<TypeParam, Missed>;
  EXPECT_EQ(this->body({}),
            isMissed ? "<Viewed>False</Viewed><LogList></LogList>" : "<LogList></LogList>");
}

TYPED_TEST(ItemEncoding, TheUniqueIdAlone) {
  auto item = TypeParam::full();
  item.uniqueId = "a&b";
  EXPECT_EQ(this->body(item, true), "<UniqueId>a&b</UniqueId>");
  item.uniqueId.clear();
  EXPECT_EQ(this->body(item, true), "");
}

TYPED_TEST(ItemEncoding, WhatTheOutputHeldIsKept) {
  auto const item = TypeParam::full();
  for (std::string const& held :
       {std::string("before"), std::string("a\0b", 3), std::string(5000, '<')}) {
    std::string out = held;
    TypeParam::writeBody(item, out, false);
    EXPECT_EQ(out, held + this->body(item));
    out = held;
    TypeParam::writeBody(item, out, true);
    EXPECT_EQ(out, held + this->body(item, true));
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
    std::string const alone = this->oneCall(item.callInfoList.back());
    expected += alone.substr(open.size(), alone.size() - open.size() - close.size());
  }
  EXPECT_EQ(this->calls(item), open + expected + close);
}

// Each text at every length, behind an output that leaves more or less room.
TYPED_TEST(ItemEncoding, TextsOfEveryLength) {
  for (std::string::size_type length = 1; length <= 200; ++length) {
    std::string const value(length, static_cast<char>('a' + length % 26));
    typename TypeParam::Item item;
    item.surname = value;
    item.picture = value;
    item.callInfoList.emplace_back();
    item.callInfoList.back().number = value;
    std::string const call = this->oneCall({});
    auto const callAt = std::string("<LogList><Item>").size();
    std::string expected(length * 7, '.');
    std::string out = expected;
    out.shrink_to_fit();
    TypeParam::writeBody(item, out, false);
    expected += "<Surname>" + value + "</Surname><Picture>" + value + "</Picture>";
    expected += std::is_same_v<TypeParam, Missed> ? "<Viewed>False</Viewed>" : "";
    expected += call.substr(0, callAt) + "<Number>" + value + "</Number>" + call.substr(callAt);
    EXPECT_EQ(out, expected);
  }
}

TYPED_TEST(ItemEncoding, TheBodyEndsWithTheList) {
  auto const item = TypeParam::full();
  std::string const whole = this->body(item);
  std::string const list = this->calls(item);
  ASSERT_GE(whole.size(), list.size());
  EXPECT_EQ(whole.substr(whole.size() - list.size()), list);
}

TYPED_TEST(ItemEncoding, TheRecordStaysAsItWas) {
  auto const item = TypeParam::full();
  this->body(item);
  EXPECT_EQ(item, TypeParam::full());
}

} // namespace
