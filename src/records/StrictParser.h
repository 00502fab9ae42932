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

struct RecordOps;

/// Reads forward and never searches. As long as a text holds nothing but the expected elements in
/// their order, each at most once, no tag occurs anywhere else in it (a value read here holds no
/// "<"), and every search of the fallback would end where this parser found the element. At the
/// first mismatch, or at a NUL, it gives up, and the fallback decides.
class StrictParser {
public:
  explicit StrictParser(std::string_view text) : at_(text.data()), end_(at_ + text.size()) {}

  /// The text that is not read yet.
  std::string_view rest() const { return {at_, left()}; }

  /// Reads a tag, or whole elements; returns whether they are here.
  JOURNAL_INLINE inline bool take(std::string_view expected) {
    if (left() < expected.size() || !sameBytes(at_, expected.data(), expected.size()))
      return false;
    at_ += expected.size();
    return true;
  }

  /// Reads an element that may be here: its value, absent when its begin tag is not here. Returns
  /// false when another tag than its close tag follows the value.
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

/// Reads the fields of a record, in the order in which they are written. Returns false at a
/// mismatch, with some fields stored.
template <class Fields>
JOURNAL_INLINE inline bool parseFields(Fields fields, StrictParser& from, void* record,
                                       FieldReader& reader) {
  auto parser = from; // a copy that can stay in registers
  auto const store = [&](std::string_view raw, FieldDescriptor const& field) JOURNAL_INLINE_ONCE {
    if (field.reading() == Reading::discarded)
      return;
    // An unclosed element is found by a second begin tag only, and there is none here.
    reader.store(field.reading() == Reading::unclosed ? absent : raw, field, record);
  };
  auto inRun = false;
  auto const matched =
      allOf(fields, [&](FieldDescriptor const& field, std::string_view run) JOURNAL_INLINE_ONCE {
        if (builtForSpeed && !field.isJoined())
          inRun = !run.empty() && parser.take(run);
        std::string_view raw;
        if (inRun)
          store(field.expectedText(), field);
        else if (parser.take(field.begin(), field.close(), raw))
          store(raw, field);
        else
          return false;
        return true;
      });
  from = parser;
  return matched;
}

/// Reads an entry, its calls into `calls`. Returns false at a mismatch, with some fields stored and
/// some calls appended.
bool parseEntry(StrictParser& parser, RecordOps const& ops, void* entry, void* calls,
                FieldReader& reader);

} // namespace journal

#endif
