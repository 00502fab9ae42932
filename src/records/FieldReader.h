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
  /// Stores a raw value, missing or not, in the field of a row.
  template <class Record>
  JOURNAL_INLINE inline void store(std::string_view raw, Field<Record> const& row, Record& record) {
    switch (row.content) {
    case Content::text:
      if (isMissing(raw))
        (record.*row.member.text).clear();
      else
        record.*row.member.text = unescape(raw);
      return;
    case Content::flag:
      record.*row.member.flag = raw == word::TRUE;
      return;
    case Content::numberType:
      record.*row.member.numberType = readMember<NumberType::NT>(raw);
      return;
    case Content::targetLog:
      record.*row.member.targetLog = readMember<CallLogEntryEvent::_LogTarget>(raw);
      return;
    case Content::presentation:
      record.*row.member.presentation = readMember<CallLogEntryEvent::_PresentationValue>(raw);
      return;
    case Content::timeFormat:
      record.*row.member.timeFormat = readMember<CallLogEntryEvent::_TFormat>(raw);
      return;
    }
  }

private:
  /// The utility library alone knows what unescaping does to a text, to a member's text too; but as
  /// the same text always gives the same, asking once for each member's text is enough.
  template <class Enum>
  JOURNAL_INLINE inline Enum readMember(std::string_view raw) {
    if (isMissing(raw))
      return EnumTexts<Enum>::fallback;
    auto const index = indexOfValue<Enum>(raw);
    auto const known = std::get<KnownMembers<Enum>>(known_).members[index];
    return known != unknown ? static_cast<Enum>(known) : askForMember<Enum>(raw, index);
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
