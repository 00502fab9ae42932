// Texts put together from pieces whose sizes are known beforehand, with memory taken once.
#ifndef JOURNAL_XML_BUILDING_H
#define JOURNAL_XML_BUILDING_H

#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>

#include "vocabulary/Tags.h"

namespace journal {

/// The pieces one behind the other, appended to a text.
void append(std::string& out, std::initializer_list<std::string_view> pieces);

/// The pieces one behind the other.
inline std::string joined(std::initializer_list<std::string_view> pieces) {
  std::string text;
  append(text, pieces);
  return text;
}

/// Copies a text to `at`, which has room for it, and returns where it ends.
inline char* put(char* at, std::string_view text) {
  std::memcpy(at, text.data(), text.size());
  return at + text.size();
}

/// The same for an element.
inline char* putElement(char* at, Element const& element, std::string_view text) {
  return put(put(put(at, element.begin), text), element.close);
}

/// Appends what `write` puts: it gets the place behind the text, with room for `bound` characters,
/// and returns where it ended. It must not throw, so that a text holds whole elements only.
template <class Write>
void appendWithin(std::string& out, std::size_t bound, Write write) {
  auto const size = out.size();
  out.resize(size + bound);
  auto const* const end = write(&out[size]);
  out.resize(static_cast<std::size_t>(end - out.data()));
}

/// A finished message: the XML declaration, then the body, inside a Schema element when
/// schemaName is not empty.
std::string enveloped(std::initializer_list<std::string_view> body,
                      std::string_view schemaName = {});

} // namespace journal

#endif
