// Enumerations to their texts and back, with every kind of value and text that is no member's.
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using namespace std::string_literals;
using J = JournalServiceHelper;
using Event = CallLogEntryEvent;

template <class E>
struct Member {
  E value;
  std::int32_t number;
  char const* text;
};

constexpr Member<NumberType::NT> numberTypes[] = {
    {NumberType::NO_ICON, 0, "NO_ICON"},     {NumberType::PRIVATE, 1, "PRIVATE"},
    {NumberType::BUSINESS1, 2, "BUSINESS1"}, {NumberType::BUSINESS2, 3, "BUSINESS2"},
    {NumberType::MOBILE, 4, "MOBILE"},
};
constexpr Member<Event::_TFormat> timeFormats[] = {
    {Event::FORM_24, 0, "FORM_24"},
    {Event::FORM_AM, 1, "FORM_AM"},
    {Event::FORM_PM, 2, "FORM_PM"},
};
constexpr Member<Event::_PresentationValue> presentations[] = {
    {Event::NOT_AVAILABLE, 0, "NOT_AVAILABLE"},
    {Event::ALLOWED, 1, "ALLOWED"},
    {Event::NOT_ALLOWED, 2, "NOT_ALLOWED"},
};
constexpr Member<Event::_LogTarget> targetLogs[] = {
    {Event::IN_ANSWERED, 0, "IN_ANSWERED"},   {Event::IN_NO_ANSWER, 1, "IN_NO_ANSWER"},
    {Event::IN_BUSY, 2, "IN_BUSY"},           {Event::IN_GROUP_MISSED, 3, "IN_GROUP_MISSED"},
    {Event::OUT_ANSWERED, 4, "OUT_ANSWERED"}, {Event::OUT_NO_ANSWER, 5, "OUT_NO_ANSWER"},
    {Event::OUT_BUSY, 6, "OUT_BUSY"},
};

// One enumeration with its two operations and its default member.
template <class E>
struct Enumeration {
  std::vector<Member<E>> members;
  std::string (*toText)(E);
  E (*fromText)(std::string const&);
  E fallback;
  char const* fallbackText;
};

Enumeration<NumberType::NT> numberType() {
  return {{std::begin(numberTypes), std::end(numberTypes)},
          &J::convertNumberType,
          &J::convertNumberType,
          NumberType::NO_ICON,
          "NO_ICON"};
}
Enumeration<Event::_TFormat> timeFormat() {
  return {{std::begin(timeFormats), std::end(timeFormats)},
          &J::convertTimeFormat,
          &J::convertTimeFormat,
          Event::FORM_24,
          "FORM_24"};
}
Enumeration<Event::_PresentationValue> presentation() {
  return {{std::begin(presentations), std::end(presentations)},
          &J::convertPresentationValue,
          &J::convertPresentationValue,
          Event::NOT_AVAILABLE,
          "NOT_AVAILABLE"};
}
Enumeration<Event::_LogTarget> targetLog() {
  return {{std::begin(targetLogs), std::end(targetLogs)},
          &J::convertTargetLog,
          &J::convertTargetLog,
          Event::OUT_BUSY,
          "OUT_BUSY"};
}

template <class E>
void expectMembersBothWays(Enumeration<E> const& enumeration) {
  for (Member<E> const& member : enumeration.members) {
    SCOPED_TRACE(member.text);
    EXPECT_EQ(member.number, static_cast<std::int32_t>(member.value));
    EXPECT_EQ(member.text, enumeration.toText(member.value));
    EXPECT_EQ(member.text, enumeration.toText(static_cast<E>(member.number)));
    EXPECT_EQ(member.value, enumeration.fromText(member.text));
  }
}

// The last values share their low bytes with members: none may be cut down to a byte or a word.
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
  auto const behindTheLast = static_cast<std::int32_t>(enumeration.members.size());
  EXPECT_EQ(enumeration.fallbackText, enumeration.toText(static_cast<E>(behindTheLast)));
}

std::vector<std::string> nearMissesOf(std::string const& text) {
  std::vector<std::string> misses = {
      text + " ",
      " " + text,
      text + "\0"s,
      "\0"s + text,
      text + "\n",
      text + "1",
      text + text,
      "<" + text + ">",
      text + "\0"s + text,
      text.substr(1),
      text.substr(0, text.size() - 1),
  };
  for (std::size_t i = 0; i < text.size(); ++i) {
    misses.push_back(text);
    misses.back()[i] = static_cast<char>(misses.back()[i] ^ 0x20); // the other case, for letters
    misses.push_back(text);
    misses.back()[i] = '\0';
  }
  return misses;
}

std::string lowerCase(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c - 'A' + 'a');
  return text;
}

template <class E>
void expectFallbackMember(Enumeration<E> const& enumeration) {
  for (Member<E> const& member : enumeration.members) {
    EXPECT_EQ(enumeration.fallback, enumeration.fromText(lowerCase(member.text))) << member.text;
    for (std::string const& miss : nearMissesOf(member.text))
      EXPECT_EQ(enumeration.fallback, enumeration.fromText(miss)) << miss;
  }
  for (std::string const& text :
       {""s, " "s, "\0"s, "0"s, "1"s, "UNKNOWN"s, "True"s, std::string(100000, 'A')})
    EXPECT_EQ(enumeration.fallback, enumeration.fromText(text));
}

TEST(ConvertNumberType, MapsEachMemberToItsNameAndBack) {
  expectMembersBothWays(numberType());
}
TEST(ConvertTimeFormat, MapsEachMemberToItsNameAndBack) {
  expectMembersBothWays(timeFormat());
}
TEST(ConvertPresentation, MapsEachMemberToItsNameAndBack) {
  expectMembersBothWays(presentation());
}
TEST(ConvertTargetLog, MapsEachMemberToItsNameAndBack) {
  expectMembersBothWays(targetLog());
}

TEST(ConvertNumberType, WritesAnyOtherValueAsNoIcon) {
  expectFallbackText(numberType());
}
TEST(ConvertTimeFormat, WritesAnyOtherValueAs24Hours) {
  expectFallbackText(timeFormat());
}
TEST(ConvertPresentation, WritesAnyOtherValueAsNotAvailable) {
  expectFallbackText(presentation());
}
TEST(ConvertTargetLog, WritesAnyOtherValueAsOutBusy) {
  expectFallbackText(targetLog());
}

TEST(ConvertNumberType, ReadsAnyOtherTextAsNoIcon) {
  expectFallbackMember(numberType());
}
TEST(ConvertTimeFormat, ReadsAnyOtherTextAs24Hours) {
  expectFallbackMember(timeFormat());
}
TEST(ConvertPresentation, ReadsAnyOtherTextAsNotAvailable) {
  expectFallbackMember(presentation());
}
TEST(ConvertTargetLog, ReadsAnyOtherTextAsOutBusy) {
  expectFallbackMember(targetLog());
}

TEST(ConvertTargetLog, WritesSixSevenAndMinusOneAlike) {
  EXPECT_EQ("OUT_NO_ANSWER", J::convertTargetLog(static_cast<Event::_LogTarget>(5)));
  EXPECT_EQ("OUT_BUSY", J::convertTargetLog(static_cast<Event::_LogTarget>(6)));
  EXPECT_EQ("OUT_BUSY", J::convertTargetLog(static_cast<Event::_LogTarget>(7)));
  EXPECT_EQ("OUT_BUSY", J::convertTargetLog(static_cast<Event::_LogTarget>(-1)));
}

// In memory of its own, so that a sanitizer sees whatever is read in front of it.
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
