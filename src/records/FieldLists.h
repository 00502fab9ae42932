// The fields of a record, visited in a loop or unrolled.
//
//   forEach(fields, visit)   calls visit(field) for each field in order
//   allOf(fields, first, visit)
//                            calls visit(field, run, bit) from the field number `first` on, until
//                            one returns false; returns whether none did. The run is the literal
//                            run that starts with the field, or empty; the bit is the field's in a
//                            FieldSet
#ifndef JOURNAL_RECORDS_FIELDLISTS_H
#define JOURNAL_RECORDS_FIELDLISTS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

#include "bytes/Inline.h"
#include "records/FieldDescriptor.h"

namespace journal {

/// A set of fields of one record, a bit for each in the order of writing.
using FieldSet = std::uint32_t;

/// Fields visited in a loop: the smallest code. It has no literal runs.
class LoopedFields {
public:
  template <class Fields>
  constexpr LoopedFields(Fields const& fields)
      : first_(std::data(fields)), size_(std::size(fields)) {}

  constexpr FieldDescriptor const* begin() const { return first_; }
  constexpr FieldDescriptor const* end() const { return first_ + size_; }

private:
  FieldDescriptor const* first_;
  std::size_t size_;
};

template <class Visit>
JOURNAL_INLINE_ONCE inline void forEach(LoopedFields fields, Visit visit) {
  for (auto const& field : fields)
    visit(field);
}

template <class Visit>
JOURNAL_INLINE_ONCE inline bool allOf(LoopedFields fields, std::size_t first, Visit visit) {
  auto bit = FieldSet{1} << first;
  for (auto const* field = fields.begin() + first; field != fields.end(); ++field) {
    if (!visit(*field, std::string_view(), bit))
      return false;
    bit <<= 1;
  }
  return true;
}

/// Fields visited without a loop. Every tag is a constant of known size, so comparing or copying it
/// takes a few instructions.
template <auto const& list>
struct UnrolledFields {
  static constexpr auto const& fields = list;
  using Indices = std::make_index_sequence<std::size(list)>;
};

namespace detail {

/// The literal run that starts with a field: the elements of the field and of those joined to it,
/// each with its expected value, as one text. Empty when the field expects no value or is itself
/// joined to the one before.
template <auto const& fields, std::size_t first>
class LiteralRun {
  static constexpr bool isJoined(std::size_t field) {
    return field < std::size(fields) && fields[field].isJoined();
  }

  template <class Take>
  static constexpr void forEachPiece(Take take) {
    if (isJoined(first))
      return;
    for (auto at = first; at == first || isJoined(at); ++at)
      if (fields[at].isExpected())
        for (auto const piece : {fields[at].begin(), fields[at].expectedText(), fields[at].close()})
          take(piece);
  }

  static constexpr auto chars = [] {
    constexpr auto size = [] {
      std::size_t sum = 0;
      forEachPiece([&](std::string_view piece) { sum += piece.size(); });
      return sum;
    }();
    std::array<char, size> run{};
    auto* to = run.data();
    forEachPiece([&](std::string_view piece) {
      for (char const character : piece)
        *to++ = character;
    });
    return run;
  }();

  // An absent text is neither first nor last in a run: only the elements on both sides show that it
  // is absent.
  static_assert(fields[first].isExpected() || isJoined(first) == isJoined(first + 1));

public:
  static constexpr std::string_view text{chars.data(), chars.size()};
};

template <auto const& fields, class Visit, std::size_t... index>
JOURNAL_INLINE_ONCE inline void forEach(Visit& visit, std::index_sequence<index...>) {
  (visit(fields[index]), ...);
}

template <auto const& fields, class Visit, std::size_t... index>
JOURNAL_INLINE_ONCE inline bool allOf(std::size_t first, Visit& visit,
                                      std::index_sequence<index...>) {
  return ((index < first ||
           visit(fields[index], LiteralRun<fields, index>::text, FieldSet{1} << index)) &&
          ...);
}

} // namespace detail

// g++ 10 does not deduce the fields themselves.
template <class Unrolled, class Visit, class Indices = typename Unrolled::Indices>
JOURNAL_INLINE_ONCE inline void forEach(Unrolled, Visit visit) {
  detail::forEach<Unrolled::fields>(visit, Indices());
}

template <class Unrolled, class Visit, class Indices = typename Unrolled::Indices>
JOURNAL_INLINE_ONCE inline bool allOf(Unrolled, std::size_t first, Visit visit) {
  return detail::allOf<Unrolled::fields>(first, visit, Indices());
}

/// The fields as the code is built: unrolled for speed, in a loop for size.
template <auto const& fields>
constexpr auto fieldList() {
  if constexpr (builtForSpeed)
    return UnrolledFields<fields>();
  else
    return LoopedFields(fields);
}

} // namespace journal

#endif
