// The general road through a text: a cursor and plain searches, right for any text at all.
#ifndef JOURNAL_XML_CURSOR_H
#define JOURNAL_XML_CURSOR_H

#include <cstddef>
#include <string_view>

#include "vocabulary/Tags.h"
#include "xml/Bytes.h"
#include "xml/Text.h"

namespace journal {

class Cursor {
public:
  /// Starts at the front of the text; nothing behind the text's end is seen.
  explicit Cursor(std::string_view text) : rest_(text) {}

  /// The text from the cursor on.
  std::string_view rest() const { return rest_; }

  /// The raw value of the first element from the cursor on: the first begin tag, then the first
  /// close tag behind it; missing when either is. The cursor moves behind the element only when the
  /// element starts exactly at the cursor.
  std::string_view read(std::string_view begin, std::string_view close) {
    auto const beginAt = rest_.find(begin);
    if (beginAt == std::string_view::npos)
      return missing;
    auto const valueAt = beginAt + begin.size();
    auto const closeAt = rest_.find(close, valueAt);
    if (closeAt == std::string_view::npos)
      return missing;
    auto const value = rest_.substr(valueAt, closeAt - valueAt);
    if (beginAt == 0)
      rest_.remove_prefix(closeAt + close.size());
    return value;
  }

private:
  std::string_view rest_;
};

/// The raw value of the first element called `name` in a text.
template <std::string_view const& name>
std::string_view readFirst(std::string_view text) {
  return Cursor(text).read(element<name>.begin(), element<name>.close());
}

/// Whether a text holds the begin tag of an element called `name`.
template <std::string_view const& name>
bool holds(std::string_view text) {
  return text.find(element<name>.begin()) != std::string_view::npos;
}

/// Cuts a text into pieces: the inside of one element after the other, each ending at its first
/// close tag. The text ends at its first NUL, so that no piece holds one.
class Pieces {
public:
  Pieces(std::string_view text, Element const& element) : rest_(text), element_(element) {}

  /// Goes behind the next begin tag; tells whether there is one.
  bool enter() {
    auto const begin = find(element_.begin());
    if (begin == std::string_view::npos)
      return false;
    rest_.remove_prefix(begin + element_.begin().size());
    return true;
  }

  /// The piece up to the next close tag; missing when there is none. Goes behind the close tag.
  std::string_view leave() {
    auto const close = find(element_.close());
    if (close == std::string_view::npos)
      return missing;
    auto const piece = rest_.substr(0, close);
    rest_.remove_prefix(close + element_.close().size());
    return piece;
  }

  /// The text that is not cut yet; a reader of its own may go on in it.
  std::string_view rest() const { return rest_; }
  void goOnWith(std::string_view rest) { rest_ = rest; }

private:
  /// Where a tag is, if no NUL is in front of it.
  std::size_t find(std::string_view tag) const {
    auto const* const front = rest_.data();
    auto const* const end = front + rest_.size();
    for (auto const* at = front;; ++at) {
      at = findByteOrNul(at, end, tag.front());
      if (static_cast<std::size_t>(end - at) < tag.size() || *at == '\0')
        return std::string_view::npos;
      if (sameBytes(at, tag.data(), tag.size()))
        return static_cast<std::size_t>(at - front);
    }
  }

  std::string_view rest_;
  Element element_;
};

} // namespace journal

#endif
