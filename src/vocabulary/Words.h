// The words of the messages as texts: journal::word::NUMBER is "Number".
#ifndef JOURNAL_VOCABULARY_WORDS_H
#define JOURNAL_VOCABULARY_WORDS_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace journal::word {

/// Every word that has a public constant, each with a NUL behind it: one text, so that each word
/// exists once in the library, and two bytes tell where it is.
inline constexpr char texts[] =
#define WORD(NAME, text) text "\0"
#include "vocabulary/Words.def"
    ;

namespace detail {
/// Where each word is in `texts`.
struct Layout {
#define WORD(NAME, text) char NAME[sizeof text];
#include "vocabulary/Words.def"
};
static_assert(sizeof(Layout) == sizeof texts - 1);
} // namespace detail

#define WORD(NAME, text)                                                                           \
  inline constexpr std::string_view NAME{texts + offsetof(detail::Layout, NAME), sizeof text - 1};
#include "vocabulary/Words.def"

// Words without a public constant.
inline constexpr std::string_view HANDLE = "Handle";
inline constexpr std::string_view SCHEMA_NAMED_BEGIN = "<Schema name=\"";
inline constexpr std::string_view SCHEMA_NAMED_END = "\">";
inline constexpr std::string_view ENABLED_TRUE = "true"; // lower case in the store's answers alone
inline constexpr std::string_view DIGITS = "0123456789";

} // namespace journal::word

namespace journal {

/// A word with a public constant, by where it is. Passing it on takes fewer instructions than
/// passing a view.
enum class Word : std::uint16_t {
#define WORD(NAME, text) NAME = offsetof(word::detail::Layout, NAME),
#include "vocabulary/Words.def"
};

inline std::string_view textOf(Word word) {
  return word::texts + static_cast<std::size_t>(word);
}

} // namespace journal

#endif
