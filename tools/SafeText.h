// Bytes of a message made fit for a terminal.
#ifndef TOOLS_SAFETEXT_H
#define TOOLS_SAFETEXT_H

#include <string>
#include <string_view>

/// Keeps printable UTF-8 and shows every other byte as \xNN: control characters, NUL, bytes that
/// are no UTF-8, characters that turn the direction of writing, and the backslash itself, so that
/// what is shown can be told from what stands in the bytes.
std::string safeText(std::string_view bytes);

#endif
