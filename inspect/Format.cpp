#include "inspect/Format.h"

#include <array>

#include "records/Kinds.h"
#include "vocabulary/Words.h"

namespace inspect {
namespace {

namespace word = journal::word;

Content contentOf(journal::Content content) {
  switch (content) {
  case journal::Content::flag:
    return Content::flag;
  case journal::Content::numberType:
    return Content::numberType;
  case journal::Content::targetLog:
    return Content::targetLog;
  case journal::Content::presentation:
    return Content::presentation;
  case journal::Content::timeFormat:
    return Content::timeFormat;
  default:
    return Content::text;
  }
}

Treatment treatmentOf(journal::Reading reading) {
  switch (reading) {
  case journal::Reading::discarded:
    return Treatment::discarded;
  case journal::Reading::unclosed:
    return Treatment::unclosed;
  default:
    return Treatment::kept;
  }
}

/// Writers leave out only empty texts.
template <class Descriptors>
Rows rowsFrom(Descriptors const& descriptors) {
  Rows rows;
  for (auto const& field : descriptors) {
    auto const content = contentOf(field.content());
    rows.push_back({field.begin().substr(1, field.nameSize()), content,
                    content == Content::text ? Count::may : Count::must, field.isEscaped(),
                    treatmentOf(field.reading())});
  }
  return rows;
}

constexpr Row methodRow{word::METHOD, Content::part, Count::must};
constexpr Row schemaRow{word::SCHEMA, Content::part, Count::must};
constexpr Row reasonRow{word::REASONFORMESSAGE, Content::reason, Count::must};
constexpr Row entryRow{word::ENTRY, Content::part, Count::many};
constexpr Row logListRow{word::LOGLIST, Content::part, Count::must};
constexpr Row itemRow{word::ITEM, Content::part, Count::many};
constexpr Row toDeleteRow{word::UNIQUEIDTODELETE, Content::text};
constexpr Row actionRow{word::ACTIONTYPE, Content::action, Count::must};
constexpr Row handleRow{word::HANDLE, Content::number, Count::must};
constexpr Row countRow{word::VALUE, Content::number, Count::must};
constexpr Row outcomeRow{word::VALUE, Content::outcome};
constexpr Row enabledRow{word::CALL_LOG_ENABLED, Content::enabled, Count::must};
constexpr Row entryIdsRow{word::ENTRYID, Content::text, Count::many};

struct EntryRows {
  Rows entry;
  Rows call;

  template <class Entry>
  explicit EntryRows(journal::Kind<Entry> const*)
      : entry(rowsFrom(journal::Kind<Entry>::entry)), call(rowsFrom(journal::Kind<Entry>::call)) {
    entry.push_back(logListRow);
  }
};

template <class Item>
journal::Kind<Item> const* descriptors = nullptr;

EntryRows const& rowsOfLog(Log log) {
  static EntryRows const rows[logs] = {
      EntryRows(descriptors<MissedCallItem>), EntryRows(descriptors<DialledCallItem>),
      EntryRows(descriptors<ReceivedCallItem>), EntryRows(descriptors<ForwardedCallItem>)};
  return rows[static_cast<std::size_t>(log)];
}

Rows withEntry(Rows rows, std::optional<Log> log, Rows const& more) {
  if (log)
    rows.insert(rows.end(), entryRowsOf(*log).begin(), entryRowsOf(*log).end());
  rows.insert(rows.end(), more.begin(), more.end());
  return rows;
}

Rows rowsOfMessage(Kind kind, std::optional<Log> log) {
  switch (kind) {
  case Kind::request:
    return {methodRow, entryIdsRow};
  case Kind::outcome:
    return {{word::METHOD, Content::part, Count::may}, entryIdsRow, outcomeRow};
  case Kind::listResponse:
    return {methodRow, entryRow, handleRow, outcomeRow};
  case Kind::entryNotification:
    return withEntry({methodRow}, log, {toDeleteRow, actionRow, handleRow, outcomeRow});
  case Kind::counterNotification:
    return {methodRow, countRow};
  case Kind::storeRequest:
    return {schemaRow};
  case Kind::entry:
    return log ? entryRowsOf(*log) : Rows();
  default: // readers of the other kinds look for single elements, whatever is around them
    return {};
  }
}

/// All elements, found by their names: a table with a slot for each of most names.
class ElementTable {
public:
  ElementTable() {
    for (Row const& row : {methodRow, schemaRow, reasonRow, entryRow, logListRow, itemRow,
                           toDeleteRow, actionRow, handleRow, outcomeRow, enabledRow})
      add(row);
    for (Log const log : allLogs) {
      for (Row const& row : entryRowsOf(log))
        add(row);
      for (Row const& row : callRowsOf(log))
        add(row);
    }
  }

