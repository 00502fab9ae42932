// Explains and judges a message: the pieces, the values that readers store, then one walk that
// compares the pieces with what writers write.
#include "inspect/Explain.h"

#include <algorithm>

#include "ClientUtils.h"
#include "inspect/Format.h"
#include "inspect/Stored.h"
#include "inspect/Tags.h"
#include "inspect/Text.h"
#include "inspect/Values.h"
#include "vocabulary/Words.h"

namespace inspect {
namespace {

using Api = JournalServiceHelper;
namespace word = journal::word;
using Form = Piece::Form;
constexpr auto npos = std::string_view::npos;

class Judge {
public:
  Judge(std::string const& message, std::optional<Log> log) : text(message) {
    result.identity = identify(text);
    if (!result.identity.log && result.identity.kind == Kind::entry)
      result.identity.log = log;
    decoded = decode(text, log);
    result.pieces = piecesOf(text);
    owners = addStored(result.pieces, text, result.identity, decoded);
  }

  Explanation run() {
    checkWhole();
    open.push_back({{}, 0, &rowsFor({}), 0, 0, true, nullptr});
    for (at = 0; at < result.pieces.size(); ++at)
      visit(result.pieces[at]);
    leave(text.size());
    reportWhiteSpace();
    std::stable_sort(
        result.findings.begin(), result.findings.end(),
        [](Finding const& left, Finding const& right) { return left.offset < right.offset; });
    return std::move(result);
  }

private:
  struct Part {
    std::string_view name;
    std::size_t offset;
    Rows const* rows;
    std::size_t furthest; ///< index of the last row that was met
    std::uint64_t seen;   ///< one bit per row
    bool closed;
    void* record;
  };

  Rows const& rowsFor(std::string_view part) const {
    return rowsOf(part, result.identity.kind, result.identity.log);
  }

  void find(RuleId rule, std::size_t offset, std::string_view element = {},
            std::string_view what = {}, std::string instead = {}) {
    result.findings.push_back({rule, offset, element, std::string(what), std::move(instead)});
  }
  /// About a piece: the rule is also a reason in its explanation.
  void note(RuleId rule, Piece& piece, std::string_view what = {}, std::string instead = {}) {
    if (std::find(piece.reasons.begin(), piece.reasons.end(), rule) == piece.reasons.end())
      piece.reasons.push_back(rule);
    find(rule, piece.offset, piece.element, what, std::move(instead));
  }

  void checkWhole() {
    Identity const& identity = result.identity;
    if (identity.byteOrderMark)
      find(RuleId::byteOrderMark, 0);
    if (auto const nul = text.find('\0'); nul != npos)
      find(RuleId::nul, nul);
    if (!isUtf8(text))
      find(RuleId::notUtf8, 0);
    if (identity.kind == Kind::unknown)
      find(text.find("<Method>") == npos ? RuleId::unknownMessage : RuleId::unknownMethod, 0);
    else if (identity.kind == Kind::entry && !identity.log)
      find(RuleId::logNotTold, 0);
    if (isDeclared(identity.kind) && !identity.declared)
      find(RuleId::noDeclaration, 0);
    if (identity.kind == Kind::listResponse && identity.declared)
      find(RuleId::declaration, 0);
    bool const outcome = identity.kind == Kind::outcome || decoded.outcome == false;
    if (!outcome && !Api::isNonFailureResponse(text))
      find(RuleId::failure, text.find(word::FAILURE));
  }

  void visit(Piece& piece) {
    switch (piece.form) {
    case Form::declaration:
      if (seenElement || piece.raw != word::XMLHEADER)
        note(RuleId::declaration, piece);
      return;
    case Form::part:
      enter(piece);
      break;
    case Form::end:
      leave(piece.offset);
      break;
    case Form::leaf:
      leaf(piece);
      break;
    case Form::beginTag:
      tag(piece);
      break;
    case Form::closeTag:
      reportReasons(piece);
      note(RuleId::strayClose, piece);
      break;
    default:
      between(piece);
      return;
    }
    seenElement = true;
  }

