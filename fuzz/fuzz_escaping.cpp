// Fuzzes escaping and unescaping. Some values of the first byte choose numbers instead, or the
// operations that take a single word: conversions and the builders of elements.
#include "Fuzz.h"
#include "differential/Comparison.h"

std::size_t const fuzz::selectorBytes = 1;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < fuzz::selectorBytes)
    return 0;
  auto const text = fuzz::textOf(data + fuzz::selectorBytes, size - fuzz::selectorBytes);
  switch (data[0] % 16) {
  case 0: {
    std::uint32_t number = 0;
    for (std::size_t byte = 0; byte < text.size() && byte < 4; ++byte)
      number = number << 8 | static_cast<std::uint8_t>(text[byte]);
    fuzz::expectEqual(comparison::compareNumber(static_cast<std::int32_t>(number)));
    break;
  }
  case 1:
    fuzz::expectEqual(comparison::compareWord(text));
    break;
  case 2:
    fuzz::expectEqual(comparison::compareEscaping(text));
    break;
  default:
    fuzz::expectEqual(data[0] % 4 == 3 ? comparison::compareEscaped(text)
                                       : comparison::compareUnescaped(text));
  }
  return 0;
}
