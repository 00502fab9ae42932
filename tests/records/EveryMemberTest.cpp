// Every member of every record, taken from the list of members: how it is written and read back,
// and what its element is called.
//
// A new member needs no new test. If the encoder or the decoder lacks it, or its row in the list is
// wrong, these tests fail.
#include <algorithm>
#include <string>
#include <type_traits>
#include <vector>

#include "convert/NearMisses.h"
#include "records/MemberValues.h"
#include "records/TestedKinds.h"
#include "vocabulary/Constants.h"

namespace {

using members::Travel;

using records::otherRecord;
using records::otherValue;
using records::RecordOf;
using records::ValueOf;

// How the element of a member with that value is written; of a list of calls, its beginning.
template <class Member>
std::string elementOf(Member const& member, ValueOf<Member> const& value) {
  std::string const element(member.element);
  if constexpr (Member::isCalls)
    return "<" + element + "><Item>";
  else
    return kinds::tagged(element, records::spelled(value));
}

// Each element on a separate line, which the reader's fast path does not accept.
std::string onLines(std::string text) {
  for (auto at = text.find("><"); at != std::string::npos; at = text.find("><", at))
    text.insert(++at, "\n");
  return "\n" + text;
}

template <class KindType>
class EveryMember : public ::testing::Test {
protected:
  using Item = typename KindType::Item;
  using Info = typename KindType::Info;

  // An entry that holds the record, which is an entry or a call.
  static Item entryWith(Item const& item) { return item; }
  static Item entryWith(Info const& call) {
    Item item;
    item.callInfoList.push_back(call);
    return item;
  }

  // Checks what all readers of an entry read from a record that was written.
  template <class Record>
  static void expectReadBack(Record const& record) {
    auto const expected = members::asRead(entryWith(record));
    auto const body = KindType::body(entryWith(record));
    for (auto const& text : {body, onLines(body)}) {
      Item item;
      KindType::readItemText(text, item);
      EXPECT_EQ(item, expected) << text;
      typename KindType::Log log;
      KindType::readLog("<Entry>" + text + "</Entry>", log);
      EXPECT_EQ(log, typename KindType::Log(1, expected)) << text;
    }
  }

  static bool readInPlace(std::string const& text, Item& item) {
    return KindType::readItem(text.c_str(), item);
  }
  static bool readInPlace(std::string const& text, Info& call) {
    return KindType::readCall(text.c_str(), call);
  }

