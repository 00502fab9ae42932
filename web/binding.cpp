// What the page calls: bytes in, JSON out. The JSON is the engine's own; added to it is where each
// piece of a message ends up in the records.
//
// The caller fills journal_input(size), calls an operation and reads journal_output().
#include <array>
#include <deque>
#include <map>
#include <optional>
#include <string>

#include "inspect/Diff.h"
#include "inspect/Explain.h"
#include "inspect/Json.h"
#include "inspect/JsonNames.h"
#include "inspect/Redact.h"
#include "inspect/Stored.h"
#include "inspect/Stream.h"
#include "vocabulary/Words.h"
#include "web/binding.h"

namespace {

using namespace inspect;
namespace word = journal::word;
using Form = Piece::Form;

std::string input;
std::string output;
Stream stream;
std::deque<std::string> messages;
bool isRedacting = false;

// ---- Small JSON

std::string quoted(std::string_view text) {
  return toJson(text);
}
std::string number(std::string_view name, std::uint64_t value) {
  return "," + quoted(name) + ":" + std::to_string(value);
}

// ---- What becomes of a piece

struct Fate {
  std::string_view name;
  std::string_view what;
};
enum FateId : std::uint8_t { markup, kept, defaulted, order, dropped, unknown, damaged };
constexpr std::array<Fate, 7> fates = {{{"markup", "holds the others"},
                                        {"kept", "read and stored"},
                                        {"default", "read, but the default is stored"},
                                        {"order", "out of order"},
                                        {"dropped", "not kept by readers"},
                                        {"unknown", "unknown"},
                                        {"damaged", "damaged"}}};

FateId fateOf(RuleId reason) {
  switch (reason) {
  case RuleId::unknownElement:
  case RuleId::unknownMethod:
  case RuleId::text:
    return unknown;
  case RuleId::notKept:
  case RuleId::beginAsClose:
  case RuleId::afterNul:
  case RuleId::passedOver:
  case RuleId::blocked:
  case RuleId::hiddenByClose:
  case RuleId::repeated:
  case RuleId::emptyPart:
    return dropped;
  case RuleId::notMember:
  case RuleId::notFlag:
    return defaulted;
  case RuleId::order:
  case RuleId::misplaced:
    return order;
  default:
    return ruleOf(reason).severity == Severity::error ? damaged : markup;
  }
}

/// The gravest that any of its reasons means.
FateId fateOf(Piece const& piece) {
  bool const value = piece.form == Form::leaf || piece.form == Form::beginTag;
  FateId fate = piece.stored || piece.form == Form::beginTag ? kept : value ? dropped : markup;
  for (RuleId const reason : piece.reasons)
    fate = std::max(fate, fateOf(reason));
  return fate;
}

// ---- Where the value of a piece ends up, as a path in the JSON of the decoded message

std::string at(std::string_view list, std::size_t index) {
  return std::string(list) + "[" + std::to_string(index) + "]";
}

Field const* fieldOf(Fields fields, std::string_view element) {
  for (Field const& field : fields)
    if (field.element == element)
      return &field;
  return nullptr;
}

class Paths {
public:
  explicit Paths(Decoded const& decoded) : message(decoded.message) {
    auto const entries = entriesOf(message);
    bool const list = kindOf(message) == Kind::listResponse;
    for (std::size_t index = 0; index < entries.size(); ++index)
      addEntry(entries[index], list ? at(json::entries, index) : std::string(json::entry));
  }

  /// @param record the one that the piece belongs to; nullptr for none
  std::string of(Piece const& piece, void const* record) {
    auto const owner = owners.find(record);
    if (owner != owners.end())
      if (auto const* const field = fieldOf(owner->second.fields, piece.element))
        return owner->second.path + "." + std::string(field->name);
    return piece.stored || piece.form == Form::part ? ofMessage(piece) : std::string();
  }

private:
  struct Owner {
    std::string path;
    Fields fields;
  };

  void addEntry(RecordView entry, std::string const& path) {
    owners[entry.record] = {path, entryFieldsOf(entry.log)};
    std::size_t index = 0;
    forEachCall(entry, [&](void const* call) {
      owners[call] = {path + "." + at(json::calls, index++), callFieldsOf(entry.log)};
    });
  }

