// The stand-in for the product's utility library: escaping in one pass, decimal numbers.
#include "ClientUtils.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "Ampersand.h"

namespace {

struct Entity {
  char character;
  std::string_view text;
};

constexpr Entity entities[] = {
    {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&apos;"},
};

// One bit per special character. Their codes are all below 64, as few others are.
constexpr std::uint64_t specials = [] {
  std::uint64_t bits = 0;
  for (Entity const& entity : entities)
    bits |= std::uint64_t{1} << entity.character;
  return bits;
}();

constexpr bool isSpecial(char character) {
  auto const code = static_cast<unsigned char>(character);
  return code < 64 && (specials >> code & 1) != 0;
}

// All letters have codes from 64 on. This skips them word by word, up to the first word that holds
// another code; the last word may overlap the one before it.
std::size_t lettersAtFrontOf(std::string_view text) {
  using Word = std::uint32_t;
  constexpr Word top = 0x80808080;
  if (text.size() < sizeof(Word))
    return 0;
  auto const last = text.size() - sizeof(Word);
  for (std::size_t at = 0;; at = std::min(at + sizeof(Word), last)) {
    Word word;
    std::memcpy(&word, text.data() + at, sizeof word);
    if (((word | word << 1) & top) != top)
      return at;
    if (at == last)
      return text.size();
  }
}

std::size_t firstSpecial(std::string_view text) {
  auto at = lettersAtFrontOf(text);
  while (at < text.size() && !isSpecial(text[at]))
    ++at;
  return at;
}

std::string_view entityOf(char special) {
  auto const* entity = entities;
  while (entity->character != special)
    ++entity;
  return entity->text;
}

// The entity that starts with the ampersand at the front of a text; the ampersand itself when none
// does.
Entity entityAtFrontOf(std::string_view text) {
  for (Entity const& entity : entities)
    if (text.substr(0, entity.text.size()) == entity.text)
      return entity;
  return {'&', "&"};
}

// Most texts hold nothing to replace. These two handle the others and are not inlined, so that the
// fast path stays short.

[[gnu::noinline]] std::string escapedFrom(std::size_t special, std::string_view rest) {
  std::string escaped;
  escaped.reserve(rest.size() + 16); // some entities' worth
  while (special != rest.size()) {
    escaped += rest.substr(0, special);
    escaped += entityOf(rest[special]);
    rest.remove_prefix(special + 1);
    special = firstSpecial(rest);
  }
  escaped += rest;
  return escaped;
}

// Calls take(piece) for each piece of the unescaped text: the texts between the entities, and the
// entities' characters.
template <class Take>
void unescape(std::string_view rest, Take take) {
  for (auto at = rest.find('&'); at != std::string_view::npos; at = rest.find('&')) {
    take(rest.substr(0, at));
    rest.remove_prefix(at);
    Entity const entity = entityAtFrontOf(rest);
    take({&entity.character, 1});
    rest.remove_prefix(entity.text.size());
  }
  take(rest);
}

[[gnu::noinline]] std::string restored(std::string const& text) {
  // Measured first, so that a name that is short without its entities allocates nothing.
  std::size_t size = 0;
  unescape(text, [&size](std::string_view piece) { size += piece.size(); });
  std::string unescaped;
  unescaped.reserve(size);
  unescape(text, [&unescaped](std::string_view piece) { unescaped += piece; });
  return unescaped;
}

} // namespace

std::string ClientUtils::escapeXMLString(std::string const& text) {
  auto const special = firstSpecial(text);
  return special == text.size() ? text : escapedFrom(special, text);
}

std::string ClientUtils::unescapeXMLString(std::string const& text) {
  return ampersand::isIn(text) ? restored(text) : text;
}

std::string ClientUtils::itos(int value) {
  return std::to_string(value);
}
