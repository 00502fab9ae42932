#include "Common.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#include "inspect/Text.h"

namespace journalmsg {

Output::Output(Options const& options) : terminal_(isatty(STDOUT_FILENO) == 1) {
  auto const* const refused = std::getenv("NO_COLOR");
  bool const wanted = terminal_ && (refused == nullptr || *refused == '\0');
  colored_ = options.color == "always" || (options.color == "auto" && wanted);
}

void Output::text(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
    flush();
}

void Output::data(std::string_view bytes) {
  if (!terminal_)
    return text(bytes);
  while (!bytes.empty()) {
    auto const end = std::min(bytes.find('\n'), bytes.size());
    auto line = inspect::safeText(bytes.substr(0, end));
    for (auto at = line.find("\\x5c"); at != std::string::npos; at = line.find("\\x5c", at + 1))
      line.replace(at, 4, "\\"); // the backslash does not control a terminal
    text(line);
    if (end < bytes.size())
      text("\n");
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
}

void Output::flush() {
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
    return;
  if (errno == EPIPE)
    std::_Exit(fine);
  throw WriteFailure("cannot write the output: " + std::generic_category().message(errno));
}

std::string Output::colored(std::string_view text, std::string_view code) const {
  return colored_ ? fmt::format("\x1b[{}m{}\x1b[0m", code, text) : std::string(text);
}

void complain(std::string_view text) {
  std::fflush(stdout);
  fmt::print(stderr, "journalmsg: {}\n", text);
}

std::size_t widthOf(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char byte) { return (byte & '\xC0') != '\x80'; }));
}

std::string shown(std::string_view text, std::size_t most) {
  auto safe = inspect::safeText(text.substr(0, 4 * most));
  if (widthOf(safe) <= most && text.size() <= 4 * most)
    return safe;
  std::size_t end = 0;
  for (std::size_t count = 0; end < safe.size(); ++end)
    if ((safe[end] & '\xC0') != '\x80' && ++count > most)
      break;
  safe.resize(end);
  return safe + "...";
}

std::string alignedRows(std::vector<std::vector<std::string>> const& rows,
                        std::string_view indent) {
  std::vector<std::size_t> widths;
  for (auto const& row : rows)
    for (std::size_t column = 0; column < row.size(); ++column) {
      widths.resize(std::max(widths.size(), column + 1));
      widths[column] = std::max(widths[column], widthOf(row[column]));
    }
  std::string text;
  for (auto const& row : rows) {
    std::string line(indent);
    for (std::size_t column = 0; column < row.size(); ++column) {
      line += row[column];
      line.append(widths[column] - widthOf(row[column]) + 2, ' ');
    }
    line.resize(line.find_last_not_of(' ') + 1);
    text += line + "\n";
  }
  return text;
}

} // namespace journalmsg
