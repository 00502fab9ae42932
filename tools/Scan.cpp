// The walk over the tags of a message.
#include <algorithm>
#include <unordered_map>
#include <vector>

#include "Message.h"

namespace {

using J = JournalServiceHelper;
constexpr std::size_t npos = std::string_view::npos;
constexpr std::size_t longestName = 64;
constexpr std::size_t longestDeclaration = 128;

struct Tag {
  std::string_view name;
  bool close = false;
  std::string_view attribute;
  std::size_t end = npos; ///< behind the bracket; npos when this is no tag
};

bool isNameByte(char byte) {
  return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
         (byte >= '0' && byte <= '9') || byte == '_' || byte == '-' || byte == '.';
}

/// Reads the one tag of the format that has an attribute.
Tag readSchemaTag(std::string_view text, std::size_t at) {
  static std::string const front = "<" + J::SCHEMA + " name=\"";
  Tag tag;
  if (text.compare(at, front.size(), front) != 0)
    return tag;
  std::size_t const value = at + front.size();
  std::size_t const quote = text.find('"', value);
  if (quote == npos || text.compare(quote, 2, "\">") != 0)
    return tag;
  tag.name = J::SCHEMA;
  tag.attribute = text.substr(value, quote - value);
  tag.end = quote + 2;
  return tag;
}

Tag readTag(std::string_view text, std::size_t at) {
  Tag tag;
  tag.close = at + 1 < text.size() && text[at + 1] == '/';
  std::size_t const begin = at + (tag.close ? 2 : 1);
  std::size_t end = begin;
  while (end < text.size() && end - begin < longestName && isNameByte(text[end]))
    ++end;
  if (end == begin || end >= text.size() || text[end] != '>')
    return readSchemaTag(text, at);
  tag.name = text.substr(begin, end - begin);
  tag.end = end + 1;
  return tag;
}

class Scanner {
public:
  explicit Scanner(std::string_view message) : text(message) { indexCloseTags(); }

  Nodes run() {
    std::size_t at = 0;
    while ((at = text.find('<', at)) != npos)
      at = declaration(at) || element(at) ? done : at + 1;
    flushText(text.size());
    while (!open.empty())
      leave(text.size(), false);
    return std::move(nodes);
  }

private:
  struct Part {
    std::size_t node;
    std::size_t limit; ///< where its close tag is; searches inside it end there
    bool hasClose;
  };

  void indexCloseTags() {
    for (std::size_t at = text.find("</"); at != npos; at = text.find("</", at + 2)) {
      Tag const tag = readTag(text, at);
      if (tag.end != npos && findElement(tag.name) != nullptr)
        closeTags[tag.name].push_back(at);
    }
  }

  /// @return where the first such close tag is from there on; npos when there is none in the part
  std::size_t findClose(std::string_view name, std::size_t from) const {
    auto const found = closeTags.find(name);
    if (found == closeTags.end())
      return npos;
    auto const& places = found->second;
    auto const place = std::lower_bound(places.begin(), places.end(), from);
    std::size_t const limit = open.empty() ? text.size() : open.back().limit;
    return place == places.end() || *place >= limit ? npos : *place;
  }

  Node& add(Node::Kind kind, std::size_t at, std::string_view name) {
    nodes.emplace_back();
    Node& node = nodes.back();
    node.kind = kind;
    node.depth = static_cast<std::uint8_t>(open.size());
    node.name = name;
    node.offset = at;
    return node;
  }

  void flushText(std::size_t end) {
    if (end > done)
      add(Node::Kind::TEXT, done, {}).value = text.substr(done, end - done);
    done = end;
  }

  bool declaration(std::size_t at) {
    if (text.compare(at, 2, "<?") != 0)
      return false;
    std::size_t const end = text.substr(at, longestDeclaration).find("?>");
    if (end == npos)
      return false;
    flushText(at);
    add(Node::Kind::DECLARATION, at, {}).value = text.substr(at, end + 2);
    done = at + end + 2;
    return true;
  }

  bool element(std::size_t at) {
    Tag const tag = readTag(text, at);
    if (tag.end == npos)
      return false;
    flushText(at);
    done = tag.end;
    Row const* const known = findElement(tag.name);
    if (tag.close)
      closeTag(tag, at);
    else if (known == nullptr)
      unknownElement(tag, at);
    else if (known->value == Value::PART)
      enter(tag, at);
    else
      leaf(tag, at);
    return true;
  }

  bool isOpen(std::string_view name) const {
    return std::any_of(open.begin(), open.end(),
                       [&](Part const& part) { return nodes[part.node].name == name; });
  }

  void closeTag(Tag const& tag, std::size_t at) {
    if (isOpen(tag.name))
      leaveThrough(tag.name, at, true);
    else
      add(Node::Kind::CLOSE_TAG, at, tag.name);
  }

  void leave(std::size_t at, bool closed) {
    Node& part = nodes[open.back().node];
    part.closed = closed;
    std::string_view const name = part.name;
    open.pop_back();
    add(Node::Kind::END, at, name);
  }

  void leaveThrough(std::string_view name, std::size_t at, bool closed) {
    while (nodes[open.back().node].name != name)
      leave(at, false);
    leave(at, closed);
  }

  /// The next element ends a method that is never closed.
  void leaveUnclosedMethod(std::size_t at) {
    if (!open.empty() && !open.back().hasClose && nodes[open.back().node].name == J::METHOD)
      leave(at, false);
  }

  void enter(Tag const& tag, std::size_t at) {
    leaveUnclosedMethod(at);
    if (isOpen(tag.name))
      leaveThrough(tag.name, at, false);
    std::size_t const close = findClose(tag.name, tag.end);
    std::size_t const outer = open.empty() ? text.size() : open.back().limit;
    Node& part = add(Node::Kind::PART, at, tag.name);
    part.value = tag.attribute;
    part.reachesClose = close != npos;
    open.push_back({nodes.size() - 1, close == npos ? outer : close, close != npos});
  }

  void leaf(Tag const& tag, std::size_t at) {
    leaveUnclosedMethod(at);
    std::size_t const close = findClose(tag.name, tag.end);
    if (close == npos) {
      add(Node::Kind::TAG, at, tag.name);
      return;
    }
    add(Node::Kind::LEAF, at, tag.name).value = text.substr(tag.end, close - tag.end);
    done = close + tag.name.size() + 3;
  }

  /// Readers ignore unknown tags, so an unknown element is a leaf only when it holds no other tag.
  void unknownElement(Tag const& tag, std::size_t at) {
    std::size_t const next = text.find('<', tag.end);
    Tag const close = next == npos ? Tag() : readTag(text, next);
    if (close.end == npos || !close.close || close.name != tag.name) {
      add(Node::Kind::TAG, at, tag.name);
      return;
    }
    add(Node::Kind::LEAF, at, tag.name).value = text.substr(tag.end, next - tag.end);
    done = close.end;
  }

  std::string_view text;
  std::size_t done = 0; ///< everything before it is in the nodes
  std::unordered_map<std::string_view, std::vector<std::size_t>> closeTags;
  std::vector<Part> open;
  Nodes nodes;
};

} // namespace

Nodes scan(std::string_view text) {
  return Scanner(text).run();
}
