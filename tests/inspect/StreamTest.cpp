// Messages found in captures, whatever the chunks in which the bytes come.
#include "inspect/Stream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace inspect;
using Texts = std::vector<std::string>;

std::vector<Found> foundIn(std::string const& bytes, Stream::Options options = {},
                           std::size_t chunk = 1 << 20) {
  Stream stream(options);
  std::vector<Found> all;
  Found found;
  for (std::size_t at = 0; at < bytes.size(); at += chunk) {
    stream.push(std::string_view(bytes).substr(at, chunk));
    while (stream.next(found))
      all.push_back(found);
  }
  stream.finish();
  while (stream.next(found))
    all.push_back(found);
  return all;
}

Texts textsOf(std::vector<Found> const& found) {
  Texts texts;
  for (auto const& one : found)
    texts.push_back(one.text);
  return texts;
}

std::string const declaration = R"(<?xml version="1.0" encoding="utf-8"?>)";
std::string const request = declaration + "<Method><subscribe></Method>";
std::string const ids = declaration + "<Method><deleteMissedCall></Method><EntryId>12</EntryId>";
std::string const list = "<Method><getMissedCallList></Method><Entry><UniqueId>1</UniqueId>"
                         "<Viewed>True</Viewed><LogList></LogList></Entry><Handle>7</Handle>";
std::string const update =
    declaration + "<Method><missedCallsUpdate></Method><UniqueId>1</UniqueId><Viewed>True</Viewed>"
                  "<LogList></LogList><ActionType>0</ActionType><Handle>7</Handle>";
std::string const counter =
    declaration + "<Method><missedCallsCountUpdate></Method><Value>3</Value>";
std::string const store = declaration + "<Schema name=\"CallLogSettings\"><ReasonForMessage>"
                                        "read_request</ReasonForMessage></Schema>";
std::string const setting = "<CallLogEnabled>true</CallLogEnabled>";
std::string const success = "<Value>Success</Value>";
std::string const entry = "<UniqueId>1</UniqueId><LogList></LogList>";

Texts const all{request, ids, list, update, counter, store};

std::string joined(Texts const& texts, std::string const& separator) {
  std::string text;
  for (auto const& one : texts)
    text += (text.empty() ? "" : separator) + one;
  return text;
}

struct Row {
  char const* name;
  std::string bytes;
  Texts messages;
};

