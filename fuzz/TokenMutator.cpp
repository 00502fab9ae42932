// The mutator of the fuzz targets: it inserts, deletes, replaces, exchanges and repeats whole tags
// and values. Half of the mutations are left to the fuzzer itself, which changes bytes.
#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "Fuzz.h"
#include "differential/Messages.h"
#include "differential/Tokens.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed);

namespace {

// Not a standard generator: those cost more than the rest of a mutation.
class Random {
public:
  explicit Random(unsigned int seed) : state_(seed * 2654435769U + 1) {}

  std::size_t below(std::size_t bound) {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return state_ % bound;
  }

private:
  std::uint32_t state_;
};

std::string_view letter(Random& random) {
  static std::vector<std::string> const letters = differential::alphabet(true);
  return letters[random.below(letters.size())];
}

using differential::Tokens;

void mutate(Tokens& tokens, Random& random) {
  using Difference = Tokens::difference_type;
  auto const place = [&tokens](std::size_t at) { return tokens.begin() + Difference(at); };
  auto const any = [&] { return random.below(tokens.size()); };
  switch (tokens.empty() ? 0 : random.below(8)) {
  case 0:
  case 1:
    tokens.insert(place(random.below(tokens.size() + 1)), letter(random));
    break;
  case 2:
  case 3:
    tokens[any()] = letter(random);
    break;
  case 4: {
    auto const from = any();
    tokens.erase(place(from), place(std::min(tokens.size(), from + 1 + random.below(3))));
    break;
  }
  case 5:
    std::swap(tokens[any()], tokens[any()]);
    break;
  case 6: { // Repeats a token anywhere.
    auto const repeated = tokens[any()];
    tokens.insert(place(random.below(tokens.size() + 1)), repeated);
    break;
  }
  default: { // Repeats several tokens in place.
    auto const from = any();
    auto const to = std::min(tokens.size(), from + 1 + random.below(8));
    Tokens const stretch(place(from), place(to));
    tokens.insert(place(to), stretch.begin(), stretch.end());
  }
  }
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed) {
  static std::string text;
  Random random(seed);
  if (size < fuzz::selectorBytes || random.below(2) == 0)
    return LLVMFuzzerMutate(data, size, maxSize);

  auto const front = fuzz::selectorBytes;
  auto tokens = differential::tokensOf({reinterpret_cast<char const*>(data) + front, size - front});
  for (auto edits = 1 + random.below(2); edits > 0; --edits)
    mutate(tokens, random);
  text.clear();
  for (auto const token : tokens)
    text += token;
  auto const length = std::min(text.size(), maxSize - front);
  std::memcpy(data + front, text.data(), length);
  return front + length;
}
