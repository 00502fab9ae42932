// Bounded views of texts, and what is looked for in them.
#ifndef JOURNAL_XML_TEXT_H
#define JOURNAL_XML_TEXT_H

#include <cstdint>
#include <string>
#include <string_view>

namespace journal {

/// A NUL-terminated text as its readers see it; a null pointer reads as an empty text.
inline std::string_view viewOf(char const* text) {
  return text != nullptr ? text : "";
}

/// A missing element's value: the one view without data. An empty element's value has data.
inline constexpr std::string_view missing{};
inline constexpr bool isMissing(std::string_view value) {
  return value.data() == nullptr;
}

/// A value as its reader gets it: unescaped by the utility library, empty when it is missing.
std::string unescaped(std::string_view raw);

/// Reads whitespace, a sign and decimal digits, as atoi does where int and long have 32 bits:
/// 0 without digits, the nearest 32-bit number when there are too many. Whatever the locale.
std::int32_t numberAtFrontOf(std::string_view text);

} // namespace journal

#endif
