// The stand-in for the product's utility library: escaping in one pass, integer texts.
#include "ClientUtils.h"

#include <cstring>
#include <limits>
#include <string_view>

namespace {

struct Entity {
  char character;
  std::string_view text;
};

constexpr Entity entities[] = {
    {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&apos;"},
};

Entity const* entityOf(char character) {
  for (Entity const& entity : entities)
    if (entity.character == character)
      return &entity;
  return nullptr;
}

Entity const* entityAtFrontOf(std::string_view text) {
  for (Entity const& entity : entities)
    if (text.substr(0, entity.text.size()) == entity.text)
      return &entity;
  return nullptr;
}

} // namespace

std::string ClientUtils::escapeXMLString(std::string const& text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (char const character : text) {
    if (Entity const* const entity = entityOf(character))
      escaped += entity->text;
    else
      escaped += character;
  }
  return escaped;
}

std::string ClientUtils::unescapeXMLString(std::string const& text) {
  auto ampersand = text.find('&');
  if (ampersand == std::string::npos)
    return text;
  std::string unescaped;
  unescaped.reserve(text.size());
  std::string_view rest = text;
  while (ampersand != std::string_view::npos) {
    unescaped += rest.substr(0, ampersand);
    rest.remove_prefix(ampersand);
    Entity const* const entity = entityAtFrontOf(rest);
    unescaped += entity != nullptr ? entity->character : '&';
    rest.remove_prefix(entity != nullptr ? entity->text.size() : 1);
    ampersand = rest.find('&');
  }
  unescaped += rest;
  return unescaped;
}

std::string ClientUtils::itos(int value) {
  return std::to_string(value);
}
