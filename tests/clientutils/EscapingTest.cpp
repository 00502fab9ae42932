// The five special characters, written as entities and restored.
#include <cstddef>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "ClientUtils.h"

namespace {

using namespace std::string_literals;

struct Row {
  std::string text;
  std::string escaped;
};

TEST(EscapeXMLString, WritesTheSpecialCharactersAsEntities) {
  Row const rows[] = {
      {"", ""},
      {"&", "&amp;"},
      {"<", "&lt;"},
      {">", "&gt;"},
      {"\"", "&quot;"},
      {"'", "&apos;"},
      {"plain text", "plain text"},
      {"a&b", "a&amp;b"},
      {"&<>\"'", "&amp;&lt;&gt;&quot;&apos;"},
      {"&&", "&amp;&amp;"},
      {"&amp;", "&amp;amp;"},
      {"&lt;", "&amp;lt;"},
      {"<a b=\"c\">d</a>", "&lt;a b=&quot;c&quot;&gt;d&lt;/a&gt;"},
      {"O'Brien & S\xC3\xB6hne", "O&apos;Brien &amp; S\xC3\xB6hne"},
      {"\0"s, "\0"s},
      {"a\0<"s, "a\0&lt;"s},
      {"&\0&"s, "&amp;\0&amp;"s},
      {"`%#;/", "`%#;/"},
  };
  for (Row const& row : rows) {
    EXPECT_EQ(row.escaped, ClientUtils::escapeXMLString(row.text));
    EXPECT_EQ(row.text, ClientUtils::unescapeXMLString(row.escaped));
  }
}

TEST(UnescapeXMLString, RestoresEachEntityOnce) {
  Row const rows[] = {
      {"<", "&lt;"},
      {"&lt;", "&amp;lt;"},
      {"&amp;", "&amp;amp;"},
      {"&amp;lt;", "&amp;amp;lt;"},
      {"&&lt;", "&amp;&amp;lt;"},
      {"<;", "&lt;;"},
      {"x<y", "x&lt;y"},
      {"<>&\"'", "&lt;&gt;&amp;&quot;&apos;"},
      {"''''", "&apos;&apos;&apos;&apos;"},
      {"\0<\0"s, "\0&lt;\0"s},
      {"<>", "<>"},
      {"\"'", "\"'"},
      {"lt;", "lt;"},
      {";", ";"},
  };
  for (Row const& row : rows)
    EXPECT_EQ(row.text, ClientUtils::unescapeXMLString(row.escaped)) << row.escaped;
}

TEST(UnescapeXMLString, KeepsWhatIsNoEntity) {
  std::string const texts[] = {
      "&",       "&&",      "a&",      "& ",       "&;",    "&lt",    "&l",     "&amp",
      "&am",     "&a",      "&gt",     "&quot",    "&quo",  "&apos",  "&apo",   "&nbsp;",
      "&auml;",  "&#60;",   "&#x3C;",  "&LT;",     "&Lt;",  "&AMP;",  "&QUOT;", "&APOS;",
      "& lt;",   "&lt ;",   "&l t;",   "&ltt;",    "&llt;", "&amps;", "&apo;",  "&quote;",
      "&lt\0;"s, "&l\0t;"s, "&\0lt;"s, "&amp\0;"s, "%lt;",  "lt;",    "&gt:",   "&lt,",
  };
  for (std::string const& text : texts)
    EXPECT_EQ(text, ClientUtils::unescapeXMLString(text));
}

TEST(UnescapeXMLString, FindsAnEntityRightBehindWhatIsNone) {
  Row const rows[] = {
      {"&<", "&&lt;"},
      {"&&", "&&amp;"},
      {"&l<", "&l&lt;"},
      {"&lt<", "&lt&lt;"},
      {"&am&p;", "&am&amp;p;"},
      {"&amp&", "&amp&amp;"},
      {"<&", "&lt;&"},
      {"&nbsp;'", "&nbsp;&apos;"},
      {"&quo\"t;", "&quo&quot;t;"},
      {"&#<", "&#&lt;"},
      {"&&&>", "&&&&gt;"},
  };
  for (Row const& row : rows)
    EXPECT_EQ(row.text, ClientUtils::unescapeXMLString(row.escaped)) << row.escaped;
}

std::string entityOf(char c) {
  switch (c) {
  case '&':
    return "&amp;";
  case '<':
    return "&lt;";
  case '>':
    return "&gt;";
  case '"':
    return "&quot;";
  case '\'':
    return "&apos;";
  default:
    return std::string(1, c);
  }
}

TEST(Escaping, LeavesEveryOtherByteAlone) {
  for (int byte = 0; byte < 256; ++byte) {
    std::string const text(1, static_cast<char>(byte));
    std::string const escaped = entityOf(text[0]);
    EXPECT_EQ(escaped, ClientUtils::escapeXMLString(text)) << byte;
    EXPECT_EQ(text, ClientUtils::unescapeXMLString(escaped)) << byte;
    EXPECT_EQ("&" + text, ClientUtils::unescapeXMLString("&" + text)) << byte;
  }
}

// Using only the letters of the entities' names makes entities and near misses frequent.
TEST(Escaping, RestoresAnyTextItHasWritten) {
  std::string everyByte;
  for (int byte = 0; byte < 256; ++byte)
    everyByte += static_cast<char>(byte);
  std::mt19937 random(20240607u);
  for (std::string const& alphabet : {everyByte, "&<>\"';ampltgquos\0"s, "&amp;"s, "&lt;g"s})
    for (int round = 0; round < 2000; ++round) {
      std::string text, expected;
      for (std::size_t length = random() % 40; length > 0; --length) {
        text += alphabet[random() % alphabet.size()];
        expected += entityOf(text.back());
      }
      ASSERT_EQ(expected, ClientUtils::escapeXMLString(text));
      ASSERT_EQ(text, ClientUtils::unescapeXMLString(expected));
    }
}

TEST(Escaping, TakesLongTexts) {
  std::string text, escaped;
  for (int i = 0; i < 20000; ++i) {
    text += "<&x";
    escaped += "&lt;&amp;x";
  }
  EXPECT_EQ(escaped, ClientUtils::escapeXMLString(text));
  EXPECT_EQ(text, ClientUtils::unescapeXMLString(escaped));
}

} // namespace
