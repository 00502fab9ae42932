// A hash of values that is the same on every machine: FNV-1a with 64 bits, fed byte by byte.
#ifndef TESTS_RESULTHASH_RESULTHASH_H
#define TESTS_RESULTHASH_RESULTHASH_H

#include <cstdint>
#include <deque>
#include <list>
#include <string>
#include <type_traits>

#include "members/Members.h"

namespace operations {

/// Takes numbers as 32 bits, the lowest byte first, so that it depends neither on word size nor on
/// byte order. Takes texts and lists with their length first, so that different sequences of values
/// give different bytes.
class ResultHash {
public:
  std::uint64_t value() const { return value_; }

  void feed(std::int32_t number) {
    auto const bits = static_cast<std::uint32_t>(number);
    for (unsigned int shift = 0; shift < 32; shift += 8)
      feedByte(static_cast<unsigned char>(bits >> shift));
  }

  void feed(std::string const& text) {
    feedSize(text.size());
    for (char const character : text)
      feedByte(static_cast<unsigned char>(character));
  }

  template <class Value>
  std::enable_if_t<std::is_enum_v<Value> || std::is_same_v<Value, bool> ||
                   std::is_same_v<Value, unsigned int>>
  feed(Value value) {
    feed(static_cast<std::int32_t>(value));
  }

  template <class Info>
  void feed(std::list<Info> const& calls) {
    feedEach(calls);
  }

  template <class Item>
  void feed(std::deque<Item> const& items) {
    feedEach(items);
  }

  template <class Record>
  std::enable_if_t<std::is_class_v<Record>> feed(Record const& record) {
    members::forEachValue(record, [this](auto const& value) { this->feed(value); });
    if constexpr (members::isEntry<Record>)
      feed(record.callInfoList);
  }

private:
  void feedByte(unsigned char byte) {
    value_ ^= byte;
    value_ *= 0x100000001b3U;
  }

  void feedSize(std::size_t size) { feed(static_cast<std::int32_t>(size)); }

  template <class Records>
  void feedEach(Records const& records) {
    feedSize(records.size());
    for (auto const& record : records)
      feed(record);
  }

  std::uint64_t value_ = 0xcbf29ce484222325U;
};

} // namespace operations

#endif
