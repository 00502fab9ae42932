#include "Messages.h"

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Enumerations.h"
#include "Records.h"
#include "Text.h"

namespace python {
namespace {

/// A class of messages, with the names of its attributes in order.
class Class {
public:
  explicit Class(char const* name)
      : type(py::module_::import("journalmessages._messages").attr(name)),
        names(type.attr("__dataclass_fields__")) {}

  bool has(py::handle object) const { return py::isinstance(object, type); }

  /// A new object without a call of the constructor, which checks what is known to be right here.
  template <class... Values>
  py::object operator()(Values&&... values) const {
    auto const object = type.attr("__new__")(type);
    std::size_t at = 0;
    ((object.attr(names[at++]) = std::forward<Values>(values)), ...);
    return object;
  }

private:
  py::object type;
  py::tuple names;
};

/// The classes of messages, imported when the first one is needed and kept for good.
struct Classes {
  Class request{"Request"};
  Class listResponse{"ListResponse"};
  Class entryNotification{"EntryNotification"};
  Class counterNotification{"CounterNotification"};
  Class storeRequest{"StoreRequest"};
  Class outcome{"Outcome"};
  Class setting{"Setting"};
};

Classes const& classes() {
  static Classes const* const made = new Classes;
  return *made;
}

// ---- To Python

py::list textsOf(std::vector<std::string> const& texts) {
  py::list all;
  for (auto const& text : texts)
    all.append(textOf(text));
  return all;
}

py::object optionalFlag(std::optional<bool> flag) {
  return flag ? py::object(py::bool_(*flag)) : py::object(py::none());
}

template <class Item>
py::object objectOf(Item&& item, inspect::Log log) {
  return entryObject(log, std::make_shared<std::decay_t<Item>>(std::forward<Item>(item)));
}

py::object objectOf(inspect::Entry&& entry) {
  auto const log = inspect::logOf(entry);
  return std::visit([&](auto& item) { return objectOf(std::move(item), log); }, entry);
}

/// The objects of a log share the ownership of all its records.
py::list objectsOf(inspect::Entries&& entries) {
  auto const log = inspect::logOf(entries);
  auto const owner = std::make_shared<inspect::Entries>(std::move(entries));
  py::list objects(inspect::entryCount(*owner));
  std::size_t at = 0;
  inspect::forEachEntry(*owner, [&](inspect::RecordView entry) {
    objects[at++] = entryObject(log, std::shared_ptr<void>(owner, entry.record));
  });
  return objects;
}

py::object actionOf(std::optional<std::uint32_t> action) {
  return action ? memberOf(Enumeration::action, *action) : py::object(py::none());
}

struct ToPython {
  std::optional<bool> outcome;

