// What all commands share: options, exit codes, output.
#ifndef JOURNALMSG_COMMON_H
#define JOURNALMSG_COMMON_H

#include <cstddef>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/Message.h"

namespace journalmsg {

enum ExitCode : int { fine = 0, findings = 1, usage = 2, failed = 3, nothing = 4 };

/// An input cannot be read; others may be.
struct Failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};
/// Output failed, which ends the program at once.
struct WriteFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};
/// The arguments do not fit.
struct Misuse : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The options of all commands; each command offers those that it has a use for.
struct Options {
  std::vector<std::string> files;
  std::string color = "auto";
  std::string format;
  std::optional<bool> scan;
  std::size_t limit = std::size_t{64} << 20;
  unsigned jobs = 1;
  bool redact = false;
  std::optional<inspect::Log> log;
};

/// Standard output. A closed pipe ends the program quietly; any other error is a WriteFailure.
class Output {
public:
  explicit Output(Options const& options);

  bool isTerminal() const { return terminal_; }
  bool isColored() const { return colored_; }

  /// Text that is fit for a terminal.
  void text(std::string_view text);
  /// Data: on a terminal everything that controls it is escaped.
  void data(std::string_view bytes);
  void flush();

  /// The text between the codes of a colour, if colours are wanted.
  std::string colored(std::string_view text, std::string_view code) const;

private:
  bool terminal_;
  bool colored_;
};

inline constexpr std::string_view bold = "1";
inline constexpr std::string_view faint = "2";
inline constexpr std::string_view red = "31";
inline constexpr std::string_view yellow = "33";
inline constexpr std::string_view cyan = "36";

void complain(std::string_view text);

/// Columns that a text takes on a terminal: its characters.
std::size_t widthOf(std::string_view text);
/// A text, quoted, cut to some characters, fit for a terminal.
std::string shown(std::string_view text, std::size_t most = 60);

/// Rows with aligned columns; the first row is the heading.
std::string alignedRows(std::vector<std::vector<std::string>> const& rows, std::string_view indent);

} // namespace journalmsg

#endif
