// Counts the allocations that loading the libraries makes: one per constant that is too long for
// the string object itself, and no others. Nothing else in this program allocates before main.
#include <cstdio>
#include <string>

#include "memory/Allocations.h"
#include "vocabulary/Constants.h"

int main() {
  long const counted = allocations::made();
  long expected = 0;
  for (auto const& word : vocabulary::words)
    if (word.constant->size() > std::string().capacity())
      ++expected;
  std::printf("loading allocates %ld times, %ld constants are long\n", counted, expected);
  return expected > 0 && counted == expected ? 0 : 1;
}
