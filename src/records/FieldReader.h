// Converts the raw values of elements into the values of members.
#ifndef JOURNAL_RECORDS_FIELDREADER_H
#define JOURNAL_RECORDS_FIELDREADER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "bytes/Bytes.h"
#include "records/FieldDescriptor.h"
#include "xml/Text.h"

namespace journal {

/// Create one per message: it keeps what it learns about the utility library, and its buffers.
class FieldReader {
public:
  FieldReader() {
    for (auto& members : known_)
      members.fill(unknown);
  }

  /// Stores a raw value, absent or not, in a record.
  JOURNAL_INLINE inline void store(std::string_view raw, FieldDescriptor const& field,
                                   void* record) {
    auto const content = field.content();
    auto* const member = field.in(record);
    if (content == Content::text) {
      readText(raw, *static_cast<std::string*>(member));
    } else if (content == Content::flag) {
      *static_cast<bool*>(member) = raw == word::TRUE;
    } else {
      *static_cast<MemberValue*>(member) = memberOf(raw, content);
    }
  }

private:
  JOURNAL_INLINE inline void readText(std::string_view raw, std::string& text) {
    if (isAbsent(raw))
      text.clear();
    else
      replace(text, raw);
  }

  /// The utility library decides what unescaping makes of any text, a member's text included. The
  /// same text always gives the same result, so one call for each member's text is enough.
  JOURNAL_INLINE inline Enumeration::Value memberOf(std::string_view raw, Content content) {
    auto const& enumeration = enumerationOf(content);
    if (isAbsent(raw))
      return enumeration.fallback();
    auto const candidate = enumeration.candidateFor(raw);
    auto& known = known_[static_cast<std::size_t>(content)][static_cast<std::size_t>(candidate)];
    if (!isText(raw, enumeration.textOf(candidate)))
      return lookUpMember(raw, enumeration);
    if (known == unknown)
      known = static_cast<std::int8_t>(lookUpMember(raw, enumeration));
    return known;
  }

  /// Whether a value is a member's text. frontSize bytes can be loaded from the value on: either it
  /// is a member's text itself, or the tag behind it is long enough, as Kinds.h asserts.
  JOURNAL_INLINE static inline bool isText(std::string_view value, MemberText const& member) {
    static_assert(sizeof member == frontSize);
    return value.size() == member.size() && sameFront(value.data(), member.bytes(), value.size());
  }

  [[gnu::noinline]] Enumeration::Value lookUpMember(std::string_view raw,
                                                    Enumeration const& enumeration);
  /// Replaces a text by the unescaped value. The text is left empty if memory runs out.
  void replace(std::string& text, std::string_view raw);
  /// The same for a value that is long or the first of its size.
  [[gnu::noinline]] void replaceUnprepared(std::string& text, std::string_view raw);
  /// A value as the utility library takes it.
  std::string const& argument(std::string_view raw);

  static constexpr std::int8_t unknown = -1;

  // What the utility library makes of each member's text: the member that it gives, by content and
  // value; unknown until it was asked.
  std::array<std::array<std::int8_t, Enumeration::max>, std::size(enumerations)> known_;

  // Arguments for the utility library. They are kept, so that a long value does not allocate each
  // time; there is one for each small size, so that only its bytes have to be copied.
  std::array<std::string, 32> arguments_;
  std::string longArgument_;
};

} // namespace journal

#endif
