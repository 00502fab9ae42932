// Damages messages, as a faulty or an older writer might.
#include "Damage.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "Random.h"

namespace bench {

namespace {

using Pieces = std::vector<std::string>; // begin and close tags of containers, whole leaf elements

bool isLeaf(std::string const& piece) {
  return piece.find('<', 1) != std::string::npos;
}

std::string_view nameOf(std::string const& leaf) {
  return std::string_view(leaf).substr(1, leaf.find('>') - 1);
}

// A begin tag directly followed by its close tag makes a leaf; any other tag is a separate piece.
Pieces piecesOf(std::string_view text) {
  Pieces pieces;
  while (!text.empty()) {
    std::size_t const tagEnd = text.find('>') + 1;
    std::size_t const nextTag = text.find('<', tagEnd);
    std::size_t end = tagEnd;
    if (nextTag != std::string_view::npos && text[1] != '/' && text[nextTag + 1] == '/')
      end = text.find('>', nextTag) + 1;
    pieces.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  return pieces;
}

void remove(Pieces& record, std::vector<std::string_view> const& names, Random& random) {
  std::vector<std::size_t> candidates;
  for (std::size_t at = 0; at < record.size(); ++at)
    if (std::find(names.begin(), names.end(), nameOf(record[at])) != names.end())
      candidates.push_back(at);
  if (!candidates.empty())
    record[candidates[random.below(candidates.size())]].clear();
}

void damageRecord(Pieces& record, Damage damage, std::vector<std::string_view> const& names,
                  Random& random) {
  if (record.size() < 2)
    return;
  std::size_t const at = random.below(record.size() - 1);
  switch (damage) {
  case Damage::newlines:
    break; // goes between the pieces, not into a record
  case Damage::swapped:
    std::swap(record[at], record[at + 1]);
    break;
  case Damage::missing:
    remove(record, names, random);
    break;
  case Damage::repeated:
    record[at] += record[at];
    break;
  }
}

} // namespace

std::string damaged(std::string const& message, Damage damage,
                    std::vector<std::string_view> const& alwaysWritten) {
  static constexpr std::string_view METHOD_CLOSE = "</Method>";
  std::size_t const bodyAt = message.find(METHOD_CLOSE) + METHOD_CLOSE.size();
  std::string const between = damage == Damage::newlines ? "\n" : "";
  Random random(7);
  std::string out = message.substr(0, bodyAt);
  Pieces record;
  auto const endRecord = [&] {
    damageRecord(record, damage, alwaysWritten, random);
    for (std::string const& leaf : record)
      out += leaf + between;
    record.clear();
  };
  for (std::string const& piece : piecesOf(std::string_view(message).substr(bodyAt))) {
    if (isLeaf(piece)) {
      record.push_back(piece);
      continue;
    }
    endRecord();
    out += piece + between;
  }
  endRecord();
  return out;
}

} // namespace bench
