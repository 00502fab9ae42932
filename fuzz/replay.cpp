// Runs a fuzz target over the files of the folders given, without a fuzzer. The program
// fails on a difference, and when there are no files.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "Fuzz.h"

int main(int count, char** arguments) {
  std::size_t files = 0;
  for (int argument = 1; argument < count; ++argument)
    for (auto const& entry : std::filesystem::directory_iterator(arguments[argument])) {
      if (!entry.is_regular_file())
        continue;
      std::ifstream file(entry.path(), std::ios::binary);
      std::string const input{std::istreambuf_iterator<char>(file), {}};
      LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(input.data()), input.size());
      ++files;
    }
  std::cout << files << " inputs replayed\n";
  return files == 0 ? 1 : 0;
}
