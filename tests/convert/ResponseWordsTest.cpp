// The words of a response: success written, failure recognised.
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;

TEST(RespBool, SpellsSuccessAndFailure) {
  EXPECT_EQ("Success", J::respBool(true));
  EXPECT_EQ("Failure", J::respBool(false));
}

TEST(IsNonFailureResponse, IsFalseWhereverFailureOccurs) {
  std::string const failures[] = {
      "Failure",
      "<Value>Failure</Value>",
      "<Surname>Failure</Surname><Value>Success</Value>",
      "<Surname>Powerfully Failureproof</Surname>",
      "xFailurex",
      "FFailure",
      "FailFailure",
      "Failur\0Failure"s,
      "\0Failure"s,
      "<Value>Success</Value>\0<Value>Failure</Value>"s,
      std::string(100000, 'F') + "ailure",
  };
  for (std::string const& message : failures)
    EXPECT_FALSE(J::isNonFailureResponse(message)) << message.substr(0, 80);
}

TEST(IsNonFailureResponse, IsTrueForAnythingElse) {
  std::string const others[] = {
      "",
      "<Value>Success</Value>",
      "Success",
      "Failur",
      "ailure",
      "failure",
      "FAILURE",
      "FaiLure",
      "Fail ure",
      "Failur\0e"s,
      "\0"s,
      "Fail\0ure"s,
      "F&#97;ilure",
      "Fehler",
  };
  for (std::string const& message : others)
    EXPECT_TRUE(J::isNonFailureResponse(message)) << message;
}

} // namespace