  /// White space is one finding for the whole message. One line end behind it is none.
  void between(Piece& piece) {
    auto raw = piece.raw;
    if (piece.offset == 0 && result.identity.byteOrderMark)
      raw.remove_prefix(byteOrderMark.size());
    bool const last = piece.offset + piece.size == text.size();
    if (raw.empty() || (last && (raw == "\n" || raw == "\r\n")))
      return;
    if (raw.find_first_not_of(whitespace) != npos) {
      if (result.identity.kind != Kind::unknown && raw.find_first_not_of('\0') != npos)
        note(RuleId::text, piece, raw);
      return;
    }
    if (whiteSpaces++ == 0)
      firstWhiteSpace = piece.offset;
    piece.reasons.push_back(RuleId::whiteSpace);
  }

  void reportWhiteSpace() {
    if (whiteSpaces != 0)
      find(RuleId::whiteSpace, firstWhiteSpace, {},
           std::to_string(whiteSpaces) + (whiteSpaces == 1 ? " place" : " places"));
  }

  void tag(Piece& piece) {
    bool const method = findMethod(piece.element) != nullptr;
    if (open.back().name == word::METHOD) {
      if (!method)
        note(RuleId::unknownMethod, piece, piece.element);
      else if (++methods > 1)
        note(RuleId::severalMethods, piece, piece.element);
    } else if (findElement(piece.element) != nullptr) {
      note(RuleId::unterminated, piece, {}, piece.stored.value_or(std::string()));
    } else {
      note(RuleId::unknownElement, piece, piece.element);
    }
  }

  void leaf(Piece& piece) {
    Row const* const row = place(piece);
    if (row == nullptr)
      return;
    if (holdsElement(piece.raw))
      note(RuleId::holdsTag, piece, piece.raw, piece.stored.value_or(std::string()));
    reportReasons(piece);
    if (auto const rule = judge(*row, piece.raw, piece.stored))
      note(*rule, piece, piece.raw, piece.stored.value_or(std::string()));
  }

  /// The reasons for what is stored, as far as they are findings.
  void reportReasons(Piece& piece) {
    auto const reasons = piece.reasons;
    for (RuleId const reason : reasons)
      if (ruleOf(reason).severity != Severity::none && !isFound(reason, piece.offset))
        note(reason, piece, piece.raw, piece.stored.value_or(std::string()));
  }

  bool isFound(RuleId rule, std::size_t offset) const {
    for (auto found = result.findings.rbegin(); found != result.findings.rend(); ++found)
      if (found->offset != offset)
        return false;
      else if (found->rule == rule)
        return true;
    return false;
  }

  void enter(Piece& piece) {
    place(piece);
    bool const bounds = piece.element == word::ENTRY || piece.element == word::LOGLIST ||
                        piece.element == word::ITEM;
    if (!piece.closed)
      note(!bounds              ? RuleId::unterminated
           : piece.reachesClose ? RuleId::merged
                                : RuleId::dropped,
           piece);
    else if (bounds && piece.element != word::LOGLIST && isEmpty(piece))
      note(RuleId::emptyPart, piece);
    if (piece.element == word::SCHEMA && !isSchema(piece.raw))
      note(RuleId::schemaForm, piece, piece.raw);
    open.push_back(
        {piece.element, piece.offset, &rowsFor(piece.element), 0, 0, piece.closed, owners[at]});
  }

  bool isEmpty(Piece const& piece) const {
    return text.compare(piece.offset + piece.size, 2, "</") == 0;
  }

