// The requests to the journal service, byte for byte.
#include <cstdint>
#include <iterator>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;
using Ids = std::set<std::string>;

std::string const declaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";

struct PlainRequest {
  std::string (*build)();
  char const* method;
  std::uint32_t code;
};
constexpr PlainRequest plainRequests[] = {
    {&J::reqGetMissedCallList, "<Method><getMissedCallList></Method>", 1},
    {&J::reqGetDialledCallList, "<Method><getDialledCallList></Method>", 8},
    {&J::reqGetLastDialledNumber, "<Method><getLastDialledNumber></Method>", 17},
    {&J::reqGetReceivedCallList, "<Method><getReceivedCallList></Method>", 11},
    {&J::reqGetForwardedCallList, "<Method><getForwardedCallList></Method>", 14},
    {&J::reqSubscribe, "<Method><subscribe></Method>", 18},
    {&J::reqUnsubscribe, "<Method><unsubscribe></Method>", 19},
    {&J::reqRefreshCallLog, "<Method><refreshCallLog></Method>", 20},
};

struct EntryRequest {
  std::string (*build)(std::string const&);
  char const* method;
  std::uint32_t code;
};
constexpr EntryRequest entryRequests[] = {
    {&J::reqDeleteMissedCall, "<Method><deleteMissedCall></Method>", 5},
    {&J::reqDeleteDialledCall, "<Method><deleteDialledCall></Method>", 9},
    {&J::reqDeleteReceivedCall, "<Method><deleteReceivedCall></Method>", 12},
    {&J::reqDeleteForwardedCall, "<Method><deleteForwardedCall></Method>", 15},
};

struct EntriesRequest {
  std::string (*build)(Ids const&);
  char const* method;
  std::uint32_t code;
};
constexpr EntriesRequest entriesRequests[] = {
    {&J::reqSetMissedCallListAsViewed, "<Method><setMissedCallListAsViewed></Method>", 3},
    {&J::reqDeleteMissedCallList, "<Method><deleteMissedCallList></Method>", 6},
    {&J::reqDeleteDialledCallList, "<Method><deleteDialledCallList></Method>", 10},
    {&J::reqDeleteReceivedCallList, "<Method><deleteReceivedCallList></Method>", 13},
    {&J::reqDeleteForwardedCallList, "<Method><deleteForwardedCallList></Method>", 16},
};

static_assert(std::size(plainRequests) + std::size(entryRequests) + std::size(entriesRequests) ==
              17);

TEST(ServiceRequests, HoldNothingButTheMethod) {
  for (PlainRequest const& request : plainRequests)
    EXPECT_EQ(declaration + request.method, request.build());
}

TEST(ServiceRequests, AboutOneEntryHoldItsIdAsItIs) {
  struct {
    std::string id, element;
  } const rows[] = {
      {"17", "<EntryId>17</EntryId>"},
      {"", ""},
      {" ", "<EntryId> </EntryId>"},
      {"a&b<c>\"'", "<EntryId>a&b<c>\"'</EntryId>"},
      {"&amp;", "<EntryId>&amp;</EntryId>"},
      {"1\0002"s, "<EntryId>1\0002</EntryId>"s},
      {"\xC3\xA4", "<EntryId>\xC3\xA4</EntryId>"},
      {std::string(70000, '7'), "<EntryId>" + std::string(70000, '7') + "</EntryId>"},
  };
  for (EntryRequest const& request : entryRequests)
    for (auto const& row : rows)
      EXPECT_EQ(declaration + request.method + row.element, request.build(row.id));
}

TEST(ServiceRequests, AboutSeveralEntriesHoldTheirIdsInByteOrder) {
  struct {
    Ids ids;
    std::string elements;
  } const rows[] = {
      {{}, ""},
      {{""}, ""},
      {{"17"}, "<EntryId>17</EntryId>"},
      {{"b", "a"}, "<EntryId>a</EntryId><EntryId>b</EntryId>"},
      {{"b", "", "a"}, "<EntryId>a</EntryId><EntryId>b</EntryId>"},
      {{"9", "10"}, "<EntryId>10</EntryId><EntryId>9</EntryId>"},
      {{"<&>", "\xFF"}, "<EntryId><&></EntryId><EntryId>\xFF</EntryId>"},
  };
  for (EntriesRequest const& request : entriesRequests)
    for (auto const& row : rows)
      EXPECT_EQ(declaration + request.method + row.elements, request.build(row.ids));
}

TEST(ServiceRequests, AreRecognisedByTheService) {
  for (PlainRequest const& request : plainRequests)
    EXPECT_EQ(request.code, J::getMethodFromXMLMsg(request.build())) << request.method;
  for (EntryRequest const& request : entryRequests)
    EXPECT_EQ(request.code, J::getMethodFromXMLMsg(request.build("17"))) << request.method;
  for (EntriesRequest const& request : entriesRequests)
    EXPECT_EQ(request.code, J::getMethodFromXMLMsg(request.build({"1", "2"}))) << request.method;
}

// One request of each form in full, with nothing put together.
TEST(ServiceRequests, ReadAsTheseTexts) {
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\"?><Method><subscribe></Method>",
            J::reqSubscribe());
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\"?><Method><deleteMissedCall></Method>"
            "<EntryId>17</EntryId>",
            J::reqDeleteMissedCall("17"));
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\"?><Method><deleteDialledCall></Method>",
            J::reqDeleteDialledCall(""));
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\"?><Method><deleteReceivedCallList></Method>"
            "<EntryId>a</EntryId><EntryId>b</EntryId>",
            J::reqDeleteReceivedCallList({"b", "a"}));
}

} // namespace
