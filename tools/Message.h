// A message split into its elements, and what kind of message it is.
#ifndef TOOLS_MESSAGE_H
#define TOOLS_MESSAGE_H

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

#include "Elements.h"

/// One piece of the text. Names and values point into the message's text.
struct Node {
  enum class Kind : std::uint8_t {
    DECLARATION,
    PART,      ///< the begin of an element that holds elements
    END,       ///< its end, or where it is assumed to end
    LEAF,      ///< an element with its value
    TAG,       ///< a begin tag without its close tag
    CLOSE_TAG, ///< a close tag that closes nothing
    TEXT       ///< bytes between elements
  };
  Kind kind = Kind::TEXT;
  std::uint8_t depth = 0;
  bool closed = true;       ///< of a PART: whether its close tag was found
  bool reachesClose = true; ///< of a PART: whether readers find a close tag, be it another part's
  std::string_view name;
  std::string_view value; ///< of a Schema: its name attribute
  std::size_t offset = 0;
};

using Nodes = std::deque<Node>;

/// Splits a text in linear time. Parts nest at most five deep: one that begins again inside itself
/// ends the one before, as readers do not nest either.
Nodes scan(std::string_view text);

/// What kind of message it is.
struct Subject {
  JournalServiceHelper::MethodCode code = JournalServiceHelper::UNKNOWN_METHOD;
  Method const* method = nullptr;
  MessageKind kind = MessageKind::OTHER;
  Log log = Log::NONE;
  bool declared = false;
};

Subject classify(std::string const& text, Nodes const& nodes);

#endif
