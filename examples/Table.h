// A table for people: columns line up in any script, and no text can control the terminal.
#ifndef EXAMPLES_TABLE_H
#define EXAMPLES_TABLE_H

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

/// A text that is safe to print, with its width in columns of the terminal.
struct Cell {
  std::string text;
  std::size_t width = 0;
};

/// Makes a UTF-8 text safe to print: control characters and invalid UTF-8 become U+FFFD, and a text
/// wider than `most` columns ends in an ellipsis.
Cell fitCell(std::string const& text, std::size_t most);

class Table {
public:
  enum class Align { LEFT, RIGHT };

  /// Adds a column, at most `most` columns of the terminal wide.
  void addColumn(std::string const& title, std::size_t most, Align align);

  /// Adds a row: one text per column, in their order.
  void addRow(std::vector<std::string> const& texts);

  /// Prints the titles, a rule and the rows, each column as wide as its widest cell.
  void print(std::ostream& out) const;

private:
  struct Column {
    Cell title;
    std::size_t most;
    std::size_t width;
    Align align;
  };

  void printRow(std::ostream& out, std::vector<Cell> const& cells) const;

  std::vector<Column> columns;
  std::vector<std::vector<Cell>> rows;
};

#endif
