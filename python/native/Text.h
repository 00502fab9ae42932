// Texts between Python and the library: str holds the bytes that are no UTF-8 as surrogate escapes.
#ifndef PYTHON_TEXT_H
#define PYTHON_TEXT_H

#include <pybind11/pybind11.h>

#include <string>
#include <string_view>

namespace python {

namespace py = pybind11;

/// A new str; nullptr with an exception set when memory runs out.
inline PyObject* newText(std::string_view bytes) {
  return PyUnicode_DecodeUTF8(bytes.data(), static_cast<Py_ssize_t>(bytes.size()),
                              "surrogateescape");
}
inline py::str textOf(std::string_view bytes) {
  auto* const text = newText(bytes);
  if (text == nullptr)
    throw py::error_already_set();
  return py::reinterpret_steal<py::str>(text);
}

/// The bytes of a str.
/// @throws error_already_set for a lone surrogate that escapes no byte
inline std::string bytesOfText(py::handle text) {
  Py_ssize_t size = 0;
  if (auto const* const bytes = PyUnicode_AsUTF8AndSize(text.ptr(), &size))
    return {bytes, static_cast<std::size_t>(size)};
  PyErr_Clear();
  auto const bytes = py::reinterpret_steal<py::bytes>(
      PyUnicode_AsEncodedString(text.ptr(), "utf-8", "surrogateescape"));
  if (!bytes)
    throw py::error_already_set();
  return std::string(bytes);
}

/// The bytes of a message: of a str, or of anything with a buffer.
inline std::string bytesOf(py::handle data) {
  if (PyUnicode_Check(data.ptr()))
    return bytesOfText(data);
  Py_buffer buffer;
  if (PyObject_GetBuffer(data.ptr(), &buffer, PyBUF_SIMPLE) != 0)
    throw py::error_already_set();
  std::string bytes(static_cast<char const*>(buffer.buf), static_cast<std::size_t>(buffer.len));
  PyBuffer_Release(&buffer);
  return bytes;
}

} // namespace python

#endif
