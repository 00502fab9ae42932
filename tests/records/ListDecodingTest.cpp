// A whole log read: the entries of a list response and its handle.
#include <vector>

#include "records/TestedKinds.h"

namespace {

template <class KindType>
class ListDecoding : public ::testing::Test {
protected:
  using Log = typename KindType::Log;

  // The unique ids of the entries that a text yields, each in brackets. Both overloads yield the
  // same ones.
  static std::string idsIn(std::string const& text) {
    Log items = KindType::log(); // what the log held is discarded
    Log withHandle = KindType::log();
    unsigned int handle = 99;
    EXPECT_TRUE(KindType::readLog(text, items)) << text;
    EXPECT_TRUE(KindType::readLogAndHandle(text, withHandle, handle)) << text;
    EXPECT_EQ(items, withHandle) << text;
    std::string ids;
    for (auto const& item : items)
      ids += "[" + item.uniqueId + "]";
    return ids;
  }

  static unsigned int handleIn(std::string const& text) {
    Log items;
    unsigned int handle = 99;
    EXPECT_TRUE(KindType::readLogAndHandle(text, items, handle)) << text;
    return handle;
  }
};

TYPED_TEST_SUITE(ListDecoding, kinds::All, kinds::KindNames);

TYPED_TEST(ListDecoding, Entries) {
  struct Row {
    char const* text;
    char const* ids;
  };
  std::vector<Row> const rows = {
      {"", ""},
      {"plain", ""},
      {"<UniqueId>1</UniqueId>", ""},
      {"<Entry>", ""},
      {"</Entry>", ""},
      {"<Entry></Entry>", ""},
      {"<Entry></Entry><Entry></Entry>", ""},
      {"<entry><UniqueId>1</UniqueId></entry>", ""},
      {"<Entry ><UniqueId>1</UniqueId></Entry>", ""},
      {"<Entry><UniqueId>1</UniqueId>", ""},
      {"</Entry><Entry><UniqueId>1</UniqueId>", ""},
      {"<Entry><UniqueId>1</UniqueId></Entry>", "[1]"},
      {"</Entry><Entry><UniqueId>1</UniqueId></Entry>", "[1]"},
      {"<Entry><UniqueId>3</UniqueId></Entry><Entry><UniqueId>1</UniqueId></Entry>"
       "<Entry><UniqueId>2</UniqueId></Entry><Entry><UniqueId>1</UniqueId></Entry>",
       "[3][1][2][1]"},
      // An entry that is not empty is an entry, whatever it holds.
      {"<Entry> </Entry><Entry>text</Entry>", "[][]"},
      {"<Entry></Entry><Entry><UniqueId>7</UniqueId></Entry>", "[7]"},
      {"<Entry><UniqueId>1</UniqueId></Entry><Entry></Entry><Entry><UniqueId>2</UniqueId></Entry>",
       "[1][2]"},
      // An entry without close tag ends the log.
      {"<Entry><UniqueId>1</UniqueId></Entry><Entry><UniqueId>2</UniqueId>", "[1]"},
      {"<Entry><UniqueId>1</UniqueId></Entry><Entry>", "[1]"},
      {"<Entry><UniqueId>1</UniqueId></Entry><Entry><UniqueId>2</UniqueId></Entry", "[1]"},
      // Entries are not nested: one ends at the first close tag.
      {"<Entry><Entry><UniqueId>1</UniqueId></Entry><UniqueId>2</UniqueId></Entry>", "[1]"},
      {"<Entry><Entry></Entry><UniqueId>2</UniqueId></Entry>", "[]"},
      {"<Entry>a<Entry>b</Entry><Entry><UniqueId>2</UniqueId></Entry>", "[][2]"},
      // What surrounds the entries is ignored.
      {"<UniqueId>0</UniqueId><Entry>x</Entry><UniqueId>1</UniqueId>\n"
       "<Entry><UniqueId>2</UniqueId></Entry></Entry><UniqueId>3</UniqueId>",
       "[][2]"},
      // Each search ends where its entry ends.
      {"<Entry><UniqueId>1</Entry><Entry>2</UniqueId></Entry>", "[][]"}};
  for (auto const& row : rows)
    EXPECT_EQ(this->idsIn(row.text), row.ids) << row.text;
}

TYPED_TEST(ListDecoding, AnEntryDoesNotBorrowFromTheNext) {
  typename TypeParam::Log items;
  TypeParam::readLog("<Entry><UniqueId>1</UniqueId></Entry><Entry><Surname>Two</Surname>"
                     "<LogList><Item><Number>2</Number></Item></LogList></Entry>",
                     items);
  ASSERT_EQ(items.size(), 2U);
  typename TypeParam::Item expected;
  expected.uniqueId = "1";
  EXPECT_EQ(items[0], expected);
  EXPECT_EQ(items[1].uniqueId, "");
  EXPECT_EQ(items[1].surname, "Two");
  ASSERT_EQ(items[1].callInfoList.size(), 1U);
  EXPECT_EQ(items[1].callInfoList.front().number, "2");
}

TYPED_TEST(ListDecoding, AnEntryDoesNotInheritFromTheOneBefore) {
  std::string text = TypeParam::respond({TypeParam::full()}, 1);
  text += "<Entry>x</Entry>";
  typename TypeParam::Log items;
  TypeParam::readLog(text, items);
  ASSERT_EQ(items.size(), 2U);
  EXPECT_EQ(items[0], TypeParam::decodedFull());
  EXPECT_EQ(items[1], typename TypeParam::Item());
}

TYPED_TEST(ListDecoding, AListCutOffByTheEntry) {
  typename TypeParam::Log items;
  TypeParam::readLog("<Entry><LogList><Item><Number>1</Number></Item></Entry></LogList>"
                     "<Entry><LogList><Item><Number>1</Entry></Number></Item></LogList>",
                     items);
  ASSERT_EQ(items.size(), 2U);
  EXPECT_TRUE(items[0].callInfoList.empty());
  EXPECT_TRUE(items[1].callInfoList.empty());
}

TYPED_TEST(ListDecoding, Handles) {
  struct Row {
    char const* text;
    unsigned int handle;
  };
  std::vector<Row> const rows = {
      {"", 0},
      {"42", 0},
      {"<Handle>", 0},
      {"<Handle>42", 0},
      {"42</Handle>", 0},
      {"</Handle>42<Handle>", 0},
      {"<Handle></Handle>", 0},
      {"<handle>42</handle>", 0},
      {"<Handle>42</Handle>", 42},
      {"</Handle><Handle>42</Handle>", 42},
      {" text <Handle>42</Handle> text ", 42},
      {"<Handle>42</Handle><Handle>43</Handle>", 42},
      {"<Handle></Handle><Handle>43</Handle>", 0},
      {"<Handle><Handle>42</Handle>", 0},
      // Read as every number of a message.
      {"<Handle>abc</Handle>", 0},
      {"<Handle> \t\n\v\f\r+42abc</Handle>", 42},
      {"<Handle>-42</Handle>", 4294967254U},
      {"<Handle>2147483647</Handle>", 2147483647U},
      {"<Handle>2147483648</Handle>", 2147483647U},
      {"<Handle>99999999999999999999999999999999999999</Handle>", 2147483647U},
      {"<Handle>-2147483648</Handle>", 2147483648U},
      {"<Handle>-2147483649</Handle>", 2147483648U},
      {"<Handle>4&lt;2</Handle>", 4},
      {"<Handle>&lt;Handle&gt;</Handle>", 0},
      // Before, between, after and inside the entries.
      {"<Handle>42</Handle><Entry>x</Entry>", 42},
      {"<Entry>x</Entry><Handle>42</Handle><Entry>x</Entry>", 42},
      {"<Entry>x</Entry><Handle>42</Handle>", 42},
      {"<Entry><Handle>42</Handle></Entry><Handle>43</Handle>", 42},
      {"<Entry><Picture><Handle>42</Handle></Picture></Entry>", 42},
      {"<Entry>unclosed<Handle>42</Handle>", 42},
      {"<Entry><LogList></LogList></Entry><Handle>42</Handle>"
       "<Entry><LogList></LogList></Entry><Handle>43</Handle>",
       42},
      {"<Handle>42</Handle><Entry><LogList></LogList></Entry><Handle>43</Handle>", 42},
      {"<Entry><LogList></LogList></Entry><Entry>x<Handle>42</Handle></Entry>"
       "<Entry><LogList></LogList></Entry><Handle>43</Handle>",
       42},
      {"<Handle>4<Entry><LogList></LogList></Entry>2</Handle><Handle>43</Handle>", 4},
      {"<Entry><LogList></LogList></Entry></Handle><Handle>43</Handle>", 43},
      {"<Entry><Handle>4</Entry><Entry>2</Handle></Entry>", 4}};
  for (auto const& row : rows)
    EXPECT_EQ(this->handleIn(row.text), row.handle) << row.text;
}

TYPED_TEST(ListDecoding, TheTextStaysAsItWas) {
  for (std::string text : {TypeParam::respond(TypeParam::log(), TypeParam::HANDLE),
                           std::string("<Entry><LogList><Item>x</Item><Item></LogList></Entry>"),
                           std::string("<Entry>a\0b</Entry>", 18), std::string("<Entry>")}) {
    std::string const before = text;
    typename TypeParam::Log items;
    unsigned int handle = 0;
    TypeParam::readLog(text, items);
    EXPECT_EQ(text, before);
    TypeParam::readLogAndHandle(text, items, handle);
    EXPECT_EQ(text, before);
  }
}

TYPED_TEST(ListDecoding, InfoKeysOfAReadLogAreEmpty) {
  typename TypeParam::Log items = TypeParam::log();
  TypeParam::readLog(TypeParam::respond(TypeParam::log(), 0), items);
  ASSERT_FALSE(items.empty());
  for (auto const& item : items)
    for (auto const& call : item.callInfoList)
      EXPECT_EQ(call.infoKey, "");
}

TYPED_TEST(ListDecoding, AResponseComesBack) {
  typename TypeParam::Log items;
  unsigned int handle = 99;
  EXPECT_TRUE(TypeParam::readLogAndHandle(TypeParam::respond(TypeParam::log(), TypeParam::HANDLE),
                                          items, handle));
  EXPECT_EQ(items, TypeParam::decodedLog());
  EXPECT_EQ(handle, TypeParam::HANDLE);
}

// An entry is read to its end, past its list too.
TYPED_TEST(ListDecoding, ElementsAfterTheList) {
  std::string const list = "<LogList><Item><Number>1</Number></Item></LogList>";
  typename TypeParam::Log items;
  TypeParam::readLog("<Entry>" + list +
                         "<UniqueId>1</UniqueId></Entry><Entry><EntryId>2</EntryId>" + list +
                         "<Surname>2</Surname>" + list + "</Entry><Entry>" + list +
                         "\n</Entry><Entry>" + list + "<Entry></Entry>",
                     items);
  typename TypeParam::Item bare;
  bare.callInfoList.emplace_back();
  bare.callInfoList.back().number = "1";
  typename TypeParam::Log expected(4, bare);
  expected[0].uniqueId = "1";
  expected[1].entryId = "2";
  expected[1].surname = "2";
  EXPECT_EQ(items, expected);
}

// Entries with elements missing, swapped or apart, between entries in the writer's order.
TYPED_TEST(ListDecoding, EntriesInOrderAndOutOfOrderMixed) {
  std::string const inOrder = "<UniqueId>1</UniqueId><EntryId>2</EntryId><Surname>3</Surname>"
                              "<LogList><Item><Number>4</Number><TimeDate>5</TimeDate></Item>"
                              "</LogList>";
  std::string const apart = "<UniqueId>1</UniqueId>\n<EntryId>2</EntryId>\n<Surname>3</Surname>\n"
                            "<LogList>\n<Item>\n<Number>4</Number>\n<TimeDate>5</TimeDate>\n"
                            "</Item>\n</LogList>\n";
  std::string const swapped = "<LogList><Item><TimeDate>5</TimeDate><Number>4</Number></Item>"
                              "</LogList><Surname>3</Surname><EntryId>2</EntryId>"
                              "<UniqueId>1</UniqueId>";
  typename TypeParam::Item expected;
  expected.uniqueId = "1";
  expected.entryId = "2";
  expected.surname = "3";
  expected.callInfoList.emplace_back();
  expected.callInfoList.back().number = "4";
  expected.callInfoList.back().timeDate = "5";
  typename TypeParam::Log items;
  TypeParam::readLog("<Entry>" + inOrder + "</Entry><Entry>" + apart + "</Entry>\n<Entry>" +
                         swapped + "</Entry><Entry>" + inOrder + "</Entry>",
                     items);
  EXPECT_EQ(items, typename TypeParam::Log(4, expected));
}

} // namespace
