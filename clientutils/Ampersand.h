// Searches a text for an ampersand. Nearly every text is short and holds none, so short texts are
// searched inline: on x86-64, calling memchr for each takes more than twice as long, which is a
// tenth of the time of decoding a log.
#ifndef CLIENTUTILS_AMPERSAND_H
#define CLIENTUTILS_AMPERSAND_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace ampersand {

// The sizes of texts that are searched inline.
inline constexpr std::size_t shortest = 4;
inline constexpr std::size_t longest = 32;

#ifdef __SSE2__

inline __m128i load4(char const* at) {
  int word;
  std::memcpy(&word, at, sizeof word);
  return _mm_cvtsi32_si128(word);
}
inline __m128i load8(char const* at) {
  return _mm_loadl_epi64(reinterpret_cast<__m128i const*>(at));
}
inline __m128i load16(char const* at) {
  return _mm_loadu_si128(reinterpret_cast<__m128i const*>(at));
}

inline bool isInEither(__m128i front, __m128i back) {
  auto const ampersands = _mm_set1_epi8('&');
  auto const found =
      _mm_or_si128(_mm_cmpeq_epi8(front, ampersands), _mm_cmpeq_epi8(back, ampersands));
  return _mm_movemask_epi8(found) != 0;
}

/// Loads as many bytes from the back of the text as from its front; the two meet or overlap.
inline bool isInShort(char const* text, std::size_t size) {
  if (size >= 16)
    return isInEither(load16(text), load16(text + size - 16));
  if (size >= 8)
    return isInEither(load8(text), load8(text + size - 8));
  return isInEither(load4(text), load4(text + size - 4));
}

#else

/// Searches word by word; the last word may overlap the one before it.
inline bool isInShort(char const* text, std::size_t size) {
  // A word at any address. A memcpy would go through the stack with g++ for MIPS.
  struct [[gnu::packed, gnu::may_alias]] Unaligned {
    std::uint32_t word;
  };
  constexpr std::uint32_t ones = 0x01010101;
  // Sets the top bit of at least one byte if the word holds an ampersand, and of none otherwise.
  // The xor turns each ampersand into 0. Then 1 is subtracted from each byte: a byte without its
  // top bit gains it only if it is 0, or by the borrow of a byte that is 0.
  auto const marked = [](char const* at) {
    auto const word = reinterpret_cast<Unaligned const*>(at)->word ^ ones * '&';
    return (word - ones) & ~word;
  };
  auto const last = size - sizeof(Unaligned);
  auto marks = marked(text + last);
  for (std::size_t at = 0; at < last; at += sizeof(Unaligned))
    marks |= marked(text + at);
  return (marks & ones << 7) != 0;
}

#endif

/// Not inlined, so that the path for short texts need not save registers for the call.
[[gnu::noinline]] inline bool isInOther(char const* text, std::size_t size) {
  return std::memchr(text, '&', size) != nullptr;
}

/// Whether a text of any length, with any bytes, holds an ampersand.
inline bool isIn(std::string_view text) {
  auto const size = text.size();
  return size < shortest || size > longest ? isInOther(text.data(), size)
                                           : isInShort(text.data(), size);
}

} // namespace ampersand

#endif
