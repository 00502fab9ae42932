#include "Enumerations.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "inspect/Explain.h"
#include "inspect/Message.h"

namespace python {
namespace {

/// A class with its members by value. They live as long as the process.
struct Made {
  PyObject* type = nullptr;
  std::vector<PyObject*> members;
};
Made made[static_cast<std::size_t>(Enumeration::methodCode) + 1];

std::string upper(std::string_view name) {
  std::string all(name);
  std::transform(all.begin(), all.end(), all.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
  return all;
}

class Definition {
public:
  void add(std::string const& name, std::int64_t value) {
    members_.append(py::make_tuple(name, value));
    values_.push_back(value);
  }

  void define(py::module_& module, Enumeration enumeration, char const* name, char const* doc) {
    auto const type = py::module_::import("enum").attr("IntEnum")(
        name, members_, py::arg("module") = "journalmessages", py::arg("qualname") = name);
    type.attr("__doc__") = doc;
    module.attr(name) = type;
    Made& target = made[static_cast<std::size_t>(enumeration)];
    target.type = py::object(type).release().ptr();
    for (auto const value : values_) {
      auto const at = static_cast<std::size_t>(value);
      target.members.resize(std::max(target.members.size(), at + 1));
      target.members[at] = type(value).release().ptr();
    }
  }

private:
  py::list members_;
  std::vector<std::int64_t> values_;
};

void addFieldEnumeration(py::module_& module, inspect::Type type, char const* name,
                         char const* doc) {
  Definition definition;
  std::int64_t value = 0;
  for (auto const member : inspect::namesOf(type))
    definition.add(std::string(member), value++);
  definition.define(module, enumerationOf(type), name, doc);
}

void addActions(py::module_& module) {
  Definition actions;
  using Action = JournalServiceObserverIfc;
  actions.add("ENTRY_ADDED", Action::ENTRY_ADDED);
  actions.add("ENTRY_CHANGED", Action::ENTRY_CHANGED);
  actions.add("ENTRY_DELETED", Action::ENTRY_DELETED);
  actions.define(module, Enumeration::action, "Action",
                 "The kind of change that an entry notification reports. 3 to 9 are free.");
}

void addMethodCodes(py::module_& module) {
  Definition codes;
  for (auto const& operation : inspect::operations())
    if (operation.code != JournalServiceHelper::UNKNOWN_METHOD)
      codes.add(upper(operation.method), operation.code);
  codes.add("UNKNOWN_METHOD", JournalServiceHelper::UNKNOWN_METHOD);
  codes.define(module, Enumeration::methodCode, "MethodCode",
               "What the Method element of a message asks or tells.");
}

} // namespace

void addEnumerations(py::module_& module) {
  using inspect::Type;
  addFieldEnumeration(module, Type::numberType, "NumberType", "The type of a telephone number.");
  addFieldEnumeration(module, Type::timeFormat, "TimeFormat", "How to show the time of a call.");
  addFieldEnumeration(module, Type::presentation, "Presentation",
                      "Whether a number or a name may be shown.");
  addFieldEnumeration(module, Type::targetLog, "LogTarget",
                      "Which log a call belongs to, and how it ended.");
  Definition kinds;
  for (auto const log : inspect::allLogs)
    kinds.add(upper(inspect::nameOf(log)), static_cast<std::int64_t>(log));
  kinds.define(module, Enumeration::kind, "Kind", "The four logs.");
  Definition severities;
  for (auto const severity : {inspect::Severity::none, inspect::Severity::note,
                              inspect::Severity::warning, inspect::Severity::error})
    severities.add(upper(inspect::nameOf(severity)), static_cast<std::int64_t>(severity));
  severities.define(module, Enumeration::severity, "Severity", "How much a finding matters.");
  addActions(module);
  addMethodCodes(module);
}

py::handle classOf(Enumeration enumeration) {
  return made[static_cast<std::size_t>(enumeration)].type;
}

PyObject* newMember(Enumeration enumeration, std::int64_t value) {
  auto const& members = made[static_cast<std::size_t>(enumeration)].members;
  auto const at = static_cast<std::size_t>(value);
  auto* const member = at < members.size() ? members[at] : nullptr;
  if (member == nullptr)
    return PyLong_FromLongLong(value);
  Py_INCREF(member);
  return member;
}

Enumeration enumerationOf(inspect::Type type) {
  switch (type) {
  case inspect::Type::numberType:
    return Enumeration::numberType;
  case inspect::Type::timeFormat:
    return Enumeration::timeFormat;
  case inspect::Type::presentation:
    return Enumeration::presentation;
  default:
    return Enumeration::targetLog;
  }
}

} // namespace python
