// The order in which the decoders read, and where that order shows: texts whose elements are in the
// wrong order, occur twice, or hold one another. The reference says what each text gives.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "differential/Comparison.h"
#include "differential/Edits.h"
#include "records/MemberValues.h"
#include "records/TestedKinds.h"
#include "reference/Reference.h"

namespace {

using kinds::tagged;

// Elements in full, each with a value that differs from what a missing element gives.
using Elements = std::vector<std::string>;

std::string nameOf(std::string const& element) {
  return element.substr(1, element.find('>') - 1);
}

// Those elements of a text that hold no other.
Elements leavesOf(std::string const& text) {
  Elements leaves;
  for (auto const& element : differential::elementsOf(text))
    if (element.find("</", 1) != std::string::npos)
      leaves.push_back(element);
  return leaves;
}

Elements without(Elements elements, std::size_t missing) {
  elements.erase(elements.begin() + static_cast<std::ptrdiff_t>(missing));
  return elements;
}

Elements frontOf(Elements elements, std::size_t size) {
  elements.resize(size);
  return elements;
}

std::string joined(Elements const& elements, std::string const& between = "") {
  std::string text;
  for (auto const& element : elements)
    text += element + between;
  return text;
}

// A dialled call in the reader's order: the priority before the connected number, and the name's
// presentation between two begin tags.
Elements inReadingOrder(Elements elements) {
  auto const number = std::find_if(elements.begin(), elements.end(), [](auto const& element) {
    return nameOf(element) == "ConnectedNumber";
  });
  std::iter_swap(number, number + 1);
  for (auto& element : elements)
    if (nameOf(element) == "NamePresentation")
      element.erase(element.find("</") + 1, 1);
  return elements;
}

template <class KindType>
class ReadingOrder : public ::testing::Test {
protected:
  using Item = typename KindType::Item;
  using Info = typename KindType::Info;
  using Oracle = comparison::KindOperations<Item, Reference>;

  // The elements of a call in the order of writing and, where that is another, of reading.
  static std::vector<Elements> callOrders() {
    Item item;
    item.callInfoList.push_back(records::otherRecord<Info>());
    std::string text;
    Oracle::writeCalls(item, text);
    auto const written = leavesOf(text);
    if (std::is_same_v<KindType, kinds::Dialled>)
      return {written, inReadingOrder(written)};
    return {written};
  }

  static Elements entryElements() {
    std::string text;
    Oracle::writeBody(records::otherRecord<Item>(), text, false);
    return leavesOf(text);
  }

  // Every member is set before, so that one that is not overwritten shows.
  static void expectCall(std::string const& text) { expectAsReference(text, Level::call); }
  static void expectEntry(std::string const& text) { expectAsReference(text, Level::item); }

  // Lists of one call, in the writer's order and not.
  static Elements lists() {
    return {"<LogList><Item>x</Item></LogList>",
            "<LogList><Item>" + joined(callOrders().back()) + "</Item></LogList>",
            "<LogList><Item><Number>1</Number></Item></LogList>"};
  }

private:
  using Level = comparison::Level;

