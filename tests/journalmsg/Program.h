// Runs the real program.
#ifndef TESTS_JOURNALMSG_PROGRAM_H
#define TESTS_JOURNALMSG_PROGRAM_H

#include <string>

struct Result {
  std::string out;
  std::string err;
  int code = 0;
};

/// Runs a shell command in an empty folder, with the program as journalmsg and the golden messages
/// and sample logs in $golden and $samples.
Result run(std::string const& command, std::string const& input = {});

#endif
