// Registers the timing of an operation; see Timing.h.
#include "Timing.h"

#include <set>
#include <utility>

namespace bench {

namespace {

bool wrong = false;

// Of large logs a single operation makes a round, and a few rounds must do.
constexpr int LARGE_ROUNDS = 7;

} // namespace

std::string nameOf(std::string const& what, std::string const& kind, std::size_t entries,
                   std::string const& who) {
  return what + "/" + kind + "/" + std::to_string(entries) + "/" + who;
}

void registerTiming(std::string const& name, std::size_t entries, Run run) {
  auto* timing = benchmark::RegisterBenchmark(name.c_str(), std::move(run));
  if (entries == LARGE)
    timing->Iterations(1)->Repetitions(LARGE_ROUNDS);
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
