// Fuzzes what reads and wraps whole messages: the method, the failure word, the last unique id, the
// call-log setting, the envelope.
#include "Fuzz.h"
#include "neighbourhood/Comparison.h"

std::size_t const fuzz::selectorBytes = 0;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz::expectEqual(comparison::compareMessage(fuzz::textOf(data, size)));
  return 0;
}
