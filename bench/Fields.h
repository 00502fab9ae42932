// The elements of the records, for the peers: each with the member that it carries.
//
// They come from the list of members, which is independent of the library's own tables, so a peer
// that produces the same records confirms the library's. Peers write and expect the elements in the
// list's order.
#ifndef BENCH_FIELDS_H
#define BENCH_FIELDS_H

#include <cstddef>
#include <tuple>
#include <utility>

#include "members/Members.h"

namespace bench {

namespace detail {

template <class Record, std::size_t index>
constexpr auto element() {
  constexpr auto member = std::get<index>(members::list<Record>);
  if constexpr (member.isCalls || member.travel == members::Travel::never)
    return std::tuple<>();
  else
    return std::tuple(member);
}

template <class Record, std::size_t... index>
constexpr auto elements(std::index_sequence<index...>) {
  return std::tuple_cat(element<Record, index>()...);
}

} // namespace detail

/// The members of a record that messages carry as values, as a tuple; not the list of calls.
template <class Record>
inline constexpr auto elementsOf = detail::elements<Record>(
    std::make_index_sequence<std::tuple_size_v<decltype(members::list<Record>)>>());

/// Calls visit(member) for each of them, in order; unrolled.
template <class Record, class Visit>
inline void forEachElement(Visit visit) {
  std::apply([&](auto const&... member) { (visit(member), ...); }, elementsOf<Record>);
}

/// Whether a reader stores the element. Peers skip the same elements as the library.
template <class Member>
constexpr bool isStored(Member const& member) {
  return member.travel == members::Travel::bothWays;
}

} // namespace bench

#endif
