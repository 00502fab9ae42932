/// @file
/// JOURNAL_EXPORT marks what the shared libraries export; all else has hidden visibility.
#ifndef JOURNALSERVICEHELPER_EXPORT_H
#define JOURNALSERVICEHELPER_EXPORT_H

#if defined(__GNUC__)
#define JOURNAL_EXPORT __attribute__((visibility("default")))
#else
#define JOURNAL_EXPORT
#endif

#endif
