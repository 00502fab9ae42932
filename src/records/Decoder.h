// Reads records: a strict fast path with a general fallback; both give the same result.
//
// One decoder for all kinds; a thin layer of templates over it keeps callers type-safe.
#ifndef JOURNAL_RECORDS_DECODER_H
#define JOURNAL_RECORDS_DECODER_H

#include <deque>
#include <list>
#include <string>

#include "records/Kinds.h"

namespace journal {

// The type-erased decoder. The pointers are to records and containers of the kind: a log is a
// std::deque of entries, calls are a std::list.
namespace erased {
bool decodeCall(LogKind kind, char const* text, void* call);
bool decodeCalls(LogKind kind, char const* text, void* calls);
void decodeEntry(LogKind kind, char const* text, void* entry, void* calls);
bool decodeLog(LogKind kind, std::string const& text, void* log);
bool decodeLog(LogKind kind, std::string const& text, void* log, unsigned int& handle);
} // namespace erased

// The operations. Texts end at their first NUL; a null pointer is an empty text. All but
// decodeCalls always return true.

/// Reads one call from the inside of an Item.
template <class Call>
bool decodeCall(char const* text, Call& call) {
  return erased::decodeCall(kindOf<Call>, text, &call);
}

/// Reads the calls of the first LogList; the list is cleared first. Returns whether there are any.
template <class Call>
bool decodeCalls(char const* text, std::list<Call>& calls) {
  return erased::decodeCalls(kindOf<Call>, text, &calls);
}

/// Reads one entry from the inside of an Entry. Without any call in the text, the entry keeps the
/// calls that it has.
template <class Entry>
bool decodeEntry(char const* text, Entry& entry) {
  decltype(entry.callInfoList) calls;
  erased::decodeEntry(kindOf<Entry>, text, &entry, &calls);
  if (!calls.empty())
    entry.callInfoList.swap(calls);
  return true;
}

/// Reads every entry of a message; the log is cleared first.
template <class Entry>
bool decodeLog(std::string const& text, std::deque<Entry>& log) {
  return erased::decodeLog(kindOf<Entry>, text, &log);
}

/// The same, and the message's handle.
template <class Entry>
bool decodeLog(std::string const& text, std::deque<Entry>& log, unsigned int& handle) {
  return erased::decodeLog(kindOf<Entry>, text, &log, handle);
}

} // namespace journal

#endif
