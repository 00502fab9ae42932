// A utility library that marks what passes through it, so that tests see which texts do.
//
// One text is not marked: a text in square brackets is unescaped to what stands in them, for what
// unescaping makes of a text is the utility library's affair, and it may make a word of one.
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
