// Walks over the rows of a record, in a loop or unrolled.
//
//   forEach(rows, visit)   calls visit(row) for each row in order
//   allOf(rows, visit)     calls visit(row, run) until one gives false; tells whether none did. The
//                          run is what usually stands for the row and those joined to it, or empty
#ifndef JOURNAL_RECORDS_WALKS_H
#define JOURNAL_RECORDS_WALKS_H

#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

#include "records/Fields.h"
#include "xml/Inline.h"

namespace journal {

/// Rows walked in a loop: the smallest code. Its runs are all empty.
class LoopedRows {
public:
  template <class Rows>
  constexpr LoopedRows(Rows const& rows) : first_(std::data(rows)), size_(std::size(rows)) {}

  constexpr Field const* begin() const { return first_; }
  constexpr Field const* end() const { return first_ + size_; }

private:
  Field const* first_;
  std::size_t size_;
};

template <class Visit>
JOURNAL_INLINE inline void forEach(LoopedRows rows, Visit visit) {
  for (auto const& row : rows)
    visit(row);
}

template <class Visit>
JOURNAL_INLINE inline bool allOf(LoopedRows rows, Visit visit) {
  for (auto const& row : rows)
    if (!visit(row, std::string_view()))
      return false;
  return true;
}

/// Rows walked without a loop: every tag is a constant of known size, and comparing or copying it
/// takes a few instructions.
template <auto const& rows>
struct UnrolledRows {
  using Indices = std::make_index_sequence<std::size(rows)>;
};

namespace detail {

/// The run of a row: one text, so that one comparison finds all its elements.
template <auto const& rows, std::size_t first>
class Run {
  static constexpr bool isIn(std::size_t row) { return row < std::size(rows) && rows[row].joined; }

  template <class Take>
  static constexpr void forEachPiece(Take take) {
    if (isIn(first)) // the run of another row
      return;
    for (auto at = first; at == first || isIn(at); ++at)
      if (rows[at].usual != Field::none)
        for (auto const piece :
             {rows[at].element.begin(), rows[at].usualValue(), rows[at].element.close()})
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

  // No run begins or ends with a missing text: only elements on both sides show that it is missing.
  static_assert(rows[first].usual != Field::none || isIn(first) == isIn(first + 1));

public:
  static constexpr std::string_view text{chars.data(), chars.size()};
};

template <auto const& rows, class Visit, std::size_t... index>
JOURNAL_INLINE inline void forEach(Visit& visit, std::index_sequence<index...>) {
  (visit(rows[index]), ...);
}

template <auto const& rows, class Visit, std::size_t... index>
JOURNAL_INLINE inline bool allOf(Visit& visit, std::index_sequence<index...>) {
  return (visit(rows[index], Run<rows, index>::text) && ...);
}

} // namespace detail

template <auto const& rows, class Visit>
JOURNAL_INLINE inline void forEach(UnrolledRows<rows>, Visit visit) {
  detail::forEach<rows>(visit, typename UnrolledRows<rows>::Indices());
}

template <auto const& rows, class Visit>
JOURNAL_INLINE inline bool allOf(UnrolledRows<rows>, Visit visit) {
  return detail::allOf<rows>(visit, typename UnrolledRows<rows>::Indices());
}

/// The rows as code is built: for speed or for size.
template <auto const& rows>
constexpr auto rowsOf() {
  if constexpr (builtForSpeed)
    return UnrolledRows<rows>();
  else
    return LoopedRows(rows);
}

} // namespace journal

#endif
