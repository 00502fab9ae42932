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

/// Reads the fields of a record in a loop.
bool parseLooped(LoopedFields fields, StrictParser& parser, void* record, FieldReader& reader,
                 FieldStates& states, std::size_t first);

/// The fields of a record, in the order in which they are written.
struct RecordFields {
  LoopedFields list;
  FieldIndex index;
  bool (*parseUnrolled)(StrictParser& parser, void* record, FieldReader& reader,
                        FieldStates& states, std::size_t first); // built for speed only

  /// Reads them strictly, from the field number `first` on.
  bool parse(StrictParser& parser, void* record, FieldReader& reader, FieldStates& states,
             std::size_t first) const {
    return builtForSpeed ? parseUnrolled(parser, record, reader, states, first)
                         : parseLooped(list, parser, record, reader, states, first);
  }
};

/// The pointers are to records and containers of one kind: a log is a std::deque of entries, calls
/// are a std::list.
struct RecordOps {
  RecordFields entry;
  RecordFields call;
  LoopedFields callRead; // a call's fields in the order in which plain searches read them

  void (*writeUnrolledEntry)(RecordWriter& writer, void const* entry); // built for speed only
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
