// Enumerations to their texts and back, and values and texts that belong to no member.
#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"
#include "convert/NearMisses.h"
#include "members/Enumerations.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;
using Event = CallLogEntryEvent;

// One enumeration with its two operations and its default member.
template <class E>
struct Enumeration {
  std::string (*toText)(E);
  E (*fromText)(std::string const&);
  E fallback;
  char const* fallbackText;
};

constexpr Enumeration<NumberType::NT> numberType = {&J::convertNumberType, &J::convertNumberType,
                                                    NumberType::NO_ICON, "NO_ICON"};
constexpr Enumeration<Event::_TFormat> timeFormat = {&J::convertTimeFormat, &J::convertTimeFormat,
                                                     Event::FORM_24, "FORM_24"};
constexpr Enumeration<Event::_PresentationValue> presentation = {
    &J::convertPresentationValue, &J::convertPresentationValue, Event::NOT_AVAILABLE,
    "NOT_AVAILABLE"};
constexpr Enumeration<Event::_LogTarget> targetLog = {&J::convertTargetLog, &J::convertTargetLog,
                                                      Event::OUT_BUSY, "OUT_BUSY"};

// The members are numbered from 0 without a gap, and each is spelled by its own name.
template <class E>
void expectMembersBothWays(Enumeration<E> const& enumeration) {
  std::int32_t number = 0;
  for (auto const& [value, name] : members::enumerators<E>) {
    SCOPED_TRACE(name);
    EXPECT_EQ(number, static_cast<std::int32_t>(value));
    EXPECT_EQ(name, enumeration.toText(static_cast<E>(number++)));
    EXPECT_EQ(value, enumeration.fromText(std::string(name)));
  }
}

// The last values share their low bytes with members: none may be truncated.
constexpr std::int32_t strayValues[] = {
    -1,
    -2,
    -3,
    -7,
    7,
    8,
    std::numeric_limits<std::int32_t>::min(),
    100,
    257,
    258,
    65537,
    65538,
    65540,
    std::numeric_limits<std::int32_t>::max(),
    -255,
    -65535,
    0x01000001,
    0x01000002,
    std::numeric_limits<std::int32_t>::min() + 1,
};

template <class E>
void expectFallbackText(Enumeration<E> const& enumeration) {
  for (std::int32_t value : strayValues)
    EXPECT_EQ(enumeration.fallbackText, enumeration.toText(static_cast<E>(value))) << value;
  auto const afterTheLast = static_cast<std::int32_t>(members::enumerators<E>.size());
  EXPECT_EQ(enumeration.fallbackText, enumeration.toText(static_cast<E>(afterTheLast)));
}

template <class E>
void expectFallbackMember(Enumeration<E> const& enumeration) {
  for (auto const& enumerator : members::enumerators<E>) {
    std::string const name(enumerator.name);
    for (std::string const& miss : nearMissesOf(name))
      EXPECT_EQ(enumeration.fallback, enumeration.fromText(miss)) << miss;
  }
  for (std::string const& text :
       {""s, " "s, "\0"s, "0"s, "1"s, "UNKNOWN"s, "True"s, std::string(100000, 'A')})
    EXPECT_EQ(enumeration.fallback, enumeration.fromText(text));
}

TEST(ConvertNumberType, MapsEachMemberToItsNameAndBack) {
  expectMembersBothWays(numberType);
}
TEST(ConvertTimeFormat, MapsEachMemberToItsNameAndBack) {
  expectMembersBothWays(timeFormat);
}
TEST(ConvertPresentation, MapsEachMemberToItsNameAndBack) {
  expectMembersBothWays(presentation);
}
TEST(ConvertTargetLog, MapsEachMemberToItsNameAndBack) {
  expectMembersBothWays(targetLog);
}

TEST(ConvertNumberType, WritesAnyOtherValueAsNoIcon) {
  expectFallbackText(numberType);
}
TEST(ConvertTimeFormat, WritesAnyOtherValueAs24Hours) {
  expectFallbackText(timeFormat);
}
TEST(ConvertPresentation, WritesAnyOtherValueAsNotAvailable) {
  expectFallbackText(presentation);
}
TEST(ConvertTargetLog, WritesAnyOtherValueAsOutBusy) {
  expectFallbackText(targetLog);
}

TEST(ConvertNumberType, ReadsAnyOtherTextAsNoIcon) {
  expectFallbackMember(numberType);
}
TEST(ConvertTimeFormat, ReadsAnyOtherTextAs24Hours) {
  expectFallbackMember(timeFormat);
}
TEST(ConvertPresentation, ReadsAnyOtherTextAsNotAvailable) {
  expectFallbackMember(presentation);
}
TEST(ConvertTargetLog, ReadsAnyOtherTextAsOutBusy) {
  expectFallbackMember(targetLog);
}

// On the heap, so that a sanitizer notices a read before the text.
TEST(ConvertNumberType, LooksAtNothingInFrontOfAShortText) {
  for (std::string text : {"", "x"}) {
    text.reserve(1000);
    EXPECT_EQ(NumberType::NO_ICON, J::convertNumberType(text));
  }
}

TEST(ConvertNumberType, DoesNotKnowTheWordsOfOtherEnumerations) {
  for (char const* text : {"IN_BUSY", "ALLOWED", "FORM_AM", "OUT_ANSWERED", "NOT_ALLOWED"})
    EXPECT_EQ(NumberType::NO_ICON, J::convertNumberType(std::string(text))) << text;
  EXPECT_EQ(NumberType::NO_ICON, J::convertNumberType("BUSINESS"s));
  EXPECT_EQ(NumberType::NO_ICON, J::convertNumberType("BUSINESS3"s));
}

} // namespace
