// Messages from captures, for Python.
#ifndef PYTHON_STREAMING_H
#define PYTHON_STREAMING_H

#include <pybind11/pybind11.h>

namespace python {

void addStream(pybind11::module_& module);

} // namespace python

#endif
