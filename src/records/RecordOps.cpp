// The operations of each kind on its own records and containers.
#include "records/RecordOps.h"

#include <deque>
#include <list>

#include "records/RecordWriter.h"
#include "records/StrictParser.h"

namespace journal {
namespace {

/// Converts to a record with its members' defaults, constructed in place. emplace_back() without
/// arguments would fill the record with zeros first, which took up to 11 % of the decoding time.
template <class Record>
struct Defaults {
  operator Record() const {
    Record record;
    return record;
  }
};

template <class Entry>
struct OpsFor {
  using Call = typename Kind<Entry>::Call;
  using Log = std::deque<Entry>;
  using Calls = std::list<Call>;

  static_assert(RecordWriter::canWrite(Kind<Entry>::entry) &&
                RecordWriter::canWrite(Kind<Entry>::call));

  // Fields unrolled. Built for size, nothing uses these two functions.
  template <auto const& fields>
  static bool parse(StrictParser& parser, void* record, FieldReader& reader, FieldStates& states,
                    std::size_t first) {
    return parseFields(UnrolledFields<fields>(), parser, record, reader, states, first);
  }
  static void writeEntryFields(RecordWriter& writer, void const* entry) {
    writer.append("", UnrolledFields<Kind<Entry>::entry>(), entry, "");
  }

  static void writeCalls(RecordWriter& writer, void const* entry) {
    for (auto const& call : static_cast<Entry const*>(entry)->callInfoList)
      writer.appendCall(fieldList<Kind<Entry>::call>(), &call);
  }
  static void writeEntries(RecordWriter& writer, void const* log) {
    for (auto const& entry : *static_cast<Log const*>(log))
      writer.appendEntry(&entry);
  }

  static void* appendEntry(void* log) {
    return &static_cast<Log*>(log)->emplace_back(Defaults<Entry>());
  }
  static void dropLastEntry(void* log) { static_cast<Log*>(log)->pop_back(); }
  // Four instantiations of clear() would take 1.3 KB more on the device.
  static void clearLog(void* log) {
    while (!static_cast<Log*>(log)->empty())
      dropLastEntry(log);
  }
  static void* callsOf(void* entry) { return &static_cast<Entry*>(entry)->callInfoList; }
  static void clearCalls(void* calls) { static_cast<Calls*>(calls)->clear(); }
  static void* appendCall(void* calls) {
    return &static_cast<Calls*>(calls)->emplace_back(Defaults<Call>());
  }
  static bool isEmpty(void const* calls) { return static_cast<Calls const*>(calls)->empty(); }

  template <auto const& fields>
  static constexpr RecordFields record = {fields, FieldIndex(fields),
                                          builtForSpeed ? parse<fields> : nullptr};

  static constexpr RecordOps ops = {record<Kind<Entry>::entry>,
                                    record<Kind<Entry>::call>,
                                    Kind<Entry>::callRead,
                                    builtForSpeed ? writeEntryFields : nullptr,
                                    writeCalls,
                                    writeEntries,
                                    clearLog,
                                    appendEntry,
                                    dropLastEntry,
                                    callsOf,
                                    clearCalls,
                                    appendCall,
                                    isEmpty};
};

} // namespace

bool parseLooped(LoopedFields fields, StrictParser& parser, void* record, FieldReader& reader,
                 FieldStates& states, std::size_t first) {
  return parseFields(fields, parser, record, reader, states, first);
}

RecordOps const& opsOf(LogKind kind) {
  static constexpr RecordOps const* ops[] = {
      &OpsFor<MissedCallItem>::ops, &OpsFor<DialledCallItem>::ops, &OpsFor<ReceivedCallItem>::ops,
      &OpsFor<ForwardedCallItem>::ops}; // in the order of LogKind
  return *ops[static_cast<std::size_t>(kind)];
}

} // namespace journal
