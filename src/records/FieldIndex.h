// Finds the field that a tag belongs to in constant time.
#ifndef JOURNAL_RECORDS_FIELDINDEX_H
#define JOURNAL_RECORDS_FIELDINDEX_H

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "bytes/Bytes.h"
#include "records/FieldLists.h"

namespace journal {

/// A perfect hash of the elements of one record, by their names' first character and size.
class FieldIndex {
public:
  /// Does not compile if no factor gives each element a slot of its own; more slots then help.
  template <class Fields>
  constexpr explicit FieldIndex(Fields const& fields) {
    while (!fill(fields))
      ++factor_;
  }

  /// What find returns when the tag is no field's.
  static constexpr std::uint8_t none = 0xff;

  /// The number of the field whose begin tag, or close tag, this is.
  /// @param fields those of the constructor
  /// @param tag begins with "<" or "</", and only its last character is a ">"
  JOURNAL_INLINE inline std::size_t find(LoopedFields fields, std::string_view tag,
                                         bool isClose) const {
    auto const nameAt = std::size_t{isClose ? 2U : 1U};
    auto const number = slots_[slotOf(tag[nameAt], tag.size() - nameAt - 1)];
    if (number == none)
      return none;
    auto const& field = fields.begin()[number];
    auto const expected = isClose ? field.close() : field.begin();
    auto const isSame =
        tag.size() == expected.size() && sameTag(tag.data(), expected.data(), tag.size());
    return isSame ? number : none;
  }

private:
  constexpr std::size_t slotOf(char front, std::size_t nameSize) const {
    auto const key = static_cast<unsigned char>(front) * std::size_t{256} + nameSize;
    return (key * factor_ >> 8) % std::size(slots_);
  }

  template <class Fields>
  constexpr bool fill(Fields const& fields) {
    for (auto& slot : slots_)
      slot = none;
    std::uint8_t number = 0;
    for (auto const& field : fields) {
      auto& slot = slots_[slotOf(field.begin()[1], field.nameSize())];
      if (slot != none)
        return false;
      slot = number++;
    }
    return true;
  }

  std::uint16_t factor_ = 1;
  std::uint8_t slots_[32] = {};
};

} // namespace journal

#endif
