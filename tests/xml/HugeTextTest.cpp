// Elements on both sides of 2 GiB: positions are compared as signed 32-bit numbers, as on the
// device, which cannot hold such a text; a desktop can, and must give the same results.
#include <cstddef>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "JournalServiceHelper.h"

namespace {

using J = JournalServiceHelper;

bool canHold(std::uint64_t size) {
  auto const available = static_cast<std::uint64_t>(sysconf(_SC_AVPHYS_PAGES)) *
                         static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
  return sizeof(std::size_t) > 4 && available > 2 * size;
}

TEST(HugeText, IsReadByPositionsOf32Bits) {
  constexpr std::uint64_t boundary = 0x80000000;
  constexpr std::uint64_t size = boundary + 64;
  // Such a text needs a 64-bit machine with memory to spare; CI's machines have it.
  if (!canHold(size))
    GTEST_SKIP() << "needs a 64-bit machine with 4 GiB of memory to spare";

  struct Row {
    char const* what;
    std::uint64_t begin; // of "<N>1</N>"
    bool isRead;
    bool isCut;
  } const rows[] = {
      {"ends one short of the boundary: read, and could be cut", boundary - 9, true, true},
      {"ends at the boundary, which compares below its begin", boundary - 8, true, false},
      {"the close tag at the boundary", boundary - 4, false, false},
      {"the value at the boundary, where positions turn negative", boundary - 3, true, false},
  };
  std::string text(size, '.');
  for (auto const& row : rows) {
    SCOPED_TRACE(row.what);
    auto const begin = static_cast<std::size_t>(row.begin);
    text.replace(begin, 8, "<N>1</N>");
    std::string value = "left over";
    EXPECT_EQ(row.isRead, J::getXMLValue(text, "N", value));
    EXPECT_EQ(row.isRead ? "1" : "left over", value);
    if (!row.isCut) { // cutting makes copies, for which few machines have the memory
      EXPECT_FALSE(J::getAndRemoveXMLValue(text, "N", value));
      EXPECT_EQ(size, text.size());
    }
    text.replace(begin, 8, "........");
  }
}

} // namespace
