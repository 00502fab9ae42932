// The fast path: one forward pass over text exactly as our encoder writes it.
#ifndef JOURNAL_RECORDS_STRICTPARSER_H
#define JOURNAL_RECORDS_STRICTPARSER_H

#include <cstddef>
#include <string_view>

#include "bytes/Bytes.h"
#include "bytes/Inline.h"
#include "records/FieldLists.h"
#include "records/FieldReader.h"
#include "vocabulary/Tags.h"
#include "xml/Text.h"

namespace journal {

/// Reads forward and never searches. As long as a text holds only the expected elements in their
/// order, each at most once, no tag occurs anywhere else in it, because a value read here holds no
/// "<". So every plain search would find the element where this parser found it. At a mismatch, or
/// at a NUL, the fallback continues.
class StrictParser {
public:
  explicit StrictParser(std::string_view text) : at_(text.data()), end_(at_ + text.size()) {}

  /// The text that is not read yet.
  std::string_view rest() const { return {at_, left()}; }
  char const* at() const { return at_; }
  char const* end() const { return end_; }
  void goTo(char const* at) { at_ = at; }

  /// Reads a tag, or whole elements; returns whether they are here.
  JOURNAL_INLINE inline bool take(std::string_view expected) {
    if (left() < expected.size() || !sameBytes(at_, expected.data(), expected.size()))
      return false;
    at_ += expected.size();
    return true;
  }

  /// The same for one tag that the compiler does not know.
  JOURNAL_INLINE inline bool takeTag(std::string_view expected) {
    if (left() < expected.size() || !sameTag(at_, expected.data(), expected.size()))
      return false;
    at_ += expected.size();
    return true;
  }

  /// Reads an optional element: its value, absent when its begin tag is not here. Returns false
  /// when the close tag does not follow the value.
  JOURNAL_INLINE_ONCE inline bool take(std::string_view begin, std::string_view close,
                                       std::string_view& value) {
    if (left() < begin.size() + close.size() || !sameBytes(at_, begin.data(), begin.size())) {
      value = absent;
      return true;
    }
    auto const* const front = at_ + begin.size();
    auto const* const last = end_ - close.size(); // where the close tag can start at the latest
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

/// The fields of a record that a parser has not stored.
struct FieldStates {
  FieldSet unseen = ~FieldSet{0}; ///< no begin tag so far
  FieldSet open = 0;              ///< a begin tag, but the next "<" does not begin the close tag
};

/// Reads the fields of a record, in the order in which they are written. At a mismatch, stops
/// before the tag that does not match and returns false.
/// @param states the fields that were not stored; before the call, none is open, and no field from
///        `first` on was seen
/// @param first the number of the field to start with
template <class Fields>
JOURNAL_INLINE inline bool parseFields(Fields fields, StrictParser& from, void* record,
                                       FieldReader& reader, FieldStates& states,
                                       std::size_t first) {
  auto parser = from; // a copy that can stay in registers
  FieldSet seen = 0;
  auto const store = [&](std::string_view raw, FieldDescriptor const& field,
                         FieldSet bit) JOURNAL_INLINE_ONCE {
    if (!isAbsent(raw))
      seen |= bit;
    if (field.reading() == Reading::discarded)
      return;
    // An unclosed element is found by a second begin tag only, and there is none here.
    reader.store(field.reading() == Reading::unclosed ? absent : raw, field, record);
  };
  auto inRun = false;
  auto const matched = allOf(fields, first,
                             [&](FieldDescriptor const& field, std::string_view run, FieldSet bit)
                                 JOURNAL_INLINE_ONCE {
                                   if (builtForSpeed && !field.isJoined())
                                     inRun = !run.empty() && parser.take(run);
                                   std::string_view raw;
                                   if (inRun) {
                                     store(field.expectedText(), field, bit);
                                   } else if (parser.take(field.begin(), field.close(), raw)) {
                                     store(raw, field, bit);
                                   } else {
                                     parser.goTo(raw.data() + raw.size());
                                     states.open = bit;
                                     seen |= bit;
                                     return false;
                                   }
                                   return true;
                                 });
  from = parser;
  states.unseen &= ~seen;
  return matched;
}

} // namespace journal

#endif
