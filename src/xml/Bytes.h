// Bytes compared and scanned a machine word at a time, where code is built for speed. Every load
// lies within the bytes that the caller names.
#ifndef JOURNAL_XML_BYTES_H
#define JOURNAL_XML_BYTES_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "xml/Inline.h"

namespace journal {

template <class Word>
JOURNAL_INLINE inline Word load(char const* at) {
  Word word;
  std::memcpy(&word, at, sizeof word);
  return word;
}

namespace detail {

/// Compares by whole words; the last one overlaps the one before it, so that none reaches further.
template <class Word>
JOURNAL_INLINE inline bool sameWords(char const* left, char const* right, std::size_t size) {
  auto const last = size - sizeof(Word);
  Word difference = load<Word>(left + last) ^ load<Word>(right + last);
  for (std::size_t at = 0; at < last; at += sizeof(Word))
    difference |= load<Word>(left + at) ^ load<Word>(right + at);
  return difference == 0;
}

/// Sets the top bit of each byte of `word` that is zero, and no other bit.
JOURNAL_INLINE inline std::uint64_t zeroBytes(std::uint64_t word) {
  constexpr std::uint64_t low = 0x7f7f7f7f7f7f7f7f;
  return ~(((word & low) + low) | word | low);
}

/// The index in memory of the first byte that is marked in a mask other than zero.
JOURNAL_INLINE inline std::size_t firstMarked(std::uint64_t mask) {
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
  return static_cast<std::size_t>(__builtin_ctzll(mask)) / 8;
#else
  return static_cast<std::size_t>(__builtin_clzll(mask)) / 8;
#endif
}

} // namespace detail

/// Compares with a text whose size the compiler knows, which turns this into a few instructions.
JOURNAL_INLINE inline bool sameBytes(char const* left, char const* right, std::size_t size) {
  if (!builtForSpeed || size < sizeof(std::uint32_t))
    return std::memcmp(left, right, size) == 0;
  if (size < sizeof(std::uint64_t))
    return detail::sameWords<std::uint32_t>(left, right, size);
  return detail::sameWords<std::uint64_t>(left, right, size);
}

/// The first `byte` in front of `end`; `end` when there is none.
JOURNAL_INLINE inline char const* findByte(char const* at, char const* end, char byte) {
  if (builtForSpeed) {
    auto const pattern = 0x0101010101010101 * static_cast<std::uint64_t>(byte);
    for (; end - at >= 8; at += 8)
      if (auto const found = detail::zeroBytes(load<std::uint64_t>(at) ^ pattern); found != 0)
        return at + detail::firstMarked(found);
  }
  while (at != end && *at != byte)
    ++at;
  return at;
}

} // namespace journal

#endif
