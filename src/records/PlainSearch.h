// Reads records from any text by plain searches, as the format defines it.
#ifndef JOURNAL_RECORDS_PLAINSEARCH_H
#define JOURNAL_RECORDS_PLAINSEARCH_H

#include <string_view>

#include "records/FieldReader.h"
#include "records/RecordOps.h"

namespace journal {

// Each reads from a text that ends where the record ends. Each sets every field that is read, so
// nothing remains of a parser's attempt.

/// One call.
void searchCall(std::string_view text, RecordOps const& ops, void* call, FieldReader& reader);

/// The calls in the first LogList; `calls` is cleared first.
void searchCalls(std::string_view text, RecordOps const& ops, void* calls, FieldReader& reader);

/// One entry, its calls into `calls`.
void searchEntry(std::string_view text, RecordOps const& ops, void* entry, void* calls,
                 FieldReader& reader);

} // namespace journal

#endif
