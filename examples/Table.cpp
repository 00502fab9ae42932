// Lays out a table: measures the width of UTF-8 texts on a terminal, and pads them.
#include "Table.h"

#include <algorithm>
#include <cstdint>
#include <ostream>

namespace {

std::string const replacementCharacter = "\xEF\xBF\xBD"; // U+FFFD
std::string const ellipsis = "\xE2\x80\xA6";             // U+2026
std::string const gap = "  ";

struct Range {
  char32_t first;
  char32_t last;
};

template <std::size_t count>
bool isIn(Range const (&ranges)[count], char32_t c) {
  return std::any_of(std::begin(ranges), std::end(ranges),
                     [c](Range const& range) { return range.first <= c && c <= range.last; });
}

// Unicode's control characters, line separators and marks that change the writing direction.
constexpr Range controls[] = {{0x0000, 0x001F}, {0x007F, 0x009F},  {0x061C, 0x061C},
                              {0x200B, 0x200F}, {0x2028, 0x202E},  {0x2060, 0x206F},
                              {0xFEFF, 0xFEFF}, {0xE0000, 0xE007F}};

// The common marks that combine with the character before them.
constexpr Range combining[] = {{0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD},
                               {0x064B, 0x065F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF},
                               {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}};

// The scripts and symbols that take two columns.
constexpr Range wide[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0xA4CF},
                          {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},
                          {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},   {0x1F300, 0x1F64F},
                          {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

/// One character of a text: its code point and length, or one byte of invalid UTF-8.
struct Character {
  bool valid;
  char32_t code;
  std::size_t bytes;
};

/// The length that a first byte announces and the bits of the code point that it holds.
Character announcedBy(unsigned char first) {
  if (first < 0x80)
    return {true, first, 1};
  if (first >= 0xC2 && first <= 0xDF)
    return {true, first & 0x1FU, 2};
  if (first >= 0xE0 && first <= 0xEF)
    return {true, first & 0x0FU, 3};
  if (first >= 0xF0 && first <= 0xF4)
    return {true, first & 0x07U, 4};
  return {false, 0, 1};
}

Character characterAt(std::string const& text, std::size_t at) {
  constexpr Character invalid{false, 0, 1};
  constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000}; // by length: no longer forms
  Character character = announcedBy(static_cast<unsigned char>(text[at]));
  if (character.bytes > text.size() - at)
    return invalid;
  for (std::size_t i = 1; i < character.bytes; ++i) {
    auto const byte = static_cast<unsigned char>(text[at + i]);
    if ((byte & 0xC0U) != 0x80U)
      return invalid;
    character.code = (character.code << 6U) | (byte & 0x3FU);
  }
  bool const surrogate = character.code >= 0xD800 && character.code <= 0xDFFF;
  bool const outside = character.code < smallest[character.bytes] || character.code > 0x10FFFF;
  return surrogate || outside ? invalid : character;
}

bool isShown(Character const& character) {
  return character.valid && !isIn(controls, character.code);
}

std::size_t widthOf(Character const& character) {
  if (!isShown(character))
    return 1;
  if (isIn(combining, character.code))
    return 0;
  return isIn(wide, character.code) ? 2 : 1;
}

} // namespace

Cell fitCell(std::string const& text, std::size_t most) {
  Cell cell;
  std::size_t cutSize = 0; // how much of the cell leaves a column for the ellipsis
  std::size_t cutWidth = 0;
  for (std::size_t at = 0; at < text.size();) {
    Character const character = characterAt(text, at);
    std::size_t const width = widthOf(character);
    if (cell.width + width > most)
      return {cell.text.substr(0, cutSize) + ellipsis, cutWidth + 1};
    cell.text += isShown(character) ? text.substr(at, character.bytes) : replacementCharacter;
    cell.width += width;
    at += character.bytes;
    if (cell.width < most) {
      cutSize = cell.text.size();
      cutWidth = cell.width;
    }
  }
  return cell;
}

void Table::addColumn(std::string const& title, std::size_t most, Align align) {
  Cell cell = fitCell(title, most);
  std::size_t const width = cell.width;
  columns.push_back({std::move(cell), most, width, align});
}

void Table::addRow(std::vector<std::string> const& texts) {
  std::vector<Cell> cells;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    cells.push_back(fitCell(texts.at(i), columns[i].most));
    columns[i].width = std::max(columns[i].width, cells.back().width);
  }
  rows.push_back(std::move(cells));
}

void Table::print(std::ostream& out) const {
  std::vector<Cell> titles;
  std::vector<Cell> rules;
  for (Column const& column : columns) {
    titles.push_back(column.title);
    rules.push_back({std::string(column.width, '-'), column.width});
  }
  printRow(out, titles);
  printRow(out, rules);
  for (std::vector<Cell> const& cells : rows)
    printRow(out, cells);
}

void Table::printRow(std::ostream& out, std::vector<Cell> const& cells) const {
  std::string line;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    std::string const padding(columns[i].width - cells[i].width, ' ');
    bool const right = columns[i].align == Align::RIGHT;
    line += gap + (right ? padding : "") + cells[i].text + (right ? "" : padding);
  }
  out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
}
