// The search for an ampersand: at every position in texts of every size, among other bytes and
// among those that are most like it.
#include <cstddef>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "Ampersand.h"

namespace {

constexpr std::size_t longestTried = 70;

// What differs from an ampersand in one bit or by one; NUL, and a byte of ones.
constexpr char others[] = {'6', '%', '\'', '\xA6', '\x06', '.', '\0', '\xFF', 'f', '"', '$'};

TEST(Ampersand, IsFoundAtEveryPlace) {
  for (std::size_t size = 1; size <= longestTried; ++size)
    for (char const other : others)
      for (std::size_t at = 0; at < size; ++at) {
        std::string text(size, other);
        text[at] = '&';
        EXPECT_TRUE(ampersand::isIn(text)) << size << ' ' << at << ' ' << static_cast<int>(other);
      }
}

TEST(Ampersand, IsFoundWhereAllAre) {
  for (std::size_t size = 1; size <= longestTried; ++size)
    EXPECT_TRUE(ampersand::isIn(std::string(size, '&'))) << size;
}

TEST(Ampersand, IsNotFoundWhereThereIsNone) {
  for (std::size_t size = 0; size <= longestTried; ++size)
    for (char const other : others)
      for (char const neighbour : others) {
        std::string text(size, other);
        for (std::size_t at = 0; at < size; at += 2)
          text[at] = neighbour;
        EXPECT_FALSE(ampersand::isIn(text))
            << size << ' ' << static_cast<int>(other) << ' ' << static_cast<int>(neighbour);
      }
}

TEST(Ampersand, IsNotFoundAroundTheText) {
  constexpr std::size_t around = 40;
  for (std::size_t size = 0; size <= longestTried; ++size) {
    std::string const text =
        std::string(around, '&') + std::string(size, '.') + std::string(around, '&');
    EXPECT_FALSE(ampersand::isIn(std::string_view(text).substr(around, size))) << size;
  }
}

} // namespace
