// Collects the remarks in one walk over the nodes. Each part of a message has its rows; for every
// open part, the walk keeps the index of the last row that it has met.
#include "Check.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <vector>

#include "SafeText.h"
#include "ValueCheck.h"

namespace {

using J = JournalServiceHelper;
constexpr char const* whitespace = " \t\n\v\f\r";
constexpr std::size_t mostShown = 60;

std::string quoted(std::string_view value) {
  std::string const shown = safeText(value.substr(0, mostShown));
  return '"' + shown + (value.size() > mostShown ? "\"..." : "\"");
}

std::string called(std::string_view name) {
  return std::string(name);
}

/// Most texts are written without escaping, so readers take markup in them for elements.
bool holdsTag(std::string_view value) {
  Nodes const nodes = value.find('<') == std::string_view::npos ? Nodes() : scan(value);
  return std::any_of(nodes.begin(), nodes.end(),
                     [](Node const& node) { return findElement(node.name) != nullptr; });
}

class Checker {
public:
  Checker(std::string const& message, Nodes const& pieces, Subject const& sort)
      : text(message), nodes(pieces), subject(sort) {}

  Remarks run() {
    checkWhole();
    open.push_back({{}, 0, &rowsFor({}), 0, 0, true});
    for (Node const& node : nodes)
      visit(node);
    leave(text.size());
    return std::move(remarks);
  }

private:
  struct Part {
    std::string_view name;
    std::size_t offset;
    Rows const* rows;
    std::size_t furthest; ///< index of the last row that was met
    std::uint64_t seen;   ///< one bit per row
    bool closed;
  };

  Rows const& rowsFor(std::string_view part) {
    auto const found = rowsOfParts.find(part);
    if (found != rowsOfParts.end())
      return found->second;
    return rowsOfParts.emplace(part, rowsOf(part, subject.kind, subject.log)).first->second;
  }

  void checkWhole() {
    auto const nul = text.find('\0');
    if (nul != std::string::npos)
      remarks.add(Topic::NUL, nul,
                  "NUL byte: readers of lists, entries and the setting see the text end here");
    if (subject.kind == MessageKind::OTHER)
      remarks.add(Topic::METHOD, 0, "no method, store request or answer is recognised");
    bool const list = subject.kind == MessageKind::LIST_RESPONSE;
    bool const declares =
        list || subject.kind == MessageKind::REQUEST || subject.kind == MessageKind::NOTIFICATION ||
        subject.kind == MessageKind::COUNTER || subject.kind == MessageKind::STORE_REQUEST;
    if (declares && list == subject.declared)
      remarks.add(Topic::DECLARATION, 0,
                  list ? "a list response has no declaration" : "the declaration is missing");
    if (!J::isNonFailureResponse(text))
      remarks.add(Topic::VALUE, text.find(J::FAILURE),
                  "the word Failure: clients take the message as failed");
  }

  void visit(Node const& node) {
    switch (node.kind) {
    case Node::Kind::DECLARATION:
      if (node.offset != 0 || node.value != J::XMLHEADER)
        remarks.add(Topic::DECLARATION, node.offset,
                    "a declaration that writers do not write here");
      break;
    case Node::Kind::PART:
      enter(node);
      break;
    case Node::Kind::END:
      leave(node.offset);
      break;
    case Node::Kind::LEAF:
      leaf(node);
      break;
    case Node::Kind::TAG:
      tag(node);
      break;
    case Node::Kind::CLOSE_TAG:
      remarks.add(Topic::TAGS, node.offset, "</" + called(node.name) + "> closes nothing");
      break;
    default:
      between(node);
    }
  }

  void between(Node const& node) {
    bool const blank = node.value.find_first_not_of(whitespace) == std::string_view::npos;
    bool const last = &node == &nodes.back();
    std::string const what = blank ? "white space" : "text " + quoted(node.value);
    remarks.add(Topic::TEXT, node.offset,
                what +
                    (last && nodes.size() > 1 ? " behind the last element" : " between elements"));
  }

  void tag(Node const& node) {
    bool const method = findMethod(node.name) != nullptr;
    std::string const shown = '<' + called(node.name) + '>';
    if (open.back().name == J::METHOD && !method)
      remarks.add(Topic::METHOD, node.offset, "unknown method " + shown);
    else if (open.back().name == J::METHOD && ++methodTags > 1)
      remarks.add(Topic::METHOD, node.offset, "more than one method: " + shown);
    else if (open.back().name == J::METHOD)
      return;
    else if (findElement(node.name) != nullptr)
      remarks.add(Topic::TAGS, node.offset, shown + " without close tag, readers do not find it");
    else
      remarks.add(Topic::UNKNOWN, node.offset, "unknown element " + shown);
  }

