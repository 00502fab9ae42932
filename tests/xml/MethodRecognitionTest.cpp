// Which method a message carries.
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;

struct Method {
  J::MethodCode member;
  std::uint32_t code;
  char const* tag;
};

// In the order in which they are searched, which is not that of the codes.
constexpr Method methods[] = {
    {J::GETMISSEDCALLLIST, 1, "<getMissedCallList>"},
    {J::SETMISSEDCALLLISTASVIEWED, 3, "<setMissedCallListAsViewed>"},
    {J::DELETEMISSEDCALL, 5, "<deleteMissedCall>"},
    {J::DELETEMISSEDCALLLIST, 6, "<deleteMissedCallList>"},
    {J::GETDIALLEDCALLLIST, 8, "<getDialledCallList>"},
    {J::DELETEDIALLEDCALL, 9, "<deleteDialledCall>"},
    {J::DELETEDIALLEDCALLLIST, 10, "<deleteDialledCallList>"},
    {J::GETLASTDIALLEDNUMBER, 17, "<getLastDialledNumber>"},
    {J::GETRECEIVEDCALLLIST, 11, "<getReceivedCallList>"},
    {J::DELETERECEIVEDCALL, 12, "<deleteReceivedCall>"},
    {J::DELETERECEIVEDCALLLIST, 13, "<deleteReceivedCallList>"},
    {J::GETFORWARDEDCALLLIST, 14, "<getForwardedCallList>"},
    {J::DELETEFORWARDEDCALL, 15, "<deleteForwardedCall>"},
    {J::DELETEFORWARDEDCALLLIST, 16, "<deleteForwardedCallList>"},
    {J::SUBSCRIBE, 18, "<subscribe>"},
    {J::UNSUBSCRIBE, 19, "<unsubscribe>"},
    {J::REFRESHCALLLOG, 20, "<refreshCallLog>"},
    {J::MISSEDCALLSUPDATE, 22, "<missedCallsUpdate>"},
    {J::MISSEDCALLSCOUNTUPDATE, 21, "<missedCallsCountUpdate>"},
    {J::DIALLEDCALLSUPDATE, 24, "<dialledCallsUpdate>"},
    {J::RECEIVEDCALLSUPDATE, 25, "<receivedCallsUpdate>"},
    {J::FORWARDEDCALLSUPDATE, 26, "<forwardedCallsUpdate>"},
};
static_assert(std::size(methods) == 22);

std::uint32_t codeOf(std::string const& message) {
  return J::getMethodFromXMLMsg(message);
}

std::string inMethod(std::string const& text) {
  return "<Method>" + text + "</Method>";
}

TEST(GetMethodFromXMLMsg, KnowsEachMethod) {
  for (Method const& method : methods) {
    SCOPED_TRACE(method.tag);
    EXPECT_EQ(method.code, static_cast<std::uint32_t>(method.member));
    EXPECT_EQ(method.code, codeOf(inMethod(method.tag)));
    EXPECT_EQ(method.code, codeOf("<?xml version=\"1.0\" encoding=\"utf-8\"?><Method>"s +
                                  method.tag + "</Method><EntryId>17</EntryId>"));
    EXPECT_EQ(method.code, codeOf(inMethod(" x<Value>" + std::string(method.tag) + "\0y"s)));
  }
}

TEST(GetMethodFromXMLMsg, ReturnsUnknownAsTwentySeven) {
  EXPECT_EQ(27u, static_cast<std::uint32_t>(J::UNKNOWN_METHOD));
  EXPECT_EQ(27u, codeOf(inMethod("<missedGroupCallsUpdate>")));
  EXPECT_EQ(27u, codeOf(inMethod("")));
}

// Every pair, adjacent ones included, in both orders of the text.
TEST(GetMethodFromXMLMsg, TakesTheMethodThatIsSearchedFirst) {
  for (std::size_t first = 0; first < std::size(methods); ++first)
    for (std::size_t second = first + 1; second < std::size(methods); ++second) {
      std::string const a = methods[first].tag;
      std::string const b = methods[second].tag;
      EXPECT_EQ(methods[first].code, codeOf(inMethod(a + b))) << a << b;
      EXPECT_EQ(methods[first].code, codeOf(inMethod(b + a))) << b << a;
    }
}

