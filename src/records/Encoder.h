// Writes records: every field of a record in the order of its rows.
#ifndef JOURNAL_RECORDS_ENCODER_H
#define JOURNAL_RECORDS_ENCODER_H

#include <deque>
#include <string>

#include "CallLogItems.h"

namespace journal {

/// Appends an entry's UniqueId and, unless it is asked for alone, the entry's other elements and
/// its LogList.
template <class Item>
void appendItemBody(Item const& item, std::string& out, bool uniqueIdOnly);

/// Appends an entry's LogList, one Item per detail record.
template <class Item>
void appendInfoList(Item const& item, std::string& out);

/// Appends a log: one Entry per item.
template <class Item>
void appendEntries(std::deque<Item> const& items, std::string& out);

} // namespace journal

#endif
