// Entries and calls as Python objects.
//
// An object shares the ownership of its record: decoding gives one block of records, and an object
// is made for each of them that somebody asks for. An entry's calls become a list of objects when
// they are first asked for; from then on that list is what the entry holds.
#ifndef PYTHON_RECORDS_H
#define PYTHON_RECORDS_H

#include <pybind11/pybind11.h>

#include <memory>

#include "inspect/Records.h"

namespace python {

namespace py = pybind11;

/// Defines the eight classes in the module.
void addRecords(py::module_& module);

/// A new object for a record, an entry or a call of a log.
py::object entryObject(inspect::Log log, std::shared_ptr<void> record);
py::object callObject(inspect::Log log, std::shared_ptr<void> record);

/// The log of an entry; nothing for any other object.
std::optional<inspect::Log> logOfEntry(py::handle object);

/// What an entry holds now.
/// @throws type_error for any other object, and when the list holds what is no call of this log
inspect::Entry entryOf(py::handle object);
/// The same for a list of entries, all of this log.
inspect::Entries entriesOf(inspect::Log log, py::handle objects);

/// The record of a call.
/// @throws type_error for any other object
void* callOf(inspect::Log log, py::handle object);

} // namespace python

#endif
