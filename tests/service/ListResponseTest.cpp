// The answers to list requests.
#include <string>

#include "records/TestedKinds.h"

namespace {

template <class KindType>
class ListResponse : public ::testing::Test {};
TYPED_TEST_SUITE(ListResponse, kinds::All, kinds::KindNames);

TYPED_TEST(ListResponse, Empty) {
  EXPECT_EQ(TypeParam::respond({}, 0), TypeParam::listMethod() + "<Handle>0</Handle>");
}

TYPED_TEST(ListResponse, OneEntry) {
  auto const item = TypeParam::full();
  EXPECT_EQ(TypeParam::respond({item}, 7), TypeParam::listMethod() + "<Entry>" +
                                               TypeParam::body(item) +
                                               "</Entry><Handle>7</Handle>");
}

TYPED_TEST(ListResponse, EntriesInOrder) {
  typename TypeParam::Log items = TypeParam::log();
  items.push_front(TypeParam::sparse());
  items.push_back({});
  items.push_back(TypeParam::full());
  std::string expected = TypeParam::listMethod();
  for (auto const& item : items)
    expected += "<Entry>" + TypeParam::body(item) + "</Entry>";
  EXPECT_EQ(TypeParam::respond(items, 3), expected + "<Handle>3</Handle>");
}

// Long and short entries, far more of them than memory is reserved for.
TYPED_TEST(ListResponse, ManyEntriesOfManyLengths) {
  typename TypeParam::Log items;
  std::string expected = TypeParam::listMethod();
  for (std::string::size_type length = 0; length < 9000; length = length * 5 / 4 + 1) {
    for (std::string::size_type const size : {length, std::string::size_type(1)}) {
      items.push_back(TypeParam::full());
      items.back().uniqueId = std::string(size, 'u');
      items.back().firstname = std::string(length, '&');
      items.back().callInfoList.back().timeDate = std::string(size * 3, 't');
      expected += "<Entry>" + TypeParam::body(items.back()) + "</Entry>";
    }
  }
  EXPECT_EQ(TypeParam::respond(items, 3), expected + "<Handle>3</Handle>");
  EXPECT_EQ(TypeParam::respond(items, 3), expected + "<Handle>3</Handle>");
}

TYPED_TEST(ListResponse, HandlesAreSigned) {
  struct Row {
    unsigned int handle;
    char const* text;
  };
  for (Row const& row :
       {Row{0, "0"}, Row{9, "9"}, Row{10, "10"}, Row{2147483647U, "2147483647"},
        Row{2147483648U, "-2147483648"}, Row{2147483649U, "-2147483647"}, Row{4294967295U, "-1"}}) {
    std::string const response = TypeParam::respond({}, row.handle);
    EXPECT_EQ(response, TypeParam::listMethod() + "<Handle>" + row.text + "</Handle>");
    typename TypeParam::Log items;
    unsigned int handle = 99;
    TypeParam::readLogAndHandle(response, items, handle);
    EXPECT_EQ(handle, row.handle);
  }
}

TYPED_TEST(ListResponse, IsRecognisedByItsMethod) {
  EXPECT_EQ(JournalServiceHelper::getMethodFromXMLMsg(TypeParam::respond(TypeParam::log(), 1)),
            JournalServiceHelper::getMethodFromXMLMsg(TypeParam::listMethod()));
}

TYPED_TEST(ListResponse, TheLogStaysAsItWas) {
  auto const items = TypeParam::log();
  TypeParam::respond(items, 1);
  EXPECT_EQ(items, TypeParam::log());
}

// All kinds share one hint: the longest response so far, and 4096 characters more, is reserved.
TYPED_TEST(ListResponse, MemoryIsReservedForTheLongestResponseSoFar) {
  std::string const before = TypeParam::respond({}, 0);
  EXPECT_GE(before.capacity(), 4096U); // whether or not it is the first one

  // Longer than any response so far, whatever ran before.
  typename TypeParam::Item item;
  item.uniqueId = std::string(before.capacity() + 1000, 'x');
  std::size_t const longest = TypeParam::respond({item}, 0).size();
  EXPECT_GT(longest, before.capacity());
  item.uniqueId.resize(500);
  for (int round = 0; round < 2; ++round) {
    EXPECT_GE(JournalServiceHelper::respGetMissedCallList({}, 0).capacity(), longest + 4096);
    EXPECT_GE(JournalServiceHelper::respGetDialledCallList({}, 0).capacity(), longest + 4096);
    EXPECT_GE(JournalServiceHelper::respGetReceivedCallList({}, 0).capacity(), longest + 4096);
    EXPECT_GE(JournalServiceHelper::respGetForwardedCallList({}, 0).capacity(), longest + 4096);
    TypeParam::respond({item}, 0); // a shorter one does not lower it
  }
}

// An answer that is somewhat longer than any before takes no more memory than was reserved for it.
TYPED_TEST(ListResponse, ALogThatGrewByAnEntryFitsIntoWhatIsReserved) {
  typename TypeParam::Log items(20, TypeParam::full());
  items.front().uniqueId = std::string(TypeParam::respond({}, 0).capacity(), 'x');
  std::size_t const longest = TypeParam::respond(items, 0).size();
  std::size_t const reserved = TypeParam::respond({}, 0).capacity();
  items.push_back(TypeParam::full());
  std::string const grown = TypeParam::respond(items, 0);
  EXPECT_GT(grown.size(), longest);
  EXPECT_LT(grown.size(), longest + 2000);
  EXPECT_EQ(grown.capacity(), reserved);
}

} // namespace