TEST(GetMethodFromXMLMsg, TakesAKnownMethodBesideAnUnknownOne) {
  EXPECT_EQ(26u, codeOf(inMethod("<missedGroupCallsUpdate><forwardedCallsUpdate>")));
}

TEST(GetMethodFromXMLMsg, WantsTheExactTag) {
  for (char const* text :
       {"subscribe", "<subscribe", "subscribe>", "<Subscribe>", "<SUBSCRIBE>", "</subscribe>",
        "<subscribe/>", "<subscribe >", "< subscribe>", "&lt;subscribe&gt;", "<subscribed>",
        "<resubscribe>", "<sub>scribe>", "<subscri<be>", "<getMissedCall>", "<getMissedCallLists>",
        "<deleteMissedCallListAsViewed>", "<missedCallUpdate>", "<dialledCallsCountUpdate>"})
    EXPECT_EQ(27u, codeOf(inMethod(text))) << text;
  EXPECT_EQ(27u, codeOf(inMethod("<subs\0cribe>"s)));
}

TEST(GetMethodFromXMLMsg, WantsBothMethodTags) {
  for (char const* message :
       {"", "<Method>", "</Method>", "<subscribe>", "<Method><subscribe>", "<subscribe></Method>",
        "<method><subscribe></method>", "<Method><subscribe></method>",
        "<method><subscribe></Method>", "<Methods><subscribe></Methods>",
        "<Method ><subscribe></Method>", "<Method><subscribe></Method >"})
    EXPECT_EQ(27u, codeOf(message)) << message;
}

TEST(GetMethodFromXMLMsg, IsUnknownInEveryTruncation) {
  std::string const whole = "<Method><subscribe></Method>";
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_EQ(27u, codeOf(whole.substr(0, length))) << length;
}

TEST(GetMethodFromXMLMsg, LooksBetweenTheFirstMethodTagsOnly) {
  struct {
    char const* what;
    std::string message;
    std::uint32_t code;
  } const rows[] = {
      {"before the element", "<subscribe><Method></Method>", 27},
      {"behind the element", "<Method></Method><subscribe>", 27},
      {"in a second element", "<Method></Method><Method><subscribe></Method>", 27},
      {"a second element of an earlier method",
       "<Method><subscribe></Method><Method><getMissedCallList></Method>", 18},
      {"an earlier method around",
       "<getMissedCallList><Method><subscribe></Method>"
       "<getMissedCallList>",
       18},
      {"begin tag twice", "<Method><subscribe><Method><unsubscribe></Method>", 18},
      {"close tag inside the method tag", "<Method><sub</Method>scribe>", 27},
      {"close tag eats the method's end", "<Method><subscribe</Method>", 27},
  };
  for (auto const& row : rows)
    EXPECT_EQ(row.code, codeOf(row.message)) << row.what;
}

TEST(GetMethodFromXMLMsg, LooksToTheEndWhenTheFirstCloseTagIsEarlier) {
  struct {
    char const* what;
    std::string message;
    std::uint32_t code;
  } const rows[] = {
      {"method inside", "</Method><Method><subscribe>", 18},
      {"text between", "</Method>x<Method>y<subscribe>z", 18},
      {"method behind the second close tag", "</Method><Method></Method><subscribe>", 18},
      {"an earlier method far behind",
       "</Method><Method><subscribe></Method>" + std::string(70000, 'x') + "<getMissedCallList>",
       1},
      {"method before the begin tag", "</Method><subscribe><Method>", 27},
      {"method before both", "<subscribe></Method><Method>", 27},
      {"no method", "</Method><Method>", 27},
  };
  for (auto const& row : rows)
    EXPECT_EQ(row.code, codeOf(row.message)) << row.what;
}

TEST(GetMethodFromXMLMsg, TakesNulsAsBytesLikeOthers) {
  EXPECT_EQ(18u, codeOf("\0<Method><subscribe></Method>"s));
  EXPECT_EQ(18u, codeOf("<Method>\0<subscribe></Method>"s));
  EXPECT_EQ(18u, codeOf("<Method><subscribe>\0</Method>"s));
  EXPECT_EQ(27u, codeOf("<Met\0hod><subscribe></Method>"s));
}

} // namespace
