// Random inputs that are the same on every machine.
#ifndef TESTS_OPERATIONS_INPUTS_H
#define TESTS_OPERATIONS_INPUTS_H

#include <cstdint>
#include <deque>
#include <string>
#include <tuple>
#include <type_traits>

#include "members/Members.h"
#include "operations/Operations.h"
#include "vocabulary/Constants.h"

namespace operations {

/// A linear congruential generator; the standard's distributions differ between libraries.
class Random {
public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  /// A number below `bound`.
  std::uint32_t below(std::size_t bound) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::uint32_t>(state_ >> 33U) % static_cast<std::uint32_t>(bound);
  }

  template <class List>
  auto const& oneOf(List const& list) {
    return list[below(std::size(list))];
  }

private:
  std::uint64_t state_;
};

/// Numbers at the limits of signed and unsigned 32 bits, among others.
inline constexpr std::uint32_t numbers[] = {0,    1,          2,          9,         10,
                                            4711, 2147483647, 2147483648, 4294967295};

/// Texts that fields hold.
inline std::string const& someText(Random& random) {
  static std::string const texts[] = {
      "",
      "",
      "7",
      "M-1001",
      "+4930901820",
      "2007-05-14 09:31:07",
      "True",
      "NO_ICON",
      "Müller & Söhne <\"Köln\">",
      "Zoë 'Z'",
      "&amp;lt; &#38; &quot;&apos;&",
      "李 😀",
      "</Surname><EntryId>9",
      std::string("a\0b", 3),
      "a text that is longer than what a string holds in itself",
  };
  return random.oneOf(texts);
}

template <class Record>
void fill(Record& record, Random& random) {
  members::forEachValue(record, [&random](auto& field) {
    using Field = std::decay_t<decltype(field)>;
    if constexpr (std::is_same_v<Field, std::string>)
      field = someText(random);
    else if constexpr (std::is_same_v<Field, bool>)
      field = random.below(2) == 1;
    else // more than any enumeration has members, so that values outside occur
      field = static_cast<Field>(static_cast<std::int32_t>(random.below(8)));
  });
}

template <class Item>
Item someItem(Random& random) {
  Item item;
  fill(item, random);
  for (auto calls = random.below(3); calls > 0; --calls)
    fill(item.callInfoList.emplace_back(), random);
  return item;
}

template <class Item>
void fillKind(Input& input, Random& random) {
  std::get<Item>(input.records) = someItem<Item>(random);
  auto& log = std::get<std::deque<Item>>(input.records);
  log.clear();
  for (auto entries = random.below(3); entries > 0; --entries)
    log.push_back(someItem<Item>(random));
}

/// New values for everything but the text.
inline void fillRecords(Input& input, Random& random) {
  fillKind<Missed>(input, random);
  fillKind<Dialled>(input, random);
  fillKind<Received>(input, random);
  fillKind<Forwarded>(input, random);
  input.ids.clear();
  for (auto ids = random.below(4); ids > 0; --ids)
    input.ids.insert(someText(random));
  input.number = random.oneOf(numbers);
  input.flag = random.below(2) == 1;
}

/// Another element to ask for.
inline void chooseElement(Input& input, Random& random) {
  input.name = random.oneOf(vocabulary::elementNames());
  input.begin = "<" + input.name + ">";
  input.close = "</" + input.name + ">";
}

} // namespace operations

#endif
