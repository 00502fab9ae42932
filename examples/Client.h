// The client's side: it asks for one log, and keeps it up to date by notifications.
#ifndef EXAMPLES_CLIENT_H
#define EXAMPLES_CLIENT_H

#include <algorithm>
#include <string>

#include "LogKinds.h"

template <class Kind>
class Client {
public:
  using Log = typename Kind::Log;
  using Item = typename Kind::Item;

  std::string request() const { return Kind::request(); }

  /// Reads the service's answer: the whole log.
  void readAnswer(std::string const& answer) { Kind::readLog(answer, entries, currentHandle); }

  /// Reads a notification of this log: the entry that changed goes to the front.
  /// @return false for any other message; the log then stays as it is
  bool readNotification(std::string const& message) {
    if (JournalServiceHelper::getMethodFromXMLMsg(message) != Kind::updateCode)
      return false;
    Item changed;
    Kind::readEntry(message, changed);
    remove(changed.uniqueId);

    std::string removedId;
    if (JournalServiceHelper::getXMLValue(message, JournalServiceHelper::UNIQUEIDTODELETE,
                                          removedId))
      remove(removedId);
    JournalServiceHelper::getXMLValue(message, JournalServiceHelper::ACTIONTYPE, lastActionType);
    if (lastActionType != JournalServiceObserverIfc::ENTRY_DELETED)
      entries.push_front(changed);
    readHandle(message);
    return true;
  }

  Log const& log() const { return entries; }
  unsigned int handle() const { return currentHandle; }
  unsigned int lastAction() const { return lastActionType; }

private:
  void remove(std::string const& uniqueId) {
    auto const isMeant = [&uniqueId](Item const& item) { return item.uniqueId == uniqueId; };
    entries.erase(std::remove_if(entries.begin(), entries.end(), isMeant), entries.end());
  }

  void readHandle(std::string const& message) {
    Log none; // a notification has no Entry, only the handle is read
    Kind::readLog(message, none, currentHandle);
  }

  Log entries;
  unsigned int currentHandle = 0;
  unsigned int lastActionType = 0;
};

#endif
