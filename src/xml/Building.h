// Concatenates texts, reserving their memory at once.
#ifndef JOURNAL_XML_BUILDING_H
#define JOURNAL_XML_BUILDING_H

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

#include "vocabulary/Tags.h"

namespace journal {

using Texts = std::initializer_list<std::string_view>;

std::size_t sizeOf(Texts texts);

/// Appends the texts in order.
void append(std::string& out, Texts texts);

/// Appends an element with a raw value.
void append(std::string& out, Element element, std::string_view value);

/// The texts as one.
inline std::string joined(Texts texts) {
  std::string all;
  append(all, texts);
  return all;
}

} // namespace journal

#endif
