// Which texts pass through the utility library, and which do not: the library is linked with one
// that returns E(text) for an escaped text, U(text) for an unescaped one and I(number) for a
// number.
#include <string>
#include <type_traits>
#include <vector>

#include "records/MemberValues.h"
#include "records/TestedKinds.h"

using Helper = JournalServiceHelper;
using kinds::tagged;
using records::otherRecord;
using records::otherValue;
using records::RecordOf;
using records::ValueOf;

namespace {

// What a member holds when its element was read with this value: a text is marked, a flag is read
// raw, and the marked text of an enumeration names no member.
template <class Member>
ValueOf<Member> marked(Member const& member, ValueOf<Member> const& value) {
  if constexpr (std::is_same_v<ValueOf<Member>, std::string>)
    return "U(" + value + ")";
  else if constexpr (std::is_same_v<ValueOf<Member>, bool>)
    return value;
  else
    return member.in(RecordOf<Member>());
}

// What is read from a record with all members set.
template <class Record>
Record markedRecord() {
  Record record;
  members::forEachField<Record>([&record](auto const& member) {
    if (member.travel == members::Travel::bothWays)
      member.in(record) = marked(member, otherValue(member));
  });
  return record;
}

template <class KindType>
class Marked : public ::testing::Test {
protected:
  using Item = typename KindType::Item;
  using Info = typename KindType::Info;

  static void read(std::string const& text, Item& item) { KindType::readItem(text.c_str(), item); }
  static void read(std::string const& text, Info& call) { KindType::readCall(text.c_str(), call); }

