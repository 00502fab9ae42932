// Internal. A JSON text as a tree.
#ifndef INSPECT_JSONTREE_H
#define INSPECT_JSONTREE_H

#include <rapidjson/document.h>

#include <string>
#include <string_view>

namespace inspect::json {

inline std::string_view textOf(rapidjson::Value const& node) {
  return {node.GetString(), node.GetStringLength()};
}

/// Parses without recursion: nesting depth is bounded by memory alone.
bool parse(std::string_view text, rapidjson::Document& document, std::string& error);

} // namespace inspect::json

#endif
