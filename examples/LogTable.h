// Prints a log as a table: the columns that every log has, and those that only one kind has.
#ifndef EXAMPLES_LOGTABLE_H
#define EXAMPLES_LOGTABLE_H

#include <ostream>
#include <string>
#include <vector>

#include "LogKinds.h"
#include "Table.h"

/// A column: what it shows of an entry, or else of the entry's latest call, the first in the list.
/// The widths of one log's columns, with two blanks before each, add up to less than 120.
template <class Kind>
struct LogColumn {
  char const* title;
  std::size_t most;
  Table::Align align;
  std::string (*ofEntry)(typename Kind::Item const& item);
  std::string (*ofLatestCall)(typename Kind::Call const& call);
};

template <class Kind>
using LogColumns = std::vector<LogColumn<Kind>>;

constexpr auto toLeft = Table::Align::LEFT;
constexpr auto toRight = Table::Align::RIGHT;

/// Two texts with a separator, or the one that is there.
inline std::string joined(std::string const& first, char const* separator,
                          std::string const& second) {
  return first + (first.empty() || second.empty() ? "" : separator) + second;
}

inline std::string typeText(NumberType::NT type) {
  return type == NumberType::NO_ICON ? "" : JournalServiceHelper::convertNumberType(type);
}

inline std::string outcomeText(CallLogEntryEvent::_LogTarget target) {
  switch (target) {
  case CallLogEntryEvent::IN_ANSWERED:
  case CallLogEntryEvent::OUT_ANSWERED:
    return "answered";
  case CallLogEntryEvent::IN_NO_ANSWER:
  case CallLogEntryEvent::OUT_NO_ANSWER:
    return "no answer";
  case CallLogEntryEvent::IN_BUSY:
  case CallLogEntryEvent::OUT_BUSY:
    return "busy";
  case CallLogEntryEvent::IN_GROUP_MISSED:
    return "group";
  }
  return "";
}

template <class Kind>
std::string numberText(typename Kind::Call const& call) {
  if constexpr (Kind::hasPresentations)
    if (call.numberPresentation == CallLogEntryEvent::NOT_ALLOWED)
      return "withheld";
  return call.number;
}

template <class Kind>
std::string timeText(typename Kind::Call const& call) {
  if constexpr (Kind::hasPresentations) {
    if (call.timeFormat == CallLogEntryEvent::FORM_AM)
      return joined(call.timeDate, " ", "am");
    if (call.timeFormat == CallLogEntryEvent::FORM_PM)
      return joined(call.timeDate, " ", "pm");
  }
  return call.timeDate;
}

/// The party to which a call was deflected: its name, or else its number.
template <class Call>
std::string deflectText(Call const& call) {
  return call.deflectName.empty() ? call.deflectNumber : call.deflectName;
}

inline std::string reachedText(Dialled::Call const& call) {
  std::string const name = joined(call.connectedFirstName, " ", call.connectedSurname);
  return name.empty() ? call.connectedNumber : name;
}

template <class Kind>
LogColumns<Kind> commonColumns() {
  using Item = typename Kind::Item;
  using Call = typename Kind::Call;
  return {
      {"Entry", 5, toRight, [](Item const& item) { return item.entryId; }, nullptr},
      {"Name", 23, toLeft,
       [](Item const& item) { return joined(item.surname, ", ", item.firstname); }, nullptr},
      {"Number", 16, toLeft, nullptr, numberText<Kind>},
      {"Type", 9, toLeft, nullptr, [](Call const& call) { return typeText(call.numberType); }},
      {"Calls", 5, toRight,
       [](Item const& item) { return std::to_string(item.callInfoList.size()); }, nullptr},
      {"Last call", 19, toLeft, nullptr, timeText<Kind>},
  };
}

inline LogColumns<Missed> ownColumns(Missed) {
  using Item = Missed::Item;
  using Call = Missed::Call;
  return {
      {"Seen", 4, toLeft, [](Item const& item) { return std::string(item.viewed ? "yes" : "no"); },
       nullptr},
      {"Outcome", 9, toLeft, nullptr, [](Call const& call) { return outcomeText(call.targetLog); }},
      {"Deflected", 11, toLeft, nullptr, deflectText<Call>},
  };
}

inline LogColumns<Dialled> ownColumns(Dialled) {
  using Call = Dialled::Call;
  return {
      {"Result", 9, toLeft, nullptr,
       [](Call const& call) {
         return call.duration.empty() ? outcomeText(call.targetLog) : call.duration;
       }},
      {"Reached", 17, toLeft, nullptr, reachedText},
  };
}

inline LogColumns<Received> ownColumns(Received) {
  using Item = Received::Item;
  using Call = Received::Call;
  return {
      {"Duration", 8, toLeft, nullptr, [](Call const& call) { return call.duration; }},
      {"Deflected", 13, toLeft, nullptr, deflectText<Call>},
      {"Pic", 3, toLeft,
       [](Item const& item) { return std::string(item.picture.empty() ? "no" : "yes"); }, nullptr},
  };
}

inline LogColumns<Forwarded> ownColumns(Forwarded) {
  using Call = Forwarded::Call;
  return {
      {"Duration", 8, toLeft, nullptr, [](Call const& call) { return call.duration; }},
      {"Forwarded to", 18, toLeft, nullptr, [](Call const& call) { return call.connectedNumber; }},
  };
}

template <class Kind>
std::string cellText(LogColumn<Kind> const& column, typename Kind::Item const& item) {
  std::string text;
  if (column.ofEntry != nullptr)
    text = column.ofEntry(item);
  else if (!item.callInfoList.empty())
    text = column.ofLatestCall(item.callInfoList.front());
  return text.empty() ? "-" : text;
}

/// Prints one row per entry, the front of the log first.
template <class Kind>
void printLog(std::ostream& out, typename Kind::Log const& log) {
  LogColumns<Kind> columns = commonColumns<Kind>();
  for (LogColumn<Kind> const& column : ownColumns(Kind{}))
    columns.push_back(column);

  Table table;
  for (LogColumn<Kind> const& column : columns)
    table.addColumn(column.title, column.most, column.align);
  for (typename Kind::Item const& item : log) {
    std::vector<std::string> texts;
    for (LogColumn<Kind> const& column : columns)
      texts.push_back(cellText(column, item));
    table.addRow(texts);
  }
  table.print(out);
}

#endif
