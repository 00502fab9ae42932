// Writes records: every field of a record in the order of its descriptors.
//
// One encoder for all kinds; a thin layer of templates over it keeps callers type-safe.
#ifndef JOURNAL_RECORDS_ENCODER_H
#define JOURNAL_RECORDS_ENCODER_H

#include <string>

#include "records/Kinds.h"

namespace journal {

// The type-erased encoder. The pointers are to records of the kind; a log is a std::deque of
// entries.
namespace erased {
void appendEntryBody(LogKind kind, void const* entry, std::string& out);
void appendUniqueId(std::string const& uniqueId, std::string& out);
void appendCalls(LogKind kind, void const* entry, std::string& out);
/// Appends a log, one Entry per entry.
void appendLog(LogKind kind, void const* log, std::string& out);
} // namespace erased

/// Appends an entry's elements and its LogList, or its UniqueId alone.
template <class Entry>
void appendEntryBody(Entry const& entry, std::string& out, bool uniqueIdOnly) {
  if (uniqueIdOnly)
    erased::appendUniqueId(entry.uniqueId, out);
  else
    erased::appendEntryBody(kindOf<Entry>, &entry, out);
}

/// Appends an entry's LogList, one Item per call.
template <class Entry>
void appendCalls(Entry const& entry, std::string& out) {
  erased::appendCalls(kindOf<Entry>, &entry, out);
}

} // namespace journal

#endif