  // Calls check(member) for each member of the entry and of the call.
  template <class Check>
  static void forEach(Check const& check) {
    members::forEachMember<Item>(check);
    members::forEachMember<Info>(check);
  }
};

TYPED_TEST_SUITE(EveryMember, kinds::All, kinds::KindNames);

TYPED_TEST(EveryMember, TravelsAsItsRowSays) {
  this->forEach([](auto const& member) {
    SCOPED_TRACE(member.name);
    RecordOf<decltype(member)> record;
    auto const unset = TypeParam::body(TestFixture::entryWith(record));
    member.in(record) = otherValue(member);
    auto const set = TypeParam::body(TestFixture::entryWith(record));
    EXPECT_EQ(set == unset, member.travel == Travel::never) << set;
    auto const found = set.find(elementOf(member, member.in(record))) != std::string::npos;
    EXPECT_EQ(found, member.travel != Travel::never) << set;
    TestFixture::expectReadBack(record);
  });
}

TYPED_TEST(EveryMember, TravelsWithAllOthers) {
  this->expectReadBack(otherRecord<typename TypeParam::Info>());
  auto item = otherRecord<typename TypeParam::Item>();
  item.callInfoList.assign(3, otherRecord<typename TypeParam::Info>());
  this->expectReadBack(item);
}

// Whatever a record held before: a member that travels both ways is set when it is read. What
// reading leaves in another member does not depend on the member's element, and a member without
// an element is kept.
TYPED_TEST(EveryMember, IsSetWhenARecordIsReadInPlace) {
  this->forEach([](auto const& member) {
    if constexpr (!std::decay_t<decltype(member)>::isCalls) {
      SCOPED_TRACE(member.name);
      using Record = RecordOf<decltype(member)>;
      for (auto const& before : {Record(), otherRecord<Record>()}) {
        auto without = before;
        auto with = before;
        EXPECT_TRUE(TestFixture::readInPlace("", without));
        EXPECT_TRUE(TestFixture::readInPlace(elementOf(member, otherValue(member)), with));
        bool const isRead = member.travel == Travel::bothWays;
        EXPECT_EQ(member.in(with), isRead ? otherValue(member) : member.in(without));
        if (isRead) {
          EXPECT_EQ(member.in(without), member.in(Record()));
        } else if (member.travel == Travel::never) {
          EXPECT_EQ(member.in(with), member.in(before));
        }
      }
    }
  });
}

template <class Value>
Value valueOf(std::string const& text, Value fallback) {
  if constexpr (std::is_same_v<Value, bool>)
    return text == "True";
  else {
    for (auto const& enumerator : members::enumerators<Value>)
      if (enumerator.name == text)
        return enumerator.value;
    return fallback;
  }
}

template <class Value>
std::vector<std::string> namesOf() {
  std::vector<std::string> names;
  if constexpr (std::is_same_v<Value, bool>)
    names = {"True", "False"};
  else
    for (auto const& enumerator : members::enumerators<Value>)
      names.emplace_back(enumerator.name);
  return names;
}

// Flags and enumerations are read from their exact texts alone; near misses give the default.
TYPED_TEST(EveryMember, ThatIsNoTextIsReadFromItsExactTexts) {
  this->forEach([](auto const& member) {
    using Member = std::decay_t<decltype(member)>;
    using Value = ValueOf<Member>;
    if constexpr (!std::is_class_v<Value>) {
      if (member.travel != Travel::bothWays)
        return;
      auto const unset = member.in(RecordOf<Member>());
      std::vector<std::string> texts = {"", "0", "1", "TRUE", "true", "&amp;"};
      for (auto const& name : namesOf<Value>()) {
        texts.push_back(name);
        for (auto const& text : nearMissesOf(name))
          texts.push_back(text);
      }
      for (auto const& text : texts) {
        RecordOf<Member> record;
        TestFixture::readInPlace(kinds::tagged(std::string(member.element), text), record);
        EXPECT_EQ(member.in(record), valueOf(text, unset)) << member.name << " " << text;
      }
    }
  });
}

// The element's name with its first letter in lower case; three members have other names.
std::string memberNameFor(std::string const& element) {
  if (element == "JSGroupBy")
    return "jsGroupBy";
  if (element == "LogList")
    return "callInfoList";
  if (element.empty())
    return "infoKey";
  return static_cast<char>(element[0] - 'A' + 'a') + element.substr(1);
}

TYPED_TEST(EveryMember, IsNamedAfterItsElement) {
  auto const& words = vocabulary::elementNames();
  std::vector<std::string> names;
  this->forEach([&](auto const& member) {
    EXPECT_EQ(memberNameFor(std::string(member.element)), member.name);
    EXPECT_NE(std::find(words.begin(), words.end(), member.element), words.end()) << member.element;
    names.emplace_back(member.name);
  });
  std::sort(names.begin(), names.end());
  EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

template <class Record>
void expectAscending() {
  Record const record;
  char const* last = nullptr;
  members::forEachMember<Record>([&](auto const& member) {
    auto const* const at = reinterpret_cast<char const*>(&member.in(record));
    EXPECT_LT(last, at) << member.name;
    last = at;
  });
}

TYPED_TEST(EveryMember, IsListedInTheOrderOfDeclaration) {
  expectAscending<typename TypeParam::Item>();
  expectAscending<typename TypeParam::Info>();
}

std::string const MARKUP = "A&B <C> \"D\" 'E' &amp; &lt;";
std::string const ESCAPED = "A&amp;B &lt;C&gt; &quot;D&quot; &apos;E&apos; &amp;amp; &amp;lt;";
std::string const UNESCAPED = "A&B <C> \"D\" 'E' & <";

TYPED_TEST(EveryMember, ThatIsATextIsEscapedOrCopied) {
  this->forEach([](auto const& member) {
    if constexpr (std::is_same_v<ValueOf<decltype(member)>, std::string>) {
      if (member.travel == Travel::never)
        return;
      RecordOf<decltype(member)> record;
      auto const unset = TypeParam::body(TestFixture::entryWith(record));
      member.in(record) = MARKUP;
      auto written = TypeParam::body(TestFixture::entryWith(record));
      auto const element = elementOf(member, records::isEscaped(member) ? ESCAPED : MARKUP);
      auto const at = written.find(element);
      ASSERT_NE(at, std::string::npos) << element << "\n" << written;
      EXPECT_EQ(written.erase(at, element.size()), unset) << element;

      TestFixture::readInPlace(elementOf(member, MARKUP), record);
      if (member.travel == Travel::bothWays) {
        EXPECT_EQ(member.in(record), UNESCAPED) << member.name;
      }
    }
  });
}

// A text that is empty is left out, whatever else is set; enumerations and flags are always there.
TYPED_TEST(EveryMember, IsLeftOutOnlyIfItIsAnEmptyText) {
  this->forEach([](auto const& member) {
    using Member = std::decay_t<decltype(member)>;
    if constexpr (!Member::isCalls) {
      if (member.travel == Travel::never)
        return;
      using Record = RecordOf<Member>;
      auto record = otherRecord<Record>();
      auto expected = TypeParam::body(TestFixture::entryWith(record));
      auto const element = elementOf(member, member.in(record));
      auto const at = expected.find(element);
      ASSERT_NE(at, std::string::npos) << element << "\n" << expected;
      member.in(record) = member.in(Record());
      bool const isText = std::is_same_v<ValueOf<Member>, std::string>;
      expected.replace(at, element.size(), isText ? "" : elementOf(member, member.in(record)));
      EXPECT_EQ(TypeParam::body(TestFixture::entryWith(record)), expected);
    }
  });
}

} // namespace
