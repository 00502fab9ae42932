// Every text near a valid message, read by the library and by the reference.
//
// One edit is tried exhaustively. Pairs of edits are far too many, so they are walked with a fixed
// stride until enough texts were compared. Texts that are reached twice count once.
//
// JOURNAL_DIFFERENTIAL_TEXTS is the number of texts to compare in all, JOURNAL_LONG=1 means
// five million; see askedFor().
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "differential/Comparison.h"
#include "differential/Edits.h"
#include "differential/Messages.h"

namespace {

using comparison::Kind;
using differential::Edits;
using differential::Message;

constexpr std::uint64_t usualTexts = 200000;
constexpr std::uint64_t longRunTexts = 5000000;
constexpr std::uint64_t parts = 5; // tests that share the requested texts

std::uint64_t askedFor() {
  char const* const texts = std::getenv("JOURNAL_DIFFERENTIAL_TEXTS");
  if (texts != nullptr && *texts != '\0')
    return std::strtoull(texts, nullptr, 10);
  char const* const longRun = std::getenv("JOURNAL_LONG");
  return longRun != nullptr && std::string(longRun) == "1" ? longRunTexts : usualTexts;
}

// Which texts were seen already, by a 64-bit hash.
class Seen {
public:
  explicit Seen(std::uint64_t texts) {
    std::size_t size = 1024;
    while (size < 2 * texts)
      size *= 2;
    slots_.resize(size);
  }

  // Tells whether the text is new. The hash 0 marks a free slot, so it is replaced by 1.
  bool insert(std::string const& text) {
    std::uint64_t hash = 14695981039346656037U;
    for (char const c : text)
      hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    hash = hash == 0 ? 1 : hash;
    auto const mask = slots_.size() - 1;
    auto slot = static_cast<std::size_t>(hash) & mask;
    for (; slots_[slot] != 0; slot = (slot + 1) & mask)
      if (slots_[slot] == hash)
        return false;
    slots_[slot] = hash;
    return true;
  }

private:
  std::vector<std::uint64_t> slots_;
};

// A stride that has no factor in common with the count, so that a walk visits everything once. It
// is near the golden section of the count, so that any part of the walk is spread evenly.
std::uint64_t strideThrough(std::uint64_t count) {
  std::uint64_t stride = count - count / 1000 * 382;
  while (std::gcd(stride, count) != 1)
    --stride;
  return stride;
}

// A text near a message, and the part that an edit has changed.
struct Text {
  std::string whole;
  std::string touched;
  Kind kind = Kind::missed;
};

// The texts near several messages, by number: all single edits, and all pairs.
class Texts {
public:
  Texts(std::vector<Message> messages, std::vector<std::string> const& letters)
      : messages_(std::move(messages)), edits_(letters) {
    for (auto const& message : messages_) {
      singles += edits_.count(message.tokens.size());
      pairs += edits_.countPairs(message.tokens.size());
    }
  }

  void single(std::uint64_t number, Text& text) const {
    make(number, text, &Edits::count, &Edits::apply);
  }
  void pair(std::uint64_t number, Text& text) const {
    make(number, text, &Edits::countPairs, &Edits::applyPair);
  }

  std::uint64_t singles = 0;
  std::uint64_t pairs = 0;

private:
  template <class Count, class Apply>
  void make(std::uint64_t number, Text& text, Count count, Apply apply) const {
    auto message = messages_.begin();
    while (number >= (edits_.*count)(message->tokens.size())) {
      number -= (edits_.*count)(message->tokens.size());
      ++message;
    }
    differential::Tokens tokens(message->tokens.begin(), message->tokens.end());
    text.touched.clear();
    (edits_.*apply)(number, tokens, text.touched);
    text.whole.clear();
    for (auto const token : tokens)
      text.whole += token;
    text.kind = message->kind;
  }

  std::vector<Message> messages_;
  Edits edits_;
};

void compareTexts(std::vector<Message> const& messages, std::vector<std::string> const& letters) {
  Texts const texts(messages, letters);
  auto const inAll = askedFor();
  auto const share = (inAll + parts - 1) / parts;
  // A run of the usual size or more tries every single edit, even beyond its share.
  auto const asked = inAll >= usualTexts ? std::max(share, texts.singles) : share;
  Seen seen(asked);
  std::uint64_t compared = 0;
  Text text;

  auto const walk = [&](std::uint64_t count, auto make) {
    auto const stride = strideThrough(count);
    std::uint64_t number = 0;
    std::uint64_t walked = 0;
    for (; walked < count && compared < asked; ++walked) {
      (texts.*make)(number, text);
      if (seen.insert(text.whole)) {
        auto const turn = static_cast<unsigned int>(compared++);
        auto const difference =
            comparison::compareReading(text.whole, text.kind, text.touched, turn);
        ASSERT_EQ(difference, "") << "edit " << number;
      }
      number = number >= count - stride ? number - (count - stride) : number + stride;
    }
    std::cout << walked << " of " << count << " (stride " << stride << "), ";
  };

  std::cout << "Single edits: ";
  walk(texts.singles, &Texts::single);
  if (::testing::Test::HasFatalFailure())
    return;
  std::cout << "pairs of edits: ";
  if (inAll >= usualTexts)
    walk(texts.pairs, &Texts::pair);
  if (::testing::Test::HasFatalFailure())
    return;
  std::cout << compared << " different texts compared\n";
  // Different edits may give the same text, so fewer texts than edits are compared.
  EXPECT_GE(compared, share);
}

TEST(Differential, MissedLogs) {
  compareTexts(differential::logsOf(Kind::missed), differential::alphabet(false));
}
TEST(Differential, DialledLogs) {
  compareTexts(differential::logsOf(Kind::dialled), differential::alphabet(false));
}
TEST(Differential, ReceivedLogs) {
  compareTexts(differential::logsOf(Kind::received), differential::alphabet(false));
}
TEST(Differential, ForwardedLogs) {
  compareTexts(differential::logsOf(Kind::forwarded), differential::alphabet(false));
}
TEST(Differential, OtherMessages) {
  compareTexts(differential::otherMessages(), differential::alphabet(true));
}

} // namespace