  // Calls check(member, element) for each member of an entry and of a call that is read.
  template <class Check>
  static void forEachRead(Check const& check) {
    auto const checkRead = [&check](auto const& member) {
      if (member.travel == members::Travel::bothWays)
        check(member, std::string(member.element));
    };
    members::forEachField<Item>(checkRead);
    members::forEachField<Info>(checkRead);
  }
};

TYPED_TEST_SUITE(Marked, kinds::All, kinds::KindNames);

// A reader remembers what a text of an enumeration was unescaped to, and asks again for any other.
TYPED_TEST(Marked, EqualTextsReadTwice) {
  std::string const item = "<Item><NumberType>MOBILE</NumberType></Item>"
                           "<Item><NumberType>[MOBILE]</NumberType></Item>"
                           "<Item><NumberType>[PRIVATE]</NumberType></Item>";
  typename TypeParam::InfoList list;
  TypeParam::readCalls(("<LogList>" + item + item + "</LogList>").c_str(), list);
  std::vector<NumberType::NT> types;
  for (auto const& call : list)
    types.push_back(call.numberType);
  EXPECT_EQ(types, (std::vector<NumberType::NT>{NumberType::NO_ICON, NumberType::MOBILE,
                                                NumberType::PRIVATE, NumberType::NO_ICON,
                                                NumberType::MOBILE, NumberType::PRIVATE}));
}

// One element present: its text is unescaped, an enumeration's too. The texts of the missing
// elements stay empty.
TYPED_TEST(Marked, OneElementRead) {
  this->forEachRead([](auto const& member, std::string const& element) {
    for (char const* before : {"", "\n"}) {
      RecordOf<decltype(member)> record;
      auto expected = record;
      member.in(expected) = marked(member, otherValue(member));
      auto const text = tagged(element, records::spelled(otherValue(member)));
      TestFixture::read(before + text, record);
      EXPECT_EQ(record, expected) << text;
    }
  });
}

// A member of an enumeration is what the unescaped text names.
TYPED_TEST(Marked, EveryMemberIsReadFromTheUnescapedText) {
  this->forEachRead([](auto const& member, std::string const& element) {
    using Value = ValueOf<decltype(member)>;
    if constexpr (std::is_enum_v<Value>)
      for (auto const& enumerator : members::enumerators<Value>) {
        std::string const name(enumerator.name);
        RecordOf<decltype(member)> record;
        auto expected = record;
        TestFixture::read(tagged(element, name), record);
        EXPECT_EQ(record, expected) << element << " " << name;
        TestFixture::read(tagged(element, "[" + name + "]"), record);
        member.in(expected) = enumerator.value;
        EXPECT_EQ(record, expected) << element << " " << name;
      }
  });
}

// A flag is read from the text as it is.
TYPED_TEST(Marked, FlagsAreReadRaw) {
  this->forEachRead([](auto const& member, std::string const& element) {
    if constexpr (std::is_same_v<ValueOf<decltype(member)>, bool>) {
      RecordOf<decltype(member)> record;
      TestFixture::read(tagged(element, "[True]"), record);
      EXPECT_FALSE(member.in(record)) << element;
    }
  });
}

TEST(MarkedDialledCall, NamePresentationBetweenTwoBeginTags) {
  DialledCallItem::DialledCallInfo call;
  kinds::Dialled::readCall("<NamePresentation>[ALLOWED]<NamePresentation>", call);
  EXPECT_EQ(call.namePresentation, CallLogEntryEvent::ALLOWED);
  kinds::Dialled::readCall("<NamePresentation>ALLOWED<NamePresentation>", call);
  EXPECT_EQ(call.namePresentation, CallLogEntryEvent::NOT_AVAILABLE);
}

TYPED_TEST(Marked, AnEmptyElementReadIsPresent) {
  typename TypeParam::Info call;
  TypeParam::readCall("<Number></Number>", call);
  EXPECT_EQ(call.number, "U()");
  TypeParam::readCall("<Number>", call);
  EXPECT_EQ(call.number, "");
}

// A whole message as it is written, which the reader's fast path takes. The writer's marks are
// removed first.
TYPED_TEST(Marked, ALogRead) {
  auto item = otherRecord<typename TypeParam::Item>();
  item.callInfoList.push_back(otherRecord<typename TypeParam::Info>());
  auto text = TypeParam::respond({item, item}, 0);
  for (auto at = text.find("E("); at != std::string::npos; at = text.find("E(")) {
    text.erase(text.find(')', at), 1);
    text.erase(at, 2);
  }
  auto expected = markedRecord<typename TypeParam::Item>();
  expected.callInfoList.push_back(markedRecord<typename TypeParam::Info>());
  typename TypeParam::Log log;
  TypeParam::readLog(text, log);
  EXPECT_EQ(log, typename TypeParam::Log(2, expected));
}

// The handle's text is unescaped before it is read as a number.
TYPED_TEST(Marked, AHandleRead) {
  typename TypeParam::Log log;
  unsigned int handle = 99;
  TypeParam::readLogAndHandle("<Handle>42</Handle>", log, handle);
  EXPECT_EQ(handle, 0U);
  TypeParam::readLogAndHandle("<Handle>[42]</Handle>", log, handle);
  EXPECT_EQ(handle, 42U);
}

TYPED_TEST(Marked, AHandleWritten) {
  auto const response = TypeParam::respond({}, 4294967295U);
  EXPECT_EQ(response.substr(response.find("<Handle>")), "<Handle>I(-1)</Handle>");
  auto const notification =
      TypeParam::notify({}, "a&b", JournalServiceObserverIfc::ENTRY_CHANGED, 7);
  EXPECT_EQ(notification.substr(notification.find("<UniqueIdToDelete>")),
            "<UniqueIdToDelete>a&b</UniqueIdToDelete><ActionType>1</ActionType>"
            "<Handle>I(7)</Handle>");
}

// Whether an escaped text is left out is decided by the text that escaping returns.
TYPED_TEST(Marked, EveryTextWritten) {
  auto const expectWritten = [](auto const& member, auto const& record, std::string const& text) {
    if constexpr (std::is_same_v<ValueOf<decltype(member)>, std::string>) {
      if (member.travel == members::Travel::never)
        return;
      std::string const value = member.in(record);
      bool const isEscaped = records::isEscaped(member);
      auto const marked = isEscaped ? "E(" + value + ")" : value;
      auto const begin = "<" + std::string(member.element) + ">";
      EXPECT_EQ(text.find(begin + marked + "</") != std::string::npos, !marked.empty()) << text;
      EXPECT_EQ(text.find(begin) != std::string::npos, !marked.empty()) << text;
    }
  };
  using Entry = typename TypeParam::Item;
  using Call = typename TypeParam::Info;
  for (auto const& entry : {Entry(), otherRecord<Entry>()})
    members::forEachField<Entry>(
        [&](auto const& member) { expectWritten(member, entry, TypeParam::body(entry)); });
  for (auto const& call : {Call(), otherRecord<Call>()})
    members::forEachField<Call>(
        [&](auto const& member) { expectWritten(member, call, TypeParam::oneCall(call)); });
}

TYPED_TEST(Marked, TheUniqueIdWrittenAlone) {
  typename TypeParam::Item item;
  item.uniqueId = "a";
  std::string out;
  TypeParam::writeBody(item, out, true);
  EXPECT_EQ(out, "<UniqueId>a</UniqueId>");
}

TEST(MarkedMessage, TextsReadFromAMessage) {
  std::string value = "before";
  EXPECT_TRUE(Helper::getXMLValue("<Number>1</Number>", "Number", value));
  EXPECT_EQ(value, "U(1)");
  EXPECT_FALSE(Helper::getXMLValue("<Number></Number>", "Number", value));
  EXPECT_EQ(value, "U(1)");

  Helper::getXMLValue("<Number>2</Number>", "<Number>", "</Number>", value);
  EXPECT_EQ(value, "U(2)");
  Helper::getXMLValue("<Number></Number>", "<Number>", "</Number>", value);
  EXPECT_EQ(value, "U()");
  Helper::getXMLValue("<Number>", "<Number>", "</Number>", value);
  EXPECT_EQ(value, "");

  DialledCallItem last;
  Helper::parseXMLGetLastDialledNumber("<EntryId>9</EntryId>", last);
  EXPECT_EQ(last.entryId, "U(9)");

  std::string message = "<Entry><UniqueId>7</UniqueId></Entry>";
  EXPECT_TRUE(Helper::parseLastUniqueId(message, value));
  EXPECT_EQ(value, "U(7)");
  message = "<Entry><UniqueId></UniqueId></Entry>";
  EXPECT_TRUE(Helper::parseLastUniqueId(message, value));
  EXPECT_EQ(value, "U()");
}

// Flags, numbers and enumerations are made from the unescaped text.
TEST(MarkedMessage, ValuesReadFromAMessage) {
  auto type = NumberType::PRIVATE;
  EXPECT_TRUE(Helper::getXMLValue("<NumberType>MOBILE</NumberType>", "NumberType", type));
  EXPECT_EQ(type, NumberType::NO_ICON);
  bool flag = true;
  EXPECT_TRUE(Helper::getXMLValue("<Viewed>True</Viewed>", "Viewed", flag));
  EXPECT_FALSE(flag);
  unsigned int number = 99;
  EXPECT_TRUE(Helper::getXMLValue("<Value>42</Value>", "Value", number));
  EXPECT_EQ(number, 0U);
  EXPECT_TRUE(Helper::getXMLValue("<NumberType>[MOBILE]</NumberType>", "NumberType", type));
  EXPECT_EQ(type, NumberType::MOBILE);
  EXPECT_TRUE(Helper::getXMLValue("<Viewed>[True]</Viewed>", "Viewed", flag));
  EXPECT_TRUE(flag);
  EXPECT_TRUE(Helper::getXMLValue("<Value>[42]</Value>", "Value", number));
  EXPECT_EQ(number, 42U);
  std::string value = "before";
  std::string message = "<Entry><UniqueId>[]</UniqueId></Entry>";
  EXPECT_FALSE(Helper::parseLastUniqueId(message, value));
  EXPECT_EQ(value, "before");
  EXPECT_TRUE(Helper::parseXMLEnabledStateItem("<CallLogEnabled>[true]</CallLogEnabled>"));
  EXPECT_TRUE(Helper::parseXMLEnabledStateItem("<CallLogEnabled>[]</CallLogEnabled>"));
  EXPECT_FALSE(Helper::parseXMLEnabledStateItem("<CallLogEnabled>true</CallLogEnabled>"));
  EXPECT_FALSE(Helper::parseXMLEnabledStateItem("<CallLogEnabled></CallLogEnabled>"));
  EXPECT_TRUE(Helper::parseXMLEnabledStateItem("<CallLogEnabled>"));
}

TEST(MarkedMessage, RawReading) {
  bool flag = false;
  Helper::getXMLValue("<Viewed>True</Viewed>", "<Viewed>", "</Viewed>", flag);
  EXPECT_TRUE(flag);
  Helper::getXMLValue("<Viewed>[True]</Viewed>", "<Viewed>", "</Viewed>", flag);
  EXPECT_FALSE(flag);
  std::string text = "<Number>1</Number>";
  std::string value;
  EXPECT_TRUE(Helper::getAndRemoveXMLValue(text, "Number", value));
  EXPECT_EQ(value, "1");
  EXPECT_EQ(text, "");
  EXPECT_EQ(Helper::getMethodFromXMLMsg("<Method><subscribe></Method>"), 18U);
  EXPECT_TRUE(Helper::isNonFailureResponse("<Value>Success</Value>"));
}

TEST(MarkedMessage, RawWriting) {
  std::string const declaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";
  EXPECT_EQ(Helper::createXMLField("Surname", std::string("&")), "<Surname>&</Surname>");
  EXPECT_EQ(Helper::createXMLField("Surname", "&"), "<Surname>&</Surname>");
  EXPECT_EQ(Helper::createXMLField("Value", 4294967295U), "<Value>-1</Value>");
  EXPECT_EQ(Helper::createXMLField("Viewed", true), "<Viewed>True</Viewed>");
  EXPECT_EQ(Helper::createXMLBegin("&"), "<&>");
  EXPECT_EQ(Helper::createXMLClose("&"), "</&>");
  EXPECT_EQ(Helper::createXMLSchemaField("&"), "<Schema>&");
  EXPECT_EQ(Helper::createXMLEntryIDList({"&"}), "<EntryId>&</EntryId>");
  EXPECT_EQ(Helper::convertNumberType(NumberType::MOBILE), "MOBILE");
  EXPECT_EQ(Helper::convertNumberType("MOBILE"), NumberType::MOBILE);
  EXPECT_EQ(Helper::reqDeleteMissedCall("&"),
            declaration + "<Method><deleteMissedCall></Method><EntryId>&</EntryId>");
  EXPECT_EQ(Helper::reqDeleteForwardedCallList({"&"}),
            declaration + "<Method><deleteForwardedCallList></Method><EntryId>&</EntryId>");
  EXPECT_EQ(Helper::readEnabledState(),
            declaration + "<Schema name=\"CallLogSettings\">"
                          "<ReasonForMessage>read_request</ReasonForMessage></Schema>");
  EXPECT_EQ(Helper::obsReqMissedCallsCountUpdate(3),
            declaration + "<Method><missedCallsCountUpdate></Method><Value>3</Value>");
  EXPECT_EQ(Helper::obsReqMissedGroupCallsUpdate(3),
            declaration + "<Method><missedGroupCallsUpdate></Method><Value>3</Value>");
  std::string message = "&";
  Helper::addXMLHeaderFooter(message, "&");
  EXPECT_EQ(message, declaration + "<Schema name=\"&\">&</Schema>");
  EXPECT_TRUE(Helper::addSuccessResp(message = ""));
  EXPECT_EQ(message, "<Value>Success</Value>");
}

} // namespace
