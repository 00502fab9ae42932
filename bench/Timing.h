// Registers the timing of an operation under a name of the form what/kind/size/who. Before it is
// timed for the first time, the operation has to prove that its result is right.
#ifndef BENCH_TIMING_H
#define BENCH_TIMING_H

#include <cstddef>
#include <functional>
#include <string>

#include <benchmark/benchmark.h>

namespace bench {

using Run = std::function<void(benchmark::State&)>;

inline constexpr std::size_t SIZES[] = {1, 10, 100, 1000, 20000};
inline constexpr std::size_t LARGE = 20000; // costs seconds and is made ready only when it runs
inline constexpr std::size_t COMPARED_SIZE = 100; // that of everything that has one size only

std::string nameOf(std::string const& what, std::string const& kind, std::size_t entries,
                   std::string const& who);

benchmark::internal::Benchmark* registerTiming(std::string const& name, std::size_t entries,
                                               Run run);

/// Asks check() whether the result of the benchmark of this name is right, the first time that it
/// runs. A wrong result ends the benchmark and makes the program fail.
bool proven(benchmark::State& state, std::string const& name, std::function<bool()> const& check);

/// Whether any result was wrong.
bool anyWrong();

/// Whether destroying an operation's result counts as a part of it.
enum class Destruction { counted, leftOut };

/// Times operation(), which has to prove itself by check(). Its first run is not timed, so that the
/// caches are in the state that repeating it gives; a large log runs only once in a round.
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
