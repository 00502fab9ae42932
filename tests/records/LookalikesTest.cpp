// Texts that are nearly what a writer writes: a reader on the straight road must not be taken in,
// and texts that keep a reader searching must not keep it long.
#include <algorithm>
#include <cstddef>
#include <deque>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "differential/Comparison.h"
#include "records/TestedKinds.h"

namespace {

using Size = std::string::size_type;

std::vector<Size> placesOf(std::string const& text, std::string const& wanted) {
  std::vector<Size> places;
  for (Size at = 0; (at = text.find(wanted, at)) != std::string::npos; ++at)
    places.push_back(at);
  return places;
}

template <typename KindType>
class Lookalikes : public ::testing::Test {
protected:
  // An entry with one call, every element of both there and none with a "<" in it.
  static std::string body() {
    auto text = golden::message(std::string(KindType::NAME) + "-full");
    text = text.substr(0, text.find("</Item>")) + "</Item></LogList>";
    auto const markup = text.find("<1>");
    return markup == std::string::npos ? text : text.replace(markup, 3, "1");
  }

  // The same with what most calls hold: a reader looks for such elements several at a time.
  static std::string usualBody() {
    auto text = body();
    for (auto const& [name, value] : std::initializer_list<std::pair<std::string, std::string>>{
             {"ConnectedNumberPriority", "False"},
             {"ConnectedNumberType", "NO_ICON"},
             {"NumberPresentation", "ALLOWED"},
             {"NamePresentation", "ALLOWED"},
             {"DeflectNumberPresentation", "NOT_AVAILABLE"},
             {"DeflectNumber", ""},
             {"DeflectNumberType", "NO_ICON"},
             {"DeflectNamePresentation", "NOT_AVAILABLE"},
             {"TimeFormat", "FORM_24"}}) {
      auto const at = text.find("<" + name + ">");
      if (at == std::string::npos)
        continue;
      auto const close = "</" + name + ">";
      auto const size = text.find(close) + close.size() - at;
      text.replace(at, size, value.empty() ? "" : "<" + name + ">" + value + close);
    }
    return text;
  }

  static comparison::Kind kind() {
    constexpr std::string_view names[] = {"missed", "dialled", "received", "forwarded"};
    auto const* const name = std::find(std::begin(names), std::end(names), KindType::NAME);
    return static_cast<comparison::Kind>(name - std::begin(names));
  }

  static void expectAsPlainReader(std::string const& text) {
    for (auto const outputs : {comparison::Outputs::fresh, comparison::Outputs::filled})
      EXPECT_EQ("", comparison::compareDecoder(text, kind(), comparison::Level::itemText, outputs));
  }
};

TYPED_TEST_SUITE(Lookalikes, kinds::All, kinds::KindNames);

TYPED_TEST(Lookalikes, AreNotReadWhereCloseTagsAreMisspelt) {
  auto const body = this->body();
  auto const closeTags = placesOf(body, "</");
  auto const item = body.find("</Item>");
  ASSERT_GT(closeTags.size(), 10U);
  auto fields = body;
  for (auto const at : closeTags) {
    auto one = body;
    one[at + 2] = '?';
    this->expectAsPlainReader(one);
    if (at < item)
      fields[at + 2] = '?';
  }
  this->expectAsPlainReader(fields);
}

TYPED_TEST(Lookalikes, AreReadByTheRulesWhicheverCharacterIsAnother) {
  for (auto const& body : {this->body(), this->usualBody()})
    for (Size at = 0; at < body.size(); ++at)
      for (char const other : {static_cast<char>(body[at] ^ 1), '?'}) {
        auto text = body;
        text[at] = other;
        this->expectAsPlainReader(text);
      }
}

// Each element of a usual call on its own: missing, there twice, in another's place, and with one
// in front that such a call does not have.
TYPED_TEST(Lookalikes, AreReadByTheRulesWhicheverElementIsElsewhere) {
  auto const body = this->usualBody();
  auto const item = body.find("<Item>") + 6;
  std::vector<std::string> elements;
  for (Size at = item; body.compare(at, 2, "</") != 0;) {
    auto const end = body.find('>', body.find("</", at)) + 1;
    elements.push_back(body.substr(at, end - at));
    at = end;
  }
  ASSERT_GT(elements.size(), 6U);
  auto const expectOf = [&](std::vector<std::string> const& changed) {
    auto text = body.substr(0, item);
    for (auto const& element : changed)
      text += element;
    this->expectAsPlainReader(text + "</Item></LogList>");
  };
  expectOf(elements);
  for (Size at = 0; at < elements.size(); ++at) {
    std::vector<std::string> changed;
    for (auto const& inserted : {elements[at], std::string("<DeflectNumber>1</DeflectNumber>")}) {
      changed = elements;
      changed.insert(changed.begin() + static_cast<std::ptrdiff_t>(at), inserted);
      expectOf(changed);
    }
    changed = elements;
    changed.erase(changed.begin() + static_cast<std::ptrdiff_t>(at));
    expectOf(changed);
    for (Size other = 0; other < at; ++other) {
      changed = elements;
      std::swap(changed[at], changed[other]);
      expectOf(changed);
    }
  }
}

TYPED_TEST(Lookalikes, AreNotReadWhereACloseTagStandsBehindAnEmptyItem) {
  this->expectAsPlainReader("<LogList><Item></Item></Item></LogList>");
  this->expectAsPlainReader("<LogList><Item></Item><Number>1</Number></Item></LogList>");
}

// Each piece makes a reader look for a close tag that is nowhere. One that looked again for each
// would not end in the life of a test run; how long it takes is not measured here.
TYPED_TEST(Lookalikes, OfPiecesWithoutAnEndAreGivenUpAtOnce) {
  constexpr int pieces = 400000;
  std::string items;
  std::string entries;
  for (int piece = 0; piece < pieces; ++piece) {
    items += "<Item>";
    entries += "<Entry>";
  }
  typename TypeParam::InfoList calls(1);
  EXPECT_FALSE(TypeParam::readCalls(("<LogList>" + items + "</LogList>").c_str(), calls));
  EXPECT_TRUE(calls.empty());
  typename TypeParam::Log log(1);
  EXPECT_TRUE(TypeParam::readLog(entries, log));
  EXPECT_TRUE(log.empty());
}

// A reader remembers what it has made of each member's text.
TEST(LookalikesOfMembers, AreNotTakenForAMemberThatWasReadBefore) {
  std::string message = "<Entry><LogList>";
  for (auto const* target : {"IN_BUSY", "XN_BUSY", "IN_BUSX", "IN_BUSY", "IN_BUS", "IN_BUSYY"})
    message += std::string("<Item><TargetLog>") + target + "</TargetLog></Item>";
  message += "</LogList></Entry>";
  std::deque<MissedCallItem> log;
  JournalServiceHelper::parseXMLMissedCallList(message, log);
  ASSERT_EQ(1U, log.size());
  std::vector<CallLogEntryEvent::_LogTarget> targets;
  for (auto const& call : log.front().callInfoList)
    targets.push_back(call.targetLog);
  using Event = CallLogEntryEvent;
  EXPECT_EQ((std::vector<Event::_LogTarget>{Event::IN_BUSY, Event::OUT_BUSY, Event::OUT_BUSY,
                                            Event::IN_BUSY, Event::OUT_BUSY, Event::OUT_BUSY}),
            targets);
}

} // namespace
