// Iterates over the elements of one name in a text.
#ifndef JOURNAL_XML_ELEMENTITERATOR_H
#define JOURNAL_XML_ELEMENTITERATOR_H

#include <cstddef>
#include <string_view>

#include "bytes/Bytes.h"
#include "vocabulary/Tags.h"
#include "xml/Text.h"

namespace journal {

/// Cuts a text into the contents of one element after the other, each up to its first close tag.
/// The text ends at its first NUL, so no content holds one.
class ElementIterator {
public:
  ElementIterator(std::string_view text, Element element) : rest_(text), element_(element) {}

  /// Goes behind the next begin tag; returns whether there is one.
  bool enter() {
    auto const begin = find(element_.begin());
    if (begin == std::string_view::npos)
      return false;
    rest_.remove_prefix(begin + element_.begin().size());
    return true;
  }

  /// The content up to the next close tag, absent when there is none. Goes behind the close tag.
  std::string_view leave() {
    auto const close = find(element_.close());
    if (close == std::string_view::npos)
      return absent;
    auto const content = rest_.substr(0, close);
    rest_.remove_prefix(close + element_.close().size());
    return content;
  }

  /// The text from here on. Another reader may read a part of it; continueAt then sets the rest.
  std::string_view rest() const { return rest_; }
  void continueAt(std::string_view rest) { rest_ = rest; }

private:
  /// Where a tag is, unless a NUL comes first.
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
