// One hash of all outputs of all operations over a fixed set of inputs: the same on every
// machine, whatever its word size and byte order, and the same as the reference's.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "operations/Inputs.h"
#include "reference/Reference.h"

namespace {

using operations::Input;
using operations::Operation;
using operations::Outputs;
using operations::Random;
using operations::ResultHash;

// A change of this value is a change of behaviour: the reference has to have changed with the
// library, and both on purpose.
constexpr std::uint64_t EXPECTED = 0xd472dd4ea9b8106eU;

constexpr int ROUNDS = 160;          // of new records, and all messages that are made of them
constexpr int TEXTS_PER_MESSAGE = 8; // the message itself, and damaged ones
constexpr int LEAST_TEXTS = 5000;

void run(Operation const& operation, Input const& input, bool filled, ResultHash& hash) {
  Outputs outputs(input);
  if (filled)
    outputs.fill(input);
  operation.run(input, outputs);
  operation.feed(outputs, hash);
}

// The three messages of a kind's records, made by the reference so that both sides read the same.
std::vector<std::string> messagesOf(int kind, std::vector<Operation> const& reference,
                                    Input const& input) {
  std::vector<std::string> messages;
  for (auto const& operation : reference) {
    if (operation.kind != kind || !operation.writesRecords)
      continue;
    Outputs outputs(input);
    outputs.edited.clear();
    outputs.text.clear();
    operation.run(input, outputs);
    messages.push_back(outputs.resultText.empty() ? outputs.text : outputs.resultText);
  }
  return messages;
}

struct Hashes {
  std::uint64_t library;
  std::uint64_t reference;
  int texts;
};

// Feeds both sides' outputs, each to its own hash.
class Hasher {
public:
  Hashes hashes() const { return {library_.hash.value(), reference_.hash.value(), texts_}; }

  void writeEverything(Input const& input) {
    for (auto* const side : {&library_, &reference_})
      for (auto const& operation : side->operations)
        if (!operation.readsText)
          run(operation, input, false, side->hash);
  }

  // What concerns another kind of log reads only some of the texts.
  void readEverything(Input const& input, int kind) {
    auto const otherKind = texts_ % 16;
    for (auto* const side : {&library_, &reference_})
      for (auto const& operation : side->operations)
        if (operation.readsText && (operation.kind == operations::NO_KIND ||
                                    operation.kind == kind || operation.kind == otherKind))
          run(operation, input, texts_ % 2 == 1, side->hash);
    ++texts_;
  }

  std::vector<std::string> messagesOf(int kind, Input const& input) const {
    return ::messagesOf(kind, reference_.operations, input);
  }

private:
  struct Side {
    std::vector<Operation> operations;
    ResultHash hash;
  };
  Side library_{operations::all<JournalServiceHelper>(), {}};
  Side reference_{operations::all<Reference>(), {}};
  int texts_ = 0;
};

Hashes hashEverything() {
  Hasher hasher;
  Random random(20070514);
  Input input;
  for (int round = 0; round < ROUNDS; ++round) {
    operations::fillRecords(input, random);
    input.text = operations::someText(random);
    operations::chooseElement(input, random);
    hasher.writeEverything(input);

    int const kind = round % 4;
    for (auto const& message : hasher.messagesOf(kind, input))
      for (int text = 0; text < TEXTS_PER_MESSAGE; ++text) {
        auto const edits = text == 0 ? 0 : 1 + random.below(3);
        input.text = operations::damaged(message, edits, random);
        operations::chooseElement(input, random);
        hasher.readEverything(input, kind);
      }
  }
  return hasher.hashes();
}

TEST(ResultHash, OfAllOutputsIsTheSameEverywhere) {
  auto const hashes = hashEverything();
  EXPECT_GE(hashes.texts, LEAST_TEXTS);
  EXPECT_EQ(hashes.library, EXPECTED) << std::hex << "library: 0x" << hashes.library;
  EXPECT_EQ(hashes.reference, EXPECTED) << std::hex << "reference: 0x" << hashes.reference;
}

TEST(ResultHash, CoversEveryOperation) {
  EXPECT_EQ(operations::all<JournalServiceHelper>().size(), operations::COUNT);
}

template <class Value>
std::uint64_t hashOf(Value const& value) {
  ResultHash hash;
  hash.feed(value);
  return hash.value();
}

// Known values of FNV-1a over the bytes that each should be fed as.
TEST(ResultHash, IsFedFromTheLowestByteOn) {
  EXPECT_EQ(ResultHash().value(), 0xcbf29ce484222325U);
  EXPECT_EQ(hashOf(std::int32_t{'a'}), 0xac804b820e4fe984U); // 61 00 00 00
  EXPECT_EQ(hashOf(std::int32_t{-2}), 0x7053767088d9a6c0U);  // fe ff ff ff
  EXPECT_EQ(hashOf(std::string("a")), 0xd80d0daea7dbdd7fU);  // 01 00 00 00 61
}

} // namespace
