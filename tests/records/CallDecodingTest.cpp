// One call read: the elements inside an Item.
#include <vector>

#include "records/CursorModel.h"

using kinds::Dialled;
using kinds::Forwarded;
using kinds::Missed;
using kinds::Received;

namespace {

template <typename KindType>
typename KindType::Info callIn(std::string const& text) {
  typename KindType::Info call;
  EXPECT_TRUE(KindType::readCall(text.c_str(), call)) << text;
  return call;
}

template <typename KindType>
class CallDecoding : public ::testing::Test {};
TYPED_TEST_SUITE(CallDecoding, kinds::All, kinds::KindNames);

TYPED_TEST(CallDecoding, TextWithoutElementsSetsEveryFieldThatIsRead) {
  for (char const* text : {"", "plain", "<", "<Number>", "</Number>", "<number>1</number>",
                           "<Number >1</Number >", "< Number>1</Number>"}) {
    auto call = TypeParam::full().callInfoList.front();
    auto expected = typename TypeParam::Info();
    expected.infoKey = call.infoKey;
    if (!std::is_same_v<TypeParam, Missed> && !std::is_same_v<TypeParam, Dialled>) {
      expected.connectedSurname = call.connectedSurname;
      expected.connectedFirstName = call.connectedFirstName;
    }
    EXPECT_TRUE(TypeParam::readCall(text, call)) << text;
    EXPECT_EQ(call, expected) << text;
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

// Every text and enumeration is unescaped, whatever the encoders did with it.
TYPED_TEST(CallDecoding, EveryTextIsUnescaped) {
  using cursor_model::Sort;
  for (auto const& element : cursor_model::callOrder(TypeParam())) {
    if (element.sort != Sort::TEXT)
      continue;
    auto const fields =
        record_fields::of(callIn<TypeParam>(cursor_model::tagged(element.name, "a&amp;lt;b&gt;&")));
    for (auto const& [name, value] : fields)
      if (name == element.name) {
        EXPECT_EQ(value, "a&lt;b>&") << name;
      }
  }
}

// Every member of every enumeration, what is none, and both flags.
TYPED_TEST(CallDecoding, MembersAreReadByTheirExactTexts) {
  for (auto const& element : cursor_model::callOrder(TypeParam())) {
    std::vector<std::string> texts = cursor_model::membersOf(element.sort);
    if (texts.empty() || element.sort == cursor_model::Sort::PRESENTATION_BETWEEN_BEGINS)
      continue;
    for (std::string const& member : std::vector<std::string>(texts)) {
      texts.insert(texts.end(), {member + " ", " " + member, member + "x",
                                 member.substr(0, member.size() - 1), member + "\n"});
      texts.push_back(member);
      texts.back()[0] = static_cast<char>(texts.back()[0] + ('a' - 'A'));
    }
    for (std::string const& member : cursor_model::membersOf(element.sort)) {
      for (std::string::size_type at = 0; at < member.size(); ++at) {
        texts.push_back(member);
        texts.back()[at] = '~';
      }
    }
    texts.insert(texts.end(), {"", "0", "1", "TRUE", "true", "&amp;"});
    for (std::string const& text : texts) {
      auto const call = callIn<TypeParam>(cursor_model::tagged(element.name, text));
      for (auto const& [name, value] : record_fields::of(call))
        if (name == element.name) {
          EXPECT_EQ(value, cursor_model::valueOf(element.sort, text)) << name << " " << text;
        }
    }
  }
}

// Texts of every length, one behind the other in one list, so that none leaves a trace in the next.
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

TEST(DecodedCall, ReceivedAndForwardedPassOverTheConnectedNames) {
  char const* const text = "<ConnectedSurname>Smith</ConnectedSurname>"
                           "<ConnectedFirstName>Ann</ConnectedFirstName><TimeDate>t</TimeDate>";
  EXPECT_EQ(callIn<Missed>(text).connectedSurname, "Smith");
  EXPECT_EQ(callIn<Missed>(text).connectedFirstName, "Ann");
  EXPECT_EQ(callIn<Dialled>(text).connectedSurname, "Smith");
  EXPECT_EQ(callIn<Dialled>(text).connectedFirstName, "Ann");
  EXPECT_EQ(callIn<Received>(text).connectedSurname, "");
  EXPECT_EQ(callIn<Forwarded>(text).connectedFirstName, "");

  Received::Info received;
  received.infoKey = "kept";
  received.connectedSurname = "kept surname";
  received.connectedFirstName = "kept first name";
  Received::readCall(text, received);
  EXPECT_EQ(received.infoKey, "kept");
  EXPECT_EQ(received.connectedSurname, "kept surname");
  EXPECT_EQ(received.connectedFirstName, "kept first name");
  EXPECT_EQ(received.timeDate, "t");

  Forwarded::Info forwarded;
  forwarded.infoKey = "kept";
  forwarded.connectedSurname = "kept surname";
  forwarded.connectedFirstName = "kept first name";
  Forwarded::readCall(text, forwarded);
  EXPECT_EQ(forwarded.infoKey, "kept");
  EXPECT_EQ(forwarded.connectedSurname, "kept surname");
  EXPECT_EQ(forwarded.connectedFirstName, "kept first name");
  EXPECT_EQ(forwarded.timeDate, "t");
}

// The names that are passed over move the cursor all the same.
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

// In the writer's order ConnectedNumber stands in front of ConnectedNumberPriority, which is read
// first. The cursor stays in front of both; from ConnectedNumberType on it is stuck.
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

TEST(DecodedDialledCall, NamePresentationLiesBetweenTwoBeginTags) {
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
      // At the cursor, the two begin tags hide what lies between them; behind it, they do not.
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

// The other kinds read NamePresentation as any element.
TEST(DecodedCall, NamePresentationOfTheOtherKinds) {
  std::string const text = "<NamePresentation>ALLOWED</NamePresentation>";
  EXPECT_EQ(callIn<Missed>(text).namePresentation, CallLogEntryEvent::ALLOWED);
  EXPECT_EQ(callIn<Received>(text).namePresentation, CallLogEntryEvent::ALLOWED);
  EXPECT_EQ(callIn<Missed>("<NamePresentation>ALLOWED<NamePresentation>").namePresentation,
            CallLogEntryEvent::NOT_AVAILABLE);
}

} // namespace
