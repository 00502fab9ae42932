// Begin and close tags, made from element names at compile time.
#ifndef JOURNAL_VOCABULARY_TAGS_H
#define JOURNAL_VOCABULARY_TAGS_H

#include <array>
#include <cstddef>
#include <string_view>

namespace journal {

/// The two tags of an element, brackets included.
class Element {
public:
  /// @param tags the begin tag and, right behind it, the close tag
  constexpr Element(char const* tags, std::size_t nameSize) : tags_(tags), nameSize_(nameSize) {}

  constexpr std::string_view begin() const { return {tags_, nameSize_ + 2}; }
  constexpr std::string_view close() const { return {tags_ + nameSize_ + 2, nameSize_ + 3}; }

private:
  char const* tags_;
  std::size_t nameSize_;
};

namespace detail {

template <std::string_view const& name>
struct TagText {
  static constexpr auto make() {
    std::array<char, 2 * name.size() + 5> tags{};
    auto* at = tags.data();
    for (std::string_view const piece :
         {std::string_view("<"), name, std::string_view("></"), name, std::string_view(">")})
      for (char const character : piece)
        *at++ = character;
    return tags;
  }
  static constexpr auto chars = make();
};

} // namespace detail

/// The tags of the element called `name`, one of the words.
template <std::string_view const& name>
inline constexpr Element element{detail::TagText<name>::chars.data(), name.size()};

} // namespace journal

#endif
