// Values and numbers, read from texts and written into them.
#include "xml/Text.h"

#include <cstddef>
#include <iterator>
#include <limits>

#include "ClientUtils.h"

namespace journal {

std::string unescaped(std::string_view raw) {
  if (isAbsent(raw))
    return {};
  return ClientUtils::unescapeXMLString(std::string(raw));
}

std::string decimal(unsigned int number) {
  auto const isNegative = static_cast<std::int32_t>(number) < 0;
  auto magnitude = isNegative ? 0 - number : number;
  char digits[sizeof "-2147483648"];
  auto* const end = std::end(digits);
  auto* at = end;
  do {
    *--at = static_cast<char>('0' + magnitude % 10);
    magnitude /= 10;
  } while (magnitude != 0);
  if (isNegative)
    *--at = '-';
  return std::string(at, end);
}

std::string handleText(unsigned int handle) {
  return ClientUtils::itos(static_cast<std::int32_t>(handle));
}

std::int32_t numberAtFrontOf(std::string_view text) {
  constexpr std::string_view whitespace = " \t\n\v\f\r";
  constexpr std::int64_t smallest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();

  std::size_t at = 0;
  while (at < text.size() && whitespace.find(text[at]) != std::string_view::npos)
    ++at;
  bool const negative = at < text.size() && text[at] == '-';
  if (at < text.size() && (text[at] == '-' || text[at] == '+'))
    ++at;
  std::int64_t number = 0;
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
    number = number * 10 + (text[at] - '0');
    if (number > largest)
      return static_cast<std::int32_t>(negative ? smallest : largest);
  }
  return static_cast<std::int32_t>(negative ? -number : number);
}

} // namespace journal
