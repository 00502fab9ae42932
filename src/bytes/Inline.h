// Whether the code is built for speed or for size (-Os).
#ifndef JOURNAL_BYTES_INLINE_H
#define JOURNAL_BYTES_INLINE_H

// JOURNAL_INLINE forces inlining where the caller's constants are to reach the function. Built for
// size, the function is compiled once and takes them as arguments.
#ifdef __OPTIMIZE_SIZE__
#define JOURNAL_INLINE
#else
#define JOURNAL_INLINE __attribute__((always_inline))
#endif

// JOURNAL_INLINE_ONCE forces inlining in either build, where each instantiation has one caller.
#define JOURNAL_INLINE_ONCE __attribute__((always_inline))

namespace journal {

#ifdef __OPTIMIZE_SIZE__
inline constexpr bool builtForSpeed = false;
#else
inline constexpr bool builtForSpeed = true;
#endif

} // namespace journal

#endif
