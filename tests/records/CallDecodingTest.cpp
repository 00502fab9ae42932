// One call read: the elements inside an Item.
#include <vector>

#include "records/TestedKinds.h"

using kinds::Dialled;
using kinds::Forwarded;
using kinds::Missed;
using kinds::Received;

namespace {

template <class KindType>
typename KindType::Info callIn(std::string const& text) {
  typename KindType::Info call;
  EXPECT_TRUE(KindType::readCall(text.c_str(), call)) << text;
  return call;
}

template <class KindType>
class CallDecoding : public ::testing::Test {};
TYPED_TEST_SUITE(CallDecoding, kinds::All, kinds::KindNames);

TYPED_TEST(CallDecoding, TextWithoutElementsReadsAsAnEmptyText) {
  auto fromEmpty = TypeParam::full().callInfoList.front();
  EXPECT_TRUE(TypeParam::readCall("", fromEmpty));
  for (char const* text : {"plain", "<", "<Number>", "</Number>", "<number>1</number>",
                           "<Number >1</Number >", "< Number>1</Number>"}) {
    auto call = TypeParam::full().callInfoList.front();
    EXPECT_TRUE(TypeParam::readCall(text, call)) << text;
    EXPECT_EQ(call, fromEmpty) << text;
  }
}

TYPED_TEST(CallDecoding, ANullPointerReadsAsAnEmptyText) {
  auto fromNull = TypeParam::full().callInfoList.front();
  auto fromEmpty = fromNull;
  EXPECT_TRUE(TypeParam::readCall(nullptr, fromNull));
  EXPECT_TRUE(TypeParam::readCall("", fromEmpty));
  EXPECT_EQ(fromNull, fromEmpty);
}

TYPED_TEST(CallDecoding, TheTextIsUnescaped) {
  EXPECT_EQ(callIn<TypeParam>("<Number>&lt;1&gt; &amp;amp; &quot;&apos; & &x;</Number>").number,
            "<1> &amp; \"' & &x;");
}

// Texts of every length, one after the other in one list, so that remains of one in the next show.
TYPED_TEST(CallDecoding, TextsOfEveryLength) {
  typename TypeParam::InfoList expected;
  std::string text = "<LogList>";
  for (std::string::size_type length = 1; length <= 300; ++length) {
    for (std::size_t const size : {length, length / 2 + 1, length}) {
      expected.emplace_back();
      expected.back().number = std::string(size, static_cast<char>('a' + expected.size() % 26));
      expected.back().timeDate = std::string(length, static_cast<char>('A' + length % 26)) + "&";
      text += "<Item><Number>" + expected.back().number + "</Number><TimeDate>" +
              expected.back().timeDate.substr(0, length) + "&amp;</TimeDate></Item>";
    }
  }
  typename TypeParam::InfoList list;
  EXPECT_TRUE(TypeParam::readCalls((text + "</LogList>").c_str(), list));
  EXPECT_EQ(list, expected);
}

// A tag is matched in full: no element is found inside the tags of one with a longer name.
TYPED_TEST(CallDecoding, LongerNamesAreOtherElements) {
  EXPECT_EQ(callIn<TypeParam>("<ConnectedNumber>1</ConnectedNumber>").number, "");
  EXPECT_EQ(callIn<TypeParam>("<DeflectNumber>1</DeflectNumber>").number, "");
  EXPECT_EQ(callIn<TypeParam>("<NumberType>MOBILE</NumberType>").number, "");
  EXPECT_EQ(callIn<TypeParam>("<ConnectedNumberType>MOBILE</ConnectedNumberType>").numberType,
            NumberType::NO_ICON);
  EXPECT_EQ(callIn<TypeParam>("<Number>1</ConnectedNumber>2</Number>").number,
            "1</ConnectedNumber>2");
}

TYPED_TEST(CallDecoding, TheTextEndsAtItsFirstNul) {
  auto call = typename TypeParam::Info();
  TypeParam::readCall("<Number>1</Number>\0<TimeDate>2</TimeDate>", call);
  EXPECT_EQ(call.number, "1");
  EXPECT_EQ(call.timeDate, "");
  TypeParam::readCall("<Number>1\0</Number><TimeDate>2</TimeDate>", call);
  EXPECT_EQ(call.number, "");
  EXPECT_EQ(call.timeDate, "");
}

TYPED_TEST(CallDecoding, ACloseTagInFrontDoesNotEndAnElement) {
  EXPECT_EQ(callIn<TypeParam>("</Number><Number>1</Number>").number, "1");
  EXPECT_EQ(callIn<TypeParam>("<Number><Number>1</Number>").number, "<Number>1");
}

TYPED_TEST(CallDecoding, AnEmptyElementIsAnEmptyText) {
  auto call = TypeParam::full().callInfoList.front();
  TypeParam::readCall("<Number></Number><NumberType></NumberType>", call);
  EXPECT_EQ(call.number, "");
  EXPECT_EQ(call.numberType, NumberType::NO_ICON);
}

// The discarded names still move the cursor.
TEST(DecodedCall, NamesPassedOverMoveTheCursor) {
  std::string const nested = "<ConnectedSurname><TimeDate>in</TimeDate></ConnectedSurname>"
                             "<TimeDate>out</TimeDate>";
  EXPECT_EQ(callIn<Received>(nested).timeDate, "out");
  EXPECT_EQ(callIn<Forwarded>(nested).timeDate, "out");
  EXPECT_EQ(callIn<Received>(" " + nested).timeDate, "in");
  EXPECT_EQ(callIn<Forwarded>(" " + nested).timeDate, "in");
}

TEST(DecodedCall, ElementsThatAKindDoesNotReadAreIgnored) {
  EXPECT_EQ(callIn<Missed>("<Duration>1</Duration><ResolvedNumber>2</ResolvedNumber>"),
            Missed::Info());
  EXPECT_EQ(callIn<Dialled>("<DeflectNumber>1</DeflectNumber><DeflectName>2</DeflectName>"),
            Dialled::Info());
  EXPECT_EQ(callIn<Forwarded>("<TargetLog>IN_BUSY</TargetLog><TimeFormat>FORM_AM</TimeFormat>"),
            Forwarded::Info());
}

// ConnectedNumberPriority is written after ConnectedNumber, but read first. Reading it leaves the
// cursor before ConnectedNumber; reading that moves the cursor to the priority, where it stays.
TEST(DecodedDialledCall, TheCursorIsStuckBehindAConnectedNumber) {
  std::string const front = "<Number>1</Number><NumberType>MOBILE</NumberType>";
  std::string const number = "<ConnectedNumber>2</ConnectedNumber>";
  std::string const behind = "<ConnectedNumberPriority>True</ConnectedNumberPriority>"
                             "<ConnectedNumberType>PRIVATE</ConnectedNumberType>"
                             "<TimeDate><Duration>in</Duration></TimeDate>";
  auto const stuck = callIn<Dialled>(front + number + behind + "<Duration>out</Duration>");
  EXPECT_EQ(stuck.connectedNumber, "2");
  EXPECT_TRUE(stuck.connectedNumberPriority);
  EXPECT_EQ(stuck.connectedNumberType, NumberType::PRIVATE);
  EXPECT_EQ(stuck.timeDate, "<Duration>in</Duration>");
  EXPECT_EQ(stuck.duration, "in");

  auto const moving = callIn<Dialled>(front + behind + "<Duration>out</Duration>");
  EXPECT_EQ(moving.connectedNumber, "");
  EXPECT_EQ(moving.duration, "out");
}

TEST(DecodedDialledCall, NamePresentationIsReadBetweenTwoBeginTags) {
  using Event = CallLogEntryEvent;
  struct Row {
    char const* text;
    Event::_PresentationValue presentation;
    Event::_TFormat format;
  };
  std::vector<Row> const rows = {
      {"<NamePresentation>ALLOWED</NamePresentation>", Event::NOT_AVAILABLE, Event::FORM_24},
      {"<NamePresentation>ALLOWED</NamePresentation><TimeFormat>FORM_AM</TimeFormat>",
       Event::NOT_AVAILABLE, Event::FORM_AM},
      {"<NamePresentation>ALLOWED<NamePresentation>", Event::ALLOWED, Event::FORM_24},
      {"<NamePresentation>NOT_ALLOWED<NamePresentation><TimeFormat>FORM_AM</TimeFormat>",
       Event::NOT_ALLOWED, Event::FORM_AM},
      {"x<NamePresentation>ALLOWED<NamePresentation><TimeFormat>FORM_AM</TimeFormat>",
       Event::ALLOWED, Event::FORM_AM},
      // Two elements: the text between the begin tags holds the first close tag.
      {"<NamePresentation>ALLOWED</NamePresentation><NamePresentation>ALLOWED</NamePresentation>",
       Event::NOT_AVAILABLE, Event::FORM_24},
      {"<NamePresentation><NamePresentation>ALLOWED</NamePresentation>", Event::NOT_AVAILABLE,
       Event::FORM_24},
      // At the cursor, the two begin tags hide what is between them; further on, they do not.
      {"<NamePresentation><TimeFormat>FORM_AM</TimeFormat><NamePresentation>", Event::NOT_AVAILABLE,
       Event::FORM_24},
      {"x<NamePresentation><TimeFormat>FORM_AM</TimeFormat><NamePresentation>",
       Event::NOT_AVAILABLE, Event::FORM_AM},
      {"<NamePresentation><TimeFormat>FORM_AM</TimeFormat><NamePresentation>"
       "<TimeFormat>FORM_PM</TimeFormat>",
       Event::NOT_AVAILABLE, Event::FORM_PM},
      {"<NamePresentation>ALLOWED<NamePresentation>NOT_ALLOWED<NamePresentation>", Event::ALLOWED,
       Event::FORM_24}};
  for (Row const& row : rows) {
    auto const call = callIn<Dialled>(row.text);
    EXPECT_EQ(call.namePresentation, row.presentation) << row.text;
    EXPECT_EQ(call.timeFormat, row.format) << row.text;
  }
}

// The other kinds read NamePresentation like any other element.
TEST(DecodedCall, NamePresentationOfTheOtherKinds) {
  std::string const text = "<NamePresentation>ALLOWED</NamePresentation>";
  EXPECT_EQ(callIn<Missed>(text).namePresentation, CallLogEntryEvent::ALLOWED);
  EXPECT_EQ(callIn<Received>(text).namePresentation, CallLogEntryEvent::ALLOWED);
  EXPECT_EQ(callIn<Missed>("<NamePresentation>ALLOWED<NamePresentation>").namePresentation,
            CallLogEntryEvent::NOT_AVAILABLE);
}

} // namespace
