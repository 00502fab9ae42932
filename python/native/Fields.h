// The value of one field as a Python object, and back.
#ifndef PYTHON_FIELDS_H
#define PYTHON_FIELDS_H

#include <pybind11/pybind11.h>

#include <string>

#include "inspect/Records.h"

namespace python {

namespace py = pybind11;

/// A new str, bool or member; nullptr with an exception set when memory runs out.
PyObject* newValue(inspect::Field const& field, void* record);

/// @param name the field's name in Python
/// @throws type_error for another type, value_error for a number of more than 32 bits
void setValue(inspect::Field const& field, void* record, std::string const& name, py::handle value);

/// @throws type_error always: says what is expected instead of the value
[[noreturn]] void throwExpected(std::string const& name, char const* what, py::handle value);

/// Runs a function for the interpreter: what it throws becomes the interpreter's exception, and
/// the failure is the result.
template <class Run, class Result>
Result guarded(Run&& run, Result failure) {
  try {
    return run();
  } catch (py::error_already_set& error) {
    error.restore();
  } catch (py::builtin_exception const& error) {
    error.set_error();
  } catch (std::bad_alloc const&) {
    PyErr_NoMemory();
  }
  return failure;
}

} // namespace python

#endif
