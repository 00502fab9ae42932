// Reads a file block by block, so that an endless one is detected.
#include "ReadFile.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <system_error>

namespace {

constexpr std::size_t mostBytes = std::size_t{16} * 1024 * 1024;

[[noreturn]] void fail(std::string const& path, std::string const& reason) {
  throw FileError("cannot read " + path + ": " + reason);
}

} // namespace

std::string readFile(std::string const& path) {
  errno = 0;
  std::ifstream in(path, std::ios::binary);
  std::array<char, 65536> block{};
  std::string text;
  while (in) {
    in.read(block.data(), block.size());
    text.append(block.data(), static_cast<std::size_t>(in.gcount()));
    if (text.size() > mostBytes)
      fail(path, "larger than 16 MiB");
  }
  if (!in.is_open() || in.bad())
    fail(path, std::generic_category().message(errno)); // a directory opens, but cannot be read
  return text;
}
