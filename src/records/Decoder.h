// Reads records: every field of a record, on the straight road where the text allows it.
#ifndef JOURNAL_RECORDS_DECODER_H
#define JOURNAL_RECORDS_DECODER_H

#include <deque>
#include <list>
#include <string_view>

#include "records/Kinds.h"

namespace journal {

/// Reads one detail record from a text that ends where the record ends.
template <class Item>
void readInfo(std::string_view text, typename Kind<Item>::Info& info);

/// Reads the detail records of the first LogList; the list is emptied first. Tells whether it holds
/// any.
template <class Item>
bool readInfoList(std::string_view text, std::list<typename Kind<Item>::Info>& list);

/// Reads one entry from a text that ends where the entry ends.
template <class Item>
void readItem(std::string_view text, Item& item);

/// Reads every entry of a message; the items are emptied first.
/// @param text ends at its first NUL, if it holds one
/// @return where the message's first Handle can stand: the message without as much of its front as
///         was seen to hold none; as in the text, a NUL ends it
template <class Item>
std::string_view readItems(std::string_view text, std::deque<Item>& items);

} // namespace journal

#endif
