// The envelope around a finished message, and the success word appended to a response.
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;

TEST(AddXMLHeaderFooter, PutsTheDeclarationInFrontAndTheSchemaAround) {
  struct {
    std::string body, schema, message;
  } const rows[] = {
      {"<Method><subscribe></Method>", "",
       "<?xml version=\"1.0\" encoding=\"utf-8\"?><Method><subscribe></Method>"},
      {"<ReasonForMessage>read_request</ReasonForMessage>", "CallLogMissedCalls",
       "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"CallLogMissedCalls\">"
       "<ReasonForMessage>read_request</ReasonForMessage></Schema>"},
      {"", "", "<?xml version=\"1.0\" encoding=\"utf-8\"?>"},
      {"", "S", "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"S\"></Schema>"},
      {"x", " ", "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\" \">x</Schema>"},
      {"<&", "\"<&", "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"\"<&\"><&</Schema>"},
      {"a\0b"s, "S\0T"s,
       "<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"S\0T\">a\0b</Schema>"s},
      {"\0"s, "", "<?xml version=\"1.0\" encoding=\"utf-8\"?>\0"s},
  };
  for (auto const& row : rows) {
    std::string message = row.body;
    J::addXMLHeaderFooter(message, row.schema);
    EXPECT_EQ(row.message, message);
  }
}

TEST(AddXMLHeaderFooter, WrapsALongBody) {
  std::string const body(100000, 'x');
  std::string message = body;
  J::addXMLHeaderFooter(message, "S");
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"S\">" + body + "</Schema>",
            message);
}

// Any text can be wrapped, a finished message too.
TEST(AddXMLHeaderFooter, WrapsAFinishedMessageOnceMore) {
  std::string message = "x";
  J::addXMLHeaderFooter(message, "");
  J::addXMLHeaderFooter(message, "S");
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\"?><Schema name=\"S\">"
            "<?xml version=\"1.0\" encoding=\"utf-8\"?>x</Schema>",
            message);
}

TEST(AddSuccessResp, AppendsTheSuccessWord) {
  struct {
    std::string before, after;
  } const rows[] = {
      {"", "<Value>Success</Value>"},
      {"<Method><subscribe></Method>", "<Method><subscribe></Method><Value>Success</Value>"},
      {"<Value>Failure</Value>", "<Value>Failure</Value><Value>Success</Value>"},
      {"a\0"s, "a\0<Value>Success</Value>"s},
  };
  for (auto const& row : rows) {
    std::string message = row.before;
    EXPECT_TRUE(J::addSuccessResp(message));
    EXPECT_EQ(row.after, message);
  }
}

} // namespace
