// Internal. What messages are made of: the elements of each part in the writer's order, taken from
// the library's own field descriptors.
#ifndef INSPECT_FORMAT_H
#define INSPECT_FORMAT_H

#include <cstdint>
#include <string_view>
#include <vector>

#include "inspect/Message.h"

namespace inspect {

/// What the value of an element is. A part holds elements.
enum class Content : std::uint8_t {
  part,
  text,
  flag,
  numberType,
  timeFormat,
  presentation,
  targetLog,
  number,
  action,
  outcome,
  reason,
  enabled
};

/// How often writers write an element.
enum class Count : std::uint8_t { may, must, many };

/// How readers read it.
enum class Treatment : std::uint8_t { kept, discarded, unclosed };

struct Row {
  std::string_view name;
  Content content = Content::text;
  Count count = Count::may;
  bool escaped = false;
  Treatment treatment = Treatment::kept;
};
using Rows = std::vector<Row>;

/// The elements of a part; the empty name is the message itself. Empty when anything may be in it.
Rows const& rowsOf(std::string_view part, Kind kind, std::optional<Log> log);
Rows const& entryRowsOf(Log log);
Rows const& callRowsOf(Log log);

Row const* findRow(Rows const& rows, std::string_view name);

/// The element of that name, whatever part it is in; nullptr for an unknown name.
Row const* findElement(std::string_view name);

/// A number for each element that findElement gives, for tables of one's own.
std::size_t slotOf(Row const& element);
inline constexpr std::size_t elementSlots = 256;

/// What the element is in a message of that log: texts differ in how they are read.
Row const* findElement(std::string_view name, std::optional<Log> log);

/// Whether a bare entry of these names can be of that log.
bool fits(Log log, std::string_view name);

/// The method of that name, without brackets; nullptr when it is unknown.
Operation const* findMethod(std::string_view name);
Operation const* findMethod(JournalServiceHelper::MethodCode code);

} // namespace inspect

#endif
