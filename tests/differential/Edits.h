// The texts near a text: its tokens with one of them inserted, deleted, replaced, exchanged with
// another or repeated. The edits of a text are numbered, so that they can be walked in any order.
#ifndef TESTS_DIFFERENTIAL_EDITS_H
#define TESTS_DIFFERENTIAL_EDITS_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "differential/Tokens.h"

namespace differential {

class Edits {
public:
  /// @param alphabet what is inserted and what replaces; has to outlive this object and what it
  /// edits
  explicit Edits(std::vector<std::string> const& alphabet)
      : alphabet_(alphabet.begin(), alphabet.end()) {}

  /// How many edits a text of so many tokens has.
  std::uint64_t count(std::uint64_t tokens) const;

  /// How many pairs of edits, one made after the other.
  std::uint64_t countPairs(std::uint64_t tokens) const;

  /// Makes one edit, or a pair of edits.
  /// @param[in,out] touched the removed, inserted and adjacent tokens are appended
  void apply(std::uint64_t edit, Tokens& tokens, std::string& touched) const;
  void applyPair(std::uint64_t pair, Tokens& tokens, std::string& touched) const;

private:
  struct Counts {
    std::uint64_t insert, replace, erase, swap, repeat;
  };
  Counts countsOf(std::uint64_t tokens) const;

  Tokens alphabet_;
};

/// The tokens of a text, with each element that holds no other as one token.
std::vector<std::string> elementsOf(std::string_view text);

} // namespace differential

#endif
