// Counts the allocations that loading the library makes: one per vocabulary constant that is too
// long to be held in the string itself, and none besides.
//
//   load_count LIBRARY     LIBRARY is the path of the shared message library
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <link.h>

#include "memory/Allocations.h"

namespace {

constexpr std::size_t CONSTANTS = 163;
constexpr std::size_t HELD_INSIDE = 15; // characters that a string of libstdc++ holds in itself

// A table that stands in a file, copied out.
template <class Entry>
std::vector<Entry> tableAt(std::string const& file, std::size_t offset, std::size_t size) {
  std::vector<Entry> table(size / sizeof(Entry));
  file.copy(reinterpret_cast<char*>(table.data()), table.size() * sizeof(Entry), offset);
  return table;
}

// The names of the exported strings of the class that holds the vocabulary.
std::vector<std::string> constantNames(char const* library) {
  std::ifstream stream(library, std::ios::binary);
  std::string const file((std::istreambuf_iterator<char>(stream)), {});
  std::vector<std::string> names;
  auto const header = tableAt<ElfW(Ehdr)>(file, 0, sizeof(ElfW(Ehdr))).front();
  auto const sections =
      tableAt<ElfW(Shdr)>(file, header.e_shoff, header.e_shnum * sizeof(ElfW(Shdr)));
  for (auto const& section : sections) {
    if (section.sh_type != SHT_DYNSYM)
      continue;
    for (auto const& symbol : tableAt<ElfW(Sym)>(file, section.sh_offset, section.sh_size)) {
      std::string const name = file.c_str() + sections[section.sh_link].sh_offset + symbol.st_name;
      if (symbol.st_size == sizeof(std::string) && ELF32_ST_TYPE(symbol.st_info) == STT_OBJECT &&
          name.find("_ZN20JournalServiceHelper") == 0)
        names.push_back(name);
    }
  }
  return names;
}

long expectedCount(void* library, std::vector<std::string> const& names) {
  long count = 0;
  for (auto const& name : names) {
    auto const* const constant = static_cast<std::string const*>(dlsym(library, name.c_str()));
    if (constant != nullptr && constant->size() > HELD_INSIDE)
      ++count;
  }
  return count;
}

} // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("usage: load_count LIBRARY\n", stderr);
    return 2;
  }
  void* library = nullptr;
  auto const counted =
      allocations::countedIn([&] { library = dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL); });
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 2;
  }
  auto const names = constantNames(arguments[1]);
  auto const expected = expectedCount(library, names);
  std::printf("loading allocates %ld times; %ld of the %zu constants are longer than %zu\n",
              counted, expected, names.size(), HELD_INSIDE);
  return names.size() == CONSTANTS && expected > 0 && counted == expected ? 0 : 1;
}
