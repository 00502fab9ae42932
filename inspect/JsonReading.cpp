#include <algorithm>

#include "inspect/Format.h"
#include "inspect/Json.h"
#include "inspect/JsonNames.h"
#include "inspect/JsonTree.h"

namespace inspect {
namespace {

using Value = rapidjson::Value;
using json::textOf;

std::optional<unsigned> digitOf(char character) {
  constexpr std::string_view digits = "0123456789abcdef";
  auto const at = digits.find(character);
  if (at == std::string_view::npos)
    return {};
  return static_cast<unsigned>(at);
}

std::optional<std::string> bytesOf(std::string_view hex) {
  std::string bytes;
  if (hex.size() % 2 != 0)
    return {};
  for (std::size_t at = 0; at < hex.size(); at += 2) {
    auto const high = digitOf(hex[at]);
    auto const low = digitOf(hex[at + 1]);
    if (!high || !low)
      return {};
    bytes += static_cast<char>(*high << 4 | *low);
  }
  return bytes;
}

/// Reads a message from a tree. The first mistake ends reading; its place and nature are kept.
class Reader {
public:
  explicit Reader(std::string& target) : error(target) {}

  std::optional<Decoded> message(Value const& value) {
    if (!isObject(value, "the message"))
      return {};
    auto const* const name = find(value, json::kind);
    auto const kind =
        name != nullptr && name->IsString() ? kindOf(textOf(*name)) : std::optional<Kind>();
    if (!kind) {
      fail("kind", "is none of the kinds of messages");
      return {};
    }
    Decoded decoded;
    decoded.declared = isDeclared(*kind);
    bool outcome = false;
    read(value, json::declared, decoded.declared);
    if (read(value, json::outcome, outcome))
      decoded.outcome = outcome;
    known = {json::kind, json::declared, json::outcome};
    body(*kind, value, decoded);
    rejectUnknown(value, {});
    if (!error.empty())
      return {};
    return decoded;
  }

  bool entry(Value const& value, RecordView target, std::size_t index,
             std::vector<Written>& written) {
    if (!isObject(value, path))
      return false;
    Scope const scope(*this);
    known.clear();
    for (Field const& field : entryFieldsOf(target.log))
      readField(value, field, target.record);
    readWritten(value, entryFieldsOf(target.log), index, Written::none, written);
    if (auto const* const calls = find(value, json::calls))
      readCalls(*calls, target, index, written);
    rejectUnknown(value, path);
    return error.empty();
  }

private:
  /// Keeps the path and the names that are known around a nested object.
  struct Scope {
    explicit Scope(Reader& of) : reader(of), path(of.path), known(of.known) {}
    ~Scope() {
      reader.path = path;
      reader.known = known;
    }
    Scope(Scope const&) = delete;
    Scope& operator=(Scope const&) = delete;
    Reader& reader;
    std::string path;
    std::vector<std::string_view> known;
  };

  void fail(std::string_view name, std::string_view problem) {
    if (!error.empty())
      return;
    error = path;
    error += path.empty() || name.empty() ? "" : ".";
    error.append(name).append(": ").append(problem);
  }

  bool isObject(Value const& value, std::string_view name) {
    if (!value.IsObject())
      fail(name == path ? std::string_view() : name, "is no object");
    return value.IsObject();
  }

  Value const* find(Value const& object, std::string_view name) {
    known.push_back(name);
    auto const found = object.FindMember(
        Value(rapidjson::StringRef(name.data(), static_cast<rapidjson::SizeType>(name.size()))));
    return found == object.MemberEnd() ? nullptr : &found->value;
  }

  void rejectUnknown(Value const& object, std::string const& where) {
    for (auto at = object.MemberBegin(); at != object.MemberEnd() && error.empty(); ++at) {
      auto const name = textOf(at->name);
      bool const isKnown = std::find(known.begin(), known.end(), name) != known.end();
      if (isKnown && object.FindMember(at->name) == at)
        continue;
      path = where;
      fail(name, isKnown ? "is there twice" : "is unknown here");
    }
  }

  // ---- Values; each returns whether the member is there

