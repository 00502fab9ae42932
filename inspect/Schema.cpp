// The schema of the JSON of messages. The members of records come from the list of members.
#include <utility>
#include <vector>

#include "inspect/Json.h"
#include "inspect/JsonNames.h"

namespace inspect {
namespace {

using Property = std::pair<std::string, std::string>; // its name and its schema
using Properties = std::vector<Property>;

std::string quoted(std::string_view text) {
  return toJson(text);
}
std::string reference(std::string_view definition) {
  return "{\"$ref\":" + quoted("#/definitions/" + std::string(definition)) + "}";
}
std::string listOf(std::string const& items) {
  return R"({"type":"array","items":)" + items + "}";
}
std::string oneWord(std::string_view word) {
  return "{\"enum\":[" + quoted(word) + "]}";
}

template <class Items, class Write>
std::string joined(Items const& items, Write write) {
  std::string text;
  for (auto const& item : items)
    text += (text.empty() ? "" : ",") + write(item);
  return text;
}

/// @param optional those that need not be there; all others must
std::string object(Properties const& required, Properties const& optional = {}) {
  auto const write = [](Property const& property) {
    return quoted(property.first) + ":" + property.second;
  };
  auto const name = [](Property const& property) { return quoted(property.first); };
  auto all = required;
  all.insert(all.end(), optional.begin(), optional.end());
  return R"({"type":"object","additionalProperties":false,"properties":{)" + joined(all, write) +
         "}" + (required.empty() ? "" : ",\"required\":[" + joined(required, name) + "]") + "}";
}

// Functions, because their order of initialisation is no concern then.
std::string text() {
  return reference("text");
}
std::string number() {
  return reference("number");
}
constexpr char flag[] = R"({"type":"boolean"})";

std::string valueOf(Field const& field) {
  if (field.type == Type::text)
    return text();
  if (field.type == Type::flag)
    return flag;
  auto const write = [](std::string_view name) { return quoted(name); };
  return "{\"enum\":[" + joined(namesOf(field.type), write) + "]}";
}

std::string record(Fields fields, Properties more) {
  Properties required;
  Properties optional;
  Properties written;
  for (Field const& field : fields) {
    bool const carried = field.travel != members::Travel::never;
    (carried ? required : optional).emplace_back(field.name, valueOf(field));
    if (carried)
      written.emplace_back(field.name, text());
  }
  required.insert(required.end(), more.begin(), more.end());
  optional.emplace_back(json::written, object({}, written));
  return object(required, optional);
}

std::string nameOf(Log log, char const* what) {
  return std::string(inspect::nameOf(log)) + what;
}

/// What messages of a kind hold.
std::string message(Kind kind, Properties required, Properties optional = {}) {
  required.insert(required.begin(), {std::string(json::kind), oneWord(nameOf(kind))});
  optional.emplace_back(json::declared, flag);
  return object(required, optional);
}

Property of(std::string_view name, std::string const& schema) {
  return {std::string(name), schema};
}

std::vector<std::string> messages() {
  auto const ids = of(json::entryIds, listOf(text()));
  std::vector<std::string> all{
      message(Kind::unknown, {of(json::text, text())}),
      message(Kind::request, {of(json::method, text()), ids}),
      message(Kind::counterNotification, {of(json::method, text()), of(json::value, number())}),
      message(Kind::storeRequest, {of(json::schema, text()), of(json::reason, text())}),
      message(Kind::outcome, {of(json::method, text()), ids, of(json::ok, flag)}),
      message(Kind::setting, {of(json::callLogEnabled, flag)}),
      message(Kind::lastDialled, {of(json::entry, reference(nameOf(Log::dialled, "Entry")))})};
  for (Log const log : allLogs) {
    auto const entry = reference(nameOf(log, "Entry"));
    auto const name = of(json::log, oneWord(inspect::nameOf(log)));
    auto const outcome = of(json::outcome, flag);
    auto const id = of(json::uniqueIdToDelete, text());
    all.push_back(message(Kind::listResponse,
                          {name, of(json::entries, listOf(entry)), of(json::handle, number())},
                          {outcome}));
    all.push_back(message(Kind::entryNotification,
                          {name, of(json::entry, entry), id,
                           of(json::action, R"({"type":["integer","null"],"minimum":0})"),
                           of(json::handle, number())},
                          {outcome, of(json::written, object({id}))}));
    all.push_back(message(Kind::entry, {name, of(json::entry, entry)}));
  }
  return all;
}

Properties definitions() {
  Properties all{{"text",
                  R"({"oneOf":[{"type":"string"},{"type":"object","additionalProperties":false,)"
                  R"("properties":{"hex":{"type":"string","pattern":"^([0-9a-f][0-9a-f])*$"}},)"
                  R"("required":["hex"]}]})"},
                 {"number", R"({"type":"integer","minimum":0,"maximum":4294967295})"}};
  for (Log const log : allLogs) {
    all.emplace_back(nameOf(log, "Call"), record(callFieldsOf(log), {}));
    all.emplace_back(
        nameOf(log, "Entry"),
        record(entryFieldsOf(log), {of(json::calls, listOf(reference(nameOf(log, "Call"))))}));
  }
  return all;
}

} // namespace

std::string messageSchema() {
  auto const same = [](std::string const& schema) { return schema; };
  auto const write = [](Property const& property) {
    return quoted(property.first) + ":" + property.second;
  };
  return indented(R"({"$schema":"http://json-schema.org/draft-04/schema#",)"
                  R"("title":"A message of the journal service","oneOf":[)" +
                  joined(messages(), same) + "],\"definitions\":{" + joined(definitions(), write) +
                  "}}") +
         "\n";
}

} // namespace inspect
