#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "inspect/Json.h"
#include "inspect/JsonNames.h"
#include "inspect/Text.h"

namespace inspect {
namespace {

using Buffer = rapidjson::StringBuffer;

/// A writer with the forms that this JSON has for texts.
class Json {
public:
  explicit Json(std::string& target) : out(target), writer(buffer) {}
  ~Json() { out.append(buffer.GetString(), buffer.GetSize()); }
  Json(Json const&) = delete;
  Json& operator=(Json const&) = delete;

  void begin() { writer.StartObject(); }
  void end() { writer.EndObject(); }
  void beginList() { writer.StartArray(); }
  void endList() { writer.EndArray(); }
  void key(std::string_view name) {
    writer.Key(name.data(), static_cast<rapidjson::SizeType>(name.size()));
  }
  void string(std::string_view text) {
    writer.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
  }
  void text(std::string_view bytes) {
    if (isUtf8(bytes))
      return string(bytes);
    begin();
    member(json::hex, hexOf(bytes));
    end();
  }
  void value(bool flag) { writer.Bool(flag); }
  void value(std::uint64_t number) { writer.Uint64(number); }
  void value(std::int32_t number) { writer.Int(number); }
  void null() { writer.Null(); }

  /// A word of our own, or a text from a message.
  void member(std::string_view name, std::string_view word) {
    key(name);
    string(word);
  }
  void textMember(std::string_view name, std::string_view bytes) {
    key(name);
    text(bytes);
  }
  template <class Number>
  void numberMember(std::string_view name, Number number) {
    key(name);
    value(number);
  }

private:
  static std::string hexOf(std::string_view bytes) {
    constexpr char digits[] = "0123456789abcdef";
    std::string hex;
    for (char const byte : bytes) {
      auto const value = static_cast<unsigned char>(byte);
      hex += digits[value >> 4];
      hex += digits[value & 0x0F];
    }
    return hex;
  }

  std::string& out;
  Buffer buffer;
  rapidjson::Writer<Buffer> writer;
};

void writeField(Json& json, Field const& field, void const* record) {
  if (field.type == Type::text) {
    auto const& text = field.text(record);
    if (field.travel == members::Travel::never && text.empty())
      return;
    json.key(field.name);
    return json.text(text);
  }
  json.key(field.name);
  auto const number = numberIn(field, record);
  Names const names = namesOf(field.type);
  if (field.type == Type::flag)
    json.value(number != 0);
  else if (static_cast<std::uint32_t>(number) < names.size)
    json.string(names.first[number]);
  else
    json.value(number);
}

/// The values that go behind the members of one record after another.
class WrittenValues {
public:
  WrittenValues(Json& target, std::vector<Written> const& values)
      : json(target), all(values), next(values.begin()) {}

  void write(std::size_t entry, std::size_t call) {
    auto const isNext = [&] {
      return next != all.end() && next->entry == entry && next->call == call &&
             next->field != nullptr;
    };
    if (!isNext())
      return;
    json.key(json::written);
    json.begin();
    for (; isNext(); ++next)
      json.textMember(next->field->name, next->value);
    json.end();
  }

private:
  Json& json;
  std::vector<Written> const& all;
  std::vector<Written>::const_iterator next;
};

/// The list of calls is written last, wherever it is declared.
void writeEntry(Json& json, RecordView entry, std::size_t index, WrittenValues& written) {
  json.begin();
  for (Field const& field : entryFieldsOf(entry.log))
    writeField(json, field, entry.record);
  written.write(index, Written::none);
  json.key(json::calls);
  json.beginList();
  std::size_t number = 0;
  forEachCall(entry, [&](void* call) {
    json.begin();
    for (Field const& field : callFieldsOf(entry.log))
      writeField(json, field, call);
    written.write(index, number++);
    json.end();
  });
  json.endList();
  json.end();
}

struct Body {
  Json& json;
  Decoded const& decoded;

  void writeEntries(bool list) const {
    WrittenValues written(json, decoded.written);
    auto const entries = entriesOf(decoded.message);
    json.key(list ? json::entries : json::entry);
    if (list)
      json.beginList();
    for (std::size_t at = 0; at < entries.size(); ++at)
      writeEntry(json, entries[at], at, written);
    if (list)
      json.endList();
  }
  void writeIds(std::vector<std::string> const& ids) const {
    json.key(json::entryIds);
    json.beginList();
    for (auto const& id : ids)
      json.text(id);
    json.endList();
  }

