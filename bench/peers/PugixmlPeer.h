// pugixml: decoding parses a copy of the document in place, encoding builds a tree and writes it.
#ifndef BENCH_PEERS_PUGIXMLPEER_H
#define BENCH_PEERS_PUGIXMLPEER_H

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "Dom.h"
#include "Kinds.h"

namespace bench {

struct PugixmlNode {
  pugi::xml_node node;

  explicit operator bool() const { return !node.empty(); }
  bool is(std::string_view name) const { return std::strcmp(node.name(), name.data()) == 0; }
  std::string_view text() const { return node.child_value(); }
  PugixmlNode next() const { return {node.next_sibling()}; }
  PugixmlNode child() const { return {node.first_child()}; }
  bool operator==(PugixmlNode other) const { return node == other.node; }
};

template <class Kind>
class PugixmlDecoder {
public:
  explicit PugixmlDecoder(std::string const& document)
      : document_(document), text_(document_.size()) {}

  typename Kind::Log decode() {
    typename Kind::Log log;
    // Only what the documents need: entities have to be decoded. Texts are embedded in their
    // elements instead of separate nodes.
    constexpr unsigned int FLAGS =
        pugi::parse_minimal | pugi::parse_escapes | pugi::parse_embed_pcdata;
    std::memcpy(text_.data(), document_.data(), text_.size());
    tree_.load_buffer_inplace(text_.data(), text_.size(), FLAGS, pugi::encoding_utf8);
    dom::readLog(PugixmlNode{tree_.first_child()}, log);
    return log;
  }

private:
  std::string const& document_;
  std::vector<char> text_;
  pugi::xml_document tree_;
};

template <class Kind>
class PugixmlEncoder {
public:
  explicit PugixmlEncoder(typename Kind::Log const& log) : log_(log) {}

  std::string const& encode() {
    tree_.reset();
    pugi::xml_node root = tree_.append_child("Log");
    append(root, "Method", Kind::method);
    for (auto const& item : log_) {
      pugi::xml_node entry = root.append_child("Entry");
      appendFields(entry, item);
      pugi::xml_node list = entry.append_child("LogList");
      for (auto const& call : item.callInfoList)
        appendFields(list.append_child("Item"), call);
    }
    append(root, "Handle", "7");
    out_.text.clear();
    tree_.save(out_, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return out_.text;
  }

private:
  struct Out : pugi::xml_writer {
    std::string text;
    void write(void const* data, std::size_t size) override {
      text.append(static_cast<char const*>(data), size);
    }
  };

  static void append(pugi::xml_node parent, char const* name, char const* text) {
    parent.append_child(name).append_child(pugi::node_pcdata).set_value(text);
  }

  template <class Record>
  static void appendFields(pugi::xml_node parent, Record const& record) {
    forEachElement<Record>([&](auto const& member) {
      auto const& value = member.in(record);
      if (isWritten(value))
        append(parent, member.element.data(), textOf(value));
    });
  }

  typename Kind::Log const& log_;
  pugi::xml_document tree_;
  Out out_;
};

} // namespace bench

#endif
