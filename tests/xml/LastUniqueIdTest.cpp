// The unique id of a message's first entry, and the NUL that stays in the message.
#include <cstddef>
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;

struct Row {
  char const* what;
  std::string before;
  std::string after;
};

TEST(ParseLastUniqueId, ReadsTheFirstEntryAndEndsTheTextBehindIt) {
  struct {
    Row row;
    std::string id;
  } const rows[] = {
      {{"alone", "<Entry><UniqueId>5</UniqueId></Entry>",
        "<Entry><UniqueId>5</UniqueId>\0/Entry>"s},
       "5"},
      {{"first of two",
        "x<Entry><UniqueId>5</UniqueId></Entry><Entry><UniqueId>6</UniqueId></Entry>",
        "x<Entry><UniqueId>5</UniqueId>\0/Entry><Entry><UniqueId>6</UniqueId></Entry>"s},
       "5"},
      {{"further on in the entry", "<Entry><A>1</A><UniqueId>5</UniqueId>y</Entry>z",
        "<Entry><A>1</A><UniqueId>5</UniqueId>y\0/Entry>z"s},
       "5"},
      {{"first of two ids", "<Entry><UniqueId>5</UniqueId><UniqueId>6</UniqueId></Entry>",
        "<Entry><UniqueId>5</UniqueId><UniqueId>6</UniqueId>\0/Entry>"s},
       "5"},
      {{"unescaped", "<Entry><UniqueId>&amp;lt;&apos;</UniqueId></Entry>",
        "<Entry><UniqueId>&amp;lt;&apos;</UniqueId>\0/Entry>"s},
       "&lt;'"},
      {{"blank", "<Entry><UniqueId> </UniqueId></Entry>",
        "<Entry><UniqueId> </UniqueId>\0/Entry>"s},
       " "},
      {{"a close tag in front", "</Entry><Entry><UniqueId>5</UniqueId></Entry>",
        "</Entry><Entry><UniqueId>5</UniqueId>\0/Entry>"s},
       "5"},
      {{"a NUL behind the entry", "<Entry><UniqueId>5</UniqueId></Entry>\0tail"s,
        "<Entry><UniqueId>5</UniqueId>\0/Entry>\0tail"s},
       "5"},
      {{"the begin tag twice", "<Entry><Entry><UniqueId>5</UniqueId></Entry></Entry>",
        "<Entry><Entry><UniqueId>5</UniqueId>\0/Entry></Entry>"s},
       "5"},
  };
  for (auto const& [row, id] : rows) {
    SCOPED_TRACE(row.what);
    std::string message = row.before;
    std::string uniqueId = "left over";
    EXPECT_TRUE(J::parseLastUniqueId(message, uniqueId));
    EXPECT_EQ(id, uniqueId);
    EXPECT_EQ(row.after, message);
  }
}

void expectFalse(Row const& row) {
  SCOPED_TRACE(row.what);
  std::string message = row.before;
  std::string uniqueId = "left over";
  EXPECT_FALSE(J::parseLastUniqueId(message, uniqueId));
  EXPECT_EQ("left over", uniqueId);
  EXPECT_EQ(row.after, message);
}

