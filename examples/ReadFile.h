// Reads a message from a file.
#ifndef EXAMPLES_READFILE_H
#define EXAMPLES_READFILE_H

#include <stdexcept>
#include <string>

/// A file that cannot be read; what() names it and says why.
struct FileError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// @return all bytes of the file
/// Throws FileError when it cannot be read or is larger than any call log, 16 MiB.
std::string readFile(std::string const& path);

#endif
