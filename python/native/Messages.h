// Decoded messages as Python objects, and back.
#ifndef PYTHON_MESSAGES_H
#define PYTHON_MESSAGES_H

#include <pybind11/pybind11.h>

#include "inspect/Message.h"

namespace python {

namespace py = pybind11;

/// The object of a message; None when it is Unknown.
/// @param raw the bytes that it was decoded from
py::object toPython(inspect::Decoded&& decoded, py::bytes raw);

/// What an object holds now, with the declaration that its kind is written with.
/// @throws type_error for what is no message
inspect::Decoded fromPython(py::handle message);

} // namespace python

#endif
