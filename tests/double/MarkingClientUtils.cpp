// A utility library that marks what passes through it, so that tests see which texts do.
#include "ClientUtils.h"

std::string ClientUtils::escapeXMLString(std::string const& text) {
  return "E(" + text + ")";
}

std::string ClientUtils::unescapeXMLString(std::string const& text) {
  return "U(" + text + ")";
}

std::string ClientUtils::itos(int value) {
  return "I(" + std::to_string(value) + ")";
}