TEST(ParseLastUniqueId, EndsTheTextEvenWhenTheEntryHasNoId) {
  Row const rows[] = {
      {"empty entry", "<Entry></Entry>", "<Entry>\0/Entry>"s},
      {"empty entry, a full one behind", "<Entry></Entry><Entry><UniqueId>6</UniqueId></Entry>",
       "<Entry>\0/Entry><Entry><UniqueId>6</UniqueId></Entry>"s},
      {"no id, one in a later entry", "<Entry>x</Entry><Entry><UniqueId>6</UniqueId></Entry>",
       "<Entry>x\0/Entry><Entry><UniqueId>6</UniqueId></Entry>"s},
      {"id before the entry", "<UniqueId>5</UniqueId><Entry>x</Entry>",
       "<UniqueId>5</UniqueId><Entry>x\0/Entry>"s},
      {"id behind the entry", "<Entry>x</Entry><UniqueId>5</UniqueId>",
       "<Entry>x\0/Entry><UniqueId>5</UniqueId>"s},
      {"empty id", "<Entry><UniqueId></UniqueId></Entry>",
       "<Entry><UniqueId></UniqueId>\0/Entry>"s},
      {"empty id, a full one behind", "<Entry><UniqueId></UniqueId><UniqueId>5</UniqueId></Entry>",
       "<Entry><UniqueId></UniqueId><UniqueId>5</UniqueId>\0/Entry>"s},
      {"id not closed within the entry", "<Entry><UniqueId>5</Entry></UniqueId>",
       "<Entry><UniqueId>5\0/Entry></UniqueId>"s},
      {"id not opened within the entry", "<UniqueId><Entry>5</UniqueId></Entry>",
       "<UniqueId><Entry>5</UniqueId>\0/Entry>"s},
      {"other ids only",
       "<Entry><EntryId>5</EntryId><UniqueIdToDelete>6</UniqueIdToDelete></Entry>",
       "<Entry><EntryId>5</EntryId><UniqueIdToDelete>6</UniqueIdToDelete>\0/Entry>"s},
      {"one byte in the entry", "<Entry><</Entry>", "<Entry><\0/Entry>"s},
  };
  for (Row const& row : rows)
    expectFalse(row);
}

TEST(ParseLastUniqueId, LeavesATextWithoutACompleteEntryAlone) {
  std::string const messages[] = {
      "",
      "<UniqueId>5</UniqueId>",
      "<Entry><UniqueId>5</UniqueId>",
      "<UniqueId>5</UniqueId></Entry>",
      "</Entry><Entry><UniqueId>5</UniqueId>",
      "<entry><UniqueId>5</UniqueId></entry>",
      "<Entry ><UniqueId>5</UniqueId></Entry>",
      "<Entry><UniqueId>5</UniqueId></Entry >",
      "<EntryId><UniqueId>5</UniqueId></EntryId>",
      "\0<Entry><UniqueId>5</UniqueId></Entry>"s,
      "<Ent\0ry><UniqueId>5</UniqueId></Entry>"s,
      "<Entry><UniqueId>5</UniqueId>\0</Entry>"s,
      "<Entry><UniqueId>5</UniqueId></Entry\0>"s,
  };
  for (std::string const& message : messages)
    expectFalse({message.c_str(), message, message});
}

TEST(ParseLastUniqueId, LeavesEveryTruncationAlone) {
  std::string const whole = "<Entry><UniqueId>5</UniqueId></Entry>";
  for (std::size_t length = 0; length < whole.size(); ++length)
    expectFalse({"truncated", whole.substr(0, length), whole.substr(0, length)});
}

// Read up to its NUL, the text then ends at the entry; its length is unchanged.
TEST(ParseLastUniqueId, FindsNoEntryTheSecondTime) {
  std::string message = "<Entry><UniqueId>5</UniqueId></Entry><Handle>1</Handle>";
  std::string uniqueId;
  EXPECT_TRUE(J::parseLastUniqueId(message, uniqueId));
  EXPECT_EQ(29u, std::strlen(message.c_str()));
  EXPECT_EQ(55u, message.size());
  EXPECT_EQ('\0', message[29]);

  uniqueId = "left over";
  EXPECT_FALSE(J::parseLastUniqueId(message, uniqueId));
  EXPECT_EQ("left over", uniqueId);
  EXPECT_EQ("<Entry><UniqueId>5</UniqueId>\0/Entry><Handle>1</Handle>"s, message);
}

TEST(ParseLastUniqueId, DoesNotWriteIntoACopy) {
  std::string message = "<Entry><UniqueId>5</UniqueId></Entry>";
  std::string const copy = message;
  std::string uniqueId;
  EXPECT_TRUE(J::parseLastUniqueId(message, uniqueId));
  EXPECT_EQ("<Entry><UniqueId>5</UniqueId></Entry>", copy);
}

} // namespace
