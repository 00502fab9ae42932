// How many allocations decoding and encoding a log make.
#include <cstddef>
#include <deque>
#include <iostream>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "ClientUtils.h"
#include "JournalServiceHelper.h"
#include "differential/KindOperations.h"
#include "memory/Allocations.h"
#include "memory/RealisticLog.h"

namespace {

using allocations::countedIn;

constexpr std::size_t sizes[] = {1, 100, 1000};

// What grows while a log is read, besides the records: the deque's table of blocks, which a copy
// allocates at once, doubles as entries are added (9 times for 1000 entries of two to a block), and
// one text buffer grows with the longest raw value.
constexpr long GROWTH = 24;

template <class Item>
class AllocationCount : public ::testing::Test {
protected:
  using Log = std::deque<Item>;

  static long inCopying(Log const& log) {
    return countedIn([&log] { Log const copy = log; });
  }

  // What the utility library allocates for the names that it escapes when a log is written.
  static long inEscapingNames(Log const& log) {
    auto const inEscaping = [](std::string const& name) {
      return countedIn([&name] { ClientUtils::escapeXMLString(name); });
    };
    long count = sumOverNames(log, inEscaping);
    if constexpr (std::is_same_v<Item, ForwardedCallItem>) // the only ones escaped in calls
      for (auto const& item : log)
        for (auto const& call : item.callInfoList)
          count += inEscaping(call.connectedSurname) + inEscaping(call.connectedFirstName);
    return count;
  }

  // What it allocates besides the names themselves when a log is read. The stand-in allocates
  // nothing more; another one may return a name in a string with the capacity of its escaped form.
  static long besidesUnescapedNames(Log const& log) {
    return sumOverNames(log, [](std::string const& name) {
      auto const escaped = ClientUtils::escapeXMLString(name);
      return countedIn([&escaped] { ClientUtils::unescapeXMLString(escaped); }) -
             countedIn([&name] { std::string const copy = name; });
    });
  }

private:
  template <class Count>
  static long sumOverNames(Log const& log, Count count) {
    long sum = 0;
    for (auto const& item : log)
      sum += count(item.surname) + count(item.firstname);
    return sum;
  }
};

using Items =
    ::testing::Types<MissedCallItem, DialledCallItem, ReceivedCallItem, ForwardedCallItem>;
struct Names {
  template <class Item>
  static std::string GetName(int) {
    return comparison::KindOperations<Item, JournalServiceHelper>::NAME;
  }
};
TYPED_TEST_SUITE(AllocationCount, Items, Names);

TYPED_TEST(AllocationCount, OfDecodingIsThatOfCopyingTheResult) {
  using Kind = comparison::KindOperations<TypeParam, JournalServiceHelper>;
  for (auto const size : sizes) {
    auto const log = realistic::log<TypeParam>(size);
    auto const text = Kind::respond(log, 1);
    typename TestFixture::Log decoded;
    auto const decoding = countedIn([&] { Kind::readLog(text, decoded); });
    ASSERT_EQ(decoded.size(), size);
    auto const copying = this->inCopying(decoded);
    auto const names = this->besidesUnescapedNames(log);
    EXPECT_LE(decoding, copying + names + GROWTH) << size << " entries";
    std::cout << Kind::NAME << ", " << size << " entries: decoding allocates " << decoding
              << " times, copying " << copying << ", short names of a long form " << names << "\n";
  }
}

TYPED_TEST(AllocationCount, OfEncodingIsOneBesidesEscapedNames) {
  using Kind = comparison::KindOperations<TypeParam, JournalServiceHelper>;
  for (auto const size : sizes) {
    auto const log = realistic::log<TypeParam>(size);
    auto const names = this->inEscapingNames(log);
    Kind::respond(log, 1); // raises the size hint to this answer's length
    std::string message;
    auto const encoding = countedIn([&] { message = Kind::respond(log, 1); });
    EXPECT_EQ(encoding, 1 + names) << size << " entries";
    EXPECT_FALSE(message.empty());
    std::cout << Kind::NAME << ", " << size << " entries: encoding allocates " << encoding
              << " times, " << names << " of them for escaped names\n";
  }
}

// Checks the counting itself.

TEST(Allocations, AreCounted) {
  auto const live = allocations::live();
  EXPECT_EQ(countedIn([] { std::vector<std::string> const three(3, std::string(100, 'a')); }), 5);
  EXPECT_EQ(countedIn([] { std::string const inside(3, 'a'); }), 0);
  EXPECT_EQ(allocations::live(), live);
}

// Tells for each of four allocations whether it failed.
std::string failuresAmongFour(long nth, allocations::Failing failing) {
  std::string seen = "....";
  allocations::Failure const failure(nth, failing);
  for (auto& one : seen)
    try {
      ::operator delete(::operator new(8));
    } catch (std::bad_alloc const&) {
      one = 'x';
    }
  return seen;
}

TEST(Allocations, FailOnceOrFromThenOn) {
  EXPECT_EQ(failuresAmongFour(2, allocations::Failing::once), ".x..");
  EXPECT_EQ(failuresAmongFour(2, allocations::Failing::fromThenOn), ".xxx");
  EXPECT_EQ(failuresAmongFour(5, allocations::Failing::fromThenOn), "....");
}

} // namespace
