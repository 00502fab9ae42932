// RapidXML: parses a copy of the document in place; the records are filled from its tree.
#ifndef BENCH_PEERS_RAPIDXMLPEER_H
#define BENCH_PEERS_RAPIDXMLPEER_H

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include <rapidxml/rapidxml.hpp>

#include "Dom.h"

namespace bench {

struct RapidXmlNode {
  rapidxml::xml_node<>* node;

  explicit operator bool() const { return node != nullptr; }
  bool is(std::string_view name) const {
    return std::string_view(node->name(), node->name_size()) == name;
  }
  std::string_view text() const { return {node->value(), node->value_size()}; }
  RapidXmlNode next() const { return {node->next_sibling()}; }
  RapidXmlNode child() const { return {node->first_node()}; }
};

template <class Kind>
class RapidXmlDecoder {
public:
  explicit RapidXmlDecoder(std::string const& document)
      : document_(document), text_(document_.size() + 1) {}

  typename Kind::Log decode() {
    typename Kind::Log log;
    // Only what the documents need: entities have to be decoded.
    constexpr int FLAGS = rapidxml::parse_no_data_nodes | rapidxml::parse_no_string_terminators;
    std::memcpy(text_.data(), document_.c_str(), text_.size());
    tree_.clear();
    tree_.parse<FLAGS>(text_.data());
    dom::readLog(RapidXmlNode{tree_.first_node()}, log);
    return log;
  }

private:
  std::string const& document_;
  std::vector<char> text_;
  rapidxml::xml_document<> tree_;
};

} // namespace bench

#endif
