// The service's notifications to its observers.
#include <climits>
#include <vector>

#include "records/TestedKinds.h"

namespace {

std::string const DECLARATION = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";

int countOf(std::string const& piece, std::string const& text) {
  int count = 0;
  for (std::string::size_type at = 0; (at = text.find(piece, at)) != std::string::npos; ++at)
    ++count;
  return count;
}

template <class KindType>
class EntryNotification : public ::testing::Test {
protected:
  using Action = JournalServiceObserverIfc::ActionType;

  static std::string front(typename KindType::Item const& item) {
    return DECLARATION + KindType::updateMethod() + KindType::body(item);
  }
};

TYPED_TEST_SUITE(EntryNotification, kinds::All, kinds::KindNames);

TYPED_TEST(EntryNotification, NothingRemoved) {
  for (auto const& item : TypeParam::log())
    EXPECT_EQ(TypeParam::notify(item, "", JournalServiceObserverIfc::ENTRY_CHANGED, 12),
              this->front(item) + "<ActionType>1</ActionType><Handle>12</Handle>");
}

TYPED_TEST(EntryNotification, AFreshEntry) {
  EXPECT_EQ(TypeParam::notify({}, "", JournalServiceObserverIfc::ENTRY_ADDED, 0),
            this->front({}) + "<ActionType>0</ActionType><Handle>0</Handle>");
}

TYPED_TEST(EntryNotification, TheRemovedEntryIsNamedAsItIs) {
  for (std::string const& id : {std::string("17"), std::string("a&b <c> \"d\" 'e' &amp;"),
                                std::string(" "), std::string("x\0y", 3), std::string(3000, 'i')})
    EXPECT_EQ(TypeParam::notify(TypeParam::full(), id, JournalServiceObserverIfc::ENTRY_DELETED, 0),
              this->front(TypeParam::full()) + "<UniqueIdToDelete>" + id +
                  "</UniqueIdToDelete><ActionType>2</ActionType><Handle>0</Handle>");
}

TYPED_TEST(EntryNotification, TheActionIsOneDigit) {
  struct Row {
    int action;
    char digit;
  };
  std::vector<Row> const rows = {{0, '0'},       {1, '1'},      {2, '2'},   {3, '3'},  {4, '4'},
                                 {5, '5'},       {6, '6'},      {7, '7'},   {8, '8'},  {9, '9'},
                                 {10, '9'},      {11, '9'},     {255, '9'}, {-1, '0'}, {-10, '0'},
                                 {INT_MAX, '9'}, {INT_MIN, '0'}};
  for (Row const& row : rows)
    EXPECT_EQ(TypeParam::notify({}, "", static_cast<typename TestFixture::Action>(row.action), 5),
              this->front({}) + "<ActionType>" + row.digit + "</ActionType><Handle>5</Handle>")
        << row.action;
}

TYPED_TEST(EntryNotification, HandlesAreSigned) {
  struct Row {
    unsigned int handle;
    char const* text;
  };
  for (Row const& row : {Row{0, "0"}, Row{10, "10"}, Row{2147483647U, "2147483647"},
                         Row{2147483648U, "-2147483648"}, Row{4294967295U, "-1"}})
    EXPECT_EQ(TypeParam::notify({}, "", JournalServiceObserverIfc::ENTRY_ADDED, row.handle),
              this->front({}) + "<ActionType>0</ActionType><Handle>" + row.text + "</Handle>");
}

TYPED_TEST(EntryNotification, IsRecognisedByItsMethod) {
  std::string const text =
      TypeParam::notify(TypeParam::full(), "17", JournalServiceObserverIfc::ENTRY_ADDED, 1);
  EXPECT_EQ(JournalServiceHelper::getMethodFromXMLMsg(text),
            JournalServiceHelper::getMethodFromXMLMsg(TypeParam::updateMethod()));
  EXPECT_EQ(text.find(DECLARATION), 0U);
  EXPECT_EQ(countOf("<?xml", text), 1);
  EXPECT_EQ(countOf("<Method>", text), 1);
}

// The observer reads the entry and the other elements from the message as it is.
TYPED_TEST(EntryNotification, IsReadByTheItemDecoder) {
  std::string const text =
      TypeParam::notify(TypeParam::full(), "17", JournalServiceObserverIfc::ENTRY_CHANGED, 12);
  typename TypeParam::Item item;
  TypeParam::readItemText(text, item);
  EXPECT_EQ(item, TypeParam::decodedFull());
  std::string removed;
  unsigned int handle = 0;
  unsigned int action = 0;
  EXPECT_TRUE(
      JournalServiceHelper::getXMLValue(text, JournalServiceHelper::UNIQUEIDTODELETE, removed));
  EXPECT_TRUE(JournalServiceHelper::getXMLValue(text, "Handle", handle));
  EXPECT_TRUE(JournalServiceHelper::getXMLValue(text, JournalServiceHelper::ACTIONTYPE, action));
  EXPECT_EQ(removed, "17");
  EXPECT_EQ(handle, 12U);
  EXPECT_EQ(action, 1U);
}

struct Counter {
  unsigned int count;
  char const* text;
};
std::vector<Counter> const COUNTERS = {{0, "0"},
                                       {3, "3"},
                                       {10, "10"},
                                       {2147483647U, "2147483647"},
                                       {2147483648U, "-2147483648"},
                                       {4294967295U, "-1"}};

TEST(CounterNotification, MissedCalls) {
  for (Counter const& row : COUNTERS)
    EXPECT_EQ(JournalServiceHelper::obsReqMissedCallsCountUpdate(row.count),
              DECLARATION + "<Method><missedCallsCountUpdate></Method><Value>" + row.text +
                  "</Value>");
}

TEST(CounterNotification, MissedGroupCalls) {
  for (Counter const& row : COUNTERS)
    EXPECT_EQ(JournalServiceHelper::obsReqMissedGroupCallsUpdate(row.count),
              DECLARATION + "<Method><missedGroupCallsUpdate></Method><Value>" + row.text +
                  "</Value>");
}

TEST(CounterNotification, TheGroupCounterIsNotRecognised) {
  EXPECT_EQ(JournalServiceHelper::getMethodFromXMLMsg(
                JournalServiceHelper::obsReqMissedCallsCountUpdate(3)),
            21U);
  EXPECT_EQ(JournalServiceHelper::getMethodFromXMLMsg(
                JournalServiceHelper::obsReqMissedGroupCallsUpdate(3)),
            27U);
}

} // namespace
