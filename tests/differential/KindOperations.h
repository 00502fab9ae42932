// The operations on one kind of log under names without the kind, for the library and for the
// reference: KindOperations<MissedCallItem, JournalServiceHelper>::readCall and so on.
#ifndef TESTS_DIFFERENTIAL_KINDOPERATIONS_H
#define TESTS_DIFFERENTIAL_KINDOPERATIONS_H

#include <deque>
#include <list>
#include <string>

#include "JournalServiceHelper.h"

namespace comparison {

template <class Item, class Operations>
struct KindOperations;

// The kind stands in the middle of the names, which only the preprocessor can vary.
#define JOURNAL_TESTED_KIND(KIND)                                                                  \
  template <class Operations>                                                                      \
  struct KindOperations<KIND##CallItem, Operations> {                                              \
    using Item = KIND##CallItem;                                                                   \
    using Info = KIND##CallItem::KIND##CallInfo;                                                   \
    static char const* name() { return #KIND; }                                                    \
    static bool readCall(char const* xml, Info& info) {                                            \
      return Operations::getXML##KIND##CallInfo(xml, info);                                        \
    }                                                                                              \
    static bool readCalls(char const* xml, std::list<Info>& list) {                                \
      return Operations::getXML##KIND##CallInfoList(xml, list);                                    \
    }                                                                                              \
    static bool readItem(char const* xml, Item& item) {                                            \
      return Operations::parseXML##KIND##CallItem(xml, item);                                      \
    }                                                                                              \
    static bool readItemText(std::string const& xml, Item& item) {                                 \
      return Operations::parseXML##KIND##CallItem(xml, item);                                      \
    }                                                                                              \
    static bool readLog(std::string const& xml, std::deque<Item>& items) {                         \
      return Operations::parseXML##KIND##CallList(xml, items);                                     \
    }                                                                                              \
    static bool readLogAndHandle(std::string const& xml, std::deque<Item>& items,                  \
                                 unsigned int& handle) {                                           \
      return Operations::parseXML##KIND##CallList(xml, items, handle);                             \
    }                                                                                              \
    static void writeBody(Item const& item, std::string& out, bool uniqueIdOnly) {                 \
      Operations::createXML##KIND##CallItemBody(item, out, uniqueIdOnly);                          \
    }                                                                                              \
    static void writeCalls(Item const& item, std::string& out) {                                   \
      Operations::createXML##KIND##CallInfoList(item, out);                                        \
    }                                                                                              \
    static std::string respond(std::deque<Item> const& items, unsigned int handle) {               \
      return Operations::respGet##KIND##CallList(items, handle);                                   \
    }                                                                                              \
    static std::string notify(Item const& item, std::string const& uniqueIdToDelete,               \
                              JournalServiceObserverIfc::ActionType action, unsigned int handle) { \
      return Operations::obsReq##KIND##CallsUpdate(item, uniqueIdToDelete, action, handle);        \
    }                                                                                              \
  }

JOURNAL_TESTED_KIND(Missed);
JOURNAL_TESTED_KIND(Dialled);
JOURNAL_TESTED_KIND(Received);
JOURNAL_TESTED_KIND(Forwarded);

#undef JOURNAL_TESTED_KIND

} // namespace comparison

#endif
