// The call-log setting, read from the store's answer.
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;

// Unlike every other flag this one is spelled in lower case, and a missing one means enabled.
TEST(ParseXMLEnabledStateItem, IsTrueWhenMissingEmptyOrExactlyTrue) {
  struct {
    std::string message;
    bool enabled;
  } const rows[] = {
      {"", true},
      {"<ReasonForMessage>read_request</ReasonForMessage>", true},
      {"<CallLogEnabled></CallLogEnabled>", true},
      {"<CallLogEnabled></CallLogEnabled><CallLogEnabled>false</CallLogEnabled>", true},
      {"<CallLogEnabled>true</CallLogEnabled>", true},
      {"<CallLogEnabled>true</CallLogEnabled><CallLogEnabled>false</CallLogEnabled>", true},
      {"<CallLogEnabled>false</CallLogEnabled><CallLogEnabled>true</CallLogEnabled>", false},
      {"<CallLogEnabled>True</CallLogEnabled>", false},
      {"<CallLogEnabled>TRUE</CallLogEnabled>", false},
      {"<CallLogEnabled>false</CallLogEnabled>", false},
      {"<CallLogEnabled>False</CallLogEnabled>", false},
      {"<CallLogEnabled>1</CallLogEnabled>", false},
      {"<CallLogEnabled>0</CallLogEnabled>", false},
      {"<CallLogEnabled>true </CallLogEnabled>", false},
      {"<CallLogEnabled> true</CallLogEnabled>", false},
      {"<CallLogEnabled> </CallLogEnabled>", false},
      {"<CallLogEnabled>tru</CallLogEnabled>", false},
      {"<CallLogEnabled>truetrue</CallLogEnabled>", false},
      {"<CallLogEnabled>&#116;rue</CallLogEnabled>", false},
      {"<CallLogEnabled>&lt;</CallLogEnabled>", false},
      {"<CallLogEnabled><CallLogEnabled>true</CallLogEnabled>", false},
      {"<CallLogEnabled>false", true},
      {"false</CallLogEnabled>", true},
      {"0123456789abcdefghijklm</CallLogEnabled>", true},
      {"</CallLogEnabled><CallLogEnabled>false", true},
      {"</CallLogEnabled><CallLogEnabled>false</CallLogEnabled>", false},
      {"<callLogEnabled>false</callLogEnabled>", true},
      {"<CallLogEnabledState>false</CallLogEnabledState>", true},
      {"\0<CallLogEnabled>false</CallLogEnabled>"s, true},
      {"<CallLogEnabled>false\0</CallLogEnabled>"s, true},
      {"<CallLogEnabled>true</CallLogEnabled>\0<CallLogEnabled>false</CallLogEnabled>"s, true},
      {"<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogSettings\">"
       "<CallLogEnabled>false</CallLogEnabled></Schema>",
       false},
      {"<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogSettings\">"
       "<CallLogEnabled>true</CallLogEnabled></Schema>",
       true},
  };
  for (auto const& row : rows) {
    std::string const before = row.message;
    EXPECT_EQ(row.enabled, J::parseXMLEnabledStateItem(row.message)) << row.message;
    EXPECT_EQ(before, row.message);
  }
}

} // namespace
