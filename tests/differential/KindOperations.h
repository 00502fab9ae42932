// The operations on one kind of log under names without the kind, for the library and for the
// reference: KindOperations<MissedCallItem, JournalServiceHelper>::readCall and so on.
#ifndef TESTS_DIFFERENTIAL_KINDOPERATIONS_H
#define TESTS_DIFFERENTIAL_KINDOPERATIONS_H

#include <deque>
#include <list>
#include <string>

#include "JournalServiceHelper.h"
#include "differential/Comparison.h"

namespace comparison {

template <class ItemType, class Operations>
struct KindOperations;

// The kind is part of the operations' names, which only the preprocessor can vary.
#define JOURNAL_TESTED_KIND(KIND, LOWER_CASE)                                                      \
  template <class Operations>                                                                      \
  struct KindOperations<KIND##CallItem, Operations> {                                              \
    using Item = KIND##CallItem;                                                                   \
    using Info = KIND##CallItem::KIND##CallInfo;                                                   \
    using InfoList = std::list<Info>;                                                              \
    using Log = std::deque<Item>;                                                                  \
    static constexpr Kind KIND_OF_LOG = Kind::LOWER_CASE;                                          \
    static constexpr char const* NAME = #LOWER_CASE;                                               \
    static std::string listMethod() { return "<Method><get" #KIND "CallList></Method>"; }          \
    static std::string updateMethod() { return "<Method><" #LOWER_CASE "CallsUpdate></Method>"; }  \
                                                                                                   \
    static bool readCall(char const* xml, Info& info) {                                            \
      return Operations::getXML##KIND##CallInfo(xml, info);                                        \
    }                                                                                              \
    static bool readCalls(char const* xml, InfoList& list) {                                       \
      return Operations::getXML##KIND##CallInfoList(xml, list);                                    \
    }                                                                                              \
    static bool readItem(char const* xml, Item& item) {                                            \
      return Operations::parseXML##KIND##CallItem(xml, item);                                      \
    }                                                                                              \
    static bool readItemText(std::string const& xml, Item& item) {                                 \
      return Operations::parseXML##KIND##CallItem(xml, item);                                      \
    }                                                                                              \
    static bool readLog(std::string const& xml, Log& items) {                                      \
      return Operations::parseXML##KIND##CallList(xml, items);                                     \
    }                                                                                              \
    static bool readLogAndHandle(std::string const& xml, Log& items, unsigned int& handle) {       \
      return Operations::parseXML##KIND##CallList(xml, items, handle);                             \
    }                                                                                              \
    static void writeBody(Item const& item, std::string& out, bool uniqueIdOnly) {                 \
      Operations::createXML##KIND##CallItemBody(item, out, uniqueIdOnly);                          \
    }                                                                                              \
    static void writeCalls(Item const& item, std::string& out) {                                   \
      Operations::createXML##KIND##CallInfoList(item, out);                                        \
    }                                                                                              \
    static std::string respond(Log const& items, unsigned int handle) {                            \
      return Operations::respGet##KIND##CallList(items, handle);                                   \
    }                                                                                              \
    static std::string notify(Item const& item, std::string const& uniqueIdToDelete,               \
                              JournalServiceObserverIfc::ActionType action, unsigned int handle) { \
      return Operations::obsReq##KIND##CallsUpdate(item, uniqueIdToDelete, action, handle);        \
    }                                                                                              \
  }

JOURNAL_TESTED_KIND(Missed, missed);
JOURNAL_TESTED_KIND(Dialled, dialled);
JOURNAL_TESTED_KIND(Received, received);
JOURNAL_TESTED_KIND(Forwarded, forwarded);

#undef JOURNAL_TESTED_KIND

/// Calls visit(item) with an empty entry of the kind, whose type tells which kind it is.
template <class Visit>
auto withKind(Kind kind, Visit visit) {
  switch (kind) {
  case Kind::missed:
    return visit(MissedCallItem());
  case Kind::dialled:
    return visit(DialledCallItem());
  case Kind::received:
    return visit(ReceivedCallItem());
  case Kind::forwarded:
    break;
  }
  return visit(ForwardedCallItem());
}

} // namespace comparison

#endif
