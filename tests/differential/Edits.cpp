// Numbered edits: the count of each sort of edit is subtracted in turn.
#include "differential/Edits.h"

#include <algorithm>
#include <cstddef>

namespace differential {
namespace {

using Difference = Tokens::difference_type;

struct Pair {
  std::uint64_t low, high;
};

// Numbers the pairs (0, 1), (0, 2), (1, 2), (0, 3) and so on.
Pair pairNumbered(std::uint64_t number) {
  std::uint64_t high = 1;
  while (number >= high)
    number -= high++;
  return {number, high};
}

// A place in the tokens, the end included, and the tokens there and around it.
class Place {
public:
  Place(Tokens& tokens, std::uint64_t at) : tokens_(tokens), at_(static_cast<std::size_t>(at)) {}

  Tokens::iterator operator()() const { return tokens_.begin() + Difference(at_); }

  void tell(std::string& touched) const {
    for (auto at = at_ == 0 ? 0 : at_ - 1; at < std::min(at_ + 2, tokens_.size()); ++at)
      touched += tokens_[at];
  }

private:
  Tokens& tokens_;
  std::size_t at_;
};

} // namespace

Edits::Counts Edits::countsOf(std::uint64_t tokens) const {
  std::uint64_t const letters = alphabet_.size();
  std::uint64_t const pairs = tokens == 0 ? 0 : tokens * (tokens - 1) / 2;
  return {(tokens + 1) * letters, tokens * letters, tokens, pairs, tokens};
}

std::uint64_t Edits::count(std::uint64_t tokens) const {
  auto const counts = countsOf(tokens);
  return counts.insert + counts.replace + counts.erase + counts.swap + counts.repeat;
}

std::uint64_t Edits::countPairs(std::uint64_t tokens) const {
  auto const counts = countsOf(tokens);
  auto const fewer = tokens == 0 ? 0 : counts.erase * count(tokens - 1);
  return (counts.insert + counts.repeat) * count(tokens + 1) +
         (counts.replace + counts.swap) * count(tokens) + fewer;
}

void Edits::apply(std::uint64_t edit, Tokens& tokens, std::string& touched) const {
  auto const counts = countsOf(tokens.size());
  auto const letter = [this](std::uint64_t number) {
    return alphabet_[static_cast<std::size_t>(number % alphabet_.size())];
  };

  if (edit < counts.insert) {
    Place const place(tokens, edit / alphabet_.size());
    tokens.insert(place(), letter(edit));
    return place.tell(touched);
  }
  edit -= counts.insert;
  if (edit < counts.replace) {
    Place const place(tokens, edit / alphabet_.size());
    touched += *place();
    *place() = letter(edit);
    return place.tell(touched);
  }
  edit -= counts.replace;
  if (edit < counts.erase) {
    Place const place(tokens, edit);
    touched += *place();
    tokens.erase(place());
    return place.tell(touched);
  }
  edit -= counts.erase;
  if (edit < counts.swap) {
    auto const pair = pairNumbered(edit);
    Place const low(tokens, pair.low);
    Place const high(tokens, pair.high);
    std::swap(*low(), *high());
    low.tell(touched);
    return high.tell(touched);
  }
  Place const place(tokens, edit - counts.swap);
  auto const repeated = *place();
  tokens.insert(place(), repeated);
  place.tell(touched);
}

// The first edit changes the number of tokens, and so how many second edits there are.
void Edits::applyPair(std::uint64_t pair, Tokens& tokens, std::string& touched) const {
  auto const counts = countsOf(tokens.size());
  struct Group {
    std::uint64_t edits, seconds;
  } const groups[] = {
      {counts.insert, count(tokens.size() + 1)},
      {counts.replace, count(tokens.size())},
      {counts.erase, tokens.empty() ? 0 : count(tokens.size() - 1)},
      {counts.swap, count(tokens.size())},
      {counts.repeat, count(tokens.size() + 1)},
  };
  std::uint64_t first = 0;
  for (auto const& [edits, seconds] : groups) {
    if (pair < edits * seconds) {
      apply(first + pair / seconds, tokens, touched);
      return apply(pair % seconds, tokens, touched);
    }
    pair -= edits * seconds;
    first += edits;
  }
}

std::vector<std::string> elementsOf(std::string_view text) {
  std::vector<std::string> elements;
  for (auto const token : tokensOf(text)) {
    elements.emplace_back(token);
    auto const size = elements.size();
    bool const closesLeaf = size >= 3 && token.substr(0, 2) == "</" &&
                            elements[size - 2].front() != '<' &&
                            "</" + elements[size - 3].substr(1) == token;
    if (closesLeaf) {
      elements[size - 3] += elements[size - 2] + elements[size - 1];
      elements.resize(size - 2);
    }
  }
  return elements;
}

} // namespace differential
