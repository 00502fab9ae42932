// Searches a text for elements from a cursor on.
#include "xml/Cursor.h"

#include "xml/Text.h"

namespace journal {

std::string_view Cursor::read(std::string_view begin, std::string_view close) {
  auto const beginAt = rest_.find(begin);
  if (beginAt == std::string_view::npos)
    return absent;
  auto const valueAt = beginAt + begin.size();
  auto const closeAt = rest_.find(close, valueAt);
  if (closeAt == std::string_view::npos)
    return absent;
  auto const value = rest_.substr(valueAt, closeAt - valueAt);
  if (beginAt == 0)
    rest_.remove_prefix(closeAt + close.size());
  return value;
}

std::string_view readFirst(std::string_view text, Element element) {
  return Cursor(text).read(element.begin(), element.close());
}

} // namespace journal
