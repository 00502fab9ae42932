// Turns the raw values of elements into the values of fields.
#ifndef JOURNAL_RECORDS_FIELDREADER_H
#define JOURNAL_RECORDS_FIELDREADER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

#include "records/Fields.h"
#include "xml/Bytes.h"
#include "xml/Text.h"

namespace journal {

/// One lives through the decoding of one message.
class FieldReader {
public:
  FieldReader() {
    for (auto& members : known_)
      members.fill(unknown);
  }

  /// Stores a raw value, missing or not, in a field.
  JOURNAL_INLINE inline void store(std::string_view raw, Content content, void* field) {
    if (content == Content::text) {
      readText(raw, *static_cast<std::string*>(field));
    } else if (content == Content::flag) {
      *static_cast<bool*>(field) = raw == word::TRUE;
    } else {
      auto const value = memberOf(raw, content);
      std::memcpy(field, &value, sizeof value);
    }
  }

private:
  JOURNAL_INLINE inline void readText(std::string_view raw, std::string& field) {
    if (isMissing(raw))
      field.clear();
    else
      replace(field, raw);
  }

  /// The utility library alone knows what unescaping does to a text, to a member's text too; but as
  /// the same text always gives the same, asking once for each member's text is enough.
  JOURNAL_INLINE inline Enumeration::Value memberOf(std::string_view raw, Content content) {
    auto const& enumeration = enumerationOf(content);
    if (isMissing(raw))
      return enumeration.fallback();
    auto const candidate = enumeration.candidateFor(raw);
    auto& known = known_[static_cast<std::size_t>(content)][static_cast<std::size_t>(candidate)];
    if (!isText(raw, enumeration.textOf(candidate)))
      return askForMember(raw, enumeration);
    if (known == unknown)
      known = static_cast<std::int8_t>(askForMember(raw, enumeration));
    return known;
  }

  /// Whether a value is a member's text. 16 bytes can be loaded from the value on: it is a member's
  /// text itself, or in a text, where it is of 6 characters at least like every member's text, and
  /// a tag of 12 at least stands behind it.
  JOURNAL_INLINE static inline bool isText(std::string_view value, MemberText const& member) {
    static_assert(sizeof member == detail::frontSize);
    return value.size() == member.size() &&
           sameFront(value.data(), std::string_view(member).data(), value.size());
  }

  [[gnu::noinline]] Enumeration::Value askForMember(std::string_view raw,
                                                    Enumeration const& enumeration);
  /// Puts what the utility library makes of a value in a text's place. The text is empty if there
  /// is no memory for it.
  void replace(std::string& text, std::string_view raw);
  /// The same for a text that is long or the first of its size.
  [[gnu::noinline]] void replaceUnprepared(std::string& text, std::string_view raw);
  /// A text as the utility library takes it.
  std::string const& argument(std::string_view raw);

  static constexpr std::int8_t unknown = -1;

  // What is known of each member's text, by content and value.
  std::array<std::array<std::int8_t, Enumeration::most>, std::size(enumerations)> known_;

  // What the utility library is given. The texts are kept, so that a long value does not allocate
  // another; there is one for each small size, so that only its bytes have to be copied.
  std::array<std::string, 32> arguments_;
  std::string longArgument_;
};

} // namespace journal

#endif