Row const rows[] = {
    {"one message", list, {list}},
    {"one after another", joined(all, ""), all},
    {"one a line", joined(all, "\n") + "\n", all},
    {"one a line, as on other systems", joined(all, "\r\n") + "\r\n", all},
    {"between NULs", joined(all, std::string(1, '\0')) + std::string(1, '\0'), all},
    {"two logs run together", list + list, {list, list}},
    {"a setting and outcomes a line each",
     setting + "\n" + success + "\n" + success + "\n",
     {setting, success, success}},
    {"an outcome behind its list", list + success, {list + success}},
    {"bare entries", entry + "\n" + entry, {entry, entry}},
    {"a byte-order mark belongs to its message",
     "\xEF\xBB\xBF" + request,
     {"\xEF\xBB\xBF" + request}},
    {"pretty-printed",
     "<Method>\n  <getMissedCallList>\n</Method>\n<Handle>7</Handle>\n",
     {"<Method>\n  <getMissedCallList>\n</Method>\n<Handle>7</Handle>"}},
    {"pretty-printed, declared",
     declaration + "\n<Method><subscribe></Method>\n" + list,
     {declaration + "\n<Method><subscribe></Method>", list}},
    {"pretty-printed, with ids",
     declaration +
         "\n<Method><deleteMissedCall></Method>\n<EntryId>1</EntryId>\n"
         "<EntryId>2</EntryId>\n" +
         request,
     {declaration + "\n<Method><deleteMissedCall></Method>\n<EntryId>1</EntryId>\n"
                    "<EntryId>2</EntryId>",
      request}},
    {"pretty-printed behind the declaration, with ids",
     declaration +
         "<Method><deleteMissedCall></Method>\n<EntryId>1</EntryId>\n<EntryId>2</EntryId>",
     {declaration + "<Method><deleteMissedCall></Method>\n<EntryId>1</EntryId>\n"
                    "<EntryId>2</EntryId>"}},
    {"a counter, pretty-printed",
     declaration + "<Method><missedCallsCountUpdate></Method>\n<Value>3</Value>\n" + request,
     {declaration + "<Method><missedCallsCountUpdate></Method>\n<Value>3</Value>", request}},
    {"markup and a line end in a value",
     declaration + "<Method><deleteMissedCall></Method><EntryId>a</b>\n7</EntryId>\n" + request,
     {declaration + "<Method><deleteMissedCall></Method><EntryId>a</b>\n7</EntryId>", request}},
    {"byte-order marks in joined files",
     "\xEF\xBB\xBF" + request + "\n\xEF\xBB\xBF" + list + "\xEF\xBB\xBF" + list,
     {"\xEF\xBB\xBF" + request, "\xEF\xBB\xBF" + list, "\xEF\xBB\xBF" + list}},
    {"in a log",
     "12:00 RX " + request + " (66 bytes)\n12:01 TX [" + list + "]\nend\n",
     {request, list}},
    {"in a log with other tags",
     "<log><m>" + ids + "</m></log><p>" + setting + "</p>",
     {ids, setting}},
    {"a foreign document in a log",
     "x <?xml version=\"1.0\"?><html></html>\n" + list + "\n",
     {list}},
    {"cut by the next line of a log",
     "RX <Method><getMissedCallList></Method><Entry><UniqueId>1\n"
     "12:01 TX " +
         list + "\n",
     {"<Method><getMissedCallList></Method><Entry><UniqueId>1", list}},
    {"a value with text and brackets in a log",
     "RX <Method><getMissedCallList></Method><Entry><Surname>a < b\nc</Surname></Entry> x",
     {"<Method><getMissedCallList></Method><Entry><Surname>a < b\nc</Surname></Entry>"}},
    {"unterminated entry, then another message",
     list.substr(0, 60) + list,
     {list.substr(0, 60), list}},
    {"nothing", "", {}},
    {"white space", " \n\n", {}},
    {"zeros and digits in the first line of a log",
     "0000000 1234 5678\nRX " + request + "\n",
     {request}},
    {"a text without a message", "hello <b>world</b>\n", {}},
};

TEST(Stream, FindsMessages) {
  for (auto const& row : rows)
    for (std::size_t const chunk : {std::size_t{1}, std::size_t{7}, std::size_t{1} << 20})
      EXPECT_EQ(textsOf(foundIn(row.bytes, {}, chunk)), row.messages)
          << row.name << ", in chunks of " << chunk;
}

TEST(Stream, TellsPlaces) {
  auto const found = foundIn("first line\nRX " + request + "\nRX " + list + "\n");
  ASSERT_EQ(found.size(), 2u);
  EXPECT_EQ(found[0].offset, 14u);
  EXPECT_EQ(found[0].line, 2u);
  EXPECT_EQ(found[1].offset, 14 + request.size() + 4);
  EXPECT_EQ(found[1].line, 3u);
}

TEST(Stream, FindsOneMessageALineBeforeTheNextOne) {
  for (auto const& message : all) {
    Stream stream;
    Found found;
    stream.push(message);
    EXPECT_FALSE(stream.next(found)) << message;
    stream.push("\n");
    ASSERT_TRUE(stream.next(found)) << message;
    EXPECT_EQ(found.text, message);
  }
}

std::string hexOf(std::string const& bytes, int perLine, bool dump) {
  std::string text;
  char piece[32];
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    auto const column = at % static_cast<std::size_t>(perLine);
    if (dump && column == 0)
      std::snprintf(piece, sizeof piece, "%08zx: ", at), text += piece;
    std::snprintf(piece, sizeof piece, "%02x", static_cast<unsigned char>(bytes[at]));
    text += piece;
    if (dump && column % 2 == 1 && column + 1 != static_cast<std::size_t>(perLine))
      text += ' ';
    if (column + 1 == static_cast<std::size_t>(perLine) || at + 1 == bytes.size())
      text += dump ? "  <text>\n" : "\n";
  }
  return text;
}

