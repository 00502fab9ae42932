// Fuzzes the decoders. The first byte chooses the kind of log and what the outputs hold before; the
// second chooses how much is decoded, from one call up to a whole log.
#include "Fuzz.h"
#include "differential/Comparison.h"

std::size_t const fuzz::selectorBytes = 2;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < fuzz::selectorBytes)
    return 0;
  auto const text = fuzz::textOf(data + fuzz::selectorBytes, size - fuzz::selectorBytes);
  auto const kind = static_cast<comparison::Kind>(data[0] % comparison::KINDS);
  bool const filled = data[0] / comparison::KINDS % 2 == 1;
  auto const level = static_cast<comparison::Level>(data[1] % comparison::LEVELS);
  fuzz::expectEqual(comparison::compareDecoder(
      text, kind, level, filled ? comparison::Outputs::filled : comparison::Outputs::fresh));
  return 0;
}
