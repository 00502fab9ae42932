// The texts of the four enumerations and of flags, and the conversions between a member and its
// text.
#ifndef JOURNAL_CONVERT_ENUMTEXTS_H
#define JOURNAL_CONVERT_ENUMTEXTS_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "CallLogEntryEvent.h"
#include "NumberType.h"
#include "vocabulary/Words.h"

namespace journal {

/// A member's text, padded to a fixed size so that it can be copied and compared as a whole.
class MemberText {
public:
  constexpr MemberText(std::string_view text) : size_(static_cast<std::uint8_t>(text.size())) {
    for (std::size_t at = 0; at < text.size(); ++at)
      chars_[at] = text[at];
  }

  constexpr std::size_t size() const { return size_; }
  constexpr operator std::string_view() const { return {chars_, size_}; }

  /// The whole object, text and padding, as bytes.
  char const* bytes() const { return reinterpret_cast<char const*>(this); }

private:
  char chars_[15] = {};
  std::uint8_t size_;
};

/// An enumeration: its members' texts by their 32-bit values, 0, 1, ... without a gap.
class Enumeration {
public:
  using Value = std::int32_t;
  static constexpr std::size_t max = 7; // members

  /// @param texts in the order of the values
  /// @param fallback the member that every other value and text gives
  template <std::size_t size>
  constexpr Enumeration(MemberText const (&texts)[size], Value fallback)
      : texts_(texts), size_(size), fallback_(static_cast<std::uint8_t>(fallback)) {
    static_assert(size <= max);
    for (std::uint8_t value = 0; value < size; ++value)
      members_[slotOf(texts[value])] = value;
  }

  constexpr Value fallback() const { return fallback_; }

  /// The text of a value; the fallback's for a value outside the members, negative ones included.
  constexpr MemberText const& textOf(Value value) const {
    auto const index = static_cast<std::uint32_t>(value);
    return texts_[index < size_ ? index : fallback_];
  }

  /// The only member whose text this can be. The caller compares the texts.
  constexpr Value candidateFor(std::string_view text) const {
    return text.size() < 2 ? fallback_ : members_[slotOf(text)];
  }

  /// The member whose text this is, byte for byte; the fallback when there is none.
  constexpr Value memberOf(std::string_view text) const {
    auto const candidate = candidateFor(text);
    return std::string_view(textOf(candidate)) == text ? candidate : fallback_;
  }

  /// Whether every member is found by its text: no two texts share a slot.
  constexpr bool isSound() const {
    for (std::uint8_t value = 0; value < size_; ++value)
      if (memberOf(texts_[value]) != value)
        return false;
    return true;
  }

  /// The size of the shortest member's text.
  constexpr std::size_t shortest() const {
    std::size_t size = texts_[0].size();
    for (std::uint8_t value = 1; value < size_; ++value)
      if (texts_[value].size() < size)
        size = texts_[value].size();
    return size;
  }

private:
  static constexpr std::size_t slots = 16;

  static constexpr std::size_t slotOf(std::string_view text) {
    auto const size = text.size();
    auto const ending = static_cast<unsigned char>(text[size - 1]) +
                        static_cast<std::size_t>(static_cast<unsigned char>(text[size - 2]));
    return (ending + 3 * size) % slots;
  }

  MemberText const* texts_;
  std::uint8_t size_;
  std::uint8_t fallback_;
  std::uint8_t members_[slots] = {}; // by the slot of their texts
};

namespace detail {
inline constexpr MemberText numberTypes[] = {word::NO_ICON, word::PRIVATE, word::BUSINESS1,
                                             word::BUSINESS2, word::MOBILE};
inline constexpr MemberText timeFormats[] = {word::FORM_24, word::FORM_AM, word::FORM_PM};
inline constexpr MemberText presentations[] = {word::NOT_AVAILABLE, word::ALLOWED,
                                               word::NOT_ALLOWED};
inline constexpr MemberText targetLogs[] = {
    word::IN_ANSWERED,  word::IN_NO_ANSWER,  word::IN_BUSY, word::IN_GROUP_MISSED,
    word::OUT_ANSWERED, word::OUT_NO_ANSWER, word::OUT_BUSY};
inline constexpr MemberText flags[] = {word::FALSE, word::TRUE};
} // namespace detail

inline constexpr Enumeration numberTypes{detail::numberTypes, NumberType::NO_ICON};
inline constexpr Enumeration timeFormats{detail::timeFormats, CallLogEntryEvent::FORM_24};
inline constexpr Enumeration presentations{detail::presentations, CallLogEntryEvent::NOT_AVAILABLE};
inline constexpr Enumeration targetLogs{detail::targetLogs, CallLogEntryEvent::OUT_BUSY};
inline constexpr Enumeration flags{detail::flags, false};

static_assert(numberTypes.isSound() && timeFormats.isSound() && presentations.isSound() &&
              targetLogs.isSound() && flags.isSound());

} // namespace journal

#endif
