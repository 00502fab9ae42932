// Fuzzes what reads and finishes whole messages: the method, the failure word, the last unique id,
// the call-log setting, the envelope. The first byte chooses among them.
#include "Fuzz.h"
#include "differential/Comparison.h"

std::size_t const fuzz::selectorBytes = 1;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < fuzz::selectorBytes)
    return 0;
  auto const text = fuzz::textOf(data + fuzz::selectorBytes, size - fuzz::selectorBytes);
  auto const operation = static_cast<comparison::Whole>(data[0] % comparison::WHOLES);
  fuzz::expectEqual(comparison::compareMessage(text, operation));
  return 0;
}
