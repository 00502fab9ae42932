// The records that the golden messages of this folder carry, typed by hand.
//
// A decoder does not give back exactly what an encoder was given: some members are not read back,
// and texts that are copied raw come back unescaped.
#ifndef TESTS_GOLDEN_GOLDENRECORDS_H
#define TESTS_GOLDEN_GOLDENRECORDS_H

#include <deque>
#include <string>
#include <vector>

#include "members/Equality.h"

namespace golden {

/// The bytes of tests/golden/<name>.xml. Throws std::runtime_error when there is no such file.
std::string message(std::string const& name);

/// The bodies of the entries in a golden log.
std::vector<std::string> bodies(std::string const& name);

/// The entries of the golden log <kind>-log.xml.
template <class Item>
struct Records {
  static unsigned int const HANDLE;

  /// All texts set, markup and non-ASCII characters in names, two calls.
  static Item full();
  static Item decodedFull();

  /// One text set, and one call in which nothing is; comes back unchanged.
  static Item sparse();

  /// Full and sparse are among them.
  static std::deque<Item> log();
  static std::deque<Item> decodedLog() {
    auto log = Records::log();
    for (Item& item : log)
      if (members::equal(item, full()))
        item = decodedFull();
    return log;
  }
};

// What Golden<Kind>.cpp define.
#define GOLDEN_RECORDS(Item)                                                                       \
  template <>                                                                                      \
  unsigned int const Records<Item>::HANDLE;                                                        \
  template <>                                                                                      \
  Item Records<Item>::full();                                                                      \
  template <>                                                                                      \
  Item Records<Item>::decodedFull();                                                               \
  template <>                                                                                      \
  Item Records<Item>::sparse();                                                                    \
  template <>                                                                                      \
  std::deque<Item> Records<Item>::log()

GOLDEN_RECORDS(MissedCallItem);
GOLDEN_RECORDS(DialledCallItem);
GOLDEN_RECORDS(ReceivedCallItem);
GOLDEN_RECORDS(ForwardedCallItem);

#undef GOLDEN_RECORDS

} // namespace golden

#endif
