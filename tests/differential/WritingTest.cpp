// Every record near a full and a sparse one, every word near a valid one and numbers at the
// limits, written by the library and by the reference.
#include <gtest/gtest.h>

#include <iostream>
#include <limits>
#include <string>
#include <vector>

#include "differential/Comparison.h"
#include "differential/Messages.h"
#include "members/Members.h"

namespace {

std::vector<int> const& numbers() {
  static std::vector<int> const all = {
      0,  1,   2,    3,          4,         5,  6,          7,   8,
      9,  10,  11,   77,         -1,        -2, 2147483647, -10, std::numeric_limits<int>::min(),
      99, 100, -100, 1000000000, -999999999};
  return all;
}

// One of several values for a field.
void set(std::string& field, std::size_t value, std::vector<std::string> const& texts) {
  field = texts[value % texts.size()];
}
void set(bool& field, std::size_t value, std::vector<std::string> const&) {
  field = value % 2 == 0;
}
template <class Enumeration>
void set(Enumeration& field, std::size_t value, std::vector<std::string> const&) {
  field = static_cast<Enumeration>(numbers()[value % numbers().size()]);
}

// Calls visit(field) for each field of the entry, then for those of its first call.
template <class Item, class Visit>
void forEachField(Item& item, Visit const& visit) {
  members::forEachValue(item, visit);
  members::forEachValue(item.callInfoList.front(), visit);
}

// Sets one field, counted from 0.
template <class Item>
void setField(Item& item, std::size_t number, std::size_t value,
              std::vector<std::string> const& texts) {
  std::size_t at = 0;
  forEachField(item, [&](auto& field) {
    if (at++ == number)
      set(field, value, texts);
  });
}

template <class Item>
std::size_t fieldsIn() {
  std::size_t count = 0;
  Item item;
  item.callInfoList.emplace_back();
  forEachField(item, [&count](auto&) { ++count; });
  return count;
}

comparison::Notice noticeFor(std::size_t turn, std::vector<std::string> const& texts) {
  auto const number = numbers()[turn % numbers().size()];
  return {texts[turn % texts.size()], static_cast<JournalServiceObserverIfc::ActionType>(number),
          static_cast<unsigned int>(number)};
}

template <class Item>
class WrittenRecords : public ::testing::Test {
protected:
  void compare(Item const& item, std::vector<std::string> const& texts) {
    auto const difference = comparison::compareEncoders(item, noticeFor(compared_, texts));
    ASSERT_EQ(difference, "");
    ++compared_;
  }

  void TearDown() override { std::cout << compared_ << " records compared\n"; }

  std::size_t compared_ = 0;
};

using Kinds =
    ::testing::Types<MissedCallItem, DialledCallItem, ReceivedCallItem, ForwardedCallItem>;
TYPED_TEST_SUITE(WrittenRecords, Kinds, );

TYPED_TEST(WrittenRecords, WithEachFieldSetToEachValue) {
  auto texts = differential::valueTokens();
  texts.insert(texts.end(), {"", "<", "</Number>", "\"'", "</Item><Item>", std::string(300, '&')});
  for (auto const& original :
       {differential::fullItem<TypeParam>(), differential::sparseItem<TypeParam>()})
    for (std::size_t field = 0; field < fieldsIn<TypeParam>(); ++field)
      for (std::size_t value = 0; value < texts.size(); ++value) {
        auto item = original;
        setField(item, field, value, texts);
        this->compare(item, texts);
        if (this->HasFatalFailure())
          return;
      }
  EXPECT_EQ(this->compared_, 2 * fieldsIn<TypeParam>() * texts.size());
}

TYPED_TEST(WrittenRecords, WithEachTwoFieldsSet) {
  std::vector<std::string> const texts = {"", "a", "&<>\"'", "Failure"};
  for (auto const& original :
       {differential::fullItem<TypeParam>(), differential::sparseItem<TypeParam>()})
    for (std::size_t second = 1; second < fieldsIn<TypeParam>(); ++second)
      for (std::size_t first = 0; first < second; ++first)
        for (std::size_t values = 0; values < 16; ++values) {
          auto item = original;
          setField(item, first, values % 4, texts);
          setField(item, second, values / 4, texts);
          this->compare(item, texts);
          if (this->HasFatalFailure())
            return;
        }
}

// With nothing around the fields, an encoder once copied no bytes from a null pointer.
TYPED_TEST(WrittenRecords, WithoutAnyValue) {
  EXPECT_EQ(comparison::compareEncoders(TypeParam(), {}), "");
}

TYPED_TEST(WrittenRecords, WithSeveralCalls) {
  std::vector<std::string> const texts = {"", "<&>"};
  for (std::size_t calls = 0; calls < 40; ++calls) {
    auto item = differential::fullItem<TypeParam>();
    item.callInfoList.resize(calls);
    if (calls > 1)
      item.callInfoList.back() = item.callInfoList.front();
    this->compare(item, texts);
    if (this->HasFatalFailure())
      return;
  }
}

TEST(WrittenWords, OfOneAndTwoTokens) {
  auto tokens = differential::alphabet(true);
  tokens.push_back("");
  for (auto const& first : tokens)
    for (auto const& second : tokens)
      ASSERT_EQ(comparison::compareWord(first + second), "");
  std::cout << tokens.size() * tokens.size() << " words compared\n";
}

TEST(WrittenWords, AtTheBoundariesOfNumbers) {
  for (int const number : numbers())
    ASSERT_EQ(comparison::compareNumber(number), "");
  for (int number = -1000; number <= 1000; ++number)
    ASSERT_EQ(comparison::compareNumber(number), "");
}

TEST(WrittenWords, AsIdsOfRequests) {
  auto tokens = differential::valueTokens();
  tokens.insert(tokens.end(), {"", "<EntryId>", "</EntryId>", std::string(500, 'x')});
  std::set<std::string> ids;
  for (auto const& token : tokens) {
    ids.insert(token);
    ASSERT_EQ(comparison::compareRequests(token, ids), "");
    ASSERT_EQ(comparison::compareRequests(token, {token}), "");
  }
}

} // namespace
