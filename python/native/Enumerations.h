// The enumerations, each an enum.IntEnum made from the list of its members.
#ifndef PYTHON_ENUMERATIONS_H
#define PYTHON_ENUMERATIONS_H

#include <pybind11/pybind11.h>

#include <cstdint>

#include "inspect/Records.h"

namespace python {

namespace py = pybind11;

/// Every enumeration that Python sees.
enum class Enumeration : std::uint8_t {
  numberType,
  timeFormat,
  presentation,
  targetLog,
  kind,
  action,
  severity,
  methodCode
};

/// Defines all of them in the module.
void addEnumerations(py::module_& module);

/// The class.
py::handle classOf(Enumeration enumeration);
/// A new reference to the member of this value; to an int where no member has it.
PyObject* newMember(Enumeration enumeration, std::int64_t value);
/// Which enumeration a field holds that is no text and no flag.
Enumeration enumerationOf(inspect::Type type);

inline py::object memberOf(Enumeration enumeration, std::int64_t value) {
  return py::reinterpret_steal<py::object>(newMember(enumeration, value));
}
inline py::object kindOf(inspect::Log log) {
  return memberOf(Enumeration::kind, static_cast<std::int64_t>(log));
}

} // namespace python

#endif
