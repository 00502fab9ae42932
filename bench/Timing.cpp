// Registers the timing of an operation; see Timing.h.
#include "Timing.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace bench {

namespace {

bool wrong = false;

// A round of a large log is a single operation, and there are only a few rounds.
constexpr int LARGE_ROUNDS = 7;

double least(std::vector<double> const& times) {
  return *std::min_element(times.begin(), times.end());
}

} // namespace

std::string nameOf(std::string const& what, std::string const& kind, std::size_t entries,
                   std::string const& who) {
  return what + "/" + kind + "/" + std::to_string(entries) + "/" + who;
}

benchmark::internal::Benchmark* registerTiming(std::string const& name, std::size_t entries,
                                               Run run) {
  auto* const timing = benchmark::RegisterBenchmark(name.c_str(), std::move(run));
  timing->ComputeStatistics("least", least);
  if (entries == LARGE)
    timing->Iterations(1)->Repetitions(LARGE_ROUNDS);
  return timing;
}

bool proven(benchmark::State& state, std::string const& name, std::function<bool()> const& check) {
  static std::set<std::string> names;
  if (names.count(name) != 0)
    return true;
  if (check()) {
    names.insert(name);
    return true;
  }
  wrong = true;
  state.SkipWithError("wrong result");
  return false;
}

bool anyWrong() {
  return wrong;
}

} // namespace bench
