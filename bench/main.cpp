// The benchmarks' program: options and output are Google Benchmark's, see docs/performance.md.
#include <limits>

#include <malloc.h>

#include <benchmark/benchmark.h>

#include "Timing.h"

namespace {

// Big blocks from the heap, which never shrinks: otherwise each large result is mapped and unmapped
// anew, and the timings are those of page faults.
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
