// Fills records from the tree that a parser has built; one walk for all parsers.
//
// A Node is a pointer-like adaptor: it is false after the last sibling and has is(name), text(),
// next() and child(). The walk expects the elements in the order of the document, which is the
// fastest way through a tree: one comparison for each. Elements out of order are found by name.
#ifndef BENCH_DOM_H
#define BENCH_DOM_H

#include "Fields.h"
#include "Values.h"

namespace bench::dom {

template <class Node, class Record>
void assignByName(Node node, Record& record) {
  forEachElement<Record>([&](auto const& member) {
    if (isStored(member) && node.is(member.element))
      assign(member.in(record), node.text());
  });
}

/// @return the first sibling that is not the expected element
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

template <class Node, class Call>
void readCall(Node first, Call& call) {
  for (Node node = readInOrder(first, call); node; node = node.next())
    assignByName(node, call);
}

template <class Node, class Item>
void readEntry(Node first, Item& item) {
  for (Node node = readInOrder(first, item); node; node = node.next()) {
    if (node.is("LogList"))
      for (Node call = node.child(); call; call = call.next())
        readCall(call.child(), item.callInfoList.emplace_back());
    else
      assignByName(node, item);
  }
}

template <class Node, class Log>
void readLog(Node root, Log& log) {
  for (Node node = root.child(); node; node = node.next())
    if (node.is("Entry"))
      readEntry(node.child(), log.emplace_back());
}

} // namespace bench::dom

#endif
