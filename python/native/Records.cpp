#include "Records.h"

#include <cctype>
#include <string>
#include <vector>

#include "Enumerations.h"
#include "Fields.h"
#include "Text.h"

namespace python {
namespace {

using inspect::Field;
using inspect::Log;

/// An attribute of a record. The list of calls has no field.
struct Attribute {
  std::string name;
  Field const* field;
};

struct Class {
  Log log;
  bool isEntry;
  PyTypeObject* type = nullptr;
  std::shared_ptr<void> (*make)();
  std::vector<Attribute> attributes;
  std::vector<PyGetSetDef> accessors;
};
std::vector<Class> classes; // entries and calls of each log in turn; never changed once made

Class& classFor(Log log, bool isEntry) {
  return classes[2 * static_cast<std::size_t>(log) + (isEntry ? 0 : 1)];
}

struct Object {
  PyObject head;
  Class const* own;
  std::shared_ptr<void> record;
  PyObject* calls; ///< of an entry: nullptr until somebody asks for them
  PyObject* raw;   ///< of an entry: the bytes it was decoded from, None or nullptr

  PyObject* base() { return &head; }
};

Object* object(PyObject* self) {
  return reinterpret_cast<Object*>(self);
}

/// The object when it is of one of these classes.
Object* recordIn(py::handle handle) {
  for (Class const& one : classes)
    if (PyObject_TypeCheck(handle.ptr(), one.type))
      return object(handle.ptr());
  return nullptr;
}

// ---- Life of an object

/// @param type the class itself, or one derived from it
PyObject* newObject(PyTypeObject* type, Class const& own, std::shared_ptr<void> record) {
  auto* const self = type->tp_alloc(type, 0);
  if (self != nullptr) {
    object(self)->own = &own;
    new (&object(self)->record) std::shared_ptr<void>(std::move(record));
  }
  return self;
}

PyObject* create(PyTypeObject* type, PyObject*, PyObject*) {
  auto const run = [&] {
    for (Class const& one : classes)
      if (PyType_IsSubtype(type, one.type))
        return newObject(type, one, one.make());
    throw py::type_error("not a class of records");
  };
  return guarded(run, static_cast<PyObject*>(nullptr));
}

int clear(PyObject* self) {
  Py_CLEAR(object(self)->calls);
  Py_CLEAR(object(self)->raw);
  return 0;
}

int traverse(PyObject* self, visitproc visit, void* arg) {
  Py_VISIT(Py_TYPE(self));
  Py_VISIT(object(self)->calls);
  return 0;
}

void destroy(PyObject* self) {
  PyObject_GC_UnTrack(self);
  auto* const type = Py_TYPE(self);
  clear(self);
  object(self)->record.~shared_ptr();
  type->tp_free(self);
  Py_DECREF(type);
}

// ---- Attributes

PyObject* callsOf(Object* self) {
  if (self->calls == nullptr) {
    py::list calls;
    inspect::forEachCall({self->own->log, self->record.get()}, [&](void* call) {
      calls.append(callObject(self->own->log, std::shared_ptr<void>(self->record, call)));
    });
    self->calls = calls.release().ptr();
  }
  Py_INCREF(self->calls);
  return self->calls;
}

PyObject* get(PyObject* self, void* closure) {
  auto const* const field = static_cast<Attribute const*>(closure)->field;
  if (field != nullptr)
    return newValue(*field, object(self)->record.get());
  return guarded([&] { return callsOf(object(self)); }, static_cast<PyObject*>(nullptr));
}

void setAttribute(Attribute const& attribute, Object* self, py::handle value) {
  if (!value)
    throw py::type_error(attribute.name + " cannot be deleted");
  if (attribute.field != nullptr)
    return setValue(*attribute.field, self->record.get(), attribute.name, value);
  if (!PyList_Check(value.ptr()))
    throwExpected(attribute.name, "a list", value);
  Py_INCREF(value.ptr());
  Py_XSETREF(self->calls, value.ptr());
}

int set(PyObject* self, PyObject* value, void* closure) {
  auto const run = [&] {
    setAttribute(*static_cast<Attribute const*>(closure), object(self), value);
    return 0;
  };
  return guarded(run, -1);
}

Attribute const& attributeNamed(Class const& own, std::string const& name) {
  for (Attribute const& attribute : own.attributes)
    if (attribute.name == name)
      return attribute;
  throw py::type_error(std::string(own.type->tp_name) + " has no \"" + name + '"');
}

void initialise(Object* self, py::args const& positional, py::kwargs const& named) {
  auto const& attributes = self->own->attributes;
  if (positional.size() > attributes.size())
    throw py::type_error("at most " + std::to_string(attributes.size()) + " values");
  for (std::size_t at = 0; at < positional.size(); ++at)
    setAttribute(attributes[at], self, positional[at]);
  for (auto const& [key, value] : named) {
    auto const& attribute = attributeNamed(*self->own, bytesOfText(key));
    if (&attribute < &attributes[0] + positional.size())
      throw py::type_error(attribute.name + " is given twice");
    setAttribute(attribute, self, value);
  }
}

int init(PyObject* self, PyObject* positional, PyObject* named) {
  auto const run = [&] {
    initialise(object(self), py::reinterpret_borrow<py::args>(positional),
               named == nullptr ? py::kwargs() : py::reinterpret_borrow<py::kwargs>(named));
    return 0;
  };
  return guarded(run, -1);
}

PyObject* getRaw(PyObject* self, void*) {
  auto* const raw = object(self)->raw == nullptr ? Py_None : object(self)->raw;
  Py_INCREF(raw);
  return raw;
}

int setRaw(PyObject* self, PyObject* value, void*) {
  Py_XINCREF(value);
  Py_XSETREF(object(self)->raw, value);
  return 0;
}

// ---- Classes, from the lists of members

/// jsGroupBy becomes js_group_by.
std::string pythonName(std::string_view name) {
  std::string made;
  for (char const letter : name) {
    auto const byte = static_cast<unsigned char>(letter);
    if (std::isupper(byte))
      made += '_';
    made += static_cast<char>(std::tolower(byte));
  }
  return made;
}

template <class Record>
void addClass(Log log) {
  Class added{log,     members::isEntry<Record>,
              nullptr, [] { return std::shared_ptr<void>(std::make_shared<Record>()); },
              {},      {}};
  auto const* next = inspect::fieldsOf<Record>().begin();
  members::forEachMember<Record>([&](auto const& member) {
    if constexpr (std::decay_t<decltype(member)>::isCalls)
      added.attributes.push_back({"calls", nullptr});
    else
      added.attributes.push_back({pythonName(member.name), next++});
  });
  classes.push_back(std::move(added));
}

template <class Item>
void addClassesOf(Log log) {
  addClass<Item>(log);
  addClass<members::CallOf<Item>>(log);
}

/// Missed and Entry become MissedEntry.
std::string nameOf(Class const& own) {
  std::string name(inspect::nameOf(own.log));
  name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
  return name + (own.isEntry ? "Entry" : "Call");
}

void makeType(Class& own, py::handle base, std::string const& name) {
  for (Attribute& attribute : own.attributes)
    own.accessors.push_back({attribute.name.c_str(), get, set, nullptr, &attribute});
  if (own.isEntry)
    own.accessors.push_back({"_raw", getRaw, setRaw, nullptr, nullptr});
  own.accessors.push_back({});
  static std::string const doc[] = {"One call of the log of ", "One party of the log of "};
  auto const text = doc[own.isEntry ? 1 : 0] + std::string(inspect::nameOf(own.log)) +
                    " calls; its attributes are keyword arguments too.";
  PyType_Slot slots[] = {{Py_tp_new, reinterpret_cast<void*>(create)},
                         {Py_tp_init, reinterpret_cast<void*>(init)},
                         {Py_tp_dealloc, reinterpret_cast<void*>(destroy)},
                         {Py_tp_traverse, reinterpret_cast<void*>(traverse)},
                         {Py_tp_clear, reinterpret_cast<void*>(clear)},
                         {Py_tp_getset, own.accessors.data()},
                         {Py_tp_doc, const_cast<char*>(text.c_str())},
                         {0, nullptr}};
  // The interpreter keeps the name's address.
  static std::vector<std::string> names = [] {
    std::vector<std::string> all;
    all.reserve(2 * inspect::logs);
    return all;
  }();
  names.push_back("journalmessages." + name);
  PyType_Spec described{names.back().c_str(), sizeof(Object), 0,
                        Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE | Py_TPFLAGS_HAVE_GC, slots};
  auto* const type = PyType_FromSpecWithBases(&described, py::make_tuple(base).ptr());
  if (type == nullptr)
    throw py::error_already_set();
  own.type = reinterpret_cast<PyTypeObject*>(type);
}

/// What Python code needs to know of a class: the order of its attributes, and the log.
void describe(Class const& own, py::object const& type) {
  py::tuple names(own.attributes.size());
  for (std::size_t at = 0; at < own.attributes.size(); ++at)
    names[at] = own.attributes[at].name;
  type.attr("__match_args__") = names;
  type.attr("kind") = kindOf(own.log);
}

template <class Item>
Item itemOf(Object const* self) {
  Item item = *static_cast<Item const*>(self->record.get());
  if (self->calls == nullptr)
    return item;
  item.callInfoList.clear();
  for (auto const call : py::reinterpret_borrow<py::list>(self->calls))
    item.callInfoList.push_back(
        *static_cast<members::CallOf<Item> const*>(callOf(self->own->log, call)));
  return item;
}

[[noreturn]] void notA(Class const& wanted, py::handle object) {
  throw py::type_error(std::string(wanted.type->tp_name) + " expected, not " +
                       Py_TYPE(object.ptr())->tp_name);
}

} // namespace

void addRecords(py::module_& module) {
  addClassesOf<MissedCallItem>(Log::missed);
  addClassesOf<DialledCallItem>(Log::dialled);
  addClassesOf<ReceivedCallItem>(Log::received);
  addClassesOf<ForwardedCallItem>(Log::forwarded);
  auto const bases = py::module_::import("journalmessages._record");
  for (Class& own : classes) {
    auto const name = nameOf(own);
    makeType(own, bases.attr(own.isEntry ? "Entry" : "Call"), name);
    auto const type = py::reinterpret_borrow<py::object>(reinterpret_cast<PyObject*>(own.type));
    describe(own, type);
    module.attr(name.c_str()) = type;
  }
}

py::object entryObject(Log log, std::shared_ptr<void> record) {
  Class const& own = classFor(log, true);
  auto entry = py::reinterpret_steal<py::object>(newObject(own.type, own, std::move(record)));
  if (!entry)
    throw py::error_already_set();
  return entry;
}

py::object callObject(Log log, std::shared_ptr<void> record) {
  Class const& own = classFor(log, false);
  auto call = py::reinterpret_steal<py::object>(newObject(own.type, own, std::move(record)));
  if (!call)
    throw py::error_already_set();
  return call;
}

std::optional<Log> logOfEntry(py::handle handle) {
  auto const* const entry = recordIn(handle);
  if (entry == nullptr || !entry->own->isEntry)
    return {};
  return entry->own->log;
}

inspect::Entry entryOf(py::handle handle) {
  auto const* const self = recordIn(handle);
  if (self == nullptr || !self->own->isEntry)
    throw py::type_error(std::string("an entry expected, not ") + Py_TYPE(handle.ptr())->tp_name);
  switch (self->own->log) {
  case Log::missed:
    return itemOf<MissedCallItem>(self);
  case Log::dialled:
    return itemOf<DialledCallItem>(self);
  case Log::received:
    return itemOf<ReceivedCallItem>(self);
  default:
    return itemOf<ForwardedCallItem>(self);
  }
}

inspect::Entries entriesOf(Log log, py::handle objects) {
  auto all = inspect::entriesOf(log);
  for (auto const entry : objects) {
    if (logOfEntry(entry) != log)
      notA(classFor(log, true), entry);
    std::visit(
        [&](auto& entries) {
          using Item = typename std::decay_t<decltype(entries)>::value_type;
          entries.push_back(itemOf<Item>(object(entry.ptr())));
        },
        all);
  }
  return all;
}

void* callOf(Log log, py::handle handle) {
  auto const& wanted = classFor(log, false);
  if (!PyObject_TypeCheck(handle.ptr(), wanted.type))
    notA(wanted, handle);
  return object(handle.ptr())->record.get();
}

} // namespace python
