// The ids in requests to the journal service. The golden messages hold one of each request.
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;
using Ids = std::set<std::string>;

std::string const declaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";

struct EntryRequest {
  std::string (*build)(std::string const&);
  char const* method;
};
constexpr EntryRequest entryRequests[] = {
    {&J::reqDeleteMissedCall, "<Method><deleteMissedCall></Method>"},
    {&J::reqDeleteDialledCall, "<Method><deleteDialledCall></Method>"},
    {&J::reqDeleteReceivedCall, "<Method><deleteReceivedCall></Method>"},
    {&J::reqDeleteForwardedCall, "<Method><deleteForwardedCall></Method>"},
};

struct EntriesRequest {
  std::string (*build)(Ids const&);
  char const* method;
};
constexpr EntriesRequest entriesRequests[] = {
    {&J::reqSetMissedCallListAsViewed, "<Method><setMissedCallListAsViewed></Method>"},
    {&J::reqDeleteMissedCallList, "<Method><deleteMissedCallList></Method>"},
    {&J::reqDeleteDialledCallList, "<Method><deleteDialledCallList></Method>"},
    {&J::reqDeleteReceivedCallList, "<Method><deleteReceivedCallList></Method>"},
    {&J::reqDeleteForwardedCallList, "<Method><deleteForwardedCallList></Method>"},
};

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

} // namespace
