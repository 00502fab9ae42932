// One hash over the results of all operations that work on no records, for a fixed set of inputs:
// the same on every machine, whatever its word size and byte order.
//
// The operations on records build on these. On each machine the tests compare them with the
// reference, which has its own such operations, and with the golden messages.
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "operations/Inputs.h"

namespace {

using operations::Input;
using operations::Outputs;
using operations::Random;
using operations::ResultHash;

// A change of this value is a change of behaviour, and has to be intended.
constexpr std::uint64_t EXPECTED = 0x199cfede0c42f889U;

constexpr int ROUNDS = 5000;

// The inputs are made of fixed pieces, so that the hash does not change with every new element.
std::string const names[] = {"Method", "Entry",      "UniqueId",       "EntryId", "Number", "Value",
                             "Handle", "NumberType", "CallLogEnabled", "Viewed",  ""};
std::string const others[] = {"<subscribe>",
                              "<deleteMissedCallList>",
                              "<missedCallsUpdate>",
                              "<getDialledCallList>",
                              "True",
                              "true",
                              "Failure",
                              "Success",
                              "MOBILE",
                              "BUSINESS2",
                              "IN_GROUP_MISSED",
                              "NOT_ALLOWED",
                              "FORM_PM",
                              "-1",
                              " +12x",
                              "2147483648",
                              "99999999999",
                              "-4294967296",
                              "&amp;lt;",
                              "&#38;",
                              "&",
                              "<\"'>",
                              "\xff",
                              std::string("a\0b", 3),
                              "李 😀",
                              "</Ent",
                              "<Schema name=\"x\">",
                              " "};

std::string fixedText(Random& random) {
  std::string text;
  for (auto pieces = random.below(10); pieces > 0; --pieces) {
    auto const& name = random.oneOf(names);
    switch (random.below(4)) {
    case 0:
      text += "<" + name + ">";
      break;
    case 1:
      text += "</" + name + ">";
      break;
    case 2:
      text += "<" + name + ">" + random.oneOf(others) + "</" + name + ">";
      break;
    default:
      text += random.oneOf(others);
    }
  }
  return text;
}

Input someInput(Random& random) {
  Input input;
  input.text = fixedText(random);
  input.name = random.below(4) == 0 ? random.oneOf(others) : random.oneOf(names);
  input.begin = "<" + input.name + ">";
  input.close = "</" + input.name + ">";
  for (auto ids = random.below(4); ids > 0; --ids)
    input.ids.insert(random.oneOf(others));
  input.number = random.oneOf(operations::numbers);
  input.flag = random.below(2) == 1;
  return input;
}

TEST(ResultHash, OfResultsIsTheSameOnEveryMachine) {
  ResultHash hash;
  Random random(20070514);
  auto const all = operations::all();
  for (int round = 0; round < ROUNDS; ++round) {
    auto const input = someInput(random);
    for (auto const& operation : all)
      if (operation.kind == operations::NO_KIND) {
        Outputs outputs(input);
        operation.run(input, outputs);
        operation.feed(outputs, hash);
      }
  }
  EXPECT_EQ(hash.value(), EXPECTED) << std::hex << "0x" << hash.value();
}

template <class Value>
std::uint64_t hashOf(Value const& value) {
  ResultHash hash;
  hash.feed(value);
  return hash.value();
}

// Known values of FNV-1a over the bytes that represent each value.
TEST(ResultHash, IsFedFromTheLowestByteOn) {
  EXPECT_EQ(ResultHash().value(), 0xcbf29ce484222325U);
  EXPECT_EQ(hashOf(std::int32_t{'a'}), 0xac804b820e4fe984U); // 61 00 00 00
  EXPECT_EQ(hashOf(std::int32_t{-2}), 0x7053767088d9a6c0U);  // fe ff ff ff
  EXPECT_EQ(hashOf(std::string("a")), 0xd80d0daea7dbdd7fU);  // 01 00 00 00 61
}

} // namespace
