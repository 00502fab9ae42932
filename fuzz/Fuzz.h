// Shared by the fuzz targets: what happens on a difference, and how the input is laid out.
#ifndef FUZZ_FUZZ_H
#define FUZZ_FUZZ_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace fuzz {

/// How many bytes at the front of the input choose what is run; the text follows them. Each target
/// defines it, and the mutator does not move these bytes.
extern std::size_t const selectorBytes;

/// Ends the run when the library and the reference differ.
inline void expectEqual(std::string const& difference) {
  if (difference.empty())
    return;
  std::fputs(difference.c_str(), stderr);
  std::abort();
}

inline std::string textOf(std::uint8_t const* bytes, std::size_t size) {
  return std::string(reinterpret_cast<char const*>(bytes), size);
}

} // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

#endif
