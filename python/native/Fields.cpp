#include "Fields.h"

#include <limits>

#include "Enumerations.h"
#include "Text.h"

namespace python {
namespace {

std::int32_t numberFrom(std::string const& name, py::handle value) {
  if (!PyLong_Check(value.ptr()))
    throwExpected(name, "a member of its enumeration or an int", value);
  int overflow = 0;
  auto const number = PyLong_AsLongLongAndOverflow(value.ptr(), &overflow);
  if (overflow != 0 || number < std::numeric_limits<std::int32_t>::min() ||
      number > std::numeric_limits<std::int32_t>::max())
    throw py::value_error(name + " takes an int of 32 bits");
  return static_cast<std::int32_t>(number);
}

} // namespace

void throwExpected(std::string const& name, char const* what, py::handle value) {
  throw py::type_error(name + " takes " + what + ", not " + Py_TYPE(value.ptr())->tp_name);
}

PyObject* newValue(inspect::Field const& field, void* record) {
  if (field.type == inspect::Type::text)
    return newText(field.text(record));
  auto const number = inspect::numberIn(field, record);
  return field.type == inspect::Type::flag ? PyBool_FromLong(number)
                                           : newMember(enumerationOf(field.type), number);
}

void setValue(inspect::Field const& field, void* record, std::string const& name,
              py::handle value) {
  if (field.type == inspect::Type::text) {
    if (!PyUnicode_Check(value.ptr()))
      throwExpected(name, "a str", value);
    field.text(record) = bytesOfText(value);
  } else if (field.type == inspect::Type::flag) {
    if (!PyBool_Check(value.ptr()))
      throwExpected(name, "a bool", value);
    inspect::setNumber(field, record, value.ptr() == Py_True ? 1 : 0);
  } else {
    inspect::setNumber(field, record, numberFrom(name, value));
  }
}

} // namespace python
