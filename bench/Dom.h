// Fills records from the tree that a parser has built; one walk for all parsers.
//
// A Node is a pointer-like adaptor: it is false after the last sibling and has is(name), text(),
// next(), child() and ==. The walk expects the elements in the order of a message, which is the
// fastest way through a tree: one comparison for each. At an element out of order it starts over.
#ifndef BENCH_DOM_H
#define BENCH_DOM_H

#include "Fields.h"
#include "Values.h"

namespace bench::dom {

/// Assigns the elements from node on that come in order.
/// @return the first that does not
template <class Node, class Record>
Node readInOrder(Node node, Record& record) {
  forEachElement<Record>([&](auto const& member) {
    if (!node || !node.is(member.element))
      return;
    if (isStored(member))
      assign(member.in(record), node.text());
    node = node.next();
  });
  return node;
}

/// Assigns the elements from node on, and starts over where one is out of order. A node that still
/// is the first then is none of the record's own elements, and goes to other(node).
template <class Node, class Record, class Other>
void readRecord(Node node, Record& record, Other other) {
  while (node) {
    Node const next = readInOrder(node, record);
    if (next == node)
      other(node);
    node = next == node ? node.next() : next;
  }
}

template <class Node, class Item>
void readEntry(Node first, Item& item) {
  readRecord(first, item, [&](Node other) {
    if (other.is("LogList"))
      for (Node call = other.child(); call; call = call.next())
        readRecord(call.child(), item.callInfoList.emplace_back(), [](Node) {});
  });
}

template <class Node, class Log>
void readLog(Node root, Log& log) {
  for (Node node = root.child(); node; node = node.next())
    if (node.is("Entry"))
      readEntry(node.child(), log.emplace_back());
}

} // namespace bench::dom

#endif
