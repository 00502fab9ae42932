// Internal. The names of the members of our JSON; those of records come from the records.
#ifndef INSPECT_JSONNAMES_H
#define INSPECT_JSONNAMES_H

#include <string_view>

namespace inspect::json {

#define NAME(name) inline constexpr std::string_view name = #name;
NAME(action)
NAME(bytes)
NAME(callLogEnabled)
NAME(code)
NAME(declared)
NAME(depth)
NAME(element)
NAME(entries)
NAME(entry)
NAME(entryIds)
NAME(field)
NAME(findings)
NAME(form)
NAME(handle)
NAME(hex)
NAME(instead)
NAME(kind)
NAME(left)
NAME(log)
NAME(method)
NAME(offset)
NAME(ok)
NAME(outcome)
NAME(pieces)
NAME(raw)
NAME(reason)
NAME(reasons)
NAME(right)
NAME(rule)
NAME(schema)
NAME(severity)
NAME(size)
NAME(stored)
NAME(text)
NAME(uniqueIdToDelete)
NAME(value)
NAME(what)
NAME(why)
NAME(written)
#undef NAME
inline constexpr std::string_view calls = "callInfoList";

} // namespace inspect::json

#endif
