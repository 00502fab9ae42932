// Runs the operations of the page natively: for each file named on the standard input, the
// messages found, then each explained and compared with the first, one JSON per line.
//
// usage: journal_web < LIST
#include <fstream>
#include <iostream>
#include <iterator>

#include "web/binding.h"

namespace {

std::size_t messageCount = 0;

std::string answer() {
  return {journal_output(), journal_output_size()};
}

void push(std::string const& bytes) {
  bytes.copy(journal_input(bytes.size()), bytes.size());
  journal_push();
}

/// Prints an answer with messages and adds them up: each has exactly one "offset".
void printMessages() {
  auto const json = answer();
  for (auto at = json.find("\"offset\":"); at != json.npos; at = json.find("\"offset\":", at + 1))
    ++messageCount;
  std::cout << json << '\n';
}

void run(std::string const& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::cerr << "journal_web: cannot read " << path << '\n';
    std::exit(3);
  }
  messageCount = 0;
  journal_open(0);
  push({std::istreambuf_iterator<char>(file), {}});
  printMessages();
  journal_finish();
  printMessages();
  for (std::size_t index = 0; index < messageCount; ++index) {
    journal_show(index, -1);
    std::cout << answer() << '\n';
    journal_compare(0, index);
    std::cout << answer() << '\n';
  }
}

} // namespace

int main() {
  std::ios::sync_with_stdio(false);
  for (std::string path; std::getline(std::cin, path);)
    run(path);
}
