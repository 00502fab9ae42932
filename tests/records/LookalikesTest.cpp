// Texts that are nearly what a writer writes: a reader's fast path must not accept them. And texts
// that keep a reader searching, which must not take long.
#include <cstddef>
#include <deque>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "differential/Comparison.h"
#include "records/MemberValues.h"
#include "records/TestedKinds.h"

namespace {

using Size = std::string::size_type;

std::vector<Size> placesOf(std::string const& text, std::string const& wanted) {
  std::vector<Size> places;
  for (Size at = 0; (at = text.find(wanted, at)) != std::string::npos; ++at)
    places.push_back(at);
  return places;
}

// The elements of a text from one place to another, which hold no others.
std::vector<std::string> elementsOf(std::string const& text, Size from, Size end) {
  std::vector<std::string> elements;
  for (Size at = from; at < end; at += elements.back().size())
    elements.push_back(text.substr(at, text.find('>', text.find("</", at)) + 1 - at));
  return elements;
}

template <class KindType>
class Lookalikes : public ::testing::Test {
protected:
  // An entry with one call, every element of both there and none with a "<" in it.
  static std::string body() {
    auto item = records::otherRecord<typename KindType::Item>();
    item.callInfoList.push_back(records::otherRecord<typename KindType::Info>());
    return KindType::body(item);
  }

  // The same with the expected values: a reader compares several such elements at once.
  static std::string usualBody() {
    using Info = typename KindType::Info;
    auto item = records::otherRecord<typename KindType::Item>();
    Info call;
    members::forEachField<Info>([&call](auto const& member) {
      bool const deflected = member.name.substr(0, 7) == "deflect";
      using Value = records::ValueOf<decltype(member)>;
      if constexpr (std::is_same_v<Value, CallLogEntryEvent::_PresentationValue>)
        member.in(call) = deflected ? CallLogEntryEvent::NOT_AVAILABLE : CallLogEntryEvent::ALLOWED;
      else if constexpr (std::is_same_v<Value, std::string>)
        member.in(call) = deflected ? "" : records::otherValue(member);
    });
    item.callInfoList.push_back(call);
    return KindType::body(item);
  }

  static void expectAsPlainReader(std::string const& text,
                                  comparison::Level level = comparison::Level::itemText) {
    for (auto const outputs : {comparison::Outputs::fresh, comparison::Outputs::filled})
      EXPECT_EQ("", comparison::compareDecoder(text, KindType::KIND_OF_LOG, level, outputs));
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

TYPED_TEST(Lookalikes, AreNotReadWhereABeginTagIsACloseTag) {
  for (auto const& body : {this->body(), this->usualBody()})
    for (auto const at : placesOf(body, "<")) {
      if (body[at + 1] == '/')
        continue;
      auto text = body;
      text.insert(at + 1, "/");
      this->expectAsPlainReader(text);
    }
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

// A call with the expected values: each element missing, repeated, in another's place, and preceded
// by one that such a call does not have.
TYPED_TEST(Lookalikes, AreReadByTheRulesWhicheverElementIsElsewhere) {
  auto const body = this->usualBody();
  auto const item = body.find("<Item>") + 6;
  auto const elements = elementsOf(body, item, body.find("</Item>"));
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

TYPED_TEST(Lookalikes, AreReadByTheRulesWhereAnEntrysElementIsAmongItsCalls) {
  auto const body = this->body();
  auto const calls = body.find("<LogList>");
  auto const elements = elementsOf(body, 0, calls);
  ASSERT_GT(elements.size(), 2U);
  for (auto const& element : elements)
    for (auto const at : placesOf(body, "<"))
      if (at >= calls) {
        auto text = body;
        text.insert(at, element);
        this->expectAsPlainReader(text);
        text.erase(text.find(element), element.size());
        this->expectAsPlainReader(text);
      }
}

TYPED_TEST(Lookalikes, AreNotReadInASecondLogListOrInOneThatBeginsAsAnItem) {
  auto const body = this->body();
  auto const calls = body.find("<LogList>");
  this->expectAsPlainReader("<Unknown>1</Unknown>" + body + body.substr(calls));
  this->expectAsPlainReader(body.substr(0, calls) + "<Item>" + body.substr(calls + 9));
}

TYPED_TEST(Lookalikes, AreNotReadPastTheEndOfAnEntry) {
  auto const body = this->body();
  auto const calls = body.substr(body.find("<LogList>"));
  auto const unclosed = body.substr(0, body.find("</LogList>"));
  this->expectAsPlainReader("<Entry>" + unclosed + "</Entry><Entry>" + calls + "</Entry>",
                            comparison::Level::log);
}

TYPED_TEST(Lookalikes, AreNotReadWhereACloseTagFollowsAnEmptyItem) {
  this->expectAsPlainReader("<LogList><Item></Item></Item></LogList>");
  this->expectAsPlainReader("<LogList><Item></Item><Number>1</Number></Item></LogList>");
}

// Each piece makes a reader look for a close tag that is nowhere. A reader that looked again for
// each piece would not finish before the test's timeout; the time itself is not measured here.
TYPED_TEST(Lookalikes, OfPiecesWithoutCloseTagAreRejectedAtOnce) {
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

// A reader remembers what each text of an enumeration meant.
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