  bool read(Value const& object, std::string_view name, bool& target) {
    auto const* const value = find(object, name);
    if (value != nullptr && !value->IsBool())
      fail(name, "is neither true nor false");
    else if (value != nullptr)
      target = value->GetBool();
    return value != nullptr;
  }
  bool read(Value const& object, std::string_view name, std::uint32_t& target) {
    auto const* const value = find(object, name);
    if (value != nullptr && !value->IsUint())
      fail(name, "is no number from 0 to 4294967295");
    else if (value != nullptr)
      target = value->GetUint();
    return value != nullptr;
  }
  bool read(Value const& object, std::string_view name, std::string& target) {
    auto const* const value = find(object, name);
    if (value != nullptr)
      text(*value, name, target);
    return value != nullptr;
  }

  template <class Target>
  void require(Value const& object, std::string_view name, Target& target) {
    if (!read(object, name, target))
      fail(name, "is missing");
  }

  void text(Value const& value, std::string_view name, std::string& target) {
    if (value.IsString()) {
      target = textOf(value);
      return;
    }
    if (value.IsObject() && value.MemberCount() == 1 &&
        textOf(value.MemberBegin()->name) == json::hex && value.MemberBegin()->value.IsString())
      if (auto bytes = bytesOf(textOf(value.MemberBegin()->value))) {
        target = std::move(*bytes);
        return;
      }
    fail(name, "is neither a text nor bytes in hexadecimal");
  }

  void ids(Value const& object, std::vector<std::string>& target) {
    auto const* const value = find(object, json::entryIds);
    if (value == nullptr)
      return;
    if (!value->IsArray())
      return fail(json::entryIds, "is no list");
    for (auto const& id : value->GetArray())
      text(id, json::entryIds, target.emplace_back());
  }

  void readField(Value const& object, Field const& field, void* record) {
    if (field.type == Type::text) {
      read(object, field.name, field.text(record));
      return;
    }
    auto const* const value = find(object, field.name);
    if (value == nullptr)
      return;
    if (field.type == Type::flag) {
      if (!value->IsBool())
        return fail(field.name, "is neither true nor false");
      return setNumber(field, record, value->GetBool());
    }
    if (value->IsInt())
      return setNumber(field, record, value->GetInt());
    Names const names = namesOf(field.type);
    for (std::size_t number = 0; number < names.size && value->IsString(); ++number)
      if (names.first[number] == textOf(*value))
        return setNumber(field, record, static_cast<std::int32_t>(number));
    fail(field.name, "is no member of the enumeration");
  }

  void readCalls(Value const& calls, RecordView entry, std::size_t index,
                 std::vector<Written>& written) {
    if (!calls.IsArray())
      return fail(json::calls, "is no list");
    Scope const scope(*this);
    auto const prefix = path + (path.empty() ? "" : ".") + std::string(json::calls);
    std::size_t number = 0;
    for (auto const& value : calls.GetArray()) {
      path = prefix + "[" + std::to_string(number) + "]";
      if (!isObject(value, path))
        return;
      known.clear();
      void* const call = addCall(entry);
      for (Field const& field : callFieldsOf(entry.log))
        readField(value, field, call);
      readWritten(value, callFieldsOf(entry.log), index, number, written);
      rejectUnknown(value, path);
      ++number;
    }
  }

  void readWritten(Value const& object, Fields fields, std::size_t entry, std::size_t call,
                   std::vector<Written>& written) {
    auto const* const values = find(object, json::written);
    if (values == nullptr || !isObject(*values, json::written))
      return;
    Scope const scope(*this);
    known.clear();
    for (Field const& field : fields) {
      std::string value;
      if (read(*values, field.name, value))
        written.push_back({entry, call, &field, std::move(value)});
    }
    rejectUnknown(*values, path);
  }

  // ---- What the kinds hold

  std::optional<Log> log(Value const& object) {
    auto const* const name = find(object, json::log);
    auto const found =
        name != nullptr && name->IsString() ? logOf(textOf(*name)) : std::optional<Log>();
    if (!found)
      fail(json::log, "is none of missed, dialled, received and forwarded");
    return found;
  }

