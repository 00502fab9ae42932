// Tells printable UTF-8 from everything else.
#include "SafeText.h"

#include <cstddef>
#include <cstdint>

namespace {

struct Range {
  std::uint32_t first;
  std::uint32_t last;
};

// Characters that control a terminal instead of being shown.
constexpr Range unsafe[] = {{0x00, 0x1F},     {'\\', '\\'},     {0x7F, 0x9F},
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

/// @return the bytes of the printable character at the front, 0 when there is none
std::size_t printableLength(std::string_view bytes) {
  auto const lead = static_cast<unsigned char>(bytes.front());
  std::size_t length = 1;
  for (Form const& form : forms) {
    if ((lead & form.mask) == form.lead) {
      std::uint32_t character = lead & static_cast<unsigned char>(~form.mask);
      if (bytes.size() < length)
        return 0;
      for (std::size_t i = 1; i < length; ++i) {
        auto const byte = static_cast<unsigned char>(bytes[i]);
        if ((byte & 0xC0) != 0x80)
          return 0;
        character = character << 6 | (byte & 0x3F);
      }
      bool const whole = character >= form.least && isCharacter(character);
      return whole && isPrintable(character) ? length : 0;
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
    std::size_t const length = printableLength(bytes);
    if (length == 0)
      appendEscaped(text, bytes.front());
    else
      text += bytes.substr(0, length);
    bytes.remove_prefix(length == 0 ? 1 : length);
  }
  return text;
}
