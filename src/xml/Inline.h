// Marks what is compiled in place, because constants are to reach it from its caller.
#ifndef JOURNAL_XML_INLINE_H
#define JOURNAL_XML_INLINE_H

#define JOURNAL_INLINE __attribute__((always_inline))

#endif
