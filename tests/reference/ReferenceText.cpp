// The reference for texts, single elements and the words of the enumerations.
#include "Reference.h"

#include <cstddef>
#include <cstdint>

// ------------------------------------------------------------------------------------------------
// What the utility library does

std::string Reference::escapeXMLString(std::string const& text) {
  std::string escaped;
  for (char const c : text) {
    switch (c) {
    case '&':
      escaped += "&amp;";
      break;
    case '<':
      escaped += "&lt;";
      break;
    case '>':
      escaped += "&gt;";
      break;
    case '"':
      escaped += "&quot;";
      break;
    case '\'':
      escaped += "&apos;";
      break;
    default:
      escaped += c;
    }
  }
  return escaped;
}

std::string Reference::unescapeXMLString(std::string const& text) {
  std::string plain;
  std::size_t i = 0;
  while (i < text.size()) {
    if (text.substr(i, 5) == "&amp;") {
      plain += '&';
      i += 5;
    } else if (text.substr(i, 4) == "&lt;") {
      plain += '<';
      i += 4;
    } else if (text.substr(i, 4) == "&gt;") {
      plain += '>';
      i += 4;
    } else if (text.substr(i, 6) == "&quot;") {
      plain += '"';
      i += 6;
    } else if (text.substr(i, 6) == "&apos;") {
      plain += '\'';
      i += 6;
    } else {
      plain += text[i];
      i += 1;
    }
  }
  return plain;
}

std::string Reference::itos(int value) {
  std::int64_t rest = value;
  bool const negative = rest < 0;
  if (negative) {
    rest = -rest;
  }
  std::string digits;
  do {
    digits = std::string(1, static_cast<char>('0' + rest % 10)) + digits;
    rest /= 10;
  } while (rest > 0);
  return negative ? "-" + digits : digits;
}

std::string Reference::untilNul(char const* text) {
  return text == nullptr ? std::string() : std::string(text);
}

unsigned int Reference::toUnsigned(std::string const& text) {
  std::int64_t const smallest = -2147483648LL;
  std::int64_t const largest = 2147483647LL;
  std::size_t i = 0;
  while (i < text.size() && std::string(" \t\n\v\f\r").find(text[i]) != std::string::npos) {
    i += 1;
  }
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
    negative = text[i] == '-';
    i += 1;
  }
  std::int64_t value = 0;
  while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
    value = value * 10 + (negative ? -(text[i] - '0') : text[i] - '0');
    if (value < smallest) {
      value = smallest;
    }
    if (value > largest) {
      value = largest;
    }
    i += 1;
  }
  return static_cast<unsigned int>(static_cast<std::int32_t>(value));
}

// ------------------------------------------------------------------------------------------------
// Single elements, written

std::string Reference::createXMLBegin(std::string const& name) {
  return "<" + name + ">";
}

std::string Reference::createXMLClose(std::string const& name) {
  return "</" + name + ">";
}

std::string Reference::createXMLField(std::string const& name, std::string const& value) {
  return value.empty() ? std::string() : "<" + name + ">" + value + "</" + name + ">";
}

std::string Reference::createXMLField(std::string const& name, char const* value) {
  return createXMLField(name, untilNul(value));
}

std::string Reference::createXMLField(std::string const& name, unsigned int value) {
  return createXMLField(name, itos(static_cast<std::int32_t>(value)));
}

std::string Reference::createXMLField(std::string const& name, bool value) {
  return createXMLField(name, std::string(value ? "True" : "False"));
}

std::string Reference::createXMLSchemaField(std::string const& name) {
  return name.empty() ? std::string() : "<Schema>" + name;
}

std::string Reference::createXMLEntryIDList(std::set<std::string> const& ids) {
  std::string list;
  for (std::string const& id : ids) {
    list += createXMLField("EntryId", id);
  }
  return list;
}

// ------------------------------------------------------------------------------------------------
// Single elements, read at a cursor

namespace {

struct Found {
  bool found;
  std::string raw;    // the text between the tags; empty when one is missing
  char const* cursor; // where the next search is to start
};

Found find(char const* text, std::string const& begin, std::string const& close) {
  std::string const whole = Reference::untilNul(text);
  std::size_t const beginAt = whole.find(begin);
  if (beginAt == std::string::npos) {
    return {false, "", text};
  }
  std::size_t const valueAt = beginAt + begin.size();
  std::size_t const closeAt = whole.find(close, valueAt);
  if (closeAt == std::string::npos) {
    return {false, "", text};
  }
  std::string const raw = whole.substr(valueAt, closeAt - valueAt);
  if (beginAt != 0) {
    return {true, raw, text};
  }
  return {true, raw, text + closeAt + close.size()};
}

} // namespace

char const* Reference::getXMLValue(char const* text, std::string const& begin,
                                   std::string const& close, std::string& value) {
  Found const element = find(text, begin, close);
  value = unescapeXMLString(element.raw);
  return element.cursor;
}

char const* Reference::getXMLValue(char const* text, std::string const& begin,
                                   std::string const& close, bool& value) {
  Found const element = find(text, begin, close);
  value = element.found && element.raw == "True";
  return element.cursor;
}

// ------------------------------------------------------------------------------------------------
// Single elements, read from a whole message
//
// A begin tag that is missing has the position npos, and its end is the tag's length minus one:
// that is how the system behaves, so nothing tests for it.

bool Reference::getXMLValue(std::string const& text, std::string const& name, std::string& value) {
  std::string const begin = "<" + name + ">";
  std::string const close = "</" + name + ">";
  std::size_t const p0 = text.find(begin);
  std::size_t const p1 = p0 + begin.size();
  std::size_t const p2 = text.find(close);
  if (static_cast<std::int32_t>(p1) < static_cast<std::int32_t>(p2)) {
    value = unescapeXMLString(text.substr(p1, p2 - p1));
    return true;
  }
  return false;
}

bool Reference::getXMLValue(std::string const& text, std::string const& name,
                            NumberType::NT& value) {
  std::string word;
  if (!getXMLValue(text, name, word)) {
    return false;
  }
  value = convertNumberType(word);
  return true;
}

bool Reference::getXMLValue(std::string const& text, std::string const& name, bool& value) {
  std::string word;
  if (!getXMLValue(text, name, word)) {
    return false;
  }
  value = word == "True";
  return true;
}

bool Reference::getXMLValue(std::string const& text, std::string const& name, unsigned int& value) {
  value = 0;
  std::string digits;
  if (!getXMLValue(text, name, digits)) {
    return false;
  }
  value = toUnsigned(digits);
  return true;
}

bool Reference::getAndRemoveXMLValue(std::string& text, std::string const& name,
                                     std::string& value) {
  std::string const begin = "<" + name + ">";
  std::string const close = "</" + name + ">";
  std::size_t const p0 = text.find(begin);
  std::size_t const p1 = p0 + begin.size();
  std::size_t const p2 = text.find(close);
  std::size_t const p3 = p2 + close.size();
  if (static_cast<std::int32_t>(p1) < static_cast<std::int32_t>(p2) &&
      static_cast<std::int32_t>(p0) < static_cast<std::int32_t>(p3)) {
    value = text.substr(p1, p2 - p1);
    text = text.substr(0, p0) + text.substr(p3);
    return true;
  }
  return false;
}