  static void expectAsReference(std::string const& text, Level level) {
    auto const kind = KindType::KIND_OF_LOG;
    EXPECT_EQ("", comparison::compareDecoder(text, kind, level, comparison::Outputs::filled));
  }
};

TYPED_TEST_SUITE(ReadingOrder, kinds::All, kinds::KindNames);

TYPED_TEST(ReadingOrder, ACallInOrder) {
  for (auto const& order : this->callOrders())
    this->expectCall(joined(order));
}

TYPED_TEST(ReadingOrder, AnEmptyTextSetsEveryFieldToItsFallback) {
  this->expectCall("");
  this->expectEntry("");
}

TYPED_TEST(ReadingOrder, EachElementOfACallAloneOrMissing) {
  for (auto const& order : this->callOrders())
    for (std::size_t at = 0; at < order.size(); ++at) {
      this->expectCall(order[at]);
      this->expectCall(joined(without(order, at)));
    }
}

TYPED_TEST(ReadingOrder, ElementsOfACallApart) {
  for (auto const& order : this->callOrders())
    for (char const* between : {"\n", " ", "\r\n\t", "text", "<Other>", "<Other>x</Other>"}) {
      this->expectCall(joined(order, between));
      this->expectCall(between + joined(order));
    }
}

TYPED_TEST(ReadingOrder, AdjacentElementsOfACallSwapped) {
  for (auto const& order : this->callOrders())
    for (std::size_t at = 0; at + 1 < order.size(); ++at) {
      auto swapped = order;
      std::swap(swapped[at], swapped[at + 1]);
      this->expectCall(joined(swapped));
    }
}

TYPED_TEST(ReadingOrder, ACallBackToFront) {
  for (auto const& order : this->callOrders())
    this->expectCall(joined({order.rbegin(), order.rend()}));
}

TYPED_TEST(ReadingOrder, TheFirstOfTwoEqualElementsCounts) {
  for (auto const& order : this->callOrders())
    for (auto const& element : order) {
      this->expectCall(element + tagged(nameOf(element), "later"));
      this->expectCall(" " + tagged(nameOf(element), "") + element);
    }
}

// Which of two elements is read first shows when one is inside the other.
TYPED_TEST(ReadingOrder, OneElementOfACallInsideAnother) {
  for (auto const& order : this->callOrders())
    for (auto const& outer : order)
      for (auto const& inner : order) {
        auto const text = tagged(nameOf(outer), inner);
        this->expectCall(text);
        this->expectCall("\n" + text);
      }
}

// If the cursor is too far back or too far on after the elements before, the inner element is found
// when it must not be, or not found when it must.
TYPED_TEST(ReadingOrder, OneElementOfACallInsideAnotherBehindTheElementsInFront) {
  for (auto const& order : this->callOrders())
    for (std::size_t outer = 1; outer < order.size(); ++outer) {
      auto const front = frontOf(order, outer);
      for (auto const& inner : order) {
        auto const nested = tagged(nameOf(order[outer]), inner);
        this->expectCall(joined(front) + nested);
        this->expectCall(joined(front, " ") + nested);
        for (std::size_t missing = 0; missing < front.size(); ++missing)
          this->expectCall(joined(without(front, missing)) + nested);
      }
    }
}

// An element without its close tag is missing, and the cursor stays before it.
TYPED_TEST(ReadingOrder, AnElementOfACallWithoutCloseTag) {
  for (auto const& order : this->callOrders())
    for (std::size_t open = 0; open < order.size(); ++open) {
      auto elements = order;
      elements[open] = "<" + nameOf(order[open]) + ">open";
      this->expectCall(joined(elements));
    }
}

TYPED_TEST(ReadingOrder, EachElementOfAnEntryAlone) {
  for (auto const& element : this->entryElements())
    this->expectEntry(element);
}

// The element may also follow the list, which ends a text in the writer's order.
TYPED_TEST(ReadingOrder, EachElementOfAnEntryMissing) {
  auto const order = this->entryElements();
  for (auto const& list : this->lists()) {
    this->expectEntry(joined(order) + list);
    this->expectEntry(list + joined(order));
    this->expectEntry(joined(order) + list + joined(order));
    for (std::size_t missing = 0; missing < order.size(); ++missing) {
      auto const rest = without(order, missing);
      this->expectEntry(joined(rest) + list);
      this->expectEntry(joined(rest, "\n") + list);
      this->expectEntry(joined(rest) + list + order[missing]);
    }
  }
}

TYPED_TEST(ReadingOrder, AdjacentElementsOfAnEntrySwapped) {
  auto const order = this->entryElements();
  for (auto const& list : this->lists())
    for (std::size_t at = 0; at + 1 < order.size(); ++at) {
      auto swapped = order;
      std::swap(swapped[at], swapped[at + 1]);
      this->expectEntry(joined(swapped) + list);
    }
}

TYPED_TEST(ReadingOrder, OneElementOfAnEntryInsideAnother) {
  auto const order = this->entryElements();
  for (auto const& list : this->lists())
    for (std::size_t outer = 0; outer < order.size(); ++outer)
      for (auto const& before : {std::string(), joined(frontOf(order, outer)), std::string(" ")}) {
        auto const name = nameOf(order[outer]);
        this->expectEntry(before + tagged(name, list));
        for (auto const& inner : order) {
          this->expectEntry(before + tagged(name, inner));
          this->expectEntry(before + tagged(name, inner) + list);
        }
      }
}

// The entry's own elements are searched in its whole text, the LogList included.
TYPED_TEST(ReadingOrder, EntryElementsInsideTheList) {
  for (auto const& element : this->entryElements())
    this->expectEntry("<LogList><Item>" + element + "</Item></LogList>");
}

} // namespace
