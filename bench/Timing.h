// Registers the timing of an operation under a name of the form what/kind/size/who. Its result is
// checked before it is timed for the first time.
#ifndef BENCH_TIMING_H
#define BENCH_TIMING_H

#include <cstddef>
#include <functional>
#include <string>

#include <benchmark/benchmark.h>

namespace bench {

using Run = std::function<void(benchmark::State&)>;

inline constexpr std::size_t SIZES[] = {1, 10, 100, 1000, 20000};
inline constexpr std::size_t LARGE = 20000;       // takes seconds to prepare, so only when it runs
inline constexpr std::size_t COMPARED_SIZE = 100; // for everything that has a single size

std::string nameOf(std::string const& what, std::string const& kind, std::size_t entries,
                   std::string const& who);

benchmark::internal::Benchmark* registerTiming(std::string const& name, std::size_t entries,
                                               Run run);

/// Calls check() the first time that the benchmark of this name runs. A wrong result ends the
/// benchmark and makes the program fail.
bool proven(benchmark::State& state, std::string const& name, std::function<bool()> const& check);

/// Whether any result was wrong.
bool anyWrong();

/// Whether the time of an operation includes the destruction of its result.
enum class Destruction { counted, leftOut };

/// Times operation() if check() finds its result right. The first run is not timed: it warms the
/// caches, which matters as a large log runs only once in a round.
template <Destruction destruction = Destruction::counted, class Operation>
void timeProven(benchmark::State& state, std::string const& name, Operation operation,
                std::function<bool()> const& check) {
  if (!proven(state, name, check))
    return;
  auto const run = [&](auto beforeDestruction) {
    auto&& result = operation();
    benchmark::DoNotOptimize(&result);
    benchmark::ClobberMemory();
    beforeDestruction();
  };
  run([] {});
  for (auto _ : state)
    if constexpr (destruction == Destruction::counted) {
      run([] {});
    } else {
      run([&state] { state.PauseTiming(); });
      state.ResumeTiming();
    }
}

void registerDecoding();
void registerEncoding();
void registerHundreds();
void registerDamagedTexts();
void registerSmallOperations();

} // namespace bench

#endif
