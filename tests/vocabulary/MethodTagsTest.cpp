// The method tags: what method recognition relies on.
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using J = JournalServiceHelper;

struct MethodTag {
  std::string const* tag;
  char const* literal;
};

// clang-format off
constexpr MethodTag tags[] = {
    {&J::GETMISSEDCALLLIST_XML, "<getMissedCallList>"},
    {&J::SETMISSEDCALLLISTASVIEWED_XML, "<setMissedCallListAsViewed>"},
    {&J::DELETEMISSEDCALL_XML, "<deleteMissedCall>"},
    {&J::DELETEMISSEDCALLLIST_XML, "<deleteMissedCallList>"},
    {&J::GETDIALLEDCALLLIST_XML, "<getDialledCallList>"},
    {&J::DELETEDIALLEDCALL_XML, "<deleteDialledCall>"},
    {&J::DELETEDIALLEDCALLLIST_XML, "<deleteDialledCallList>"},
    {&J::GETLASTDIALLEDNUMBER_XML, "<getLastDialledNumber>"},
    {&J::GETRECEIVEDCALLLIST_XML, "<getReceivedCallList>"},
    {&J::DELETERECEIVEDCALL_XML, "<deleteReceivedCall>"},
    {&J::DELETERECEIVEDCALLLIST_XML, "<deleteReceivedCallList>"},
    {&J::GETFORWARDEDCALLLIST_XML, "<getForwardedCallList>"},
    {&J::DELETEFORWARDEDCALL_XML, "<deleteForwardedCall>"},
    {&J::DELETEFORWARDEDCALLLIST_XML, "<deleteForwardedCallList>"},
    {&J::SUBSCRIBE_XML, "<subscribe>"},
    {&J::UNSUBSCRIBE_XML, "<unsubscribe>"},
    {&J::REFRESHCALLLOG_XML, "<refreshCallLog>"},
    {&J::MISSEDCALLSUPDATE_XML, "<missedCallsUpdate>"},
    {&J::MISSEDCALLSCOUNTUPDATE_XML, "<missedCallsCountUpdate>"},
    {&J::MISSEDGROUPCALLSUPDATE_XML, "<missedGroupCallsUpdate>"},
    {&J::DIALLEDCALLSUPDATE_XML, "<dialledCallsUpdate>"},
    {&J::RECEIVEDCALLSUPDATE_XML, "<receivedCallsUpdate>"},
    {&J::FORWARDEDCALLSUPDATE_XML, "<forwardedCallsUpdate>"},
};
// clang-format on

static_assert(std::size(tags) == 23);

TEST(MethodTags, AreOpeningTagsOfLowerCaseNames) {
  for (MethodTag const& row : tags) {
    std::string const& tag = *row.tag;
    EXPECT_EQ(row.literal, tag);
    ASSERT_GT(tag.size(), 3u);
    EXPECT_EQ('<', tag.front());
    EXPECT_TRUE(tag[1] >= 'a' && tag[1] <= 'z') << tag;
    EXPECT_EQ('>', tag.back());
    EXPECT_EQ(tag.size() - 1, tag.find('>')) << tag;
    EXPECT_EQ(std::string::npos, tag.find('/')) << tag;
  }
}

TEST(MethodTags, NoneStandsInsideAnother) {
  for (MethodTag const& inner : tags) {
    for (MethodTag const& outer : tags) {
      if (inner.tag == outer.tag)
        continue;
      EXPECT_EQ(std::string::npos, outer.tag->find(*inner.tag)) << *inner.tag << *outer.tag;
    }
  }
}

} // namespace
