// TinyXML-2: parses its own copy of the document; the records are filled from its tree.
#ifndef BENCH_PEERS_TINYXML2PEER_H
#define BENCH_PEERS_TINYXML2PEER_H

#include <cstring>
#include <string>
#include <string_view>

#include <tinyxml2.h>

#include "Dom.h"
#include "Kinds.h"

namespace bench {

struct TinyXml2Node {
  tinyxml2::XMLElement const* node;

  explicit operator bool() const { return node != nullptr; }
  bool is(std::string_view name) const { return std::strcmp(node->Name(), name.data()) == 0; }
  std::string_view text() const {
    char const* const text = node->GetText();
    return text != nullptr ? text : "";
  }
  TinyXml2Node next() const { return {node->NextSiblingElement()}; }
  TinyXml2Node child() const { return {node->FirstChildElement()}; }
  bool operator==(TinyXml2Node other) const { return node == other.node; }
};

template <class Kind>
class TinyXml2Decoder {
public:
  explicit TinyXml2Decoder(std::string const& document) : document_(document) {}

  typename Kind::Log decode() {
    typename Kind::Log log;
    tree_.Parse(document_.data(), document_.size());
    dom::readLog(TinyXml2Node{tree_.RootElement()}, log);
    return log;
  }

private:
  std::string const& document_;
  tinyxml2::XMLDocument tree_;
};

} // namespace bench

#endif
