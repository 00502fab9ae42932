// Begin and close tags, made from the element names at compile time.
#ifndef JOURNAL_VOCABULARY_TAGS_H
#define JOURNAL_VOCABULARY_TAGS_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "bytes/Bytes.h"
#include "vocabulary/Words.h"

namespace journal {
namespace detail {

inline constexpr std::string_view elementNames[] = {
#define WORD(NAME, text)
#define ELEMENT(NAME, text) word::NAME,
#include "vocabulary/Words.def"
    // Elements whose constants are named differently, and elements without constants for their
    // tags.
    word::HANDLE, word::CALL_LOG_ENABLED, word::SCHEMA, word::VALUE};

/// The size of an element's two tags.
constexpr std::size_t tagsSize(std::size_t nameSize) {
  return 2 * nameSize + sizeof "<></>" - 1;
}

/// Where the tags of an element start in `tags`. For any other name it is no constant expression.
constexpr std::size_t tagsOffset(std::string_view name) {
  std::size_t offset = 0;
  for (auto const* element = elementNames; *element != name; ++element)
    offset += tagsSize(element->size());
  return offset;
}

constexpr std::size_t allTagsSize() {
  std::size_t size = 0;
  for (auto const name : elementNames)
    size += tagsSize(name.size());
  return size;
}

/// No tag is longer than this.
inline constexpr std::size_t longestTag = largestTag;

/// Whether the tags have sizes that sameBytes and sameTag can compare.
constexpr bool tagsFit() {
  for (auto const name : elementNames)
    if (name.size() + 2 < smallestCompared || name.size() + 3 > longestTag)
      return false;
  return true;
}

/// The tags of all elements in one text, so that two bytes tell where an element's are.
struct Tags {
  char text[allTagsSize()];
};
inline constexpr auto tags = [] {
  Tags made{};
  auto* at = made.text;
  for (auto const name : elementNames)
    for (std::string_view const piece :
         {std::string_view("<"), name, std::string_view("></"), name, std::string_view(">")})
      for (char const character : piece)
        *at++ = character;
  return made;
}();

} // namespace detail

/// The two tags of an element, brackets included.
class Element {
public:
  constexpr explicit Element(std::string_view name)
      : Element(static_cast<std::uint16_t>(detail::tagsOffset(name)),
                static_cast<std::uint8_t>(name.size())) {}
  constexpr Element(std::uint16_t offset, std::uint8_t nameSize)
      : offset_(offset), nameSize_(nameSize) {}

  /// The parts of an element, for storing it in three bytes.
  constexpr std::uint16_t offset() const { return offset_; }
  constexpr std::uint8_t nameSize() const { return nameSize_; }

  /// The size of both tags.
  constexpr std::size_t size() const { return detail::tagsSize(nameSize_); }

  constexpr std::string_view begin() const {
    return {detail::tags.text + offset_, nameSize_ + std::size_t{2}};
  }
  constexpr std::string_view close() const {
    return {detail::tags.text + offset_ + nameSize_ + 2, nameSize_ + std::size_t{3}};
  }

private:
  std::uint16_t offset_;
  std::uint8_t nameSize_;
};
static_assert(detail::allTagsSize() <= UINT16_MAX);
static_assert(detail::tagsFit());

/// The element called `name`, one of the words.
template <std::string_view const& name>
inline constexpr Element element{name};

} // namespace journal

#endif
