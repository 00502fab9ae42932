// A fake utility library that marks the texts that pass through it, so that tests can see which do.
//
// Texts in square brackets are not marked: they are unescaped to what is inside. The utility
// library decides what unescaping returns, which may be a word of the messages.
#include "ClientUtils.h"

std::string ClientUtils::escapeXMLString(std::string const& text) {
  return "E(" + text + ")";
}

std::string ClientUtils::unescapeXMLString(std::string const& text) {
  if (text.size() >= 2 && text.front() == '[' && text.back() == ']')
    return text.substr(1, text.size() - 2);
  return "U(" + text + ")";
}

std::string ClientUtils::itos(int value) {
  return "I(" + std::to_string(value) + ")";
}