  Row const* find(std::string_view name) const {
    for (auto slot = slotOf(name); !rows_[slot].name.empty(); slot = (slot + 1) % rows_.size())
      if (rows_[slot].name == name)
        return &rows_[slot];
    return nullptr;
  }

  std::size_t slotOf(Row const& row) const { return static_cast<std::size_t>(&row - rows_.data()); }

private:
  static std::size_t slotOf(std::string_view name) {
    if (name.empty())
      return 0;
    auto const byteAt = [&](std::size_t at) {
      return static_cast<std::size_t>(static_cast<unsigned char>(name[at]));
    };
    return (name.size() * 37 + byteAt(0) * 5 + byteAt(name.size() - 1) * 11 +
            byteAt(name.size() / 2) * 3) %
           elementSlots;
  }

  void add(Row const& row) {
    if (find(row.name) != nullptr)
      return;
    auto slot = slotOf(row.name);
    while (!rows_[slot].name.empty())
      slot = (slot + 1) % rows_.size();
    rows_[slot] = row;
  }

  std::array<Row, elementSlots> rows_;
};

} // namespace

Rows const& entryRowsOf(Log log) {
  return rowsOfLog(log).entry;
}

Rows const& callRowsOf(Log log) {
  return rowsOfLog(log).call;
}

Rows const& rowsOf(std::string_view part, Kind kind, std::optional<Log> log) {
  static Rows const none;
  static Rows const items{itemRow};
  static Rows const reasons{reasonRow};
  static auto const messages = [] {
    std::vector<Rows> rows; // by kind and log, the last without a log
    for (std::size_t number = 0; number < kinds; ++number) {
      for (Log const each : allLogs)
        rows.push_back(rowsOfMessage(static_cast<Kind>(number), each));
      rows.push_back(rowsOfMessage(static_cast<Kind>(number), {}));
    }
    return rows;
  }();
  if (part.empty())
    return messages[static_cast<std::size_t>(kind) * (logs + 1) +
                    (log ? static_cast<std::size_t>(*log) : logs)];
  if (part == word::ENTRY)
    return log ? entryRowsOf(*log) : none;
  if (part == word::ITEM)
    return log ? callRowsOf(*log) : none;
  if (part == word::LOGLIST)
    return items;
  return part == word::SCHEMA && kind == Kind::storeRequest ? reasons : none;
}

Row const* findRow(Rows const& rows, std::string_view name) {
  for (Row const& row : rows)
    if (row.name == name)
      return &row;
  return nullptr;
}

namespace {
ElementTable const& elements() {
  static ElementTable const table;
  return table;
}
} // namespace

Row const* findElement(std::string_view name) {
  return elements().find(name);
}

std::size_t slotOf(Row const& element) {
  return elements().slotOf(element);
}

Row const* findElement(std::string_view name, std::optional<Log> log) {
  if (log)
    for (auto const* const rows : {&entryRowsOf(*log), &callRowsOf(*log)})
      if (Row const* const row = findRow(*rows, name))
        return row;
  return findElement(name);
}

bool fits(Log log, std::string_view name) {
  return name == word::ENTRY || name == word::ITEM || findRow(entryRowsOf(log), name) != nullptr ||
         findRow(callRowsOf(log), name) != nullptr;
}

} // namespace inspect
