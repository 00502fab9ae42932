// Damages messages, as a faulty or an older writer might.
#ifndef BENCH_DAMAGE_H
#define BENCH_DAMAGE_H

#include <string>
#include <string_view>
#include <vector>

namespace bench {

enum class Damage {
  newlines, // a line break between any two elements
  swapped,  // two adjacent elements swapped in each record
  missing,  // an element that is always written missing from each call
  repeated  // one element repeated in each record
};

/// @param message a list response whose texts hold no markup
/// @param alwaysWritten the names of a call's elements that are never left out
/// @return the message with that damage in every record, at random places that are the same in
///         every run
std::string damaged(std::string const& message, Damage damage,
                    std::vector<std::string_view> const& alwaysWritten);

} // namespace bench

#endif
