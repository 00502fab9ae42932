// The layout: each part of a message indented below the one that holds it.
#include "Layout.h"

#include <ostream>

#include "SafeText.h"

namespace {

void printPart(std::ostream& out, Node const& part, Subject const& subject) {
  out << part.name;
  if (part.name == JournalServiceHelper::SCHEMA && !part.value.empty())
    out << " name=\"" << safeText(part.value) << '"';
  if (part.name == JournalServiceHelper::METHOD) {
    Method const* const method = findMethod(subject.code);
    out << ": recognised as " << (method != nullptr ? nameOf(*method) : "no method") << ", code "
        << subject.code;
  }
  if (!part.closed)
    out << " (no close tag)";
}

void printNode(std::ostream& out, Node const& node, Subject const& subject) {
  switch (node.kind) {
  case Node::Kind::DECLARATION:
    out << "Declaration " << safeText(node.value);
    break;
  case Node::Kind::PART:
    printPart(out, node, subject);
    break;
  case Node::Kind::LEAF:
    out << node.name << ": " << safeText(node.value);
    break;
  case Node::Kind::TAG:
    out << '<' << node.name << '>';
    break;
  case Node::Kind::CLOSE_TAG:
    out << "</" << node.name << '>';
    break;
  default:
    out << "(text) " << safeText(node.value);
  }
}

} // namespace

void printLayout(std::ostream& out, Nodes const& nodes, Subject const& subject) {
  out << "Message\n";
  for (Node const& node : nodes) {
    if (node.kind == Node::Kind::END)
      continue;
    out << std::string(2 + std::size_t{2} * node.depth, ' ');
    printNode(out, node, subject);
    out << '\n';
  }
}
