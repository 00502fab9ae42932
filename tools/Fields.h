// Shows every field of an entry as the library read it.
#ifndef TOOLS_FIELDS_H
#define TOOLS_FIELDS_H

#include <cstddef>
#include <ostream>
#include <string>

#include "SafeText.h"
#include "members/Enumerations.h"
#include "members/Members.h"

namespace fields {

inline std::string wordOf(std::string const& text) {
  return safeText(text);
}
inline std::string wordOf(bool flag) {
  return flag ? "true" : "false";
}
template <class Enumeration>
std::string wordOf(Enumeration value) {
  return members::nameOf(value);
}

template <class Record>
void print(std::ostream& out, char const* indentation, Record const& record) {
  members::forEachField<Record>([&](auto const& member) {
    if (member.travel != members::Travel::never)
      out << indentation << member.name << ": " << wordOf(member.in(record)) << '\n';
  });
}

} // namespace fields

template <class Entry>
void printEntry(std::ostream& out, std::size_t number, Entry const& entry) {
  out << "  entry " << number << '\n';
  fields::print(out, "    ", entry);
  std::size_t calls = 0;
  for (auto const& call : entry.callInfoList) {
    out << "    call " << ++calls << '\n';
    fields::print(out, "      ", call);
  }
}

#endif
