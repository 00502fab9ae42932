// The requests to the settings and data store, byte for byte.
#include <cstddef>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using J = JournalServiceHelper;

struct Request {
  std::string (*build)();
  char const* message;
};
constexpr Request requests[] = {
    {&J::readEnabledState,
     "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogSettings\">"
     "<ReasonForMessage>read_request</ReasonForMessage></Schema>"},
    {&J::readMissedCallList,
     "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogMissedCalls\">"
     "<ReasonForMessage>read_request</ReasonForMessage></Schema>"},
    {&J::deleteMissedCallList,
     "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogMissedCalls\">"
     "<ReasonForMessage>delete_request</ReasonForMessage></Schema>"},
    {&J::readDialledCallList,
     "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogDialledCalls\">"
     "<ReasonForMessage>read_request</ReasonForMessage></Schema>"},
    {&J::deleteDialledCallList,
     "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogDialledCalls\">"
     "<ReasonForMessage>delete_request</ReasonForMessage></Schema>"},
    {&J::readReceivedCallList,
     "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogReceivedCalls\">"
     "<ReasonForMessage>read_request</ReasonForMessage></Schema>"},
    {&J::deleteReceivedCallList,
     "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogReceivedCalls\">"
     "<ReasonForMessage>delete_request</ReasonForMessage></Schema>"},
    {&J::readForwardedCallList,
     "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogForwardedCalls\">"
     "<ReasonForMessage>read_request</ReasonForMessage></Schema>"},
    {&J::deleteForwardedCallList,
     "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogForwardedCalls\">"
     "<ReasonForMessage>delete_request</ReasonForMessage></Schema>"},
};
static_assert(std::size(requests) == 9);

TEST(StoreRequests, ReadAsTheseTexts) {
  for (Request const& request : requests)
    EXPECT_EQ(request.message, request.build());
}

TEST(StoreRequests, HoldOneReasonAndEndWithTheSchema) {
  std::string const begin = "<ReasonForMessage>";
  std::string const end = "</Schema>";
  for (Request const& request : requests) {
    std::string const message = request.build();
    std::size_t const reason = message.find(begin);
    ASSERT_NE(std::string::npos, reason) << message;
    EXPECT_EQ(std::string::npos, message.find(begin, reason + 1)) << message;
    ASSERT_GE(message.size(), end.size());
    EXPECT_EQ(end, message.substr(message.size() - end.size()));
  }
}

// The schema alone says what is read.
TEST(StoreRequests, NameNoSettingInTheEnabledStateRequest) {
  std::string const message = J::readEnabledState();
  EXPECT_EQ(std::string::npos, message.find("<CallLogEnabled>"));
  EXPECT_EQ(std::string::npos, message.find("CallLogEnabled"));
}

TEST(StoreRequests, DifferBetweenReadAndDeleteInTheReasonOnly) {
  std::string message = J::deleteForwardedCallList();
  std::size_t const reason = message.find("delete_request");
  ASSERT_NE(std::string::npos, reason);
  message.replace(reason, 14, "read_request");
  EXPECT_EQ(J::readForwardedCallList(), message);
}

// The service does not take a store request for one of its own.
TEST(StoreRequests, CarryNoMethod) {
  for (Request const& request : requests)
    EXPECT_EQ(J::UNKNOWN_METHOD, J::getMethodFromXMLMsg(request.build()));
}

} // namespace
