// RapidXML: parses a copy of the document in place; the records are filled from its tree.
//
// Its time changes by a tenth and more with the place of its code in the program. So there are
// several copies of it, which differ in nothing else; the fastest counts.
#ifndef BENCH_PEERS_RAPIDXMLPEER_H
#define BENCH_PEERS_RAPIDXMLPEER_H

#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <rapidxml/rapidxml.hpp>

#include "Dom.h"

namespace bench {

template <int copy>
struct RapidXmlNode {
  rapidxml::xml_node<>* node;

  explicit operator bool() const { return node != nullptr; }
  bool is(std::string_view name) const {
    return std::string_view(node->name(), node->name_size()) == name;
  }
  std::string_view text() const { return {node->value(), node->value_size()}; }
  RapidXmlNode next() const { return {node->next_sibling()}; }
  RapidXmlNode child() const { return {node->first_node()}; }
  bool operator==(RapidXmlNode other) const { return node == other.node; }
};

template <class Kind, int copy = 1>
class RapidXmlDecoder {
public:
  explicit RapidXmlDecoder(std::string const& document)
      : document_(document), text_(document_.size() + 1) {}

  typename Kind::Log decode() {
    typename Kind::Log log;
    // Only what the documents need: entities have to be decoded. The number of the copy is in bits
    // that mean nothing to the parser; it makes these functions of their own.
    constexpr int FLAGS =
        rapidxml::parse_no_data_nodes | rapidxml::parse_no_string_terminators | copy << 16;
    std::memcpy(text_.data(), document_.c_str(), text_.size());
    tree_.clear();
    tree_.parse<FLAGS>(text_.data());
    dom::readLog(RapidXmlNode<copy>{tree_.first_node()}, log);
    return log;
  }

private:
  std::string const& document_;
  std::vector<char> text_;
  rapidxml::xml_document<> tree_;
};

/// Calls visit(copy) for each copy, a std::integral_constant.
template <class Visit>
void forEachRapidXmlCopy(Visit visit) {
  visit(std::integral_constant<int, 1>());
  visit(std::integral_constant<int, 2>());
  visit(std::integral_constant<int, 3>());
}

} // namespace bench

#endif
