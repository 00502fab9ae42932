// Looks for an ampersand in a text. Nearly every text is short and holds none, so the search is
// made in place: on x86-64, calling memchr for each takes more than twice as long, which is a tenth
// of the time of decoding a log.
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

// The sizes of the texts that count as short.
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

/// As much is loaded from the back of the text as from its front; the two meet or overlap.
inline bool isInShort(char const* text, std::size_t size) {
  if (size >= 16)
    return isInEither(load16(text), load16(text + size - 16));
  if (size >= 8)
    return isInEither(load8(text), load8(text + size - 8));
  return isInEither(load4(text), load4(text + size - 4));
}

#else

/// By words; the last may overlap the one before it.
inline bool isInShort(char const* text, std::size_t size) {
  // A word at any address; g++ for MIPS takes a memcpy over the stack.
  struct [[gnu::packed, gnu::may_alias]] Unaligned {
    std::uint32_t word;
  };
  constexpr std::uint32_t ones = 0x01010101;
  // Sets the top bit of at least one byte if the word holds an ampersand, and of none otherwise.
  // The xor makes each ampersand 0; a byte without its top bit gains it, when 1 is taken from each
  // byte, only by being 0 or by the borrow of such a byte.
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

/// Apart, so that the way of short texts saves no registers for it.
[[gnu::noinline]] inline bool isInOther(char const* text, std::size_t size) {
  return std::memchr(text, '&', size) != nullptr;
}

/// Whether a text, of any length and with any bytes, holds an ampersand.
inline bool isIn(std::string_view text) {
  auto const size = text.size();
  return size < shortest || size > longest ? isInOther(text.data(), size)
                                           : isInShort(text.data(), size);
}

} // namespace ampersand

#endif
