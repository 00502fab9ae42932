// The calls of an entry read: the first LogList of a text, cut into its Items.
#include <vector>

#include "records/TestedKinds.h"

namespace {

template <typename KindType>
class CallListDecoding : public ::testing::Test {
protected:
  using List = typename KindType::InfoList;

  // The numbers of the calls that a text yields, one after the other, each in brackets.
  static std::string numbersIn(char const* text, bool expected) {
    List list(3); // what the list held is discarded
    EXPECT_EQ(KindType::readCalls(text, list), expected) << (text != nullptr ? text : "null");
    std::string numbers;
    for (auto const& call : list)
      numbers += "[" + call.number + "]";
    return numbers;
  }
};

TYPED_TEST_SUITE(CallListDecoding, kinds::All, kinds::KindNames);

TYPED_TEST(CallListDecoding, TextsThatHoldNoCall) {
  std::vector<char const*> const texts = {
      nullptr,
      "",
      "plain",
      "<Item><Number>1</Number></Item>",
      "<LogList>",
      "</LogList>",
      "<LogList></LogList>",
      "<LogList><Item><Number>1</Number></Item>",
      "<Item><Number>1</Number></Item></LogList>",
      "</LogList><Item><Number>1</Number></Item><LogList>",
      "<LogList> </LogList>",
      "<LogList><Number>1</Number></LogList>",
      "<LogList><Item></Item></LogList>",
      "<LogList><Item></Item><Item></Item></LogList>",
      "<LogList><Item><Number>1</Number></LogList>",
      "<LogList><Number>1</Number></Item></LogList>",
      "<LogList><Item><Number>1</Number></LogList></Item>",
      "<LogList></LogList><LogList><Item><Number>1</Number></Item></LogList>",
      "<LogList></LogList><Item><Number>1</Number></Item>",
      "<Item><Number>1</Number></Item><LogList></LogList>",
      "<LogList><item><Number>1</Number></item></LogList>",
      "<loglist><Item><Number>1</Number></Item></loglist>",
      "<LogList ><Item><Number>1</Number></Item></LogList>",
      "<LogList>\0<Item><Number>1</Number></Item></LogList>"};
  for (char const* text : texts)
    EXPECT_EQ(this->numbersIn(text, false), "") << (text != nullptr ? text : "null");
}

TYPED_TEST(CallListDecoding, TextsThatHoldCalls) {
  struct Row {
    char const* text;
    char const* numbers;
  };
  std::vector<Row> const rows = {
      {"<LogList><Item><Number>1</Number></Item></LogList>", "[1]"},
      {"<LogList><Item><Number>1</Number></Item><Item><Number>2</Number></Item>"
       "<Item><Number>3</Number></Item></LogList>",
       "[1][2][3]"},
      // An item that is not empty is a call, whatever it holds.
      {"<LogList><Item>x</Item></LogList>", "[]"},
      {"<LogList><Item> </Item><Item><Number>1</Number></Item></LogList>", "[][1]"},
      // Empty items are skipped.
      {"<LogList><Item></Item><Item><Number>1</Number></Item></LogList>", "[1]"},
      {"<LogList><Item><Number>1</Number></Item><Item></Item><Item><Number>2</Number></Item>"
       "</LogList>",
       "[1][2]"},
      // An item without close tag ends the list; the items before it stay.
      {"<LogList><Item><Number>1</Number></Item><Item><Number>2</Number></LogList>", "[1]"},
      {"<LogList><Item><Number>1</Number></Item><Item></LogList></Item>", "[1]"},
      {"<LogList><Item><Number>1</Number></Item><Item><Number>2</Number></LogList></Item>", "[1]"},
      // Items are not nested: one ends at the first close tag.
      {"<LogList><Item><Item><Number>1</Number></Item><Number>2</Number></Item></LogList>", "[1]"},
      {"<LogList><Item>a<Item><Number>1</Number></Item>b</Item><Item><Number>2</Number></Item>"
       "</LogList>",
       "[1][2]"},
      // What surrounds the items is ignored.
      {"x<LogList>y<Number>0</Number><Item><Number>1</Number></Item>\n</Item>\n"
       "<Item><Number>2</Number></Item>z</LogList>",
       "[1][2]"},
      // Only the first list counts, and nothing outside it.
      {"<Item><Number>0</Number></Item><LogList><Item><Number>1</Number></Item></LogList>"
       "<Item><Number>2</Number></Item>",
       "[1]"},
      {"<LogList><Item><Number>1</Number></Item></LogList>"
       "<LogList><Item><Number>2</Number></Item></LogList>",
       "[1]"},
      {"<LogList><LogList><Item><Number>1</Number></Item></LogList>"
       "<Item><Number>2</Number></Item></LogList>",
       "[1]"},
      {"</LogList><LogList><Item><Number>1</Number></Item></LogList>", "[1]"},
      // A section that ends inside an item cuts it off.
      {"<LogList><Item><Number>1</Number></Item><Item><Number></LogList></Number></Item>", "[1]"},
      // Each search ends where its item ends.
      {"<LogList><Item><TimeDate>t</TimeDate></Item><Item><Number>2</Number></Item></LogList>",
       "[][2]"},
      {"<LogList><Item><Number>1</Item><Item>2</Number></Item></LogList>", "[][]"}};
  for (auto const& row : rows)
    EXPECT_EQ(this->numbersIn(row.text, true), row.numbers) << row.text;
}

TYPED_TEST(CallListDecoding, CallsStartFresh) {
  typename TypeParam::InfoList list = TypeParam::full().callInfoList;
  EXPECT_TRUE(TypeParam::readCalls("<LogList><Item>x</Item></LogList>", list));
  ASSERT_EQ(list.size(), 1U);
  EXPECT_EQ(list.front(), typename TypeParam::Info());
}

TYPED_TEST(CallListDecoding, WrittenCallsComeBack) {
  std::string text;
  TypeParam::writeCalls(TypeParam::full(), text);
  std::string const before = text;
  typename TypeParam::InfoList list;
  EXPECT_TRUE(TypeParam::readCalls(text.c_str(), list));
  EXPECT_EQ(list, TypeParam::decodedFull().callInfoList);
  EXPECT_EQ(text, before);
}

TYPED_TEST(CallListDecoding, ManyCalls) {
  typename TypeParam::Item item;
  for (int number = 0; number < 500; ++number) {
    item.callInfoList.emplace_back();
    item.callInfoList.back().number = std::to_string(number);
  }
  std::string text;
  TypeParam::writeCalls(item, text);
  typename TypeParam::InfoList list;
  EXPECT_TRUE(TypeParam::readCalls(text.c_str(), list));
  EXPECT_EQ(list, item.callInfoList);
}

} // namespace
