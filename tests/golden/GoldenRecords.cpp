// Reads the golden messages.
#include "golden/GoldenRecords.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace golden {

std::string message(std::string const& name) {
  std::string const path = std::string(JOURNAL_GOLDEN_DIR) + "/" + name + ".xml";
  std::ifstream file(path, std::ios::binary);
  if (!file)
    throw std::runtime_error("cannot read " + path);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::string> bodies(std::string const& name) {
  std::string const log = message(name);
  std::string const begin = "<Entry>";
  std::vector<std::string> found;
  for (auto at = log.find(begin); at != std::string::npos; at = log.find(begin, at)) {
    at += begin.size();
    found.push_back(log.substr(at, log.find("</Entry>", at) - at));
  }
  return found;
}

} // namespace golden
