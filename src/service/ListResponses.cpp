// The service's answers to list requests: whole logs.
#include <algorithm>
#include <atomic>
#include <cstdint>
#include <limits>

#include "JournalServiceHelper.h"
#include "records/Encoder.h"
#include "xml/Building.h"
#include "xml/Text.h"

using namespace journal;

namespace {

// The length of the longest answer so far, of any kind: the library's only state. It only affects
// how much memory is reserved, so a relaxed maximum is enough.
std::atomic<std::uint32_t> listResponseSizeHint{0};

// Reserved beyond the longest answer, for a log that has grown by a few entries since.
constexpr std::size_t roomToGrow = 4096;

void raiseSizeHint(std::size_t size) {
  auto const length = static_cast<std::uint32_t>(
      std::min<std::size_t>(size, std::numeric_limits<std::uint32_t>::max()));
  auto hint = listResponseSizeHint.load(std::memory_order_relaxed);
  while (hint < length &&
         !listResponseSizeHint.compare_exchange_weak(hint, length, std::memory_order_relaxed))
    continue;
}

std::string listResponse(LogKind kind, Word method, void const* log, unsigned int handle) {
  std::string message;
  message.reserve(listResponseSizeHint.load(std::memory_order_relaxed) + roomToGrow);
  append(message, element<word::METHOD>, textOf(method));
  erased::appendLog(kind, log, message);
  append(message, element<word::HANDLE>, handleText(handle));
  raiseSizeHint(message.size());
  return message;
}

template <class Entry>
std::string listResponse(std::deque<Entry> const& log, unsigned int handle) {
  return listResponse(kindOf<Entry>, Kind<Entry>::method, &log, handle);
}

} // namespace

std::string JournalServiceHelper::respGetMissedCallList(std::deque<MissedCallItem> const& items,
                                                        unsigned int handle) {
  return listResponse(items, handle);
}

std::string JournalServiceHelper::respGetDialledCallList(std::deque<DialledCallItem> const& items,
                                                         unsigned int handle) {
  return listResponse(items, handle);
}

std::string JournalServiceHelper::respGetReceivedCallList(std::deque<ReceivedCallItem> const& items,
                                                          unsigned int handle) {
  return listResponse(items, handle);
}

std::string
JournalServiceHelper::respGetForwardedCallList(std::deque<ForwardedCallItem> const& items,
                                               unsigned int handle) {
  return listResponse(items, handle);
}
