#include "Streaming.h"

#include "Text.h"
#include "inspect/Stream.h"

namespace python {
namespace {

void push(inspect::Stream& stream, py::handle data) {
  stream.push(bytesOf(data));
}

/// The next message with its offset and line; None when there is none yet.
py::object next(inspect::Stream& stream) {
  inspect::Found found;
  bool any = false;
  {
    py::gil_scoped_release const released;
    any = stream.next(found);
  }
  if (!any)
    return py::none();
  return py::make_tuple(py::bytes(found.text), found.offset, found.line);
}

} // namespace

void addStream(py::module_& module) {
  py::class_<inspect::Stream>(module, "Stream")
      .def(py::init<>())
      .def("push", &push)
      .def("finish", &inspect::Stream::finish)
      .def("next", &next)
      .def_property_readonly("is_too_large", &inspect::Stream::isTooLarge);
}

} // namespace python
