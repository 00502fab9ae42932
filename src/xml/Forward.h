// The straight road through a text: one forward pass over elements in the writer's own order.
#ifndef JOURNAL_XML_FORWARD_H
#define JOURNAL_XML_FORWARD_H

#include <cstddef>
#include <string_view>

#include "xml/Bytes.h"
#include "xml/Inline.h"
#include "xml/Text.h"

namespace journal {

/// Reads forward and never searches. Wherever a text holds nothing but elements that are taken here
/// one after the other, each at most once, no tag occurs anywhere else in it (a value taken here
/// holds no "<"), and every search of the general road would end where this pass found the element.
/// At the first thing that is not so, the pass gives up and the general road decides.
class Forward {
public:
  explicit Forward(std::string_view text) : at_(text.data()), end_(at_ + text.size()) {}

  /// The text that is not read yet.
  std::string_view rest() const { return {at_, left()}; }

  /// Reads a tag; tells whether it stands here.
  JOURNAL_INLINE inline bool take(std::string_view tag) {
    if (left() < tag.size() || !sameBytes(at_, tag.data(), tag.size()))
      return false;
    at_ += tag.size();
    return true;
  }

  /// Reads a value and the close tag behind it; missing when another tag stands there.
  JOURNAL_INLINE inline std::string_view takeValue(std::string_view close) {
    auto const* const value = at_;
    at_ = findByte(at_, end_, '<');
    auto const size = static_cast<std::size_t>(at_ - value);
    return take(close) ? std::string_view(value, size) : missing;
  }

private:
  std::size_t left() const { return static_cast<std::size_t>(end_ - at_); }

  char const* at_;
  char const* end_;
};

} // namespace journal

#endif
