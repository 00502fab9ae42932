// Turns the raw values of elements into the values of fields.
#ifndef JOURNAL_RECORDS_FIELDREADER_H
#define JOURNAL_RECORDS_FIELDREADER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>

#include "convert/EnumTexts.h"
#include "records/Fields.h"
#include "xml/Text.h"

namespace journal {

/// One lives through the decoding of one message.
class FieldReader {
public:
  /// Stores a raw value, missing or not, in a field.
  JOURNAL_INLINE inline void store(std::string_view raw, Content content, void* field) {
    switch (content) {
    case Content::text:
      return readText(raw, *static_cast<std::string*>(field));
    case Content::flag:
      *static_cast<bool*>(field) = raw == word::TRUE;
      return;
    case Content::numberType:
      return readMember(raw, *static_cast<NumberType::NT*>(field));
    case Content::targetLog:
      return readMember(raw, *static_cast<CallLogEntryEvent::_LogTarget*>(field));
    case Content::presentation:
      return readMember(raw, *static_cast<CallLogEntryEvent::_PresentationValue*>(field));
    case Content::timeFormat:
      return readMember(raw, *static_cast<CallLogEntryEvent::_TFormat*>(field));
    }
  }

private:
  JOURNAL_INLINE inline void readText(std::string_view raw, std::string& field) {
    if (isMissing(raw))
      field.clear();
    else
      field = unescape(raw);
  }

  /// The utility library alone knows what unescaping does to a text, to a member's text too; but as
  /// the same text always gives the same, asking once for each member's text is enough.
  template <class Enum>
  JOURNAL_INLINE inline void readMember(std::string_view raw, Enum& field) {
    if (isMissing(raw)) {
      field = EnumTexts<Enum>::fallback;
      return;
    }
    auto const index = indexOfValue<Enum>(raw);
    auto const known = std::get<KnownMembers<Enum>>(known_).members[index];
    field = known != unknown ? static_cast<Enum>(known) : askForMember<Enum>(raw, index);
  }

  template <class Enum>
  [[gnu::noinline]] Enum askForMember(std::string_view raw, std::size_t index) {
    auto const member = memberOf<Enum>(unescape(raw));
    if (index < enumSize<Enum>)
      std::get<KnownMembers<Enum>>(known_).members[index] = static_cast<std::int8_t>(member);
    return member;
  }

  std::string unescape(std::string_view raw);

  static constexpr std::int8_t unknown = -1;

  template <class Enum>
  struct KnownMembers {
    std::int8_t members[enumSize<Enum> + 1]; // the last, for any other text, is never known
    constexpr KnownMembers() : members() {
      for (auto& member : members)
        member = unknown;
    }
  };

  std::tuple<KnownMembers<NumberType::NT>, KnownMembers<CallLogEntryEvent::_LogTarget>,
             KnownMembers<CallLogEntryEvent::_PresentationValue>,
             KnownMembers<CallLogEntryEvent::_TFormat>>
      known_;

  // What the utility library is given. The texts are kept, so that a long value does not allocate
  // another; there is one for each small size, so that only its bytes have to be copied.
  std::array<std::string, 32> arguments_;
  std::string longArgument_;
};

} // namespace journal

#endif
