// The straight road through a text: one forward pass over elements in the writer's own order.
#ifndef JOURNAL_XML_FORWARD_H
#define JOURNAL_XML_FORWARD_H

#include <cstddef>
#include <string_view>

#include "vocabulary/Tags.h"
#include "xml/Bytes.h"
#include "xml/Inline.h"
#include "xml/Text.h"

namespace journal {

/// Reads forward and never searches. Wherever a text holds nothing but elements that are taken here
/// one after the other, each at most once, no tag occurs anywhere else in it (a value taken here
/// holds no "<"), and every search of the general road would end where this pass found the element.
/// At the first thing that is not so, or at a NUL, the pass gives up and the general road decides.
class Forward {
public:
  explicit Forward(std::string_view text) : at_(text.data()), end_(at_ + text.size()) {}

  /// The text that is not read yet.
  std::string_view rest() const { return {at_, left()}; }

  /// Reads a tag, or whole elements; tells whether they stand here.
  JOURNAL_INLINE inline bool take(std::string_view expected) {
    if (left() < expected.size() || !sameBytes(at_, expected.data(), expected.size()))
      return false;
    at_ += expected.size();
    return true;
  }

  /// Reads an element if one can stand here: its value, or missing when its begin tag is not here.
  /// Gives false when another tag than its close tag follows the value.
  JOURNAL_INLINE inline bool take(Element const& element, std::string_view& value) {
    auto const begin = element.begin();
    auto const close = element.close();
    if (left() < begin.size() + close.size() || !sameBytes(at_, begin.data(), begin.size())) {
      value = missing;
      return true;
    }
    auto const* const front = at_ + begin.size();
    auto const* const last = end_ - close.size(); // where the close tag can start
    auto const* const end = findByteOrNul(front, last, '<');
    value = {front, static_cast<std::size_t>(end - front)};
    at_ = end + close.size();
    return sameBytes(end, close.data(), close.size());
  }

private:
  std::size_t left() const { return static_cast<std::size_t>(end_ - at_); }

  char const* at_;
  char const* end_;
};

} // namespace journal

#endif
