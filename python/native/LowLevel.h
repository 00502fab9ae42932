// The library's operations under their own names, for Python.
#ifndef PYTHON_LOWLEVEL_H
#define PYTHON_LOWLEVEL_H

#include <pybind11/pybind11.h>

namespace python {

void addLowLevel(pybind11::module_& module);

} // namespace python

#endif
