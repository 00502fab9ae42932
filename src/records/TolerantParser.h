// The fallback: continues where the strict parser stopped, over text of any kind.
#ifndef JOURNAL_RECORDS_TOLERANTPARSER_H
#define JOURNAL_RECORDS_TOLERANTPARSER_H

#include "records/FieldReader.h"
#include "records/RecordOps.h"
#include "records/StrictParser.h"

namespace journal {

// Each reads strictly as far as it can and tolerantly from there, with the result of plain
// searches. Each returns false when only plain searches can tell the result; the record is then
// half read.

/// One call, up to the end of the text.
bool parseCall(StrictParser& parser, RecordOps const& ops, void* call, FieldReader& reader);

/// Calls, from the end of a LogList's begin tag to the end of its close tag.
/// @param entryUnseen the fields of the entry that are still to be found
bool parseCalls(StrictParser& parser, RecordOps const& ops, void* calls, FieldReader& reader,
                FieldSet entryUnseen);

/// What ends an entry: its close tag, or the end of the text.
enum class Ending { tag, text };

/// One entry, its calls into `calls`, including the tag that ends it, if any. With Ending::tag,
/// what was read holds no Handle.
bool parseEntry(StrictParser& parser, RecordOps const& ops, void* entry, void* calls,
                FieldReader& reader, Ending ending);

} // namespace journal

#endif
