// The words of the messages as texts: journal::word::NUMBER is "Number".
#ifndef JOURNAL_VOCABULARY_WORDS_H
#define JOURNAL_VOCABULARY_WORDS_H

#include <string_view>

namespace journal::word {

#define WORD(NAME, text) inline constexpr std::string_view NAME = text;
#include "vocabulary/Words.def"

// Words without a public constant.
inline constexpr std::string_view HANDLE = "Handle";
inline constexpr std::string_view SCHEMA_NAMED_BEGIN = "<Schema name=\"";
inline constexpr std::string_view SCHEMA_NAMED_END = "\">";
inline constexpr std::string_view ENABLED_TRUE = "true"; // lower case in the store's answers alone
inline constexpr std::string_view DIGITS = "0123456789";

} // namespace journal::word

#endif
