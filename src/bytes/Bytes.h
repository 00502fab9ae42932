// Compares, copies and searches bytes, a machine word at a time where the code is built for speed.
// Every load stays within the bytes that the caller passes.
#ifndef JOURNAL_BYTES_BYTES_H
#define JOURNAL_BYTES_BYTES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "bytes/Inline.h"

namespace journal {

/// Loads a word from any address. It uses a packed structure, because g++ for MIPS compiles a
/// memcpy of eight bytes into a copy by way of the stack.
template <class Word>
JOURNAL_INLINE inline Word load(char const* at) {
  struct [[gnu::packed, gnu::may_alias]] Unaligned {
    Word word;
  };
  return reinterpret_cast<Unaligned const*>(at)->word;
}

namespace detail {

/// Compares whole words. The last one may overlap the one before it, so that no load goes past
/// the end.
template <class Word>
JOURNAL_INLINE inline bool sameWords(char const* left, char const* right, std::size_t size) {
  auto const last = size - sizeof(Word);
  Word difference = load<Word>(left + last) ^ load<Word>(right + last);
  for (std::size_t at = 0; at < last; at += sizeof(Word))
    difference |= load<Word>(left + at) ^ load<Word>(right + at);
  return difference == 0;
}

/// Compares two words, which may overlap.
template <class Word>
JOURNAL_INLINE inline bool sameEnds(char const* left, char const* right, std::size_t size) {
  auto const last = size - sizeof(Word);
  return ((load<Word>(left) ^ load<Word>(right)) |
          (load<Word>(left + last) ^ load<Word>(right + last))) == 0;
}

/// Copies two words, which may overlap.
template <class Word>
JOURNAL_INLINE inline void copyEnds(char* to, char const* from, std::size_t size) {
  auto const last = size - sizeof(Word);
  auto const front = load<Word>(from);
  auto const back = load<Word>(from + last);
  std::memcpy(to, &front, sizeof front);
  std::memcpy(to + last, &back, sizeof back);
}

struct Pair {
  std::uint64_t words[2];
};

#ifdef __SSE2__

/// 16 bytes that are compared at once.
struct Bytes16 {
  static constexpr std::size_t size = 16;

  JOURNAL_INLINE static inline bool same(char const* left, char const* right) {
    return differing(left, right) == 0;
  }
  JOURNAL_INLINE static inline bool sameFront(char const* left, char const* right,
                                              std::size_t front) {
    return (differing(left, right) & ((1U << front) - 1)) == 0;
  }

private:
  /// A bit for each byte.
  JOURNAL_INLINE static inline unsigned differing(char const* left, char const* right) {
    auto const equal = _mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<__m128i const*>(left)),
                                      _mm_loadu_si128(reinterpret_cast<__m128i const*>(right)));
    return static_cast<unsigned>(_mm_movemask_epi8(equal)) ^ 0xffff;
  }
};

/// A block of bytes that is searched at once for `byte` or NUL.
struct Block {
  static constexpr std::ptrdiff_t size = 16;

  JOURNAL_INLINE static inline unsigned find(char const* at, char byte) {
    auto const bytes = _mm_loadu_si128(reinterpret_cast<__m128i const*>(at));
    auto const found = _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(byte)),
                                    _mm_cmpeq_epi8(bytes, _mm_setzero_si128()));
    return static_cast<unsigned>(_mm_movemask_epi8(found));
  }
  JOURNAL_INLINE static inline int first(unsigned found) { return __builtin_ctz(found); }
};

#else

/// Ones, then zeros: loaded from index size - n, a mask for the first n bytes.
inline constexpr auto frontMasks = [] {
  std::array<char, 32> masks{};
  for (std::size_t at = 0; at < masks.size() / 2; ++at)
    masks[at] = '\xff';
  return masks;
}();

/// 16 bytes that are compared at once.
struct Bytes16 {
  static constexpr std::size_t size = frontMasks.size() / 2;

  JOURNAL_INLINE static inline bool same(char const* left, char const* right) {
    return sameEnds<std::uint64_t>(left, right, size);
  }
  JOURNAL_INLINE static inline bool sameFront(char const* left, char const* right,
                                              std::size_t front) {
    auto const* const mask = frontMasks.data() + size - front;
    std::uint64_t difference = 0;
    for (std::size_t at = 0; at < size; at += sizeof difference)
      difference |= (load<std::uint64_t>(left + at) ^ load<std::uint64_t>(right + at)) &
                    load<std::uint64_t>(mask + at);
    return difference == 0;
  }
};

