// Views of texts, and the values and numbers read from and written into them.
#ifndef JOURNAL_XML_TEXT_H
#define JOURNAL_XML_TEXT_H

#include <cstdint>
#include <string>
#include <string_view>

namespace journal {

/// A NUL-terminated text as its readers see it. A null pointer is an empty text.
inline std::string_view viewOf(char const* text) {
  return text != nullptr ? text : "";
}

/// An absent element's value: the one view without data. An empty element's value has data.
inline constexpr std::string_view absent{};
inline constexpr bool isAbsent(std::string_view value) {
  return value.data() == nullptr;
}

/// A raw value, unescaped by the utility library; empty when it is absent.
std::string unescaped(std::string_view raw);

/// A number as messages carry it: as a signed 32-bit decimal.
std::string decimal(unsigned int number);

/// A handle, in the same form. The utility library makes its text.
std::string handleText(unsigned int handle);

/// Reads whitespace, a sign and decimal digits, as atoi does where int and long have 32 bits:
/// 0 without digits, the nearest 32-bit number when there are too many. Independent of the locale.
std::int32_t numberAtFrontOf(std::string_view text);

} // namespace journal

#endif
