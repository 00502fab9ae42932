// Many threads at once: every operation on the same texts and records, and list answers of growing
// length. Most useful with ThreadSanitizer.
#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "operations/Inputs.h"

namespace {

using operations::Input;
using operations::Operation;
using operations::Outputs;
using operations::Random;
using operations::ResultHash;
using Library = JournalServiceHelper;

constexpr std::size_t THREADS = 8;
constexpr std::size_t RESERVE = 4096; // beyond the longest answer so far

// Calls something(number) in each thread, all starting at once.
void inAllThreads(std::function<void(std::size_t)> const& something) {
  std::atomic<std::size_t> ready{0};
  std::vector<std::thread> threads;
  for (std::size_t number = 0; number < THREADS; ++number)
    threads.emplace_back([&, number] {
      ++ready;
      while (ready < THREADS)
        std::this_thread::yield();
      something(number);
    });
  for (auto& thread : threads)
    thread.join();
}

std::vector<Input> sharedInputs() {
  std::vector<Input> inputs;
  Random random(8);
  Input input;
  for (int count = 0; count < 6; ++count) {
    operations::fillRecords(input, random);
    auto& log = std::get<std::deque<MissedCallItem>>(input.records);
    while (log.size() < 3)
      log.push_back(operations::someItem<MissedCallItem>(random));
    input.text = Library::respGetMissedCallList(log, input.number);
    if (count % 2 == 1)
      input.text.erase(random.below(input.text.size()), 3); // damaged
    operations::chooseElement(input, random);
    inputs.push_back(input);
  }
  return inputs;
}

std::uint64_t resultOf(Operation const& operation, Input const& input) {
  Outputs outputs(input);
  operation.run(input, outputs);
  ResultHash hash;
  operation.feed(outputs, hash);
  return hash.value();
}

TEST(Threads, UseEveryOperationAtOnce) {
  constexpr int rounds = 4;
  auto const operations = operations::all();
  auto const inputs = sharedInputs();
  std::vector<std::uint64_t> expected;
  for (auto const& input : inputs)
    for (auto const& operation : operations)
      expected.push_back(resultOf(operation, input));

  std::atomic<int> different{0};
  std::atomic<int> ran{0};
  inAllThreads([&](std::size_t number) {
    // Half of the threads run the same cases at the same time, the others start elsewhere.
    auto const cases = expected.size();
    auto const start = number % 2 == 0 ? 0 : number * cases / THREADS;
    for (std::size_t step = 0; step < rounds * cases; ++step) {
      auto const at = (start + step) % cases;
      auto const& input = inputs[at / operations.size()];
      different += resultOf(operations[at % operations.size()], input) != expected[at] ? 1 : 0;
      ++ran;
    }
  });
  EXPECT_EQ(different, 0);
  EXPECT_EQ(ran, static_cast<int>(THREADS * rounds * expected.size()));
}

std::size_t reservedForAnswer() {
  return Library::respGetForwardedCallList({}, 0).capacity();
}

void raise(std::atomic<std::size_t>& maximum, std::size_t value) {
  auto known = maximum.load();
  while (known < value && !maximum.compare_exchange_weak(known, value))
    continue;
}

TEST(Threads, NeverLowerTheReservationForAnswers) {
  constexpr std::size_t answers = 60;
  std::atomic<std::size_t> longest{0};
  std::atomic<int> tooSmall{0};
  std::atomic<int> fell{0};
  inAllThreads([&](std::size_t number) {
    std::size_t before = 0;
    for (std::size_t answer = 1; answer <= answers; ++answer) {
      std::deque<MissedCallItem> log(1);
      log.front().picture.assign(answer * (1000 + number), 'p');
      raise(longest, Library::respGetMissedCallList(log, 0).size());

      auto const least = longest + RESERVE; // other threads may raise it meanwhile
      auto const reserved = reservedForAnswer();
      tooSmall += reserved < least ? 1 : 0;
      fell += reserved < before ? 1 : 0;
      before = reserved;
    }
  });
  EXPECT_EQ(tooSmall, 0);
  EXPECT_EQ(fell, 0);
  EXPECT_GE(longest, answers * 1000);
  EXPECT_EQ(reservedForAnswer(), longest + RESERVE);
}

TEST(Threads, KeepTheLongestReservationWhenEachAnswerRaisesIt) {
  constexpr std::size_t answers = 1500;
  std::atomic<std::size_t> next{reservedForAnswer()};
  std::atomic<std::size_t> longest{0};
  std::atomic<int> tooSmall{0};
  inAllThreads([&](std::size_t) {
    for (std::size_t answer = 0; answer < answers; ++answer) {
      std::deque<MissedCallItem> log(1);
      log.front().picture.assign(next++, 'p');
      auto const size = Library::respGetMissedCallList(log, 0).size();
      tooSmall += reservedForAnswer() < size + RESERVE ? 1 : 0;
      raise(longest, size);
    }
  });
  EXPECT_EQ(tooSmall, 0);
  EXPECT_EQ(reservedForAnswer(), longest + RESERVE);
}

} // namespace
