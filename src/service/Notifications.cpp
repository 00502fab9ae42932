// The service's notifications to its observers.
#include <algorithm>

#include "JournalServiceHelper.h"
#include "records/Encoder.h"
#include "xml/Building.h"
#include "xml/Envelope.h"
#include "xml/Text.h"

using namespace journal;

namespace {

using Action = JournalServiceObserverIfc::ActionType;

// One digit for every value: a value that has none gets the nearest.
std::string_view digitOf(Action action) {
  constexpr std::int32_t last = static_cast<std::int32_t>(word::DIGITS.size()) - 1;
  auto const digit = std::clamp<std::int32_t>(action, 0, last);
  return word::DIGITS.substr(static_cast<std::size_t>(digit), 1);
}

// Not enveloped: everything that follows is appended behind the declaration.
std::string entryUpdate(LogKind kind, Word method, void const* entry,
                        std::string const& uniqueIdToDelete, Action action, unsigned int handle) {
  auto message = joined({word::XMLHEADER, element<word::METHOD>.begin(), textOf(method),
                         element<word::METHOD>.close()});
  erased::appendEntryBody(kind, entry, message);
  if (!uniqueIdToDelete.empty())
    append(message, element<word::UNIQUEIDTODELETE>, uniqueIdToDelete);
  append(message, element<word::ACTIONTYPE>, digitOf(action));
  append(message, element<word::HANDLE>, handleText(handle));
  return message;
}

template <class Entry>
std::string entryUpdate(Entry const& entry, std::string const& uniqueIdToDelete, Action action,
                        unsigned int handle) {
  return entryUpdate(kindOf<Entry>, Kind<Entry>::update, &entry, uniqueIdToDelete, action, handle);
}

std::string counterUpdate(Word method, unsigned int count) {
  return enveloped({element<word::METHOD>.begin(), textOf(method), element<word::METHOD>.close(),
                    element<word::VALUE>.begin(), decimal(count), element<word::VALUE>.close()});
}

} // namespace

std::string JournalServiceHelper::obsReqMissedCallsUpdate(
    MissedCallItem const& item, std::string uniqueIdToDelete,
    JournalServiceObserverIfc::ActionType action, unsigned int handle) {
  return entryUpdate(item, uniqueIdToDelete, action, handle);
}

std::string JournalServiceHelper::obsReqDialledCallsUpdate(
    DialledCallItem const& item, std::string uniqueIdToDelete,
    JournalServiceObserverIfc::ActionType action, unsigned int handle) {
  return entryUpdate(item, uniqueIdToDelete, action, handle);
}

std::string JournalServiceHelper::obsReqReceivedCallsUpdate(
    ReceivedCallItem const& item, std::string uniqueIdToDelete,
    JournalServiceObserverIfc::ActionType action, unsigned int handle) {
  return entryUpdate(item, uniqueIdToDelete, action, handle);
}

std::string JournalServiceHelper::obsReqForwardedCallsUpdate(
    ForwardedCallItem const& item, std::string uniqueIdToDelete,
    JournalServiceObserverIfc::ActionType action, unsigned int handle) {
  return entryUpdate(item, uniqueIdToDelete, action, handle);
}

std::string JournalServiceHelper::obsReqMissedCallsCountUpdate(unsigned int count) {
  return counterUpdate(Word::MISSEDCALLSCOUNTUPDATE_XML, count);
}

std::string JournalServiceHelper::obsReqMissedGroupCallsUpdate(unsigned int count) {
  return counterUpdate(Word::MISSEDGROUPCALLSUPDATE_XML, count);
}
