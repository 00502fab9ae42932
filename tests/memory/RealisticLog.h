// Logs of realistic content: numbers, names with and without markup, dates, one to three calls.
#ifndef TESTS_MEMORY_REALISTICLOG_H
#define TESTS_MEMORY_REALISTICLOG_H

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>

#include "operations/Inputs.h"
#include "operations/Operations.h"

namespace realistic {

inline constexpr char const* surnames[] = {
    "Berg",
    "Łukasiewicz",
    "Müller",
    "Garcia & Sons",
    "Constantinopoulos-Rodriguez",
    "Weber <Zentrale>",
    "Rechtsanwälte Schmidt & Partner",
    "",
};
inline constexpr char const* firstnames[] = {"Anna", "Zoë", "Jean-Christophe Maximilian", "",
                                             "D'Arcy"};
// Most kinds copy a call's names raw, so that markup would damage the message.
inline constexpr char const* connectedSurnames[] = {"Berg", "Garcia & Sons", "Łukasiewicz-Müller",
                                                    ""};
inline constexpr char const* numbers[] = {"+4930901820", "110", "5559", "+4989722330144"};
inline constexpr char const* times[] = {"2007-05-14 09:31:07", "14.05.2007 11:02"};

template <class Item>
Item item(std::size_t index, operations::Random& random) {
  Item item;
  item.uniqueId = "7c9e6679-7425-40de-944b-" + std::to_string(index);
  item.entryId = std::to_string(1000 + index);
  item.surname = random.oneOf(surnames);
  item.firstname = random.oneOf(firstnames);
  if (random.below(3) == 0)
    item.picture = "pictures/" + std::to_string(index) + ".png";
  for (auto calls = 1 + random.below(3); calls > 0; --calls) {
    auto& call = item.callInfoList.emplace_back();
    call.number = random.oneOf(numbers);
    call.numberType = NumberType::MOBILE;
    call.timeDate = random.oneOf(times);
    if (random.below(3) > 0)
      continue;
    call.connectedNumber = random.oneOf(numbers);
    call.connectedSurname = random.oneOf(connectedSurnames);
    call.connectedFirstName = random.oneOf(firstnames);
  }
  return item;
}

template <class Item>
std::deque<Item> log(std::size_t entries) {
  operations::Random random(entries);
  std::deque<Item> log;
  for (std::size_t index = 0; index < entries; ++index)
    log.push_back(item<Item>(index, random));
  return log;
}

} // namespace realistic

#endif
