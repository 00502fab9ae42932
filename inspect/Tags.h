// Internal. The tags of a text, one after another, whatever is around them.
#ifndef INSPECT_TAGS_H
#define INSPECT_TAGS_H

#include <cstddef>
#include <cstring>
#include <string_view>

namespace inspect {

struct Tag {
  std::size_t offset = 0;
  std::size_t end = 0; ///< behind the bracket; 0 when this is no tag
  bool close = false;
  std::string_view name;
  std::string_view attribute; ///< the name of a Schema

  explicit operator bool() const { return end != 0; }
};

/// The tag that starts at an offset.
Tag tagAt(std::string_view text, std::size_t offset);

/// The first position of a character from an offset on; npos when there is none.
inline std::size_t findChar(std::string_view text, char character, std::size_t from) {
  if (from >= text.size())
    return std::string_view::npos;
  auto const* const found =
      static_cast<char const*>(std::memchr(text.data() + from, character, text.size() - from));
  return found == nullptr ? std::string_view::npos : static_cast<std::size_t>(found - text.data());
}

/// The same of a text.
inline std::size_t findText(std::string_view text, std::string_view wanted, std::size_t from) {
  if (from >= text.size())
    return std::string_view::npos;
  auto const* const found = static_cast<char const*>(
      memmem(text.data() + from, text.size() - from, wanted.data(), wanted.size()));
  return found == nullptr ? std::string_view::npos : static_cast<std::size_t>(found - text.data());
}

/// The first tag from an offset on; false when there is none.
inline Tag nextTag(std::string_view text, std::size_t from) {
  for (auto at = findChar(text, '<', from); at != std::string_view::npos;
       at = findChar(text, '<', at + 1))
    if (Tag const tag = tagAt(text, at))
      return tag;
  return {};
}

} // namespace inspect

#endif
