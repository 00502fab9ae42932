// The texts of the four enumerations, and the two ways between a member and its text.
#ifndef JOURNAL_CONVERT_ENUMTEXTS_H
#define JOURNAL_CONVERT_ENUMTEXTS_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string_view>

#include "CallLogEntryEvent.h"
#include "NumberType.h"
#include "vocabulary/Words.h"

namespace journal {

/// A member's text, filled up so that it can be copied and compared as a whole.
class MemberText {
public:
  static constexpr std::size_t room = 16;

  constexpr MemberText(std::string_view text) : size_(text.size()) {
    for (std::size_t at = 0; at < size_; ++at) {
      chars_[at] = text[at];
      mask_[at] = '\xff';
    }
  }

  constexpr std::size_t size() const { return size_; }
  constexpr operator std::string_view() const { return {chars_, size_}; }

  /// Whether this text stands at `at`, from where on `room` bytes can be read.
  bool standsAt(char const* at) const {
    std::uint64_t difference = 0;
    for (std::size_t word = 0; word < room; word += sizeof difference)
      difference |= (load(chars_ + word) ^ load(at + word)) & load(mask_ + word);
    return difference == 0;
  }

private:
  static std::uint64_t load(char const* at) {
    std::uint64_t word;
    std::memcpy(&word, at, sizeof word);
    return word;
  }

  char chars_[room] = {};
  char mask_[room] = {};
  std::size_t size_;
};

/// The texts of an enumeration in the order of its values, which run from 0 without a gap, and the
/// member that stands for every other value and text.
template <class Enum>
struct EnumTexts;

template <>
struct EnumTexts<NumberType::NT> {
  static constexpr MemberText texts[] = {word::NO_ICON, word::PRIVATE, word::BUSINESS1,
                                         word::BUSINESS2, word::MOBILE};
  static constexpr auto fallback = NumberType::NO_ICON;
};

template <>
struct EnumTexts<CallLogEntryEvent::_TFormat> {
  static constexpr MemberText texts[] = {word::FORM_24, word::FORM_AM, word::FORM_PM};
  static constexpr auto fallback = CallLogEntryEvent::FORM_24;
};

template <>
struct EnumTexts<CallLogEntryEvent::_PresentationValue> {
  static constexpr MemberText texts[] = {word::NOT_AVAILABLE, word::ALLOWED, word::NOT_ALLOWED};
  static constexpr auto fallback = CallLogEntryEvent::NOT_AVAILABLE;
};

template <>
struct EnumTexts<CallLogEntryEvent::_LogTarget> {
  static constexpr MemberText texts[] = {
      word::IN_ANSWERED,  word::IN_NO_ANSWER,  word::IN_BUSY, word::IN_GROUP_MISSED,
      word::OUT_ANSWERED, word::OUT_NO_ANSWER, word::OUT_BUSY};
  static constexpr auto fallback = CallLogEntryEvent::OUT_BUSY;
};

/// A flag's texts, false first; only "True" is read as true.
template <>
struct EnumTexts<bool> {
  static constexpr MemberText texts[] = {word::FALSE, word::TRUE};
  static constexpr auto fallback = false;
};

template <class Enum>
inline constexpr std::size_t enumSize = std::size(EnumTexts<Enum>::texts);

/// The text of a value; the fallback's for a value outside the members, negative ones included.
template <class Enum>
constexpr MemberText const& textOf(Enum value) {
  auto const index = static_cast<std::uint32_t>(value);
  using Texts = EnumTexts<Enum>;
  return index < enumSize<Enum> ? Texts::texts[index] : Texts::texts[Texts::fallback];
}

namespace detail {

constexpr std::size_t slots = 16;

/// A slot of its own for each text of an enumeration, which candidateFor makes sure of.
constexpr std::size_t slotOf(std::string_view text) {
  auto const size = text.size();
  auto const ending = static_cast<unsigned char>(text[size - 1]) +
                      static_cast<std::size_t>(static_cast<unsigned char>(text[size - 2]));
  return (ending + 3 * size) % slots;
}

/// The member whose text has a slot, or any other member.
template <class Enum>
struct Slots {
  std::uint8_t members[slots] = {};
  bool distinct = true;

  constexpr Slots() {
    bool taken[slots] = {};
    for (std::size_t index = 0; index < enumSize<Enum>; ++index) {
      auto const slot = slotOf(EnumTexts<Enum>::texts[index]);
      distinct = distinct && !taken[slot];
      taken[slot] = true;
      members[slot] = static_cast<std::uint8_t>(index);
    }
  }
};

template <class Enum>
inline constexpr Slots<Enum> slotsOf;

/// The one member that a text of two characters or more can be.
template <class Enum>
constexpr std::size_t candidateFor(std::string_view text) {
  static_assert(slotsOf<Enum>.distinct); // or slotOf does not tell the texts apart
  return slotsOf<Enum>.members[slotOf(text)];
}
} // namespace detail

/// The value whose text this is, byte for byte; enumSize when there is none.
template <class Enum>
std::size_t indexOf(std::string_view text) {
  if (text.size() < 2)
    return enumSize<Enum>;
  auto const index = detail::candidateFor<Enum>(text);
  return std::string_view(EnumTexts<Enum>::texts[index]) == text ? index : enumSize<Enum>;
}

/// The same for the value of an element, which has a close tag behind it: of 12 characters at least
/// for every element that carries an enumeration.
template <class Enum>
std::size_t indexOfValue(std::string_view value) {
  constexpr std::size_t shortestCloseTag = 12;
  if (value.size() < MemberText::room - shortestCloseTag)
    return enumSize<Enum>;
  auto const index = detail::candidateFor<Enum>(value);
  MemberText const& member = EnumTexts<Enum>::texts[index];
  return member.size() == value.size() && member.standsAt(value.data()) ? index : enumSize<Enum>;
}

/// The member whose text this is; the fallback when there is none.
template <class Enum>
Enum memberOf(std::string_view text) {
  auto const index = indexOf<Enum>(text);
  return index < enumSize<Enum> ? static_cast<Enum>(index) : EnumTexts<Enum>::fallback;
}

} // namespace journal

#endif
