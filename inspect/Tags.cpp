#include "inspect/Tags.h"

#include "vocabulary/Words.h"

namespace inspect {
namespace {

constexpr std::size_t longestName = 64;

constexpr bool isNameByte(char byte) {
  return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
         (byte >= '0' && byte <= '9') || byte == '_' || byte == '-' || byte == '.';
}

/// The one tag of the format that has an attribute.
Tag schemaTagAt(std::string_view text, std::size_t offset) {
  using namespace journal::word;
  Tag tag;
  if (text.compare(offset, SCHEMA_NAMED_BEGIN.size(), SCHEMA_NAMED_BEGIN) != 0)
    return tag;
  auto const value = offset + SCHEMA_NAMED_BEGIN.size();
  auto const size = text.substr(value, longestName).find(SCHEMA_NAMED_END);
  if (size == std::string_view::npos)
    return tag;
  tag.offset = offset;
  tag.name = SCHEMA;
  tag.attribute = text.substr(value, size);
  tag.end = value + size + SCHEMA_NAMED_END.size();
  return tag;
}

} // namespace

Tag tagAt(std::string_view text, std::size_t offset) {
  Tag tag;
  tag.close = offset + 1 < text.size() && text[offset + 1] == '/';
  auto const begin = offset + (tag.close ? 2 : 1);
  auto end = begin;
  while (end < text.size() && end - begin < longestName && isNameByte(text[end]))
    ++end;
  if (end == begin || end >= text.size() || text[end] != '>')
    return schemaTagAt(text, offset);
  tag.offset = offset;
  tag.name = text.substr(begin, end - begin);
  tag.end = end + 1;
  return tag;
}

} // namespace inspect
