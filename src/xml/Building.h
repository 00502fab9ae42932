// Texts put together from pieces whose sizes are known beforehand, with memory taken once.
#ifndef JOURNAL_XML_BUILDING_H
#define JOURNAL_XML_BUILDING_H

#include <initializer_list>
#include <string>
#include <string_view>

namespace journal {

/// The pieces one behind the other, appended to a text.
void append(std::string& out, std::initializer_list<std::string_view> pieces);

/// The pieces one behind the other.
inline std::string joined(std::initializer_list<std::string_view> pieces) {
  std::string text;
  append(text, pieces);
  return text;
}

/// A finished message: the XML declaration, then the body, inside a Schema element when
/// schemaName is not empty.
std::string enveloped(std::initializer_list<std::string_view> body,
                      std::string_view schemaName = {});

} // namespace journal

#endif
