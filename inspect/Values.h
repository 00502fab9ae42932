// Internal. Whether writers write a value like this.
#ifndef INSPECT_VALUES_H
#define INSPECT_VALUES_H

#include <optional>
#include <string>
#include <string_view>

#include "inspect/Explain.h"
#include "inspect/Format.h"

namespace inspect {

/// @param stored what readers store for it, where that is known
/// @return the rule that the value breaks
std::optional<RuleId> judge(Row const& row, std::string_view raw,
                            std::optional<std::string> const& stored);

/// Whether a value holds a tag that readers search for.
bool holdsElement(std::string_view raw);

bool isSchema(std::string_view name);

} // namespace inspect

#endif
