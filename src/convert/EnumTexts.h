// The texts of the four enumerations, and the two ways between a member and its text.
#ifndef JOURNAL_CONVERT_ENUMTEXTS_H
#define JOURNAL_CONVERT_ENUMTEXTS_H

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "CallLogEntryEvent.h"
#include "NumberType.h"
#include "vocabulary/Words.h"

namespace journal {

/// The texts of an enumeration in the order of its values, which run from 0 without a gap, and the
/// member that stands for every other value and text.
template <class Enum>
struct EnumTexts;

template <>
struct EnumTexts<NumberType::NT> {
  static constexpr std::string_view texts[] = {word::NO_ICON, word::PRIVATE, word::BUSINESS1,
                                               word::BUSINESS2, word::MOBILE};
  static constexpr auto fallback = NumberType::NO_ICON;
};

template <>
struct EnumTexts<CallLogEntryEvent::_TFormat> {
  static constexpr std::string_view texts[] = {word::FORM_24, word::FORM_AM, word::FORM_PM};
  static constexpr auto fallback = CallLogEntryEvent::FORM_24;
};

template <>
struct EnumTexts<CallLogEntryEvent::_PresentationValue> {
  static constexpr std::string_view texts[] = {word::NOT_AVAILABLE, word::ALLOWED,
                                               word::NOT_ALLOWED};
  static constexpr auto fallback = CallLogEntryEvent::NOT_AVAILABLE;
};

template <>
struct EnumTexts<CallLogEntryEvent::_LogTarget> {
  static constexpr std::string_view texts[] = {
      word::IN_ANSWERED,  word::IN_NO_ANSWER,  word::IN_BUSY, word::IN_GROUP_MISSED,
      word::OUT_ANSWERED, word::OUT_NO_ANSWER, word::OUT_BUSY};
  static constexpr auto fallback = CallLogEntryEvent::OUT_BUSY;
};

template <class Enum>
inline constexpr std::size_t enumSize = std::size(EnumTexts<Enum>::texts);

/// The text of a value; the fallback's for a value outside the members, negative ones included.
template <class Enum>
constexpr std::string_view textOf(Enum value) {
  auto const index = static_cast<std::uint32_t>(value);
  using Texts = EnumTexts<Enum>;
  return index < enumSize<Enum> ? Texts::texts[index] : Texts::texts[Texts::fallback];
}

/// The value whose text this is, byte for byte; enumSize when there is none.
template <class Enum>
constexpr std::size_t indexOf(std::string_view text) {
  std::size_t index = 0;
  while (index < enumSize<Enum> && EnumTexts<Enum>::texts[index] != text)
    ++index;
  return index;
}

/// The member whose text this is; the fallback when there is none.
template <class Enum>
constexpr Enum memberOf(std::string_view text) {
  auto const index = indexOf<Enum>(text);
  return index < enumSize<Enum> ? static_cast<Enum>(index) : EnumTexts<Enum>::fallback;
}

} // namespace journal

#endif
