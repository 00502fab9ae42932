#include "inspect/Text.h"

#include <cstddef>
#include <cstdint>

namespace inspect {
namespace {

struct Range {
  std::uint32_t first;
  std::uint32_t last;
};

// Characters that control a terminal instead of being shown.
constexpr Range unsafe[] = {{0x00, 0x1F},     {'\\', '\\'},     {0x7F, 0x9F},    {0x61C, 0x61C},
                            {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}};

// The form of a UTF-8 sequence by its length: its first byte, and the smallest character of that
// length.
struct Form {
  unsigned char mask;
  unsigned char lead;
  std::uint32_t least;
};
constexpr Form forms[] = {
    {0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};

bool isPrintable(std::uint32_t character) {
  for (Range const& range : unsafe)
    if (character >= range.first && character <= range.last)
      return false;
  return true;
}

bool isCharacter(std::uint32_t value) {
  return value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

/// The bytes of the character at the front; 0 when there is none.
std::size_t lengthOf(std::string_view bytes, std::uint32_t& character) {
  auto const lead = static_cast<unsigned char>(bytes.front());
  std::size_t length = 1;
  for (Form const& form : forms) {
    if ((lead & form.mask) == form.lead) {
      character = lead & static_cast<unsigned char>(~form.mask);
      if (bytes.size() < length)
        return 0;
      for (std::size_t at = 1; at < length; ++at) {
        auto const byte = static_cast<unsigned char>(bytes[at]);
        if ((byte & 0xC0) != 0x80)
          return 0;
        character = character << 6 | (byte & 0x3F);
      }
      return character >= form.least && isCharacter(character) ? length : 0;
    }
    ++length;
  }
  return 0;
}

void appendEscaped(std::string& text, char byte) {
  constexpr char digits[] = "0123456789abcdef";
  auto const value = static_cast<unsigned char>(byte);
  text += "\\x";
  text += digits[value >> 4];
  text += digits[value & 0x0F];
}

} // namespace

std::string safeText(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    std::uint32_t character = 0;
    auto const length = lengthOf(bytes, character);
    bool const shown = length != 0 && isPrintable(character);
    if (shown)
      text += bytes.substr(0, length);
    else
      appendEscaped(text, bytes.front());
    bytes.remove_prefix(shown ? length : 1);
  }
  return text;
}

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    if (static_cast<unsigned char>(bytes.front()) < 0x80) {
      bytes.remove_prefix(1);
      continue;
    }
    std::uint32_t character = 0;
    auto const length = lengthOf(bytes, character);
    if (length == 0)
      return false;
    bytes.remove_prefix(length);
  }
  return true;
}

} // namespace inspect
