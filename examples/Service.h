// The service's side: it holds one log, answers requests and notifies of changes.
#ifndef EXAMPLES_SERVICE_H
#define EXAMPLES_SERVICE_H

#include <string>

#include "LogKinds.h"

template <class Kind>
class Service {
public:
  using Log = typename Kind::Log;
  using Call = typename Kind::Call;

  /// @param stored the log in the form of a list response
  explicit Service(std::string const& stored) { Kind::readLog(stored, entries, currentHandle); }

  /// Answers a request for this log with the whole log, and any other request with a failure.
  std::string answer(std::string const& request) const {
    if (JournalServiceHelper::getMethodFromXMLMsg(request) != Kind::listCode)
      return JournalServiceHelper::createXMLField(JournalServiceHelper::VALUE,
                                                  JournalServiceHelper::respBool(false));
    return Kind::answer(entries, currentHandle);
  }

  /// Adds another call of an entry's party, which moves the entry to the front of the log.
  /// @return the notification for the observers
  std::string addCall(typename Log::size_type index, Call const& call) {
    typename Kind::Item item = entries.at(index);
    item.callInfoList.push_front(call);
    markUnseen(item);
    entries.erase(entries.begin() + static_cast<typename Log::difference_type>(index));
    entries.push_front(item);
    ++currentHandle;
    std::string const nothingRemoved;
    return Kind::notification(item, nothingRemoved, JournalServiceObserverIfc::ENTRY_CHANGED,
                              currentHandle);
  }

  Log const& log() const { return entries; }
  unsigned int handle() const { return currentHandle; }

private:
  static void markUnseen(MissedCallItem& item) { item.viewed = false; }
  template <class Item>
  static void markUnseen(Item&) {} // only missed calls are marked

  Log entries;
  unsigned int currentHandle = 0;
};

#endif
