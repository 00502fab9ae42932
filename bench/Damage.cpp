// Damages messages, as a faulty, an older or a newer writer might, or a faulty line.
#include "Damage.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "Random.h"

namespace bench {

namespace {

using Pieces = std::vector<std::string>; // begin and close tags of containers, whole leaf elements

char const* const UNKNOWN[] = {"<Line>2</Line>", "<CostCentre>north</CostCentre>",
                               "<RingingTime>00:00:12</RingingTime>"};

bool isLeaf(std::string const& piece) {
  return piece.find('<', 1) != std::string::npos;
}

bool isClose(std::string const& tag) {
  return tag[1] == '/';
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

std::string lineBreak(std::size_t depth) {
  return "\n" + std::string(2 * depth, ' ');
}

void addSpaces(std::string& piece, Random& random) {
  if (isLeaf(piece) && random.percent(10))
    piece.insert(piece.rfind('<'), " ");
  if (random.percent(10))
    piece.insert(0, " ");
}

void addUnknown(std::string& leaf, Random& random) {
  if (random.percent(10))
    leaf += random.oneOf(UNKNOWN);
}

void swapTwo(Pieces& record, Random& random) {
  if (record.size() < 2)
    return;
  std::size_t const at = random.below(record.size() - 1);
  std::swap(record[at], record[at + 1]);
}

void repeatOne(Pieces& record, Random& random) {
  std::string& leaf = record[random.below(record.size())];
  leaf += leaf;
}

// One of the damages in front of the mixed one, or none.
Damage oneOfMixed(Random& random) {
  constexpr auto none = static_cast<std::size_t>(Damage::mixed);
  std::size_t const one = random.below(none + 1);
  return one == none ? Damage::cut : static_cast<Damage>(one);
}

/// @param record not empty
void damageRecord(Pieces& record, Damage damage, std::size_t depth, Random& random) {
  auto const forEachLeaf = [&record](auto change) {
    std::for_each(record.begin(), record.end(), change);
  };
  switch (damage) {
  case Damage::spaces:
    return forEachLeaf([&](std::string& leaf) { addSpaces(leaf, random); });
  case Damage::indented:
    return forEachLeaf([&](std::string& leaf) { leaf.insert(0, lineBreak(depth)); });
  case Damage::extended:
    return record.push_back(random.oneOf(UNKNOWN));
  case Damage::unknown:
    return forEachLeaf([&](std::string& leaf) { addUnknown(leaf, random); });
  case Damage::swapped:
    return swapTwo(record, random);
  case Damage::repeated:
    return repeatOne(record, random);
  case Damage::reversed:
    return std::reverse(record.begin(), record.end());
  case Damage::mixed:
    return damageRecord(record, oneOfMixed(random), depth, random);
  case Damage::cut:
    return; // not by record
  }
}

// Goes between the records.
void damageTag(std::string& tag, Damage damage, std::size_t depth, Random& random) {
  if (damage == Damage::spaces)
    addSpaces(tag, random);
  else if (damage == Damage::indented)
    tag.insert(0, lineBreak(depth));
}

std::string withDamagedRecords(std::string_view body, Damage damage, Random& random) {
  std::string out;
  Pieces record;
  std::size_t depth = 0;
  auto const endRecord = [&] {
    if (!record.empty())
      damageRecord(record, damage, depth, random);
    for (std::string const& leaf : record)
      out += leaf;
    record.clear();
  };
  for (std::string& piece : piecesOf(body)) {
    if (isLeaf(piece)) {
      record.push_back(std::move(piece));
      continue;
    }
    endRecord();
    bool const closes = isClose(piece);
    depth -= closes ? 1 : 0;
    damageTag(piece, damage, depth, random);
    depth += closes ? 0 : 1;
    out += piece;
  }
  endRecord();
  return out;
}

std::string withBytesCut(std::string_view body, Random& random) {
  std::string out;
  for (char const byte : body)
    if (random.below(1000) != 0)
      out += byte;
  return out;
}

} // namespace

std::size_t bodyOf(std::string const& message) {
  static constexpr std::string_view METHOD_CLOSE = "</Method>";
  return message.find(METHOD_CLOSE) + METHOD_CLOSE.size();
}

std::string damaged(std::string const& message, Damage damage) {
  std::size_t const bodyAt = bodyOf(message);
  auto const body = std::string_view(message).substr(bodyAt);
  Random random(7);
  return message.substr(0, bodyAt) + (damage == Damage::cut
                                          ? withBytesCut(body, random)
                                          : withDamagedRecords(body, damage, random));
}

} // namespace bench
