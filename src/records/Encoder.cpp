// Writes records: every field of a record in the order of its descriptors.
#include "records/Encoder.h"

#include "records/RecordOps.h"
#include "records/RecordWriter.h"
#include "xml/Building.h"

namespace journal {

void erased::appendEntryBody(LogKind kind, void const* entry, std::string& out) {
  RecordWriter(opsOf(kind), out).appendEntryBody(entry);
}

void erased::appendUniqueId(std::string const& uniqueId, std::string& out) {
  if (!uniqueId.empty())
    append(out, element<word::UNIQUEID>, uniqueId);
}

void erased::appendCalls(LogKind kind, void const* entry, std::string& out) {
  RecordWriter(opsOf(kind), out).appendCalls(entry);
}

void erased::appendLog(LogKind kind, void const* log, std::string& out) {
  constexpr std::size_t ahead = 2048; // some records' worth
  RecordWriter(opsOf(kind), out, ahead).appendLog(log);
}

} // namespace journal
