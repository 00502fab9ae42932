// Messages, explanations, findings and differences as JSON, and messages back from JSON.
//
// A message is one object: "kind" and what messages of that kind hold, see message.schema.json. A
// text that is no UTF-8 is written as {"hex": "..."}, its bytes in hexadecimal.
#ifndef INSPECT_JSON_H
#define INSPECT_JSON_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/Diff.h"
#include "inspect/Explain.h"
#include "inspect/Message.h"

namespace inspect {

/// Appends it in one line, without a line end.
void appendJson(std::string& out, Decoded const& decoded);
void appendJson(std::string& out, Identity const& identity, Decoded const& decoded,
                std::size_t bytes);
void appendJson(std::string& out, Explanation const& explanation);
void appendJson(std::string& out, std::vector<Finding> const& findings);
void appendJson(std::string& out, std::vector<Difference> const& differences);
void appendJson(std::string& out, std::vector<Rule> const& rules);
/// A text, quoted and escaped.
void appendJson(std::string& out, std::string_view text);

template <class Value>
std::string toJson(Value const& value) {
  std::string out;
  appendJson(out, value);
  return out;
}

/// The same JSON with a line for each value.
std::string indented(std::string const& json);

/// The JSON schema (draft 4) of messages, as it is in message.schema.json.
std::string messageSchema();

/// Reads a message; members that are absent keep their defaults.
/// @param error says what is wrong, and where, when there is no result
std::optional<Decoded> fromJson(std::string_view json, std::string& error);

/// Reads an entry of the log that the target has.
bool entryFromJson(std::string_view json, Entry& entry, std::string& error);

/// The value at a path such as entries[0].callInfoList[1].number: a text as it is, all else as
/// JSON.
std::optional<std::string> valueAt(std::string const& json, std::string_view path,
                                   std::string& error);

} // namespace inspect

#endif
