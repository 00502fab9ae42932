// journal-show: shows what one message of the journal service is, for integrators who debug the
// traffic.
#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "Check.h"
#include "Layout.h"
#include "Message.h"
#include "Reading.h"
#include "SafeText.h"

namespace {

enum ExitCode : int { SHOWN = 0, WITH_REMARKS = 1, FAILED = 2 };

constexpr std::size_t mostBytes = std::size_t{16} * 1024 * 1024;

char const* const description =
    "Shows what a message of the journal service is: its elements, what a reader makes of them, "
    "and remarks where it differs from what writers write.";

char const* const footer = R"(
A file holds one message. Bytes that are unfit for a terminal, and the backslash, are shown as
\xNN. A file may have up to 16 MiB.

Exit code, the highest of all files:
  0  shown, no remarks
  1  shown, with remarks
  2  wrong use, a file that cannot be read, or output that cannot be written)";

int complain(std::string const& text) {
  std::cerr << "journal-show: " << text << '\n';
  return FAILED;
}

[[noreturn]] void failReading(std::string const& path, std::string const& reason) {
  throw std::runtime_error("cannot read " + safeText(path) + ": " + reason);
}

std::string readAll(std::FILE* file, std::string const& path) {
  std::array<char, 65536> block{};
  std::string text;
  std::size_t got = 0;
  while ((got = std::fread(block.data(), 1, block.size(), file)) > 0) {
    text.append(block.data(), got);
    if (text.size() > mostBytes)
      failReading(path, "larger than 16 MiB");
  }
  if (std::ferror(file) != 0)
    failReading(path, std::generic_category().message(errno));
  return text;
}

std::string readFile(std::string const& path) {
  if (path == "-")
    return readAll(stdin, "the standard input");
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Closer> const file(std::fopen(path.c_str(), "rb"));
  if (!file)
    failReading(path, std::generic_category().message(errno));
  return readAll(file.get(), path);
}

int show(std::string const& path, bool heading, bool values) {
  std::string const text = readFile(path);
  Nodes const nodes = scan(text);
  Subject const subject = classify(text, nodes);
  Remarks const remarks = check(text, nodes, subject);
  if (heading)
    std::cout << "File " << safeText(path) << '\n';
  printLayout(std::cout, nodes, subject);
  printReading(std::cout, text, nodes, subject, values);
  remarks.print(std::cout);
  return remarks.empty() ? SHOWN : WITH_REMARKS;
}

int showAll(std::vector<std::string> const& paths, bool values) {
  int code = SHOWN;
  for (std::string const& path : paths) {
    try {
      code = std::max(code, show(path, paths.size() > 1, values));
    } catch (std::exception const& error) {
      code = complain(error.what());
    }
  }
  return code;
}

int run(int argc, char** argv) {
  CLI::App app(description, "journal-show");
  app.footer(footer);
  bool values = false;
  std::vector<std::string> paths;
  app.add_flag("--values", values, "show every field of the entries as readers get it");
  app.add_option("FILE", paths, "messages; the standard input when there is none, or for -")
      ->type_name("");
  try {
    app.parse(argc, argv);
  } catch (CLI::ParseError const& error) {
    return app.exit(error) == 0 ? SHOWN : FAILED;
  }
  return showAll(paths.empty() ? std::vector<std::string>{"-"} : paths, values);
}

} // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  try {
    int const code = run(argc, argv);
    return std::cout.flush() ? code : complain("the output cannot be written");
  } catch (std::exception const& error) {
    return complain(error.what());
  }
}
