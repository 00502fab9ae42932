// Makes bytes of a message safe to print on a terminal.
#ifndef TOOLS_SAFETEXT_H
#define TOOLS_SAFETEXT_H

#include <string>
#include <string_view>

/// Keeps printable UTF-8 and shows every other byte as \xNN: control characters, NUL, invalid
/// UTF-8, characters that change the writing direction, and the backslash itself, so that the
/// output is unambiguous.
std::string safeText(std::string_view bytes);

#endif
