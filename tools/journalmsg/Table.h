// Messages as CSV: a line for each call.
#ifndef JOURNALMSG_TABLE_H
#define JOURNALMSG_TABLE_H

#include <string>

#include "Common.h"

namespace journalmsg {

std::string csvHeading();
std::string csvOf(inspect::Identity const& identity, inspect::Decoded const& decoded,
                  std::string const& place);

/// The name of an action, or the number of one without a name.
std::string actionText(std::optional<std::uint32_t> action);

} // namespace journalmsg

#endif