std::string base64Of(std::string const& bytes) {
  constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    std::uint32_t bits = 0;
    auto const count = std::min<std::size_t>(3, bytes.size() - at);
    for (std::size_t byte = 0; byte < 3; ++byte)
      bits = bits << 8 | (byte < count ? static_cast<unsigned char>(bytes[at + byte]) : 0u);
    for (std::size_t digit = 0; digit < 4; ++digit)
      text += digit <= count ? digits[bits >> (18 - 6 * digit) & 63] : '=';
    if (at % 57 == 54)
      text += '\n';
  }
  return text + "\n";
}

std::string escapedOf(std::string text) {
  std::string out;
  for (char const c : text)
    out += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
  return out;
}

TEST(Stream, UnpacksCaptures) {
  auto const text = joined(all, "\n") + "\n";
  struct {
    Capture capture;
    std::string bytes;
  } const captures[] = {
      {Capture::plain, text},
      {Capture::hex, hexOf(text, 32, false)},
      {Capture::hex, hexOf(text, 100000, false)},
      {Capture::dump, hexOf(text, 16, true)},
      {Capture::dump, hexOf("12:00 RX " + text, 16, true)},
      {Capture::base64, base64Of(text)},
      {Capture::escaped, escapedOf(text)},
      {Capture::escaped, "12:00 RX " + escapedOf(text)},
      {Capture::hex, std::string(5000, '\n') + hexOf(text, 32, false)},
  };
  for (auto const& row : captures)
    for (std::size_t const chunk : {std::size_t{1}, std::size_t{13}, std::size_t{1} << 20}) {
      EXPECT_EQ(textsOf(foundIn(row.bytes, {}, chunk)), all)
          << nameOf(row.capture) << ", in chunks of " << chunk;
      Stream stream;
      stream.push(row.bytes);
      EXPECT_EQ(stream.capture(), row.capture);
    }
}

TEST(Stream, RepeatsTheSqueezedLinesOfADump) {
  auto const dump = [](std::string const& squeezed) {
    return "00000000  3c 41 3e 20 20 20 20 20  20 20 20 20 20 20 20 20  |<A>             |\n"
           "00000010  20 20 20 20 20 20 20 20  20 20 20 20 20 20 20 20  |                |\n" +
           squeezed;
  };
  std::string const message = "<A>" + std::string(61, ' ');
  EXPECT_EQ(textsOf(foundIn(dump("*\n00000040  3c 42 3e                 |<B>|\n00000043\n"),
                            {std::optional<bool>(false)})),
            Texts{message + "<B>"});
  // An offset that damage made large is not followed for ever.
  EXPECT_LT(foundIn(dump("*\nffffffffffffffff  3c 42 3e                 |<B>|\n"),
                    {std::optional<bool>(false)})[0]
                .text.size(),
            std::size_t{1} << 25);
}

TEST(Stream, HoldsNothingOfBlanksAndDumpsWithoutLines) {
  Unpacker unpacker;
  std::string out;
  unpacker.push(hexOf(request, 100000, false) + "0", out);
  unpacker.push(std::string(100000, ' '), out);
  EXPECT_EQ(out, request);
}

// It begins like a message, but is not one whole tag: it must be passed over, or the scan never
// ends.
TEST(Stream, PassesOverACutTag) {
  for (std::string const cut : {"<Schema name=\"", "<Schema name=\"<Schema name=\"", "<UniqueId>"})
    EXPECT_EQ(textsOf(foundIn("\xFF" + cut)), Texts()) << cut;
  EXPECT_EQ(textsOf(foundIn("x <Schema name=\"" + store)), Texts{store});
}

TEST(Stream, LimitsTheSizeOfAMessage) {
  Stream::Options options;
  options.limit = list.size();
  EXPECT_EQ(foundIn(list + list, options).size(), 2u);
  options.limit = list.size() - 1;
  Stream stream(options);
  Found found;
  stream.push(request + list);
  EXPECT_TRUE(stream.next(found));
  EXPECT_FALSE(stream.next(found));
  stream.finish();
  EXPECT_FALSE(stream.next(found));
  EXPECT_TRUE(stream.isTooLarge());
}

TEST(Stream, ScansWhereItIsTold) {
  Stream::Options options;
  options.scan = true;
  EXPECT_EQ(textsOf(foundIn(request + " and " + list, options)), (Texts{request, list}));
  options.scan = false;
  EXPECT_EQ(textsOf(foundIn("RX " + request, options)), (Texts{"RX", request}));
}

} // namespace
