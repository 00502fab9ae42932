// Messages as a careless or an older writer might send them.
#ifndef BENCH_DAMAGE_H
#define BENCH_DAMAGE_H

#include <string>
#include <string_view>
#include <vector>

namespace bench {

enum class Damage {
  newlines, // a line break between any two tags
  swapped,  // in each record two neighbouring elements in each other's place
  missing,  // in each call an element missing that is always written
  repeated  // in each record one element twice
};

/// @param message a list response whose texts hold no markup
/// @param alwaysWritten the names of a call's elements that are never left out
/// @return the message with that damage in every record, at places that are random but always the
///         same
std::string damaged(std::string const& message, Damage damage,
                    std::vector<std::string_view> const& alwaysWritten);

} // namespace bench

#endif
