// One entry read: its own elements and its list of calls.
#include <vector>

#include "records/TestedKinds.h"

using kinds::Dialled;
using kinds::Missed;
using kinds::Received;

namespace {

template <class KindType>
class ItemDecoding : public ::testing::Test {
protected:
  using Item = typename KindType::Item;

  static Item itemIn(std::string const& text) {
    Item item;
    EXPECT_TRUE(KindType::readItem(text.c_str(), item)) << text;
    return item;
  }
};

TYPED_TEST_SUITE(ItemDecoding, kinds::All, kinds::KindNames);

TYPED_TEST(ItemDecoding, AnExampleWithElementsMissing) {
  auto const item = this->itemIn(
      "<UniqueId>12</UniqueId><EntryId>3</EntryId><Surname>Doe</Surname><Viewed>True</Viewed>"
      "<LogList><Item><Number>123</Number><NumberType>MOBILE</NumberType></Item></LogList>");
  typename TypeParam::Item expected;
  expected.uniqueId = "12";
  expected.entryId = "3";
  expected.surname = "Doe";
  if constexpr (std::is_same_v<TypeParam, Missed>)
    expected.viewed = true;
  expected.callInfoList.emplace_back();
  expected.callInfoList.back().number = "123";
  expected.callInfoList.back().numberType = NumberType::MOBILE;
  EXPECT_EQ(item, expected);
}

TYPED_TEST(ItemDecoding, TextThatIsNoEntryEmptiesEveryFieldAndLeavesTheList) {
  for (char const* text : {"", "plain", "<UniqueId>", "</UniqueId>", "<uniqueid>1</uniqueid>"}) {
    auto item = TypeParam::full();
    typename TypeParam::Item expected;
    expected.callInfoList = item.callInfoList;
    EXPECT_TRUE(TypeParam::readItem(text, item)) << text;
    EXPECT_EQ(item, expected) << text;
  }
}

TYPED_TEST(ItemDecoding, ANullPointerReadsAsAnEmptyText) {
  auto item = TypeParam::full();
  typename TypeParam::Item expected;
  expected.callInfoList = item.callInfoList;
  EXPECT_TRUE(TypeParam::readItem(nullptr, item));
  EXPECT_EQ(item, expected);
}

TYPED_TEST(ItemDecoding, AListWithoutUsableCallsLeavesTheCallsInPlace) {
  for (char const* list :
       {"", "<LogList></LogList>", "<LogList><Item></Item></LogList>", "<LogList><Item>x</Item>",
        "<LogList><Item>x</LogList>", "<Item>x</Item>", "</LogList>", "<LogList>text</LogList>"}) {
    auto item = TypeParam::full();
    EXPECT_TRUE(TypeParam::readItem((std::string("<EntryId>new</EntryId>") + list).c_str(), item));
    EXPECT_EQ(item.entryId, "new");
    EXPECT_EQ(item.uniqueId, "");
    EXPECT_EQ(item.callInfoList, TypeParam::full().callInfoList) << list;
  }
}

TYPED_TEST(ItemDecoding, AListWithCallsReplacesTheCalls) {
  auto item = TypeParam::full();
  TypeParam::readItem("<LogList><Item><Number>1</Number></Item></LogList>", item);
  typename TypeParam::Item expected;
  expected.callInfoList.emplace_back();
  expected.callInfoList.back().number = "1";
  EXPECT_EQ(item, expected);

  item.callInfoList.clear();
  TypeParam::readItem("<LogList><Item>x</Item><Item>y</Item><Item>z</Item></LogList>", item);
  EXPECT_EQ(item.callInfoList.size(), 3U);
}

// The names that are not read, and infoKey, come back empty: the calls are new ones.
TYPED_TEST(ItemDecoding, ReplacedCallsKeepNothing) {
  auto item = TypeParam::full();
  EXPECT_TRUE(TypeParam::readItem(TypeParam::body(TypeParam::full()).c_str(), item));
  EXPECT_EQ(item, TypeParam::decodedFull());
}

TYPED_TEST(ItemDecoding, ElementsOnLinesOfTheirOwn) {
  std::string text = TypeParam::body(TypeParam::full());
  for (std::string::size_type at = 0; (at = text.find("</", at)) != std::string::npos;)
    text.insert(at = text.find('>', at) + 1, "\n");
  EXPECT_EQ(this->itemIn(text), TypeParam::decodedFull());
}

TYPED_TEST(ItemDecoding, TheOverloadForTextStopsAtItsFirstNul) {
  std::string const text = TypeParam::body(TypeParam::full());
  for (std::string::size_type at = 0; at <= text.size(); ++at) {
    std::string damaged = text;
    damaged.insert(at, 1, '\0');
    std::string const before = damaged;
    auto fromText = TypeParam::full();
    auto fromPointer = TypeParam::full();
    EXPECT_TRUE(TypeParam::readItemText(damaged, fromText));
    EXPECT_TRUE(TypeParam::readItem(text.substr(0, at).c_str(), fromPointer));
    ASSERT_EQ(fromText, fromPointer) << at;
    ASSERT_EQ(damaged, before) << at;
  }
}

TYPED_TEST(ItemDecoding, TheTextStaysAsItWas) {
  std::string const text = TypeParam::body(TypeParam::full());
  std::vector<char> buffer(text.begin(), text.end());
  buffer.push_back('\0');
  std::vector<char> const before = buffer;
  auto item = TypeParam::full();
  TypeParam::readItem(buffer.data(), item);
  EXPECT_EQ(buffer, before);
}

// Given a whole message, each element is the first of the message.
TYPED_TEST(ItemDecoding, AWholeMessage) {
  auto const item =
      this->itemIn("<Method><x></Method><Entry><UniqueId>1</UniqueId><LogList></LogList></Entry>"
                   "<Entry><UniqueId>2</UniqueId><Surname>Two</Surname>"
                   "<LogList><Item><Number>2</Number></Item></LogList></Entry>");
  EXPECT_EQ(item.uniqueId, "1");
  EXPECT_EQ(item.surname, "Two");
  EXPECT_TRUE(item.callInfoList.empty());
}

// The list is searched from the cursor: a LogList inside an element that was read is not found.
TYPED_TEST(ItemDecoding, TheListIsSearchedFromTheCursor) {
  std::string const picture =
      "<Picture><LogList><Item><Number>1</Number></Item></LogList></Picture>";
  EXPECT_TRUE(this->itemIn(picture).callInfoList.empty());
  EXPECT_EQ(this->itemIn(" " + picture).callInfoList.size(), 1U);
  auto const item = this->itemIn(picture + "<LogList><Item><Number>2</Number></Item></LogList>");
  ASSERT_EQ(item.callInfoList.size(), 1U);
  EXPECT_EQ(item.callInfoList.front().number, "2");
}

TEST(DecodedMissedItem, ViewedIsSearchedInTheWholeEntry) {
  for (char const* text : {"\n<Viewed>True</Viewed>", "<Viewed>True</Viewed><Viewed>False</Viewed>",
                           "<LogList><Item><Viewed>True</Viewed></Item></LogList>"}) {
    MissedCallItem item;
    EXPECT_TRUE(Missed::readItem(text, item));
    EXPECT_TRUE(item.viewed) << text;
  }
}

TEST(DecodedDialledItem, TheAnswerToTheLastDialledNumber) {
  auto const body = Dialled::body(Dialled::full());
  std::vector<std::string> const texts = {"",
                                          body,
                                          "<Method><getLastDialledNumber></Method><Entry>" + body +
                                              "</Entry>",
                                          body + '\0' + "<EntryId>x</EntryId>",
                                          std::string("\0", 1) + body,
                                          "<LogList></LogList>",
                                          "<JSGroupBy>g</JSGroupBy>"};
  for (std::string const& text : texts) {
    DialledCallItem last = Dialled::sparse();
    DialledCallItem dialled = Dialled::sparse();
    EXPECT_TRUE(JournalServiceHelper::parseXMLGetLastDialledNumber(text, last));
    EXPECT_TRUE(Dialled::readItemText(text, dialled));
    EXPECT_EQ(last, dialled) << text;
  }
  DialledCallItem item;
  JournalServiceHelper::parseXMLGetLastDialledNumber(texts[2], item);
  EXPECT_EQ(item, Dialled::decodedFull());
}

// What one kind reads, another ignores.
TEST(DecodedItems, ElementsOfOtherKinds) {
  ReceivedCallItem received;
  Received::readItem("<Viewed><LogList><Item>x</Item></LogList></Viewed>", received);
  EXPECT_EQ(received.callInfoList.size(), 1U);
  MissedCallItem missed;
  Missed::readItem("<Viewed><LogList><Item>x</Item></LogList></Viewed>", missed);
  EXPECT_TRUE(missed.callInfoList.empty());
  DialledCallItem dialled;
  Dialled::readItem("<JSGroupBy><LogList><Item>x</Item></LogList></JSGroupBy>", dialled);
  EXPECT_TRUE(dialled.callInfoList.empty());
}

} // namespace
