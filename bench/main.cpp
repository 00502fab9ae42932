// Runs the benchmarks. Options and output are Google Benchmark's, see docs/performance.md.
#include <limits>

#include <malloc.h>

#include <benchmark/benchmark.h>

#include "Timing.h"

namespace {

// Takes large blocks from the heap, and never shrinks it. Otherwise each large result would be
// mapped and unmapped, and page faults would dominate the timings.
bool keepMemory() {
  return mallopt(M_MMAP_MAX, 0) == 1 &&
         mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max()) == 1 &&
         mallopt(M_TOP_PAD, 64 << 20) == 1;
}

#ifdef __clang__
constexpr char const* COMPILER = __VERSION__;
#else
constexpr char const* COMPILER = "g++ " __VERSION__;
#endif

} // namespace

int main(int argc, char** argv) {
  if (!keepMemory())
    return 2;
  bench::registerDecoding();
  bench::registerEncoding();
  bench::registerHundreds();
  bench::registerDamagedTexts();
  bench::registerSmallOperations();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 2;
  benchmark::AddCustomContext("compiler", COMPILER);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return bench::anyWrong() ? 1 : 0;
}
