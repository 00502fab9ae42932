// Two messages compared, and notifications applied to a log.
#ifndef INSPECT_DIFF_H
#define INSPECT_DIFF_H

#include <optional>
#include <string>
#include <vector>

#include "inspect/Message.h"

namespace inspect {

/// One value in which two messages differ. Entries are matched by their unique ids.
struct Difference {
  std::string entry; ///< its unique id; empty when it is about the message
  std::string field; ///< surname, callInfoList[0].number; empty when one side lacks the entry
  std::optional<std::string> left; ///< absent when that side lacks it
  std::optional<std::string> right;
};

/// @param ignored names of fields that are not compared, as in comparedFields()
std::vector<Difference> diff(Decoded const& left, Decoded const& right,
                             std::vector<std::string> const& ignored = {});

/// The names that `ignored` may have.
std::vector<std::string> comparedFields();

/// Applies a notification to a list: an added entry goes to the front, a changed one stays where it
/// is, and the list gets the notification's handle. One that does not fit is applied as far as
/// possible.
/// @return what does not fit; empty when all does
std::string apply(EntryNotification const& notification, ListResponse& list);

} // namespace inspect

#endif
