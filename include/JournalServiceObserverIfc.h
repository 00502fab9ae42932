/// @file
/// The kinds of change that the journal service reports to its observers.
#ifndef JOURNALSERVICEOBSERVERIFC_H
#define JOURNALSERVICEOBSERVERIFC_H

#include <cstdint>

/// Holds the kinds of change that an entry notification reports.
struct JournalServiceObserverIfc {
  /// The kind of change; element ActionType, one decimal digit. A service and its observers may
  /// agree on meanings for 3 to 9. A value below 0 is written as "0", a value above 9 as "9".
  enum ActionType : std::int32_t {
    ENTRY_ADDED = 0,   ///< the entry is new in its log
    ENTRY_CHANGED = 1, ///< the entry has changed, by another call for instance
    ENTRY_DELETED = 2  ///< the entry has left its log
  };
};

#endif
