// Concatenates texts, reserving their memory at once.
#include "xml/Building.h"

namespace journal {

std::size_t sizeOf(Texts texts) {
  std::size_t size = 0;
  for (auto const text : texts)
    size += text.size();
  return size;
}

void append(std::string& out, Texts texts) {
  auto const needed = out.size() + sizeOf(texts);
  if (needed > out.capacity())
    out.reserve(needed > 2 * out.capacity() ? needed : 2 * out.capacity());
  for (auto const text : texts)
    out.append(text);
}

void append(std::string& out, Element element, std::string_view value) {
  append(out, {element.begin(), value, element.close()});
}

} // namespace journal
