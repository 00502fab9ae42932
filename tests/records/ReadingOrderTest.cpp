// The order in which the decoders read, and where that order shows: texts whose elements stand in
// the wrong order, stand twice, or hold one another.
#include <utility>

#include "records/CursorModel.h"

using namespace cursor_model;

namespace {

template <typename KindType>
class ReadingOrder : public ::testing::Test {
protected:
  using Item = typename KindType::Item;
  using Info = typename KindType::Info;

  // Every field is set before, so that one that is not overwritten shows.
  static void expectCall(std::string const& text) {
    Info call = KindType::full().callInfoList.front();
    auto const expected = merged(record_fields::of(call), read(text, callOrder(KindType())).values);
    EXPECT_TRUE(KindType::readCall(text.c_str(), call)) << text;
    EXPECT_EQ(record_fields::of(call), expected) << text;
  }

  // The LogList is searched from where the walk over the entry's own elements ended.
  static void expectEntry(std::string const& text) {
    Item item = KindType::full();
    Reading const reading = read(text, entryOrder(KindType()));
    auto const expected = merged(record_fields::of(item), reading.values);
    bool const listed = text.find("<LogList>", reading.cursor) != std::string::npos;
    EXPECT_TRUE(KindType::readItem(text.c_str(), item)) << text;
    EXPECT_EQ(record_fields::of(item), expected) << text;
    EXPECT_EQ(item.callInfoList.size(), listed ? 1U : 2U) << text;
  }

  // Lists of one call, in the writer's order and not.
  static std::vector<std::string> lists() {
    return {"<LogList><Item>x</Item></LogList>",
            "<LogList><Item>" + joined(callOrder(KindType())) + "</Item></LogList>",
            "<LogList><Item><Number>1</Number></Item></LogList>"};
  }

  static std::string joined(Order const& order, std::string const& between = "") {
    std::string text;
    for (Element const& element : order)
      text += sample(element) + between;
    return text;
  }
};

TYPED_TEST_SUITE(ReadingOrder, kinds::All, kinds::KindNames);

TYPED_TEST(ReadingOrder, ACallInOrder) {
  this->expectCall(this->joined(callOrder(TypeParam())));
}

TYPED_TEST(ReadingOrder, AnEmptyTextSetsEveryFieldToItsFallback) {
  this->expectCall("");
  this->expectEntry("");
}

TYPED_TEST(ReadingOrder, EachElementOfACallAlone) {
  for (Element const& element : callOrder(TypeParam()))
    this->expectCall(sample(element));
}

TYPED_TEST(ReadingOrder, EachElementOfACallMissing) {
  Order const order = callOrder(TypeParam());
  for (std::size_t missing = 0; missing < order.size(); ++missing) {
    Order rest = order;
    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(missing));
    this->expectCall(this->joined(rest));
  }
}

TYPED_TEST(ReadingOrder, ElementsOfACallApart) {
  for (char const* between : {"\n", " ", "\r\n\t", "text", "<Other>", "<Other>x</Other>"}) {
    this->expectCall(this->joined(callOrder(TypeParam()), between));
    this->expectCall(between + this->joined(callOrder(TypeParam())));
  }
}

TYPED_TEST(ReadingOrder, AdjacentElementsOfACallSwapped) {
  Order const order = callOrder(TypeParam());
  for (std::size_t at = 0; at + 1 < order.size(); ++at) {
    Order swapped = order;
    std::swap(swapped[at], swapped[at + 1]);
    this->expectCall(this->joined(swapped));
  }
}

TYPED_TEST(ReadingOrder, ACallBackToFront) {
  Order const order = callOrder(TypeParam());
  this->expectCall(this->joined(Order(order.rbegin(), order.rend())));
}

TYPED_TEST(ReadingOrder, TheFirstOfTwoEqualElementsCounts) {
  for (Element const& element : callOrder(TypeParam())) {
    this->expectCall(sample(element) + tagged(element.name, "later"));
    this->expectCall(" " + tagged(element.name, "") + sample(element));
  }
}

