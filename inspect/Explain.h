// A message explained element by element, and judged.
#ifndef INSPECT_EXPLAIN_H
#define INSPECT_EXPLAIN_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/Message.h"

namespace inspect {

enum class Severity : std::uint8_t { none, note, warning, error };
std::string_view nameOf(Severity severity);

enum class RuleId : std::uint8_t {
#define RULE(name, id, severity, what, why) name,
#include "inspect/Rules.def"
};

struct Rule {
  std::string_view id;
  Severity severity;
  std::string_view what;
  std::string_view why;
};
std::vector<Rule> const& rules();
inline Rule const& ruleOf(RuleId id) {
  return rules()[static_cast<std::size_t>(id)];
}

/// A place where a message differs from what writers write.
struct Finding {
  RuleId rule;
  std::size_t offset;
  std::string_view element; ///< empty when it is about the message
  std::string text;         ///< what is there; may hold any bytes
  std::string instead;      ///< what readers get; empty when that is what is there
};

/// One piece of a message.
struct Piece {
  enum class Form : std::uint8_t {
    declaration,
    part,     ///< the begin of an element that holds elements
    end,      ///< its end, or where it is taken to end
    leaf,     ///< an element with its value
    beginTag, ///< a begin tag without its close tag
    closeTag, ///< a close tag that closes nothing
    text      ///< bytes between elements
  };
  Form form = Form::text;
  std::uint8_t depth = 0;
  bool closed = true;       ///< of a part: whether it has its close tag
  bool reachesClose = true; ///< of a part: whether any close tag follows, be it another part's
  std::size_t offset = 0;
  std::size_t size = 0;
  std::string_view element;
  std::string_view raw;              ///< the value as it is in the text
  std::optional<std::string> stored; ///< the value that readers store, from the decoded message
  std::vector<RuleId> reasons;       ///< why the two differ, and findings about this piece
};
std::string_view nameOf(Piece::Form form);

struct Explanation {
  Identity identity;
  std::vector<Piece> pieces;     ///< in wire order
  std::vector<Finding> findings; ///< in the order of their offsets
};

/// Views of the result point into the text.
/// @param log to which a bare entry belongs that does not tell it
Explanation explain(std::string const& text, std::optional<Log> log = {});

/// The findings alone.
std::vector<Finding> check(std::string const& text, std::optional<Log> log = {});

/// A message taken apart, without what readers make of it.
std::vector<Piece> piecesOf(std::string_view text);

} // namespace inspect

#endif
