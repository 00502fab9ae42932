// Texts for people: what a terminal may get, and what is UTF-8.
#ifndef INSPECT_TEXT_H
#define INSPECT_TEXT_H

#include <string>
#include <string_view>

namespace inspect {

inline constexpr std::string_view whitespace = " \t\n\v\f\r";
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// The text with every byte that is not printable UTF-8, and the backslash, as \xNN.
std::string safeText(std::string_view bytes);

/// Whether all of it is UTF-8.
bool isUtf8(std::string_view bytes);

} // namespace inspect

#endif
