// What the encoder and the decoder need to know about a kind of log. Only the code behind these
// pointers knows the types of records, so one encoder and one decoder serve all kinds.
#ifndef JOURNAL_RECORDS_RECORDOPS_H
#define JOURNAL_RECORDS_RECORDOPS_H

#include "records/FieldLists.h"
#include "records/Kinds.h"

namespace journal {

class FieldReader;
class RecordWriter;
class StrictParser;
struct FieldStates;

/// The pointers are to records and containers of one kind: a log is a std::deque of entries, calls
/// are a std::list.
struct RecordOps {
  // The fields in the order in which they are written, and a call's in the order in which plain
  // searches read them.
  LoopedFields entryFields;
  LoopedFields callFields;
  LoopedFields callRead;

  // Reading and writing the fields, unrolled where the code is built for speed.
  bool (*parseEntryFields)(StrictParser& parser, void* entry, FieldReader& reader,
                           FieldStates& states);
  bool (*parseCallFields)(StrictParser& parser, void* call, FieldReader& reader,
                          FieldStates& states);
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
