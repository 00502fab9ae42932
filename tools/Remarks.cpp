// Keeps and prints remarks.
#include "Remarks.h"

#include <algorithm>
#include <ostream>

void Remarks::add(Topic topic, std::size_t offset, std::string const& text) {
  if (counts[static_cast<std::size_t>(topic)]++ < mostOfATopic)
    kept.push_back({offset, text});
}

void Remarks::print(std::ostream& out) const {
  if (kept.empty()) {
    out << "No remarks\n";
    return;
  }
  std::vector<Remark> sorted = kept;
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](Remark const& a, Remark const& b) { return a.offset < b.offset; });
  out << "Remarks\n";
  for (Remark const& remark : sorted)
    out << "  offset " << remark.offset << ": " << remark.text << '\n';
  std::size_t total = 0;
  for (std::size_t const count : counts)
    total += count;
  if (total > kept.size())
    out << "  and " << total - kept.size() << " more of the same sorts\n";
}
