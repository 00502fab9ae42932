// Texts that are nearly a given one.
#ifndef TESTS_CONVERT_NEARMISSES_H
#define TESTS_CONVERT_NEARMISSES_H

#include <cstddef>
#include <string>
#include <vector>

/// Longer, shorter, in lower case, or with one byte altered; never the text itself.
inline std::vector<std::string> nearMissesOf(std::string const& text) {
  std::string const nul(1, '\0');
  std::vector<std::string> misses = {text + " ",
                                     " " + text,
                                     text + "\n",
                                     text + "x",
                                     text + text,
                                     text + nul,
                                     nul + text,
                                     text + nul + text,
                                     "<" + text + ">",
                                     text.substr(1),
                                     text.substr(0, text.size() - 1),
                                     text};
  for (char& c : misses.back())
    c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c ^ 0x20);
  for (std::size_t at = 0; at < text.size(); ++at)
    for (char const other : {'~', '\0', static_cast<char>(text[at] ^ 0x20)}) {
      misses.push_back(text);
      misses.back()[at] = other;
    }
  return misses;
}

#endif
