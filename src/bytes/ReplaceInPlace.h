// Replaces a string by one that a function returns, without moving it.
#ifndef JOURNAL_BYTES_REPLACEINPLACE_H
#define JOURNAL_BYTES_REPLACEINPLACE_H

#include <new>
#include <string>

#include "bytes/Inline.h"

namespace journal {

/// Replaces `text` by convert(argument), constructed in place. If `convert` throws, `text` is left
/// empty.
JOURNAL_INLINE inline void replaceInPlace(std::string& text,
                                          std::string (*convert)(std::string const&),
                                          std::string const& argument) {
  text.~basic_string();
  try {
    // The mark excludes a branch that the compiler adds to undo a `new` when an exception leaves
    // it; it can only go one way here.
    ::new (&text) std::string(convert(argument)); // GCOVR_EXCL_BR_LINE
  } catch (...) {
    ::new (&text) std::string();
    throw;
  }
}

} // namespace journal

#endif
