// Messages from files, folders and the standard input, in order, worked on by several threads.
#ifndef JOURNALMSG_INPUT_H
#define JOURNALMSG_INPUT_H

#include <cstdint>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Common.h"
#include "inspect/Stream.h"

namespace journalmsg {

/// A message with the file that it was found in.
struct Item {
  inspect::Found found;
  std::shared_ptr<std::string const> file;

  std::string const& text() const { return found.text; }
  /// FILE:LINE, fit for a terminal.
  std::string place() const;
};

/// Calls take(item) for each message of all files, in order. Files that cannot be read are
/// complained about; the others are read all the same.
/// @return whether all could be read
bool forEachMessage(Options const& options, std::function<void(Item)> const& take);

/// The whole of one input.
std::string readAll(std::string const& path);

/// Calls read(bytes) for each piece of a file, which is unpacked if it is compressed.
void readPieces(std::string const& path, std::function<void(std::string_view)> const& read);

namespace detail {
inline constexpr std::size_t batchSize = std::size_t{1} << 19;

template <class Work>
auto workOn(std::vector<Item> const& items, Work const& work) {
  std::vector<decltype(work(items[0]))> results;
  results.reserve(items.size());
  for (Item const& item : items)
    results.push_back(work(item));
  return results;
}
} // namespace detail

/// Calls take(work(item)) for each message in order. `work` runs in options.jobs threads at a time.
/// @return whether all could be read
template <class Work, class Take>
bool workOnMessages(Options const& options, Work work, Take take) {
  if (options.jobs <= 1)
    return forEachMessage(options, [&](Item item) { take(work(item)); });
  using Results = std::vector<decltype(work(std::declval<Item const&>()))>;
  std::deque<std::future<Results>> running;
  auto const takeOldest = [&] {
    for (auto& result : running.front().get())
      take(std::move(result));
    running.pop_front();
  };
  std::vector<Item> batch;
  std::size_t bytes = 0;
  auto const start = [&] {
    if (running.size() >= options.jobs)
      takeOldest();
    running.push_back(std::async(std::launch::async, [&work, items = std::move(batch)] {
      return detail::workOn(items, work);
    }));
    batch.clear();
    bytes = 0;
  };
  bool const read = forEachMessage(options, [&](Item item) {
    bytes += item.text().size();
    batch.push_back(std::move(item));
    if (bytes >= detail::batchSize)
      start();
  });
  if (!batch.empty())
    start();
  while (!running.empty())
    takeOldest();
  return read;
}

} // namespace journalmsg

#endif
