// The elements of the records, for the peers: each with the member that it carries.
//
// They come from the list of members, which is independent of the library's own tables. So it
// proves something when a peer produces the same records. Peers write and expect the elements in
// the order of a message.
#ifndef BENCH_FIELDS_H
#define BENCH_FIELDS_H

#include <cstddef>
#include <iterator>
#include <string_view>
#include <tuple>
#include <utility>

#include "members/Members.h"

namespace bench {

/// Every element that carries a value, in the order in which messages hold them. Each record has
/// some of them.
inline constexpr std::string_view ORDER[] = {"UniqueId",
                                             "EntryId",
                                             "Surname",
                                             "Firstname",
                                             "Picture",
                                             "JSGroupBy",
                                             "Viewed",
                                             "Number",
                                             "NumberType",
                                             "ResolvedNumber",
                                             "ConnectedNumber",
                                             "ConnectedNumberPriority",
                                             "ConnectedNumberType",
                                             "ConnectedSurname",
                                             "ConnectedFirstName",
                                             "TimeDate",
                                             "Duration",
                                             "TargetLog",
                                             "NumberPresentation",
                                             "NamePresentation",
                                             "DeflectNumberPresentation",
                                             "DeflectNumber",
                                             "DeflectNumberType",
                                             "DeflectNamePresentation",
                                             "DeflectName",
                                             "TimeFormat"};

namespace detail {

/// How many members come before the one that the element carries: all, if none does.
template <class Record>
constexpr std::size_t indexOf(std::string_view element) {
  std::size_t index = 0;
  bool found = false;
  std::apply(
      [&](auto const&... member) {
        ((found = found || member.element == element, index += found ? 0 : 1), ...);
      },
      members::list<Record>);
  return index;
}

template <class Record, std::size_t place>
constexpr auto element() {
  constexpr auto list = members::list<Record>;
  constexpr std::size_t index = indexOf<Record>(ORDER[place]);
  if constexpr (index == std::tuple_size_v<decltype(list)>)
    return std::tuple<>();
  else
    return std::tuple(std::get<index>(list));
}

template <class Record>
constexpr std::size_t carriedMembers() {
  return std::apply(
      [](auto const&... member) {
        return ((!member.isCalls && member.travel != members::Travel::never ? 1u : 0u) + ...);
      },
      members::list<Record>);
}

template <class Record, std::size_t... place>
constexpr auto elements(std::index_sequence<place...>) {
  constexpr auto found = std::tuple_cat(element<Record, place>()...);
  static_assert(std::tuple_size_v<decltype(found)> == carriedMembers<Record>(),
                "ORDER does not name every element of this record");
  return found;
}

} // namespace detail

/// The members of a record that messages carry as values, as a tuple; not the list of calls.
template <class Record>
inline constexpr auto
    elementsOf = detail::elements<Record>(std::make_index_sequence<std::size(ORDER)>());

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
