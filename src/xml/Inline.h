// How code is built: for speed, or for size (-Os).
#ifndef JOURNAL_XML_INLINE_H
#define JOURNAL_XML_INLINE_H

// JOURNAL_INLINE marks what is compiled in place, because constants are to reach it from its
// caller. Built for size, such code stands once and gets its constants as arguments.
#ifdef __OPTIMIZE_SIZE__
#define JOURNAL_INLINE
#else
#define JOURNAL_INLINE __attribute__((always_inline))
#endif

namespace journal {

#ifdef __OPTIMIZE_SIZE__
inline constexpr bool builtForSpeed = false;
#else
inline constexpr bool builtForSpeed = true;
#endif

} // namespace journal

#endif