  /// Of an element of the message itself.
  std::string ofMessage(Piece const& piece) {
    static std::map<std::string_view, std::string_view> const names = {
        {word::HANDLE, json::handle},
        {word::ACTIONTYPE, json::action},
        {word::UNIQUEIDTODELETE, json::uniqueIdToDelete},
        {word::VALUE, json::value},
        {word::SCHEMA, json::schema},
        {word::REASONFORMESSAGE, json::reason},
        {word::CALL_LOG_ENABLED, json::callLogEnabled}};
    if (piece.element == word::ENTRYID)
      return at(json::entryIds, entryIds++);
    if (piece.element == word::VALUE && kindOf(message) == Kind::outcome)
      return std::string(json::ok);
    auto const name = names.find(piece.element);
    return name == names.end() ? std::string() : std::string(name->second);
  }

  Message const& message;
  std::map<void const*, Owner> owners;
  std::size_t entryIds = 0;
};

std::optional<Log> logFor(int log) {
  if (log < 0 || static_cast<std::size_t>(log) >= logs)
    return {};
  return allLogs[log];
}

void appendPlaces(Explanation const& explanation, Decoded const& decoded, std::string const& text) {
  auto pieces = piecesOf(text);
  auto const owners = addStored(pieces, text, explanation.identity, decoded);
  Paths paths(decoded);
  output += ",\"places\":[";
  for (std::size_t index = 0; index < pieces.size(); ++index) {
    auto const& piece = explanation.pieces[index];
    output += index == 0 ? "[" : ",[";
    output += std::to_string(fateOf(piece)) + "," + quoted(paths.of(piece, owners[index])) + "]";
  }
  output += "]";
}

// ---- Captures

void appendSummary(Found const& found) {
  auto const explanation = explain(found.text);
  std::array<std::size_t, 4> counts = {};
  for (Finding const& finding : explanation.findings)
    ++counts[static_cast<std::size_t>(ruleOf(finding.rule).severity)];
  appendJson(output, explanation.identity, decode(found.text), found.text.size());
  output.pop_back();
  output += number("offset", found.offset) + number("line", found.line);
  for (auto const severity : {Severity::note, Severity::warning, Severity::error})
    output += number(nameOf(severity), counts[static_cast<std::size_t>(severity)]);
  output += "}";
}

void beginList() {
  output = "{\"messages\":[";
}
void add(Found found) {
  if (isRedacting)
    found.text = redacted(std::move(found.text));
  output += output.back() == '[' ? "" : ",";
  appendSummary(found);
  messages.push_back(std::move(found.text));
}
void endList() {
  auto const capture = stream.capture();
  output += "],\"capture\":" + quoted(capture ? nameOf(*capture) : std::string_view());
  output += std::string(",\"tooLarge\":") + (stream.isTooLarge() ? "true}" : "false}");
}

/// The messages that are complete by now.
void listMessages() {
  beginList();
  for (Found found; stream.next(found); found = Found())
    add(std::move(found));
  endList();
}

} // namespace

char* journal_input(std::size_t size) {
  input.resize(size);
  return input.data();
}
char const* journal_output() {
  return output.data();
}
std::size_t journal_output_size() {
  return output.size();
}

void journal_open(int redact) {
  stream = Stream();
  messages.clear();
  isRedacting = redact != 0;
}
void journal_push() {
  stream.push(input);
  listMessages();
}
void journal_finish() {
  stream.finish();
  listMessages();
}

void journal_add(std::size_t offset, std::size_t line) {
  beginList();
  add({input, offset, line});
  endList();
}

void journal_text(std::size_t index) {
  output = messages.at(index);
}

void journal_show(std::size_t index, int log) {
  auto const& text = messages.at(index);
  auto const explanation = explain(text, logFor(log));
  auto const decoded = decode(text, logFor(log));
  output = "{\"explanation\":" + toJson(explanation) + ",\"decoded\":" + toJson(decoded);
  appendPlaces(explanation, decoded, text);
  output += "}";
}

void journal_compare(std::size_t left, std::size_t right) {
  output = toJson(diff(decode(messages.at(left)), decode(messages.at(right))));
}

void journal_vocabulary() {
  output = "{\"rules\":" + toJson(rules()) + ",\"fates\":[";
  for (Fate const& fate : fates)
    output += (&fate == fates.data() ? "" : ",") + std::string("{\"name\":") + quoted(fate.name) +
              ",\"what\":" + quoted(fate.what) + "}";
  output += "],\"logs\":[";
  for (Log const log : allLogs)
    output += (log == allLogs[0] ? "" : ",") + quoted(nameOf(log));
  output += "]}";
}
