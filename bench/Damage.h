// Damages messages, as a faulty, an older or a newer writer might, or a faulty line.
#ifndef BENCH_DAMAGE_H
#define BENCH_DAMAGE_H

#include <string>

namespace bench {

enum class Damage {
  spaces,   // a space before a tenth of all tags
  indented, // each element on a line of its own, indented
  extended, // an unknown element at the end of each record
  unknown,  // an unknown element behind a tenth of the elements
  swapped,  // two adjacent elements swapped in each record
  repeated, // one element repeated in each record
  reversed, // all elements of each record reversed
  mixed,    // in each record one of the above, or none
  cut       // one byte in a thousand missing
};

/// @param message a list response whose texts hold no markup
/// @return the message with that damage behind its method, at random places that are the same in
///         every run; an entry's own elements and those of each call are one record each
std::string damaged(std::string const& message, Damage damage);

/// Where the part of a list response begins that is damaged: behind its method.
std::size_t bodyOf(std::string const& message);

} // namespace bench

#endif
