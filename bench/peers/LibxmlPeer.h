// libxml2's writer: streams the document into a buffer that is reused.
#ifndef BENCH_PEERS_LIBXMLPEER_H
#define BENCH_PEERS_LIBXMLPEER_H

#include <cstddef>
#include <memory>
#include <string_view>

#include <libxml/xmlwriter.h>

#include "Fields.h"
#include "Kinds.h"
#include "Values.h"

namespace bench {

template <class Kind>
class LibxmlEncoder {
public:
  explicit LibxmlEncoder(typename Kind::Log const& log)
      : log_(log), buffer_(xmlBufferCreate(), &xmlBufferFree) {}

  /// The document in the writer's own buffer, not copied out of it.
  std::string_view encode() {
    xmlBufferEmpty(buffer_.get());
    std::unique_ptr<xmlTextWriter, decltype(&xmlFreeTextWriter)> const writer(
        xmlNewTextWriterMemory(buffer_.get(), 0), &xmlFreeTextWriter);
    writeLog(writer.get());
    xmlTextWriterFlush(writer.get());
    return {reinterpret_cast<char const*>(xmlBufferContent(buffer_.get())),
            static_cast<std::size_t>(xmlBufferLength(buffer_.get()))};
  }

private:
  static xmlChar const* raw(char const* text) { return reinterpret_cast<xmlChar const*>(text); }

  void writeLog(xmlTextWriterPtr writer) const {
    xmlTextWriterStartElement(writer, raw("Log"));
    xmlTextWriterWriteElement(writer, raw("Method"), raw(Kind::method));
    for (auto const& item : log_)
      writeEntry(writer, item);
    xmlTextWriterWriteElement(writer, raw("Handle"), raw("7"));
    xmlTextWriterEndElement(writer);
  }

  static void writeEntry(xmlTextWriterPtr writer, typename Kind::Item const& item) {
    xmlTextWriterStartElement(writer, raw("Entry"));
    writeFields(writer, item);
    xmlTextWriterStartElement(writer, raw("LogList"));
    for (auto const& call : item.callInfoList) {
      xmlTextWriterStartElement(writer, raw("Item"));
      writeFields(writer, call);
      xmlTextWriterEndElement(writer);
    }
    xmlTextWriterEndElement(writer);
    xmlTextWriterEndElement(writer);
  }

  template <class Record>
  static void writeFields(xmlTextWriterPtr writer, Record const& record) {
    forEachElement<Record>([&](auto const& member) {
      auto const& value = member.in(record);
      if (isWritten(value))
        xmlTextWriterWriteElement(writer, raw(member.element.data()), raw(textOf(value)));
    });
  }

  typename Kind::Log const& log_;
  std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> buffer_;
};

} // namespace bench

#endif
