// Fuzzes the extractors of single elements: the first byte chooses the element, the second the
// extractor.
#include "Fuzz.h"
#include "differential/Comparison.h"
#include "vocabulary/Constants.h"

std::size_t const fuzz::selectorBytes = 2;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < fuzz::selectorBytes)
    return 0;
  auto const& names = vocabulary::elementNames();
  auto const text = fuzz::textOf(data + fuzz::selectorBytes, size - fuzz::selectorBytes);
  auto const& name = names[data[0] % names.size()];
  auto const reading = static_cast<comparison::Reading>(data[1] % comparison::READINGS);
  fuzz::expectEqual(comparison::compareElement(text, name, reading));
  return 0;
}