// Which of two elements is read first shows when one stands inside the other.
TYPED_TEST(ReadingOrder, OneElementOfACallInsideAnother) {
  Order const order = callOrder(TypeParam());
  for (Element const& outer : order) {
    for (Element const& inner : order) {
      std::string const text = tagged(outer.name, sample(inner));
      this->expectCall(text);
      this->expectCall("\n" + text);
    }
  }
}

// A cursor that fell behind, or ran ahead, on the way through the elements in front finds the inner
// element when it must not, or the other way round.
TYPED_TEST(ReadingOrder, OneElementOfACallInsideAnotherBehindTheElementsInFront) {
  Order const order = callOrder(TypeParam());
  for (std::size_t outer = 1; outer < order.size(); ++outer) {
    Order const front(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(outer));
    for (std::size_t inner = 0; inner < order.size(); ++inner) {
      std::string const nested = tagged(order[outer].name, sample(order[inner]));
      this->expectCall(this->joined(front) + nested);
      this->expectCall(this->joined(front, " ") + nested);
      for (std::size_t missing = 0; missing < front.size(); ++missing) {
        Order rest = front;
        rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(missing));
        this->expectCall(this->joined(rest) + nested);
      }
    }
  }
}

// An element without its close tag is missing, and the cursor stays in front of it.
TYPED_TEST(ReadingOrder, AnElementOfACallWithoutCloseTag) {
  Order const order = callOrder(TypeParam());
  for (std::size_t open = 0; open < order.size(); ++open) {
    std::string text;
    for (std::size_t at = 0; at < order.size(); ++at)
      text += at == open ? "<" + order[at].name + ">open" : sample(order[at]);
    this->expectCall(text);
  }
}

TYPED_TEST(ReadingOrder, EachElementOfAnEntryAlone) {
  for (Element const& element : entryOrder(TypeParam()))
    this->expectEntry(sample(element));
}

// The element may also stand behind the list, which ends a text in the writer's order.
TYPED_TEST(ReadingOrder, EachElementOfAnEntryMissing) {
  Order const order = entryOrder(TypeParam());
  for (std::string const& list : this->lists()) {
    this->expectEntry(this->joined(order) + list);
    this->expectEntry(list + this->joined(order));
    this->expectEntry(this->joined(order) + list + this->joined(order));
    for (std::size_t missing = 0; missing < order.size(); ++missing) {
      Order rest = order;
      rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(missing));
      this->expectEntry(this->joined(rest) + list);
      this->expectEntry(this->joined(rest, "\n") + list);
      this->expectEntry(this->joined(rest) + list + sample(order[missing]));
    }
  }
}

TYPED_TEST(ReadingOrder, AdjacentElementsOfAnEntrySwapped) {
  Order const order = entryOrder(TypeParam());
  for (std::string const& list : this->lists()) {
    for (std::size_t at = 0; at + 1 < order.size(); ++at) {
      Order swapped = order;
      std::swap(swapped[at], swapped[at + 1]);
      this->expectEntry(this->joined(swapped) + list);
    }
  }
}

TYPED_TEST(ReadingOrder, OneElementOfAnEntryInsideAnother) {
  Order const order = entryOrder(TypeParam());
  for (std::string const& list : this->lists()) {
    for (std::size_t outer = 0; outer < order.size(); ++outer) {
      Order const front(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(outer));
      for (std::string const& before : {std::string(), this->joined(front), std::string(" ")}) {
        this->expectEntry(before + tagged(order[outer].name, list));
        for (Element const& inner : order) {
          this->expectEntry(before + tagged(order[outer].name, sample(inner)));
          this->expectEntry(before + tagged(order[outer].name, sample(inner)) + list);
        }
      }
    }
  }
}

// The entry's own elements are searched in its whole text, the LogList included.
TYPED_TEST(ReadingOrder, EntryElementsInsideTheList) {
  for (Element const& element : entryOrder(TypeParam()))
    this->expectEntry("<LogList><Item>" + sample(element) + "</Item></LogList>");
}

} // namespace
