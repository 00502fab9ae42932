// Messages as tables and as CSV. Columns come from the list of members.
#include "Table.h"

#include <fmt/format.h>

#include <algorithm>

#include "Commands.h"
#include "inspect/Text.h"

namespace journalmsg {
namespace {

using namespace inspect;
using Cells = std::vector<std::string>;

bool isCarried(Field const& field) {
  return field.travel != members::Travel::never;
}

/// A value as people want it: nothing for what is empty.
std::string cellOf(Field const& field, void const* record) {
  return shown(valueOf(field, record), 40);
}

void addNames(Cells& cells, Fields fields) {
  for (Field const& field : fields)
    if (isCarried(field))
      cells.emplace_back(field.name);
}

void addValues(Cells& cells, Fields fields, void const* record) {
  for (Field const& field : fields)
    if (isCarried(field))
      cells.push_back(record == nullptr ? std::string() : cellOf(field, record));
}

/// One row for each call, the entry's own values in its first row; an entry without calls has one.
void addRows(std::vector<Cells>& rows, RecordView entry) {
  bool first = true;
  auto const add = [&](void const* call) {
    Cells cells;
    addValues(cells, entryFieldsOf(entry.log), first ? entry.record : nullptr);
    addValues(cells, callFieldsOf(entry.log), call);
    rows.push_back(std::move(cells));
    first = false;
  };
  forEachCall(entry, add);
  if (first)
    add(nullptr);
}

/// Columns in which no row has anything are left out.
void dropEmptyColumns(std::vector<Cells>& rows) {
  for (auto column = rows[0].size(); column-- > 0;) {
    bool const empty = std::all_of(rows.begin() + 1, rows.end(),
                                   [&](Cells const& row) { return row[column].empty(); });
    if (empty)
      for (auto& row : rows)
        row.erase(row.begin() + static_cast<std::ptrdiff_t>(column));
  }
}

std::string joined(std::vector<std::string> const& texts) {
  std::string all;
  for (auto const& text : texts)
    all += (all.empty() ? "" : ", ") + shown(text);
  return all;
}

struct Summary {
  std::string operator()(Unknown const& message) const { return shown(message.text); }
  std::string operator()(Request const& message) const {
    return message.method + (message.entryIds.empty() ? "" : ", entries ") +
           joined(message.entryIds);
  }
  std::string operator()(ListResponse const& message) const {
    return fmt::format("{} calls, {} entries, handle {}", nameOf(logOf(message.entries)),
                       entryCount(message.entries), message.handle);
  }
  std::string operator()(EntryNotification const& message) const {
    return fmt::format("{} calls, action {}, {}handle {}", nameOf(logOf(message.entry)),
                       actionText(message.action),
                       message.uniqueIdToDelete.empty()
                           ? ""
                           : "replaces " + shown(message.uniqueIdToDelete) + ", ",
                       message.handle);
  }
  std::string operator()(CounterNotification const& message) const {
    return fmt::format("{}, {}", message.method, message.value);
  }
  std::string operator()(StoreRequest const& message) const {
    return shown(message.schema) + ", " + shown(message.reason);
  }
  std::string operator()(Outcome const& message) const {
    return (message.ok ? "success" : "failure") +
           (message.method.empty() ? "" : " of " + message.method);
  }
  std::string operator()(Setting const& message) const {
    return message.enabled ? "call log enabled" : "call log disabled";
  }
  std::string operator()(LastDialled const&) const { return "dialled calls"; }
  std::string operator()(BareEntry const& message) const {
    return fmt::format("{} calls", nameOf(logOf(message.entry)));
  }
};

// ---- CSV

std::string csvCell(std::string_view cell) {
  if (cell.find_first_of(",\"\r\n") == std::string_view::npos)
    return std::string(cell);
  std::string text = "\"";
  for (char const character : cell)
    text += character == '"' ? "\"\"" : std::string(1, character);
  return text + "\"";
}

/// The names of the fields of all logs, each once.
std::vector<std::string_view> const& columns() {
  static auto const all = [] {
    std::vector<std::string_view> names;
    for (auto const fieldsOf : {&entryFieldsOf, &callFieldsOf})
      for (Log const log : allLogs)
        for (Field const& field : fieldsOf(log))
          if (isCarried(field) && std::find(names.begin(), names.end(), field.name) == names.end())
            names.push_back(field.name);
    return names;
  }();
  return all;
}

void addValue(std::string& line, Fields fields, std::string_view column, void const* record) {
  for (Field const& field : fields)
    if (record != nullptr && field.name == column)
      line += csvCell(valueOf(field, record));
}

std::string csvLine(std::string const& front, RecordView entry, void const* call) {
  std::string line = front;
  for (auto const column : columns()) {
    line += ',';
    addValue(line, entryFieldsOf(entry.log), column, entry.record);
    addValue(line, callFieldsOf(entry.log), column, call);
  }
  return line + "\n";
}

} // namespace

std::string actionText(std::optional<std::uint32_t> action) {
  constexpr std::string_view names[] = {"added", "changed", "deleted"};
  if (!action)
    return "none";
  return *action < 3 ? std::string(names[*action]) : std::to_string(*action);
}

std::string tableOf(Decoded const& decoded, Output const& output) {
  auto text = output.colored(nameOf(kindOf(decoded.message)), bold) + "  " +
              std::visit(Summary(), decoded.message);
  if (decoded.outcome)
    text += *decoded.outcome ? ", success" : ", failure";
  text += "\n";
  auto const entries = entriesOf(decoded.message);
  if (entries.empty())
    return text;
  std::vector<Cells> rows(1);
  addNames(rows[0], entryFieldsOf(entries[0].log));
  addNames(rows[0], callFieldsOf(entries[0].log));
  for (auto const entry : entries)
    addRows(rows, entry);
  dropEmptyColumns(rows);
  return text + alignedRows(rows, "  ");
}

std::string csvHeading() {
  std::string line = "place,kind,log,method,handle,action";
  for (auto const column : columns())
    line += "," + std::string(column);
  return line + "\n";
}

std::string csvOf(Identity const& identity, Decoded const& decoded, std::string const& place) {
  auto const handle = handleOf(decoded.message);
  auto const log = logOf(decoded.message);
  auto const* const notification = std::get_if<EntryNotification>(&decoded.message);
  auto const front =
      fmt::format("{},{},{},{},{},{}", csvCell(place), nameOf(identity.kind),
                  log ? nameOf(*log) : "", identity.method, handle ? std::to_string(*handle) : "",
                  notification != nullptr ? actionText(notification->action) : "");
  auto const entries = entriesOf(decoded.message);
  if (entries.empty())
    return front + std::string(columns().size(), ',') + "\n";
  std::string lines;
  for (auto const entry : entries) {
    forEachCall(entry, [&](void* call) { lines += csvLine(front, entry, call); });
    if (callCount(entry) == 0)
      lines += csvLine(front, entry, nullptr);
  }
  return lines;
}

} // namespace journalmsg
