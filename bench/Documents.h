// The messages as well-formed XML. A list response has no root, an unclosed method tag and raw
// ampersands; XML parsers need the same contents with a root and with everything escaped.
#ifndef BENCH_DOCUMENTS_H
#define BENCH_DOCUMENTS_H

#include <string>

#include "Fields.h"
#include "Kinds.h"
#include "Values.h"

namespace bench {

inline void writeElement(std::string& out, std::string const& name, std::string const& text) {
  out += "<" + name + ">" + Reference::escapeXMLString(text) + "</" + name + ">";
}

template <class Record>
void writeFields(std::string& out, Record const& record) {
  forEachElement<Record>([&](auto const& member) {
    auto const& value = member.in(record);
    if (isWritten(value))
      writeElement(out, std::string(member.element), textOf(value));
  });
}

/// The list response as a document with the root Log, without whitespace.
template <class Kind>
std::string makeDocument(typename Kind::Log const& log) {
  std::string out = "<Log>";
  writeElement(out, "Method", Kind::method);
  for (auto const& item : log) {
    out += "<Entry>";
    writeFields(out, item);
    out += "<LogList>";
    for (auto const& call : item.callInfoList) {
      out += "<Item>";
      writeFields(out, call);
      out += "</Item>";
    }
    out += "</LogList></Entry>";
  }
  writeElement(out, "Handle", "7");
  return out + "</Log>";
}

} // namespace bench

#endif