/// A block of bytes that is searched at once for `byte` or NUL.
struct Block {
  static constexpr std::ptrdiff_t size = 8;

  /// Sets the top bit of each byte found, and no other bit, on either byte order.
  JOURNAL_INLINE static inline std::uint64_t find(char const* at, char byte) {
    constexpr std::uint64_t ones = 0x0101010101010101;
    auto const bytes = load<std::uint64_t>(at);
    return ~((nonzero(bytes) & nonzero(bytes ^ ones * static_cast<unsigned char>(byte))) | low);
  }
  JOURNAL_INLINE static inline int first(std::uint64_t found) {
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
    return __builtin_ctzll(found) / 8;
#else
    return __builtin_clzll(found) / 8;
#endif
  }

private:
  static constexpr std::uint64_t low = 0x7f7f7f7f7f7f7f7f;

  /// Sets the top bit of each byte that is not 0.
  JOURNAL_INLINE static inline std::uint64_t nonzero(std::uint64_t bytes) {
    return ((bytes & low) + low) | bytes;
  }
};

#endif

} // namespace detail

/// The fewest bytes that sameBytes compares.
inline constexpr std::size_t smallestCompared = sizeof(std::uint32_t);

/// Compares `size` bytes, at least smallestCompared. Where the compiler knows the size, this takes
/// a few instructions.
JOURNAL_INLINE inline bool sameBytes(char const* left, char const* right, std::size_t size) {
  if (!builtForSpeed)
    return std::char_traits<char>::compare(left, right, size) == 0;
  if (size < sizeof(std::uint64_t))
    return detail::sameWords<std::uint32_t>(left, right, size);
  return detail::sameWords<std::uint64_t>(left, right, size);
}

/// The most bytes that sameTag compares.
inline constexpr std::size_t largestTag = 2 * detail::Bytes16::size;

/// Compares `size` bytes, from smallestCompared to largestTag, with few branches where the compiler
/// does not know the size.
JOURNAL_INLINE inline bool sameTag(char const* left, char const* right, std::size_t size) {
  using detail::Bytes16;
  if (!builtForSpeed)
    return std::char_traits<char>::compare(left, right, size) == 0;
  if (size >= Bytes16::size) {
    auto const last = size - Bytes16::size;
    return Bytes16::same(left, right) && Bytes16::same(left + last, right + last);
  }
  if (size >= sizeof(std::uint64_t))
    return detail::sameEnds<std::uint64_t>(left, right, size);
  return detail::sameEnds<std::uint32_t>(left, right, size);
}

/// How many bytes sameFront loads.
inline constexpr std::size_t frontSize = detail::Bytes16::size;

/// Compares the first `size` bytes, at most frontSize. frontSize bytes must be readable at both
/// places.
JOURNAL_INLINE inline bool sameFront(char const* left, char const* right, std::size_t size) {
  if (!builtForSpeed)
    return std::char_traits<char>::compare(left, right, size) == 0;
  return detail::Bytes16::sameFront(left, right, size);
}

/// Copies bytes of a size that is only known at run time and usually small.
JOURNAL_INLINE inline void copyBytes(char* to, char const* from, std::size_t size) {
  if (!builtForSpeed || size > 2 * sizeof(detail::Pair))
    std::memcpy(to, from, size);
  else if (size >= sizeof(detail::Pair))
    detail::copyEnds<detail::Pair>(to, from, size);
  else if (size >= sizeof(std::uint64_t))
    detail::copyEnds<std::uint64_t>(to, from, size);
  else if (size >= sizeof(std::uint32_t))
    detail::copyEnds<std::uint32_t>(to, from, size);
  else
    for (std::size_t at = 0; at < size; ++at)
      to[at] = from[at];
}

/// The first `byte` or NUL before `end`; `end` when there is none.
JOURNAL_INLINE inline char const* findByteOrNul(char const* at, char const* end, char byte) {
  if (builtForSpeed)
    for (; end - at >= detail::Block::size; at += detail::Block::size)
      if (auto const found = detail::Block::find(at, byte); found != 0)
        return at + detail::Block::first(found);
  while (at != end && *at != byte && *at != '\0')
    ++at;
  return at;
}

} // namespace journal

#endif
