// Realistic logs: the same on every machine and in every run.
#include "Logs.h"

#include <cstdio>
#include <string>

#include "Random.h"

namespace bench {

namespace {

using Event = CallLogEntryEvent;

char const* const SURNAMES[] = {
    "Schmidt",  "Müller",       "Kowalski", "Novák",     "García",       "O'Brien",
    "Nguyen",   "Łukasiewicz",  "Jensen",   "Rossi",     "Weber & Sohn", "Andersson",
    "Дмитриев", "Papadopoulos", "田中",     "Çelik",     "Fernandes",    "van der Berg",
    "Smith",    "Horváth",      "Dubois",   "Schönfeld", "Lindqvist",    "Meyer-Lang"};
char const* const FIRST_NAMES[] = {
    "Anna",  "Jürgen", "Zoë",       "Mehmet",    "Siobhán", "Luca", "Ingrid",   "José",
    "Ольга", "Peter",  "Katarzyna", "Tom & Ina", "Åsa",     "Paul", "Frédéric", "花子"};

std::string phoneNumber(Random& random) {
  std::size_t const length = random.between(3, 15);
  std::string number;
  for (std::size_t at = 0; at < length; ++at)
    number += static_cast<char>('0' + random.below(10));
  return number;
}

int inRange(Random& random, std::size_t first, std::size_t last) {
  return static_cast<int>(random.between(first, last));
}

std::string timeDate(Random& random) {
  char text[64];
  int const month = inRange(random, 1, 12);
  int const day = inRange(random, 1, 28);
  int const hour = inRange(random, 0, 23);
  int const minute = inRange(random, 0, 59);
  std::snprintf(text, sizeof text, "2026-%02d-%02d %02d:%02d:%02d", month, day, hour, minute,
                inRange(random, 0, 59));
  return text;
}

std::string duration(Random& random) {
  char text[64];
  int const minute = random.percent(10) ? inRange(random, 10, 59) : inRange(random, 0, 9);
  std::snprintf(text, sizeof text, "00:%02d:%02d", minute, inRange(random, 0, 59));
  return text;
}

NumberType::NT numberType(Random& random) {
  return static_cast<NumberType::NT>(random.below(5));
}

Event::_PresentationValue presentation(Random& random) {
  return random.percent(85) ? Event::ALLOWED : Event::NOT_ALLOWED;
}

template <class Call>
void fillCommon(Call& call, Random& random) {
  call.number = phoneNumber(random);
  call.numberType = numberType(random);
  call.timeDate = timeDate(random);
  if (random.percent(20)) {
    call.connectedNumber = phoneNumber(random);
    call.connectedNumberType = numberType(random);
    call.connectedSurname = random.oneOf(SURNAMES);
    call.connectedFirstName = random.oneOf(FIRST_NAMES);
  }
}

template <class Call>
void fillShown(Call& call, Random& random, bool named) {
  call.numberPresentation = presentation(random);
  call.namePresentation = named ? presentation(random) : Event::NOT_AVAILABLE;
  call.timeFormat = random.percent(90) ? Event::FORM_24 : Event::FORM_PM;
}

template <class Call>
void fillDeflected(Call& call, Random& random) {
  if (!random.percent(5))
    return;
  call.deflectNumberPresentation = presentation(random);
  call.deflectNumber = phoneNumber(random);
  call.deflectNumberType = numberType(random);
  call.deflectNamePresentation = presentation(random);
  call.deflectName = random.oneOf(FIRST_NAMES) + std::string(" ") + random.oneOf(SURNAMES);
}

void fill(MissedCallItem::MissedCallInfo& call, Random& random, bool named) {
  static constexpr Event::_LogTarget TARGETS[] = {Event::IN_NO_ANSWER, Event::IN_BUSY,
                                                  Event::IN_GROUP_MISSED};
  fillCommon(call, random);
  fillShown(call, random, named);
  fillDeflected(call, random);
  call.targetLog = random.oneOf(TARGETS);
}

void fill(DialledCallItem::DialledCallInfo& call, Random& random, bool named) {
  static constexpr Event::_LogTarget TARGETS[] = {Event::OUT_ANSWERED, Event::OUT_NO_ANSWER,
                                                  Event::OUT_BUSY};
  fillCommon(call, random);
  fillShown(call, random, named);
  call.targetLog = random.oneOf(TARGETS);
  call.duration = duration(random);
  call.connectedNumberPriority = !call.connectedNumber.empty() && random.percent(50);
  if (random.percent(50))
    call.resolvedNumber = "0" + call.number;
}

void fill(ReceivedCallItem::ReceivedCallInfo& call, Random& random, bool named) {
  fillCommon(call, random);
  fillShown(call, random, named);
  fillDeflected(call, random);
  call.targetLog = Event::IN_ANSWERED;
  call.duration = duration(random);
}

void fill(ForwardedCallItem::ForwardedCallInfo& call, Random& random, bool) {
  fillCommon(call, random);
  call.duration = duration(random);
}

void fillOwn(MissedCallItem& item, Random& random) {
  item.viewed = random.percent(70);
}
void fillOwn(DialledCallItem& item, Random&) {
  item.jsGroupBy = item.callInfoList.front().timeDate.substr(0, 10);
}
void fillOwn(ReceivedCallItem&, Random&) {}
void fillOwn(ForwardedCallItem&, Random&) {}

} // namespace

template <class Kind>
typename Kind::Log makeLog(std::size_t entries) {
  Random random(20261120);
  typename Kind::Log log;
  for (std::size_t at = 0; at < entries; ++at) {
    typename Kind::Item& item = log.emplace_back();
    item.uniqueId = std::to_string(1000 + at);
    item.entryId = std::to_string(70000 + 3 * at);
    bool const named = random.percent(80);
    if (named) {
      item.surname = random.oneOf(SURNAMES);
      item.firstname = random.oneOf(FIRST_NAMES);
    }
    if (random.percent(20))
      item.picture = "pictures/" + item.entryId + ".png";
    for (std::size_t calls = random.between(1, 5); calls > 0; --calls)
      fill(item.callInfoList.emplace_back(), random, named);
    fillOwn(item, random);
  }
  return log;
}

template Missed::Log makeLog<Missed>(std::size_t);
template Dialled::Log makeLog<Dialled>(std::size_t);
template Received::Log makeLog<Received>(std::size_t);
template Forwarded::Log makeLog<Forwarded>(std::size_t);

} // namespace bench