  void one(Value const& object, RecordView target, Decoded& decoded) {
    auto const* const value = find(object, json::entry);
    if (value == nullptr)
      return fail(json::entry, "is missing");
    Scope const scope(*this);
    path = json::entry;
    entry(*value, target, 0, decoded.written);
  }

  void list(Value const& object, Decoded& decoded) {
    auto const of = log(object);
    auto const* const value = find(object, json::entries);
    if (!of)
      return;
    ListResponse message{entriesOf(*of), 0};
    read(object, json::handle, message.handle);
    if (value != nullptr && !value->IsArray())
      return fail(json::entries, "is no list");
    if (value != nullptr)
      for (rapidjson::SizeType at = 0; at < value->Size() && error.empty(); ++at) {
        Scope const scope(*this);
        path = std::string(json::entries) + "[" + std::to_string(at) + "]";
        entry((*value)[at], addEntry(message.entries), at, decoded.written);
      }
    decoded.message = std::move(message);
  }

  void notification(Value const& object, Decoded& decoded) {
    auto const of = log(object);
    if (!of)
      return;
    EntryNotification message{entryOf(*of), {}, {}, 0};
    one(object, viewOf(message.entry), decoded);
    read(object, json::uniqueIdToDelete, message.uniqueIdToDelete);
    if (auto const* const values = find(object, json::written)) {
      Written id{Written::none, Written::none, nullptr, {}};
      if (isObject(*values, json::written) && read(*values, json::uniqueIdToDelete, id.value))
        decoded.written.push_back(std::move(id));
    }
    read(object, json::handle, message.handle);
    std::uint32_t action = 0;
    auto const* const value = find(object, json::action);
    if (value != nullptr && !value->IsNull() && read(object, json::action, action))
      message.action = action;
    decoded.message = std::move(message);
  }

  void body(Kind kind, Value const& object, Decoded& decoded) {
    switch (kind) {
    case Kind::unknown: {
      Unknown message;
      require(object, json::text, message.text);
      decoded.message = std::move(message);
      break;
    }
    case Kind::request: {
      Request message;
      require(object, json::method, message.method);
      ids(object, message.entryIds);
      decoded.message = std::move(message);
      break;
    }
    case Kind::listResponse:
      return list(object, decoded);
    case Kind::entryNotification:
      return notification(object, decoded);
    case Kind::counterNotification: {
      CounterNotification message;
      require(object, json::method, message.method);
      require(object, json::value, message.value);
      decoded.message = std::move(message);
      break;
    }
    case Kind::storeRequest: {
      StoreRequest message;
      require(object, json::schema, message.schema);
      require(object, json::reason, message.reason);
      decoded.message = std::move(message);
      break;
    }
    case Kind::outcome: {
      Outcome message;
      read(object, json::method, message.method);
      ids(object, message.entryIds);
      require(object, json::ok, message.ok);
      decoded.message = std::move(message);
      break;
    }
    case Kind::setting: {
      Setting message;
      require(object, json::callLogEnabled, message.enabled);
      decoded.message = message;
      break;
    }
    case Kind::lastDialled: {
      LastDialled message;
      one(object, {Log::dialled, &message.entry}, decoded);
      decoded.message = std::move(message);
      break;
    }
    case Kind::entry:
      if (auto const of = log(object)) {
        BareEntry message{entryOf(*of)};
        one(object, viewOf(message.entry), decoded);
        decoded.message = std::move(message);
      }
      break;
    }
  }

  std::string& error;
  std::string path;
  std::vector<std::string_view> known; ///< the names that the object at hand may have
};

} // namespace

std::optional<Decoded> fromJson(std::string_view text, std::string& error) {
  error.clear();
  rapidjson::Document document;
  if (!json::parse(text, document, error))
    return {};
  return Reader(error).message(document);
}

bool entryFromJson(std::string_view text, Entry& entry, std::string& error) {
  error.clear();
  rapidjson::Document document;
  std::vector<Written> written;
  return json::parse(text, document, error) &&
         Reader(error).entry(document, viewOf(entry), 0, written);
}

} // namespace inspect
