// Comparing, searching and copying bytes by words, compared with plain loops for every size and
// position. In the readers' fast path an error here might only send more texts to the fallback, and
// no test of results would notice.
#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "bytes/Bytes.h"

namespace {

// Bytes in memory of exactly their size, so that a sanitizer sees what is read outside.
std::vector<char> bytes(std::size_t size) {
  std::vector<char> made(size);
  for (std::size_t at = 0; at < size; ++at)
    made[at] = static_cast<char>('a' + at % 23);
  return made;
}

// What differs in one bit, in all bits, and in the sign only.
constexpr unsigned char differences[] = {0x01, 0xff, 0x80, 0x02};

template <class Same>
void expectSameOnlyIfEachByteIs(Same same, std::size_t largest) {
  for (std::size_t size = journal::smallestCompared; size <= largest; ++size) {
    auto const left = bytes(size);
    EXPECT_TRUE(same(left.data(), bytes(size).data(), size)) << size;
    for (std::size_t at = 0; at < size; ++at)
      for (auto const difference : differences) {
        auto right = left;
        right[at] = static_cast<char>(right[at] ^ difference);
        EXPECT_FALSE(same(left.data(), right.data(), size)) << size << ' ' << at;
      }
  }
}

TEST(SameBytes, AreSameOnlyIfEachByteIs) {
  expectSameOnlyIfEachByteIs(journal::sameBytes, 70);
}

TEST(SameTag, IsSameOnlyIfEachByteIs) {
  expectSameOnlyIfEachByteIs(journal::sameTag, journal::largestTag);
}

TEST(SameFront, IsSameWhateverFollows) {
  constexpr std::size_t block = 16;
  for (std::size_t size = 0; size <= block; ++size)
    for (std::size_t at = 0; at < block; ++at)
      for (auto const difference : differences) {
        auto const left = bytes(block);
        auto right = left;
        EXPECT_TRUE(journal::sameFront(left.data(), right.data(), size)) << size;
        right[at] = static_cast<char>(right[at] ^ difference);
        EXPECT_EQ(at >= size, journal::sameFront(left.data(), right.data(), size))
            << size << ' ' << at;
      }
}

TEST(CopyBytes, CopiesThemAndNothingElse) {
  constexpr std::size_t around = 40;
  for (std::size_t size = 0; size <= 100; ++size) {
    auto const from = bytes(size == 0 ? 1 : size); // a text's bytes are never at a null pointer
    std::string const copied(from.data(), size);
    std::string to(around + size + around, '.');
    journal::copyBytes(&to[around], from.data(), size);
    EXPECT_EQ(std::string(around, '.') + copied + std::string(around, '.'), to);
  }
}

TEST(FindByteOrNul, FindsTheFirstAndNothingPastTheEnd) {
  for (char const wanted : {'<', '\0'})
    for (char const other : {'<', '\0', '='})
      for (std::size_t size = 0; size <= 70; ++size)
        for (std::size_t at = 0; at <= size; ++at) {
          auto text = bytes(size);
          if (at < size)
            text[at] = wanted;
          for (std::size_t behind = at + 1; behind < size; ++behind)
            text[behind] = behind % 2 == 0 ? other : '=';
          auto const* const begin = text.data();
          auto const* const end = begin + size;
          EXPECT_EQ(begin + at, journal::findByteOrNul(begin, end, '<')) << size << ' ' << at;
          EXPECT_EQ(begin + at, journal::findByteOrNul(begin + at, end, '<')) << size << ' ' << at;
        }
}

TEST(FindByteOrNul, IsNotTakenInBySimilarBytes) {
  for (std::size_t size = 1; size <= 40; ++size)
    for (int similar = 1; similar < 256; ++similar) {
      if (similar == '<')
        continue;
      std::vector<char> const text(size, static_cast<char>(similar));
      auto const* const end = text.data() + size;
      EXPECT_EQ(end, journal::findByteOrNul(text.data(), end, '<')) << similar;
    }
}

} // namespace
