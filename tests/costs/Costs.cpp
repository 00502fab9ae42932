// Runs one operation on a log of 100 entries TIMES times, for an instruction counter.
//
// usage: costs decode|encode missed|dialled|received|forwarded TIMES
#include <cstdio>
#include <cstdlib>
#include <string>

#include <malloc.h>

#include "Kinds.h"
#include "Logs.h"

namespace {

constexpr std::size_t entries = 100;

template <class Kind>
bool run(std::string const& operation, int times) {
  auto const log = bench::makeLog<Kind>(entries);
  auto const message = Kind::encode(log, 1); // the size hint is warm from here on
  for (int time = 0; time < times; ++time) {
    if (operation == "encode") {
      if (Kind::encode(log, 1).size() != message.size())
        return false;
    } else {
      typename Kind::Log decoded;
      Kind::decode(message, decoded);
      if (decoded.size() != entries)
        return false;
    }
  }
  return true;
}

bool run(std::string const& operation, std::string const& kind, int times) {
  if (operation != "decode" && operation != "encode")
    return false;
  if (kind == bench::Missed::name)
    return run<bench::Missed>(operation, times);
  if (kind == bench::Dialled::name)
    return run<bench::Dialled>(operation, times);
  if (kind == bench::Received::name)
    return run<bench::Received>(operation, times);
  if (kind == bench::Forwarded::name)
    return run<bench::Forwarded>(operation, times);
  return false;
}

} // namespace

int main(int count, char** arguments) {
  // Merges freed blocks with adjacent ones at once. Otherwise the cost of an allocation depends on
  // everything that was freed before, which moved a count by 8 %.
  if (mallopt(M_MXFAST, 0) != 1) {
    std::fputs("costs: the allocator cannot be set\n", stderr);
    return 2;
  }
  if (count != 4 || !run(arguments[1], arguments[2], std::atoi(arguments[3]))) {
    std::fprintf(stderr, "usage: %s decode|encode missed|dialled|received|forwarded TIMES\n",
                 arguments[0]);
    return 2;
  }
  return 0;
}
