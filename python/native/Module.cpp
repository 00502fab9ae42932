// The functions of the inspection engine for Python. The package's own modules are what users see.
#include <pybind11/pybind11.h>

#include <string>
#include <vector>

#include "Enumerations.h"
#include "LowLevel.h"
#include "Messages.h"
#include "Records.h"
#include "Streaming.h"
#include "Text.h"
#include "inspect/Diff.h"
#include "inspect/Explain.h"
#include "inspect/Json.h"

namespace python {
namespace {

using OptionalLog = std::optional<inspect::Log>;

OptionalLog logOf(py::handle kind) {
  if (kind.is_none())
    return {};
  if (!py::isinstance(kind, classOf(Enumeration::kind)))
    throw py::type_error("kind takes a Kind");
  return static_cast<inspect::Log>(py::cast<int>(kind));
}

py::bytes bytes(py::handle data) {
  return PyBytes_CheckExact(data.ptr()) ? py::reinterpret_borrow<py::bytes>(data)
                                        : py::bytes(bytesOf(data));
}

py::object decode(py::handle data, py::handle kind) {
  auto const raw = bytes(data);
  std::string_view const view(PyBytes_AS_STRING(raw.ptr()),
                              static_cast<std::size_t>(PyBytes_GET_SIZE(raw.ptr())));
  auto const log = logOf(kind);
  inspect::Decoded decoded;
  {
    py::gil_scoped_release const released;
    decoded = inspect::read(std::string(view), log);
  }
  return toPython(std::move(decoded), raw);
}

py::bytes encode(py::handle message) {
  auto const decoded = fromPython(message);
  std::string text;
  {
    py::gil_scoped_release const released;
    text = inspect::encode(decoded);
  }
  return text;
}

py::str toJson(py::handle message) {
  return textOf(inspect::toJson(fromPython(message)));
}

/// The message that a JSON text describes, as bytes.
py::bytes fromJson(py::str const& json) {
  std::string error;
  auto const decoded = inspect::fromJson(bytesOfText(json), error);
  if (!decoded)
    throw py::value_error(error);
  return inspect::encode(*decoded);
}

// ---- What the inspector tells. The tuples are those of the classes in _inspect.py.

py::object optionalText(std::optional<std::string> const& text) {
  return text ? py::object(textOf(*text)) : py::object(py::none());
}

py::object optionalKind(OptionalLog log) {
  return log ? kindOf(*log) : py::object(py::none());
}

py::tuple tupleOf(inspect::Rule const& rule) {
  return py::make_tuple(textOf(rule.id),
                        memberOf(Enumeration::severity, static_cast<std::int64_t>(rule.severity)),
                        textOf(rule.what), textOf(rule.why));
}

py::list rules() {
  py::list all;
  for (auto const& rule : inspect::rules())
    all.append(tupleOf(rule));
  return all;
}

py::tuple tupleOf(inspect::Finding const& finding) {
  return py::make_tuple(static_cast<int>(finding.rule), finding.offset, textOf(finding.element),
                        textOf(finding.text), textOf(finding.instead));
}

py::tuple tupleOf(inspect::Piece const& piece) {
  py::list reasons;
  for (auto const reason : piece.reasons)
    reasons.append(textOf(inspect::ruleOf(reason).id));
  return py::make_tuple(textOf(inspect::nameOf(piece.form)), piece.depth, piece.offset, piece.size,
                        textOf(piece.element), textOf(piece.raw), optionalText(piece.stored),
                        py::tuple(reasons));
}

py::tuple tupleOf(inspect::Difference const& difference) {
  return py::make_tuple(textOf(difference.entry), textOf(difference.field),
                        optionalText(difference.left), optionalText(difference.right));
}

template <class Value>
py::list tuplesOf(std::vector<Value> const& values) {
  py::list all;
  for (auto const& value : values)
    all.append(tupleOf(value));
  return all;
}

py::list check(py::handle data, py::handle kind) {
  auto const text = bytesOf(data);
  auto const log = logOf(kind);
  std::vector<inspect::Finding> findings;
  {
    py::gil_scoped_release const released;
    findings = inspect::check(text, log);
  }
  return tuplesOf(findings);
}

py::list explain(py::handle data, py::handle kind) {
  auto const text = bytesOf(data);
  return tuplesOf(inspect::explain(text, logOf(kind)).pieces);
}

py::tuple identify(py::handle data) {
  auto const identity = inspect::identify(bytesOf(data));
  return py::make_tuple(textOf(inspect::nameOf(identity.kind)), textOf(identity.method),
                        memberOf(Enumeration::methodCode, identity.code),
                        optionalKind(identity.log), identity.declared);
}

/// What an object holds, or what a text decodes to.
inspect::Decoded decodedOf(py::handle object) {
  if (PyUnicode_Check(object.ptr()) || PyObject_CheckBuffer(object.ptr()))
    return inspect::read(bytesOf(object));
  return fromPython(object);
}

py::list diff(py::handle left, py::handle right, py::iterable const& ignored) {
  std::vector<std::string> names;
  for (auto const name : ignored)
    names.push_back(py::cast<std::string>(name));
  return tuplesOf(inspect::diff(decodedOf(left), decodedOf(right), names));
}

py::list comparedFields() {
  py::list all;
  for (auto const& name : inspect::comparedFields())
    all.append(textOf(name));
  return all;
}

/// The log after the notification, and what does not fit.
py::tuple apply(py::handle notification, py::handle list) {
  auto after = decodedOf(list);
  auto const change = decodedOf(notification);
  auto* const log = std::get_if<inspect::ListResponse>(&after.message);
  auto const* const what = std::get_if<inspect::EntryNotification>(&change.message);
  if (log == nullptr || what == nullptr)
    throw py::type_error("an EntryNotification and a ListResponse expected");
  auto const problem = inspect::apply(*what, *log);
  auto const raw = inspect::encode(after);
  return py::make_tuple(toPython(std::move(after), raw), textOf(problem));
}

// ---- The operations that build messages

char const* nameOf(inspect::Takes takes) {
  constexpr char const* names[] = {"nothing", "id", "ids", "count", "entry", "text"};
  return names[static_cast<std::size_t>(takes)];
}

py::list operations() {
  py::list all;
  for (auto const& operation : inspect::operations())
    all.append(py::make_tuple(textOf(operation.name), textOf(operation.method),
                              textOf(inspect::nameOf(operation.kind)), optionalKind(operation.log),
                              nameOf(operation.takes)));
  return all;
}

py::bytes make(std::string const& name, py::iterable const& arguments) {
  std::vector<std::string> texts;
  for (auto const argument : arguments)
    texts.push_back(bytesOfText(argument));
  std::string error;
  auto const message = inspect::make(name, texts, error);
  if (!message)
    throw py::value_error(name + ": " + error);
  return *message;
}

PYBIND11_MODULE(_native, module) {
  module.attr("version") = JOURNALSERVICEHELPER_VERSION;
  addEnumerations(module);
  addRecords(module);
  addStream(module);
  auto lowLevel = module.def_submodule("lowlevel");
  addLowLevel(lowLevel);

  module.def("decode", &decode);
  module.def("encode", &encode);
  module.def("to_json", &toJson);
  module.def("from_json", &fromJson);
  module.def("check", &check);
  module.def("explain", &explain);
  module.def("identify", &identify);
  module.def("diff", &diff);
  module.def("compared_fields", &comparedFields);
  module.def("apply", &apply);
  module.def("rules", &rules);
  module.def("operations", &operations);
  module.def("make", &make);
}

} // namespace
} // namespace python
