// How arguments and results of the library's operations look in Python. For LowLevel.cpp alone.
#ifndef PYTHON_CASTERS_H
#define PYTHON_CASTERS_H

#include <pybind11/pybind11.h>

#include <cstdint>
#include <deque>
#include <list>
#include <memory>
#include <set>
#include <string>

#include "Enumerations.h"
#include "JournalServiceHelper.h"
#include "Records.h"
#include "Text.h"

namespace python {

/// A text of the library. The caster of std::string itself takes UTF-8 alone.
struct Text {
  std::string bytes;
};

/// A flag. The caster of bool itself takes anything.
struct Flag {
  bool value;
};

template <class Record>
inline constexpr auto logOf = inspect::Log::missed;
#define LOG(Item, log)                                                                             \
  template <>                                                                                      \
  inline constexpr auto logOf<Item> = inspect::Log::log;                                           \
  template <>                                                                                      \
  inline constexpr auto logOf<members::CallOf<Item>> = inspect::Log::log;
LOG(MissedCallItem, missed)
LOG(DialledCallItem, dialled)
LOG(ReceivedCallItem, received)
LOG(ForwardedCallItem, forwarded)
#undef LOG

/// A new object for a copy of a record.
template <class Record>
py::object objectOf(Record const& record) {
  auto const copy = std::make_shared<Record>(record);
  if constexpr (members::isEntry<Record>)
    return entryObject(logOf<Record>, copy);
  else
    return callObject(logOf<Record>, copy);
}

template <class Records>
py::list objectsOf(Records const& records) {
  py::list objects;
  for (auto const& record : records)
    objects.append(objectOf(record));
  return objects;
}

} // namespace python

// The names are given with _, which every version of pybind11 has.
namespace pybind11::detail {

template <>
struct type_caster<python::Text> {
  PYBIND11_TYPE_CASTER(python::Text, _("str"));
  bool load(handle source, bool) {
    if (!PyUnicode_Check(source.ptr()) && !PyBytes_Check(source.ptr()))
      return false;
    value.bytes = python::bytesOf(source);
    return true;
  }
  static handle cast(python::Text const& text, return_value_policy, handle) {
    return python::textOf(text.bytes).release();
  }
};

template <>
struct type_caster<python::Flag> {
  PYBIND11_TYPE_CASTER(python::Flag, _("bool"));
  bool load(handle source, bool) {
    value.value = source.ptr() == Py_True;
    return PyBool_Check(source.ptr());
  }
  static handle cast(python::Flag flag, return_value_policy, handle) {
    return PyBool_FromLong(flag.value);
  }
};

template <>
struct type_caster<std::set<std::string>> {
  PYBIND11_TYPE_CASTER(std::set<std::string>, _("AbstractSet[str]"));
  bool load(handle source, bool) {
    if (!PyAnySet_Check(source.ptr()))
      return false;
    for (auto const text : source) {
      if (!PyUnicode_Check(text.ptr()))
        return false;
      value.insert(python::bytesOfText(text));
    }
    return true;
  }
};

template <class Type, python::Enumeration enumeration>
struct enumeration_caster {
  Type value{};
  bool load(handle source, bool convert) {
    make_caster<std::int32_t> number;
    if (!(convert || isinstance(source, python::classOf(enumeration))) ||
        !number.load(source, false))
      return false;
    value = static_cast<Type>(cast_op<std::int32_t>(number));
    return true;
  }
  static handle cast(Type value, return_value_policy, handle) {
    return python::newMember(enumeration, value);
  }
  template <class>
  using cast_op_type = Type;
  operator Type() const { return value; }
};

#define ENUMERATION(Type, name)                                                                    \
  template <>                                                                                      \
  struct type_caster<Type> : enumeration_caster<Type, python::Enumeration::name>
#define NAMED(text)                                                                                \
  { static constexpr auto name = _(text); }
ENUMERATION(NumberType::NT, numberType) NAMED("NumberType");
ENUMERATION(CallLogEntryEvent::_TFormat, timeFormat) NAMED("TimeFormat");
ENUMERATION(CallLogEntryEvent::_PresentationValue, presentation) NAMED("Presentation");
ENUMERATION(CallLogEntryEvent::_LogTarget, targetLog) NAMED("LogTarget");
ENUMERATION(JournalServiceObserverIfc::ActionType, action) NAMED("Action");
ENUMERATION(JournalServiceHelper::MethodCode, methodCode) NAMED("MethodCode");
#undef NAMED
#undef ENUMERATION

// The records of a log: an entry, a call, and lists of them.
#define RECORDS(Item, entryName, callName)                                                         \
  template <>                                                                                      \
  struct type_caster<Item> {                                                                       \
    PYBIND11_TYPE_CASTER(Item, _(entryName));                                                      \
    bool load(handle source, bool) {                                                               \
      if (python::logOfEntry(source) != python::logOf<Item>)                                       \
        return false;                                                                              \
      value = std::get<Item>(python::entryOf(source));                                             \
      return true;                                                                                 \
    }                                                                                              \
    static handle cast(Item const& item, return_value_policy, handle) {                            \
      return python::objectOf(item).release();                                                     \
    }                                                                                              \
  };                                                                                               \
  template <>                                                                                      \
  struct type_caster<members::CallOf<Item>> {                                                      \
    PYBIND11_TYPE_CASTER(members::CallOf<Item>, _(callName));                                      \
    bool load(handle source, bool) {                                                               \
      value = *static_cast<members::CallOf<Item>*>(python::callOf(python::logOf<Item>, source));   \
      return true;                                                                                 \
    }                                                                                              \
    static handle cast(members::CallOf<Item> const& call, return_value_policy, handle) {           \
      return python::objectOf(call).release();                                                     \
    }                                                                                              \
  };                                                                                               \
  template <>                                                                                      \
  struct type_caster<std::deque<Item>> {                                                           \
    PYBIND11_TYPE_CASTER(std::deque<Item>, _("List[" entryName "]"));                              \
    bool load(handle source, bool) {                                                               \
      if (!PyList_Check(source.ptr()))                                                             \
        return false;                                                                              \
      value = std::get<std::deque<Item>>(python::entriesOf(python::logOf<Item>, source));          \
      return true;                                                                                 \
    }                                                                                              \
    static handle cast(std::deque<Item> const& log, return_value_policy, handle) {                 \
      return python::objectsOf(log).release();                                                     \
    }                                                                                              \
  };                                                                                               \
  template <>                                                                                      \
  struct type_caster<std::list<members::CallOf<Item>>> {                                           \
    static constexpr auto name = _("List[" callName "]");                                          \
    static handle cast(std::list<members::CallOf<Item>> const& calls, return_value_policy,         \
                       handle) {                                                                   \
      return python::objectsOf(calls).release();                                                   \
    }                                                                                              \
  };
RECORDS(MissedCallItem, "MissedEntry", "MissedCall")
RECORDS(DialledCallItem, "DialledEntry", "DialledCall")
RECORDS(ReceivedCallItem, "ReceivedEntry", "ReceivedCall")
RECORDS(ForwardedCallItem, "ForwardedEntry", "ForwardedCall")
#undef RECORDS

} // namespace pybind11::detail

#endif