  py::object operator()(inspect::Unknown&&) const { return py::none(); }
  py::object operator()(inspect::Request&& message) const {
    return classes().request(textOf(message.method), textsOf(message.entryIds));
  }
  py::object operator()(inspect::ListResponse&& message) const {
    auto const log = inspect::logOf(message.entries);
    return classes().listResponse(kindOf(log), objectsOf(std::move(message.entries)),
                                  message.handle, optionalFlag(outcome));
  }
  py::object operator()(inspect::EntryNotification&& message) const {
    return classes().entryNotification(objectOf(std::move(message.entry)), actionOf(message.action),
                                       message.handle, textOf(message.uniqueIdToDelete),
                                       optionalFlag(outcome));
  }
  py::object operator()(inspect::CounterNotification&& message) const {
    return classes().counterNotification(textOf(message.method), message.value);
  }
  py::object operator()(inspect::StoreRequest&& message) const {
    return classes().storeRequest(textOf(message.schema), textOf(message.reason));
  }
  py::object operator()(inspect::Outcome&& message) const {
    return classes().outcome(message.ok, textOf(message.method), textsOf(message.entryIds));
  }
  py::object operator()(inspect::Setting&& message) const {
    return classes().setting(message.enabled);
  }
  py::object operator()(inspect::LastDialled&& message) const {
    return objectOf(std::move(message.entry), inspect::Log::dialled);
  }
  py::object operator()(inspect::BareEntry&& message) const {
    return objectOf(std::move(message.entry));
  }
};

// ---- From Python

std::string textIn(py::handle object, char const* name) {
  py::object const text = object.attr(name);
  if (!PyUnicode_Check(text.ptr()))
    throw py::type_error(std::string(name) + " takes a str");
  return bytesOfText(text);
}

bool flagIn(py::handle object, char const* name) {
  return py::cast<bool>(object.attr(name));
}

std::optional<bool> outcomeIn(py::handle object) {
  if (object.attr("outcome").is_none())
    return {};
  return flagIn(object, "outcome");
}

std::uint32_t numberIn(py::handle object, char const* name) {
  py::object const value = object.attr(name);
  if (!PyLong_Check(value.ptr()))
    throw py::type_error(std::string(name) + " takes an int");
  int overflow = 0;
  auto const number = PyLong_AsLongLongAndOverflow(value.ptr(), &overflow);
  if (overflow != 0 || number < 0 || number > std::numeric_limits<std::uint32_t>::max())
    throw py::value_error(std::string(name) + " takes an int from 0 to 4294967295");
  return static_cast<std::uint32_t>(number);
}

std::vector<std::string> idsIn(py::handle object) {
  std::vector<std::string> ids;
  for (auto const id : object.attr("entry_ids")) {
    if (!PyUnicode_Check(id.ptr()))
      throw py::type_error("entry_ids takes texts");
    ids.push_back(bytesOfText(id));
  }
  return ids;
}

inspect::Log logIn(py::handle object) {
  py::object const kind = object.attr("kind");
  if (!py::isinstance(kind, classOf(Enumeration::kind)))
    throw py::type_error("kind takes a Kind");
  return static_cast<inspect::Log>(py::cast<int>(kind));
}

inspect::Message messageIn(py::handle object) {
  auto const& known = classes();
  if (logOfEntry(object))
    return inspect::BareEntry{entryOf(object)};
  if (known.listResponse.has(object))
    return inspect::ListResponse{entriesOf(logIn(object), object.attr("entries")),
                                 numberIn(object, "handle")};
  if (known.entryNotification.has(object)) {
    auto const absent = object.attr("action").is_none();
    return inspect::EntryNotification{
        entryOf(object.attr("entry")), textIn(object, "unique_id_to_delete"),
        absent ? std::optional<std::uint32_t>() : numberIn(object, "action"),
        numberIn(object, "handle")};
  }
  if (known.request.has(object))
    return inspect::Request{textIn(object, "method"), idsIn(object)};
  if (known.counterNotification.has(object))
    return inspect::CounterNotification{textIn(object, "method"), numberIn(object, "value")};
  if (known.storeRequest.has(object))
    return inspect::StoreRequest{textIn(object, "schema"), textIn(object, "reason")};
  if (known.outcome.has(object))
    return inspect::Outcome{textIn(object, "method"), idsIn(object), flagIn(object, "ok")};
  if (known.setting.has(object))
    return inspect::Setting{flagIn(object, "enabled")};
  throw py::type_error(std::string("a message or an entry expected, not ") +
                       Py_TYPE(object.ptr())->tp_name);
}

} // namespace

py::object toPython(inspect::Decoded&& decoded, py::bytes raw) {
  auto const message = std::visit(
      [&](auto& own) { return ToPython{decoded.outcome}(std::move(own)); }, decoded.message);
  if (!message.is_none())
    message.attr("_raw") = std::move(raw);
  return message;
}

inspect::Decoded fromPython(py::handle object) {
  auto message = messageIn(object);
  std::optional<bool> outcome;
  auto const kind = inspect::kindOf(message);
  if (kind == inspect::Kind::listResponse || kind == inspect::Kind::entryNotification)
    outcome = outcomeIn(object);
  return {std::move(message), {}, inspect::isDeclared(kind), outcome};
}

} // namespace python
