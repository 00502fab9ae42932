// Counts the members of an aggregate at compile time.
#ifndef MEMBERS_MEMBERCOUNT_H
#define MEMBERS_MEMBERCOUNT_H

#include <cstddef>
#include <type_traits>
#include <utility>

namespace members {
namespace detail {

/// Converts to any type; never defined, as it is only used in unevaluated code.
struct Anything {
  template <class Value>
  operator Value() const;
};

template <std::size_t>
using OneMore = Anything;

template <class Record, class Indices, class = void>
inline constexpr bool takes = false;
template <class Record, std::size_t... index>
inline constexpr bool takes<Record, std::index_sequence<index...>,
                            std::void_t<decltype(Record{OneMore<index>()...})>> = true;

} // namespace detail

/// How many members a record has: as many as it can be initialised with at most.
template <class Record, std::size_t tried = 1>
constexpr std::size_t memberCount() {
  static_assert(std::is_aggregate_v<Record>);
  if constexpr (detail::takes<Record, std::make_index_sequence<tried>>)
    return memberCount<Record, tried + 1>();
  else
    return tried - 1;
}

} // namespace members

#endif
