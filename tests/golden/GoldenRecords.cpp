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

} // namespace golden
