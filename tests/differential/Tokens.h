// A text cut into its tags and what is between them.
#ifndef TESTS_DIFFERENTIAL_TOKENS_H
#define TESTS_DIFFERENTIAL_TOKENS_H

#include <string_view>
#include <vector>

namespace differential {

using Tokens = std::vector<std::string_view>;

/// Views into the text. A "<" that begins no tag is a token together with what follows it.
inline Tokens tokensOf(std::string_view text) {
  Tokens tokens;
  while (!text.empty()) {
    auto end = text.find(text.front() == '<' ? '>' : '<', 1);
    if (text.front() == '<' && end != std::string_view::npos)
      ++end;
    tokens.push_back(text.substr(0, end));
    text.remove_prefix(tokens.back().size());
  }
  return tokens;
}

} // namespace differential

#endif