  void leave(std::size_t offset) {
    Part const part = open.back();
    open.pop_back();
    Rows const& rows = *part.rows;
    for (std::size_t row = 0; row < rows.size() && part.closed; ++row)
      if (rows[row].count == Count::must && (part.seen >> row & 1) == 0 && !isEmptyAt(part) &&
          !(part.name.empty() && isFoundElsewhere(rows[row].name)))
        find(RuleId::missing, part.name.empty() ? offset : part.offset, rows[row].name,
             part.name.empty() ? std::string() : "in " + std::string(part.name),
             defaultOf(part, rows[row].name));
  }

  /// Readers find an element of the message wherever it is.
  bool isFoundElsewhere(std::string_view element) const {
    return std::any_of(result.pieces.begin(), result.pieces.end(), [&](Piece const& piece) {
      return piece.element == element && piece.stored;
    });
  }

  bool isEmptyAt(Part const& part) const {
    return !part.name.empty() && part.seen == 0 &&
           text.compare(part.offset + part.name.size() + 2, 2, "</") == 0;
  }

  /// What readers gave the record whose element is missing.
  std::string defaultOf(Part const& part, std::string_view element) const {
    auto const log = result.identity.log;
    if (part.record == nullptr || !log)
      return {};
    for (Field const& field : part.name == word::ITEM ? callFieldsOf(*log) : entryFieldsOf(*log))
      if (field.element == element)
        return valueOf(field, part.record);
    return {};
  }

  /// Finds an element that is unknown or in the wrong place.
  /// @return its row; nullptr for an unknown element
  Row const* place(Piece& piece) {
    Row const* const known = findElement(piece.element);
    if (known == nullptr) {
      if (result.identity.kind != Kind::setting)
        note(RuleId::unknownElement, piece, piece.element);
      return nullptr;
    }
    Part& part = open.back();
    if (part.rows->empty() && part.name != word::METHOD)
      return findElement(piece.element, result.identity.log);
    Row const* const row = findRow(*part.rows, piece.element);
    if (row == nullptr) {
      note(RuleId::misplaced, piece, part.name.empty() ? "" : "in " + std::string(part.name));
      return findElement(piece.element, result.identity.log);
    }
    advance(part, static_cast<std::size_t>(row - part.rows->data()), piece);
    return row;
  }

  void advance(Part& part, std::size_t index, Piece& piece) {
    Row const& row = (*part.rows)[index];
    bool const again = (part.seen >> index & 1) != 0;
    if (again && row.count != Count::many)
      note(RuleId::repeated, piece, piece.raw);
    else if (index < part.furthest)
      note(RuleId::order, piece, "behind " + std::string((*part.rows)[part.furthest].name));
    part.seen |= std::uint64_t{1} << index;
    part.furthest = std::max(part.furthest, index);
  }

  std::string const& text;
  Decoded decoded;
  Explanation result;
  std::vector<void*> owners;
  std::vector<Part> open;
  std::size_t at = 0;
  bool seenElement = false;
  int methods = 0;
  std::size_t whiteSpaces = 0;
  std::size_t firstWhiteSpace = 0;
};

constexpr Rule ruleTable[] = {
#define RULE(name, id, severity, what, why) {id, Severity::severity, what, why},
#include "inspect/Rules.def"
};

} // namespace

std::vector<Rule> const& rules() {
  static std::vector<Rule> const all(std::begin(ruleTable), std::end(ruleTable));
  return all;
}

std::string_view nameOf(Severity severity) {
  constexpr std::string_view names[] = {"none", "note", "warning", "error"};
  return names[static_cast<std::size_t>(severity)];
}

std::string_view nameOf(Piece::Form form) {
  constexpr std::string_view names[] = {"declaration", "part",     "end", "element",
                                        "beginTag",    "closeTag", "text"};
  return names[static_cast<std::size_t>(form)];
}

Explanation explain(std::string const& text, std::optional<Log> log) {
  return Judge(text, log).run();
}

std::vector<Finding> check(std::string const& text, std::optional<Log> log) {
  return Judge(text, log).run().findings;
}

} // namespace inspect
