// Begin and close tags, made from element names at compile time.
#ifndef JOURNAL_VOCABULARY_TAGS_H
#define JOURNAL_VOCABULARY_TAGS_H

#include <cstddef>
#include <string_view>

namespace journal {

/// The two tags of an element, brackets included.
struct Element {
  std::string_view begin;
  std::string_view close;
};

namespace detail {

template <std::string_view const& name>
struct TagText {
  // "<", "/" and ">" around the name. The begin tag is the same text without its slash, so it has
  // a text of its own.
  struct Chars {
    char begin[name.size() + 2] = {};
    char close[name.size() + 3] = {};
  };

  static constexpr Chars make() {
    Chars made;
    made.begin[0] = made.close[0] = '<';
    made.close[1] = '/';
    for (std::size_t i = 0; i < name.size(); ++i)
      made.begin[i + 1] = made.close[i + 2] = name[i];
    made.begin[name.size() + 1] = made.close[name.size() + 2] = '>';
    return made;
  }

  static constexpr Chars chars = make();
};

} // namespace detail

/// The tags of the element called `name`, one of the words.
template <std::string_view const& name>
inline constexpr Element element{
    {detail::TagText<name>::chars.begin, name.size() + 2},
    {detail::TagText<name>::chars.close, name.size() + 3},
};

} // namespace journal

#endif
