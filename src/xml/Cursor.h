// Searches a text for elements from a cursor on.
#ifndef JOURNAL_XML_CURSOR_H
#define JOURNAL_XML_CURSOR_H

#include <string_view>

#include "vocabulary/Tags.h"

namespace journal {

class Cursor {
public:
  /// Starts at the front of the text. No search goes past the text's end.
  explicit Cursor(std::string_view text) : rest_(text) {}

  /// The text from the cursor on.
  std::string_view rest() const { return rest_; }

  /// The raw value of the first element from the cursor on: the first begin tag, then the first
  /// close tag behind it; absent when either is. The cursor moves behind the element only when the
  /// element starts exactly at the cursor.
  std::string_view read(std::string_view begin, std::string_view close);

private:
  std::string_view rest_;
};

/// The raw value of the first such element in a text.
std::string_view readFirst(std::string_view text, Element element);

} // namespace journal

#endif
