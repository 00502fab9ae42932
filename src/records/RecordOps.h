// What the encoder and the decoder need to know about a kind of log. Only the code behind these
// pointers knows the types of records, so one encoder and one decoder serve all kinds.
#ifndef JOURNAL_RECORDS_RECORDOPS_H
#define JOURNAL_RECORDS_RECORDOPS_H

#include "records/FieldIndex.h"
#include "records/FieldLists.h"
#include "records/Kinds.h"

namespace journal {

class FieldReader;
class RecordWriter;
class StrictParser;
struct FieldStates;

/// The fields of a record, in the order in which they are written.
struct RecordFields {
  LoopedFields list;
  FieldIndex index;

  /// Reads them strictly, from the field number `first` on. Unrolled where the code is built for
  /// speed.
  bool (*parse)(StrictParser& parser, void* record, FieldReader& reader, FieldStates& states,
                std::size_t first);
};

/// The pointers are to records and containers of one kind: a log is a std::deque of entries, calls
/// are a std::list.
struct RecordOps {
  RecordFields entry;
  RecordFields call;
  LoopedFields callRead; // a call's fields in the order in which plain searches read them

  // Writing the fields, unrolled like reading.
  void (*writeEntryFields)(RecordWriter& writer, void const* entry);
  void (*writeCalls)(RecordWriter& writer, void const* entry);
  void (*writeEntries)(RecordWriter& writer, void const* log);

  // Filling the containers.
  void (*clearLog)(void* log);
  void* (*appendEntry)(void* log);
  void (*dropLastEntry)(void* log);
  void* (*callsOf)(void* entry);
  void (*clearCalls)(void* calls);
  void* (*appendCall)(void* calls);
  bool (*isEmpty)(void const* calls);
};

RecordOps const& opsOf(LogKind kind);

} // namespace journal

#endif
