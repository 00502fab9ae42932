// What observers of the journal service are told of: the kind of a change.
#ifndef JOURNALSERVICEOBSERVERIFC_H
#define JOURNALSERVICEOBSERVERIFC_H

#include <cstdint>

/// Holds the kinds of change that an entry notification reports.
struct JournalServiceObserverIfc {
  /// The kind of change, carried as one decimal digit by the element ActionType. The values 3 to 9
  /// are free for a service and its observers to agree on. A value below 0 is written as "0", a
  /// value above 9 as "9".
  enum ActionType : std::int32_t {
    ENTRY_ADDED = 0,   ///< the entry is new in its log
    ENTRY_CHANGED = 1, ///< the entry was in the log and has changed, by another call for instance
    ENTRY_DELETED = 2  ///< the entry has left its log
  };
};

#endif
