// A message taken apart in one pass, as it would be without damage: what readers make of it is not
// decided here.
#include <algorithm>
#include <unordered_map>

#include "inspect/Explain.h"
#include "inspect/Format.h"
#include "inspect/Tags.h"
#include "vocabulary/Words.h"

namespace inspect {
namespace {

namespace word = journal::word;
constexpr auto npos = std::string_view::npos;
constexpr std::size_t longestDeclaration = 128;
using Form = Piece::Form;

class Splitter {
public:
  explicit Splitter(std::string_view message) : text(message) { indexCloseTags(); }

  std::vector<Piece> run() {
    for (auto at = findChar(text, '<', 0); at != npos; at = findChar(text, '<', at))
      at = declaration(at) || element(at) ? done : at + 1;
    flushText(text.size());
    while (!open.empty())
      leave(text.size(), text.size(), false);
    return std::move(pieces);
  }

private:
  struct Part {
    std::size_t piece;
    std::size_t limit; ///< where its close tag is; searches inside it end there
    bool hasClose;
  };

  void indexCloseTags() {
    for (auto at = text.find("</"); at != npos; at = text.find("</", at + 2)) {
      Tag const tag = tagAt(text, at);
      if (tag && findElement(tag.name) != nullptr)
        closeTags[findElement(tag.name)].push_back(at);
    }
  }

  /// The first such close tag from there on; npos when there is none in the part.
  std::size_t findClose(Row const* element, std::size_t from) const {
    auto const found = closeTags.find(element);
    if (found == closeTags.end())
      return npos;
    auto const& places = found->second;
    auto const place = std::lower_bound(places.begin(), places.end(), from);
    auto const limit = open.empty() ? text.size() : open.back().limit;
    return place == places.end() || *place >= limit ? npos : *place;
  }

  Piece& add(Form form, std::size_t begin, std::size_t end, std::string_view name) {
    Piece& piece = pieces.emplace_back();
    piece.form = form;
    piece.depth = static_cast<std::uint8_t>(open.size());
    piece.offset = begin;
    piece.size = end - begin;
    piece.element = name;
    return piece;
  }

  void flushText(std::size_t end) {
    if (end > done)
      add(Form::text, done, end, {}).raw = text.substr(done, end - done);
    done = end;
  }

  bool declaration(std::size_t at) {
    if (text.compare(at, 2, "<?") != 0)
      return false;
    auto const end = text.substr(at, longestDeclaration).find("?>");
    if (end == npos)
      return false;
    flushText(at);
    done = at + end + 2;
    add(Form::declaration, at, done, {}).raw = text.substr(at, end + 2);
    return true;
  }

  bool element(std::size_t at) {
    Tag const tag = tagAt(text, at);
    if (!tag)
      return false;
    flushText(at);
    done = tag.end;
    Row const* const known = findElement(tag.name);
    if (tag.close)
      closeTag(tag);
    else if (known == nullptr)
      unknownElement(tag);
    else if (known->content == Content::part)
      enter(tag, known);
    else
      leaf(tag, known);
    return true;
  }

  bool isOpen(std::string_view name) const {
    return std::any_of(open.begin(), open.end(),
                       [&](Part const& part) { return pieces[part.piece].element == name; });
  }

  void closeTag(Tag const& tag) {
    if (isOpen(tag.name))
      leaveThrough(tag.name, tag.offset, tag.end, true);
    else
      add(Form::closeTag, tag.offset, tag.end, tag.name);
  }

  void leave(std::size_t begin, std::size_t end, bool closed) {
    Piece& part = pieces[open.back().piece];
    part.closed = closed;
    auto const name = part.element;
    open.pop_back();
    add(Form::end, begin, end, name).closed = closed;
  }

  void leaveThrough(std::string_view name, std::size_t begin, std::size_t end, bool closed) {
    while (pieces[open.back().piece].element != name)
      leave(begin, begin, false);
    leave(begin, end, closed);
  }

  /// The next element ends a method that is never closed.
  void leaveUnclosedMethod(std::size_t at) {
    if (!open.empty() && !open.back().hasClose && pieces[open.back().piece].element == word::METHOD)
      leave(at, at, false);
  }

  /// Parts nest at most five deep: one that begins again inside itself ends the one before.
  void enter(Tag const& tag, Row const* known) {
    leaveUnclosedMethod(tag.offset);
    if (isOpen(tag.name))
      leaveThrough(tag.name, tag.offset, tag.offset, false);
    auto const close = findClose(known, tag.end);
    auto const outer = open.empty() ? text.size() : open.back().limit;
    Piece& part = add(Form::part, tag.offset, tag.end, tag.name);
    part.raw = tag.attribute;
    part.reachesClose = close != npos;
    open.push_back({pieces.size() - 1, close == npos ? outer : close, close != npos});
  }

  void leaf(Tag const& tag, Row const* known) {
    leaveUnclosedMethod(tag.offset);
    auto const close = findClose(known, tag.end);
    if (close == npos) {
      add(Form::beginTag, tag.offset, tag.end, tag.name);
      return;
    }
    done = close + tag.name.size() + 3;
    add(Form::leaf, tag.offset, done, tag.name).raw = text.substr(tag.end, close - tag.end);
  }

  /// Readers ignore unknown tags, so an unknown element is a leaf only when it holds no other tag.
  void unknownElement(Tag const& tag) {
    Tag const close = nextTag(text, tag.end);
    if (!close || !close.close || close.name != tag.name) {
      add(Form::beginTag, tag.offset, tag.end, tag.name);
      return;
    }
    done = close.end;
    add(Form::leaf, tag.offset, done, tag.name).raw = text.substr(tag.end, close.offset - tag.end);
  }

  std::string_view text;
  std::size_t done = 0; ///< everything before it is in the pieces
  std::unordered_map<Row const*, std::vector<std::size_t>> closeTags;
  std::vector<Part> open;
  std::vector<Piece> pieces;
};

} // namespace

std::vector<Piece> piecesOf(std::string_view text) {
  return Splitter(text).run();
}

} // namespace inspect