  void operator()(Unknown const& message) const { json.textMember(json::text, message.text); }
  void operator()(Request const& message) const {
    json.textMember(json::method, message.method);
    writeIds(message.entryIds);
  }
  void operator()(ListResponse const& message) const {
    json.member(json::log, nameOf(logOf(message.entries)));
    writeEntries(true);
    json.numberMember(json::handle, std::uint64_t{message.handle});
  }
  void operator()(EntryNotification const& message) const {
    json.member(json::log, nameOf(logOf(message.entry)));
    writeEntries(false);
    json.textMember(json::uniqueIdToDelete, message.uniqueIdToDelete);
    if (!decoded.written.empty() && decoded.written.back().field == nullptr) {
      json.key(json::written);
      json.begin();
      json.textMember(json::uniqueIdToDelete, decoded.written.back().value);
      json.end();
    }
    json.key(json::action);
    if (message.action)
      json.value(std::uint64_t{*message.action});
    else
      json.null();
    json.numberMember(json::handle, std::uint64_t{message.handle});
  }
  void operator()(CounterNotification const& message) const {
    json.textMember(json::method, message.method);
    json.numberMember(json::value, std::uint64_t{message.value});
  }
  void operator()(StoreRequest const& message) const {
    json.textMember(json::schema, message.schema);
    json.textMember(json::reason, message.reason);
  }
  void operator()(Outcome const& message) const {
    json.textMember(json::method, message.method);
    writeIds(message.entryIds);
    json.numberMember(json::ok, message.ok);
  }
  void operator()(Setting const& message) const {
    json.numberMember(json::callLogEnabled, message.enabled);
  }
  void operator()(LastDialled const&) const { writeEntries(false); }
  void operator()(BareEntry const& message) const {
    json.member(json::log, nameOf(logOf(message.entry)));
    writeEntries(false);
  }
};

void writeFinding(Json& json, Finding const& finding) {
  Rule const& rule = ruleOf(finding.rule);
  json.begin();
  json.numberMember(json::offset, std::uint64_t{finding.offset});
  json.member(json::severity, nameOf(rule.severity));
  json.member(json::rule, rule.id);
  json.textMember(json::element, finding.element);
  json.member(json::what, rule.what);
  json.textMember(json::text, finding.text);
  json.textMember(json::instead, finding.instead);
  json.end();
}

void writeFindings(Json& json, std::vector<Finding> const& findings) {
  json.beginList();
  for (Finding const& finding : findings)
    writeFinding(json, finding);
  json.endList();
}

void writePiece(Json& json, Piece const& piece) {
  json.begin();
  json.numberMember(json::offset, std::uint64_t{piece.offset});
  json.numberMember(json::size, std::uint64_t{piece.size});
  json.numberMember(json::depth, std::uint64_t{piece.depth});
  json.member(json::form, nameOf(piece.form));
  json.textMember(json::element, piece.element);
  json.textMember(json::raw, piece.raw);
  if (piece.stored)
    json.textMember(json::stored, *piece.stored);
  json.key(json::reasons);
  json.beginList();
  for (RuleId const reason : piece.reasons)
    json.string(ruleOf(reason).id);
  json.endList();
  json.end();
}

void writeIdentity(Json& json, Identity const& identity) {
  json.member(json::kind, nameOf(identity.kind));
  json.member(json::method, identity.method);
  json.numberMember(json::code, std::uint64_t{identity.code});
  json.key(json::log);
  if (identity.log)
    json.string(nameOf(*identity.log));
  else
    json.null();
}

} // namespace

void appendJson(std::string& out, Decoded const& decoded) {
  Json json(out);
  auto const kind = kindOf(decoded.message);
  json.begin();
  json.member(json::kind, nameOf(kind));
  std::visit(Body{json, decoded}, decoded.message);
  if (decoded.declared != isDeclared(kind))
    json.numberMember(json::declared, decoded.declared);
  if (decoded.outcome)
    json.numberMember(json::outcome, *decoded.outcome);
  json.end();
}

void appendJson(std::string& out, Identity const& identity, Decoded const& decoded,
                std::size_t bytes) {
  Json json(out);
  json.begin();
  writeIdentity(json, identity);
  json.numberMember(json::entries, std::uint64_t{entriesOf(decoded.message).size()});
  json.key(json::handle);
  if (auto const handle = handleOf(decoded.message))
    json.value(std::uint64_t{*handle});
  else
    json.null();
  json.numberMember(json::bytes, std::uint64_t{bytes});
  json.end();
}

void appendJson(std::string& out, Explanation const& explanation) {
  Json json(out);
  json.begin();
  writeIdentity(json, explanation.identity);
  json.key(json::pieces);
  json.beginList();
  for (Piece const& piece : explanation.pieces)
    writePiece(json, piece);
  json.endList();
  json.key(json::findings);
  writeFindings(json, explanation.findings);
  json.end();
}

void appendJson(std::string& out, std::vector<Finding> const& findings) {
  Json json(out);
  writeFindings(json, findings);
}

void appendJson(std::string& out, std::vector<Difference> const& differences) {
  Json json(out);
  auto const side = [&](std::string_view name, std::optional<std::string> const& text) {
    json.key(name);
    if (text)
      json.text(*text);
    else
      json.null();
  };
  json.beginList();
  for (Difference const& difference : differences) {
    json.begin();
    json.textMember(json::entry, difference.entry);
    json.member(json::field, difference.field);
    side(json::left, difference.left);
    side(json::right, difference.right);
    json.end();
  }
  json.endList();
}

void appendJson(std::string& out, std::vector<Rule> const& rules) {
  Json json(out);
  json.beginList();
  for (Rule const& rule : rules) {
    json.begin();
    json.member(json::rule, rule.id);
    json.member(json::severity, nameOf(rule.severity));
    json.member(json::what, rule.what);
    json.member(json::why, rule.why);
    json.end();
  }
  json.endList();
}

void appendJson(std::string& out, std::string_view text) {
  Json(out).text(text);
}

std::string indented(std::string const& json) {
  rapidjson::Reader reader;
  rapidjson::StringStream in(json.c_str());
  Buffer buffer;
  rapidjson::PrettyWriter<Buffer> writer(buffer);
  writer.SetIndent(' ', 2);
  reader.Parse<rapidjson::kParseIterativeFlag>(in, writer);
  return {buffer.GetString(), buffer.GetSize()};
}

} // namespace inspect