  void leaf(Node const& node) {
    Row const* const row = place(node);
    if (row == nullptr)
      return;
    if (holdsTag(node.value))
      remarks.add(Topic::TAGS, node.offset,
                  called(node.name) + " holds a tag of the format, readers may take it for one");
    std::string const verdict = judgeValue(row->value, std::string(node.value));
    if (!verdict.empty())
      remarks.add(row->value == Value::NUMBER ? Topic::NUMBER : Topic::VALUE, node.offset,
                  called(node.name) + ' ' + quoted(node.value) + ' ' + verdict);
  }

  void enter(Node const& node) {
    place(node);
    if (!node.closed)
      remarks.add(Topic::TAGS, node.offset, describeUnclosed(node));
    else if (node.name == J::ENTRY || node.name == J::ITEM)
      noteEmpty(node);
    if (node.name == J::SCHEMA)
      checkSchema(node);
    open.push_back({node.name, node.offset, &rowsFor(node.name), 0, 0, node.closed});
  }

  void checkSchema(Node const& node) {
    static std::string const* const names[] = {
        &J::SETTINGS_SCHEMA, &J::DAS_CALLLOGMISSEDCALLS, &J::DAS_CALLLOGDIALLEDCALLS,
        &J::DAS_CALLLOGRECEIVEDCALLS, &J::DAS_CALLLOGFORWARDEDCALLS};
    bool const known = std::any_of(std::begin(names), std::end(names),
                                   [&](std::string const* name) { return *name == node.value; });
    if (!known)
      remarks.add(Topic::VALUE, node.offset,
                  "Schema " + quoted(node.value) + " is none of this format");
  }

  /// An empty part has its close tag right behind its begin tag.
  void noteEmpty(Node const& node) {
    std::size_t const begin = node.offset + node.name.size() + 2;
    if (text.compare(begin, 2, "</") == 0)
      remarks.add(Topic::MISSING, node.offset, "empty " + called(node.name) + ", readers skip it");
  }

  static std::string describeUnclosed(Node const& node) {
    std::string const front = called(node.name) + " without close tag";
    if (node.name != J::ENTRY && node.name != J::LOGLIST && node.name != J::ITEM)
      return front;
    return front + (node.reachesClose ? ", read as one with what follows" : ", readers drop it");
  }

  void leave(std::size_t offset) {
    Part const part = open.back();
    open.pop_back();
    Rows const& rows = *part.rows;
    for (std::size_t i = 0; i < rows.size() && part.closed; ++i)
      if (rows[i].count == Count::MUST && (part.seen >> i & 1) == 0)
        remarks.add(Topic::MISSING, part.name.empty() ? offset : part.offset,
                    called(rows[i].name) + " is missing in " + describe(part.name));
  }

  static std::string describe(std::string_view part) {
    return part.empty() ? "the message" : "this " + called(part);
  }

  /// Remarks on an element that is unknown or in the wrong place.
  /// @return its row; nullptr for an unknown element
  Row const* place(Node const& node) {
    Row const* const known = findElement(node.name);
    if (known == nullptr) {
      if (subject.kind != MessageKind::STORE_ANSWER)
        remarks.add(Topic::UNKNOWN, node.offset, "unknown element " + called(node.name));
      return nullptr;
    }
    Part& part = open.back();
    if (part.rows->empty())
      return known;
    auto const row = std::find_if(part.rows->begin(), part.rows->end(),
                                  [&](Row const& one) { return one.name == node.name; });
    if (row == part.rows->end()) {
      remarks.add(Topic::ORDER, node.offset,
                  called(node.name) + " does not belong in " + describe(part.name));
      return known;
    }
    advance(part, static_cast<std::size_t>(row - part.rows->begin()), node);
    return &*row;
  }

  void advance(Part& part, std::size_t index, Node const& node) {
    Row const& row = (*part.rows)[index];
    bool const again = (part.seen >> index & 1) != 0;
    if (again && row.count != Count::MANY)
      remarks.add(Topic::ORDER, node.offset,
                  called(node.name) + " is there again, readers take the first");
    else if (index < part.furthest)
      remarks.add(Topic::ORDER, node.offset,
                  called(node.name) + " is behind " + called((*part.rows)[part.furthest].name) +
                      ", writers write it in front");
    part.seen |= std::uint64_t{1} << index;
    part.furthest = std::max(part.furthest, index);
  }

  std::string const& text;
  Nodes const& nodes;
  Subject const& subject;
  Remarks remarks;
  std::vector<Part> open;
  std::map<std::string_view, Rows> rowsOfParts;
  int methodTags = 0;
};

} // namespace

Remarks check(std::string const& text, Nodes const& nodes, Subject const& subject) {
  return Checker(text, nodes, subject).run();
}
