// Appends to a text whose size is only set at the end.
#ifndef JOURNAL_XML_APPENDER_H
#define JOURNAL_XML_APPENDER_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include "bytes/Bytes.h"
#include "bytes/Inline.h"

namespace journal {

/// Copies a tag to `at`, where it must fit, and returns where it ends.
JOURNAL_INLINE inline char* putTag(char* at, std::string_view tag) {
  std::memcpy(at, tag.data(), tag.size());
  return at + tag.size();
}

/// The same for a text whose size is only known at run time.
JOURNAL_INLINE inline char* putText(char* at, std::string_view text) {
  copyBytes(at, text.data(), text.size());
  return at + text.size();
}

/// While an appender exists, its text may be longer than the contents, and only the appender may
/// use it.
class Appender {
public:
  /// @param out keeps its contents
  /// @param ahead how far to enlarge the text at a time, as far as memory is reserved
  explicit Appender(std::string& out, std::size_t ahead = 0)
      : out_(out), ahead_(ahead), size_(out.size()) {}
  Appender(Appender const&) = delete;
  Appender& operator=(Appender const&) = delete;

  /// Cuts off what was not written.
  ~Appender() { out_.resize(size_); }

  /// Returns the end of the contents, where `bound` characters may be written. endAt makes them
  /// part of the contents.
  JOURNAL_INLINE inline char* room(std::size_t bound) {
    if (out_.size() - size_ < bound)
      out_.resize(size_ + std::max(bound, std::min(ahead_, out_.capacity() - size_)));
    return &out_[size_];
  }

  /// Sets the end of the contents.
  void endAt(char const* end) { size_ = static_cast<std::size_t>(end - out_.data()); }

  void append(std::string_view tag) { endAt(putTag(room(tag.size()), tag)); }

private:
  std::string& out_;
  std::size_t ahead_;
  std::size_t size_;
};

} // namespace journal

#endif
