// Lets each allocation of each operation fail in turn, once and from then on, until the operation
// succeeds.
#include <cstdint>
#include <iostream>
#include <list>
#include <new>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "memory/Allocations.h"
#include "memory/Scenes.h"
#include "operations/Operations.h"

namespace {

using allocations::Failing;
using operations::Input;
using operations::NO_KIND;
using operations::Operation;
using operations::Outputs;
using operations::ResultHash;
using scenes::Scene;

// Those that return no text, or one short enough for the string itself.
std::set<std::string> const allocateNever = {
    "convertNumberType/read",         "convertNumberType/write", "convertPresentationValue/read",
    "convertPresentationValue/write", "convertTargetLog/read",   "convertTargetLog/write",
    "convertTimeFormat/read",         "convertTimeFormat/write", "getMethodFromXMLMsg",
    "getXMLValue/cursor,flag",        "isNonFailureResponse",    "respBool",
};

std::uint64_t hashOf(Operation const& operation, Outputs const& outputs) {
  ResultHash hash;
  operation.feed(outputs, hash);
  return hash.value();
}

std::uint64_t hashOf(Input const& input) {
  ResultHash hash;
  for (auto const* text : {&input.text, &input.name, &input.begin, &input.close})
    hash.feed(*text);
  for (auto const& id : input.ids)
    hash.feed(id);
  std::apply([&hash](auto const&... record) { (hash.feed(record), ...); }, input.records);
  return hash.value();
}

Outputs outputsFor(Input const& input, bool filled) {
  Outputs outputs(input);
  if (filled)
    outputs.fill(input);
  return outputs;
}

bool appends(Operation const& operation) {
  return operation.name == "addSuccessResp" ||
         (operation.kind != NO_KIND && operation.name.find("createXML") == 0);
}

bool writesIntoItsMessage(Operation const& operation) {
  return operation.name == "parseLastUniqueId";
}

// The message as parseLastUniqueId leaves it.
std::string endedAtFirstEntry(std::string message) {
  auto const close = message.find("</Entry>", message.find("<Entry>"));
  if (close != std::string::npos)
    message[close] = '\0';
  return message;
}

// What the outputs held before is kept, as it was or with something appended.
void expectKept(Operation const& operation, Input const& input, Outputs const& outputs) {
  std::string const held = "held before";
  if (appends(operation)) {
    EXPECT_EQ(outputs.text.substr(0, held.size()), held);
    EXPECT_EQ(outputs.edited.substr(0, input.text.size()), input.text);
    return;
  }
  EXPECT_EQ(outputs.text, held);
  bool const ended =
      writesIntoItsMessage(operation) && outputs.edited == endedAtFirstEntry(input.text);
  EXPECT_TRUE(ended || outputs.edited == input.text) << outputs.edited;
}

template <class Item>
void hand(Outputs const& outputs, Input& input) {
  auto& item = std::get<Item>(input.records);
  item = std::get<Item>(outputs.records);
  auto const& calls = std::get<std::list<operations::InfoOf<Item>>>(outputs.records);
  item.callInfoList.insert(item.callInfoList.end(), calls.begin(), calls.end());
  item.callInfoList.push_back(std::get<operations::InfoOf<Item>>(outputs.records));
  std::get<std::deque<Item>>(input.records) = std::get<std::deque<Item>>(outputs.records);
}

// The records that a decoder left behind can be copied and encoded.
void expectValidRecords(int kind, Outputs const& outputs, std::vector<Operation> const& all) {
  Input input;
  hand<operations::Missed>(outputs, input);
  hand<operations::Dialled>(outputs, input);
  hand<operations::Received>(outputs, input);
  hand<operations::Forwarded>(outputs, input);
  for (auto const& operation : all) {
    if (operation.kind != kind || !operation.writesRecords)
      continue;
    Outputs encoded(input);
    operation.run(input, encoded);
    EXPECT_NE(encoded.text + encoded.resultText, "held before") << operation.name;
  }
}

// Runs operations with failing allocations, and counts the failures.
class FailingMemory : public ::testing::Test {
protected:
  long injectedInto(Operation const& operation) {
    long injected = 0;
    for (auto const& scene : scenes_)
      if (scenes::fits(operation, scene))
        for (bool const filled : {false, true}) {
          SCOPED_TRACE(operation.name + ", " + scene.name + (filled ? ", outputs in use" : ""));
          injected += untilItSucceeds(operation, scene.input, filled, Failing::once);
          injected += untilItSucceeds(operation, scene.input, filled, Failing::fromThenOn);
        }
    return injected;
  }

  std::vector<Operation> const operations_ = operations::all();

private:
  long untilItSucceeds(Operation const& operation, Input const& input, bool filled,
                       Failing failing) {
    auto undisturbed = outputsFor(input, filled);
    operation.run(input, undisturbed);
    auto const expected = hashOf(operation, undisturbed);
    auto const inputBefore = hashOf(input);

    long injected = 0;
    bool failed = true;
    for (long nth = 1; failed && !HasFailure(); ++nth) {
      auto const liveBefore = allocations::live();
      auto const injectedNow = runFailing(operation, input, filled, {nth, failing}, expected);
      EXPECT_EQ(allocations::live(), liveBefore) << "leaked when allocation " << nth << " failed";
      EXPECT_EQ(hashOf(input), inputBefore) << "when allocation " << nth << " failed";
      failed = injectedNow > 0;
      injected += injectedNow;
    }
    return injected;
  }

  struct When {
    long nth;
    Failing failing;
  };

  // Returns the number of allocations that failed.
  long runFailing(Operation const& operation, Input const& input, bool filled, When when,
                  std::uint64_t expected) {
    auto outputs = outputsFor(input, filled);
    bool thrown = false;
    long injected = 0;
    {
      allocations::Failure const failure(when.nth, when.failing);
      try {
        operation.run(input, outputs);
      } catch (std::bad_alloc const&) {
        thrown = true;
      }
      injected = failure.injected();
    }
    EXPECT_EQ(thrown, injected > 0) << "when allocation " << when.nth << " failed";
    if (thrown) {
      expectKept(operation, input, outputs);
      if (operation.kind != NO_KIND && operation.readsText)
        expectValidRecords(operation.kind, outputs, operations_);
      runAgain(operation, input, outputs);
    }
    EXPECT_EQ(hashOf(operation, outputs), expected) << "after allocation " << when.nth;
    return injected;
  }

  // Runs again on the same outputs, now with memory: the result must be as in a first run.
  void runAgain(Operation const& operation, Input const& input, Outputs& outputs) {
    outputs.argument = input.name;
    if (appends(operation))
      outputs.text = "held before";
    if (appends(operation) || writesIntoItsMessage(operation))
      outputs.edited = input.text;
    operation.run(input, outputs);
  }

  std::vector<Scene> const scenes_ = scenes::all();
};

TEST_F(FailingMemory, EachAllocationOfEachOperation) {
  long total = 0;
  std::set<std::string> didNotAllocate;
  for (auto const& operation : operations_) {
    auto const injected = injectedInto(operation);
    if (injected == 0)
      didNotAllocate.insert(operation.name);
    total += injected;
  }
  EXPECT_EQ(didNotAllocate, allocateNever);
  EXPECT_EQ(operations_.size(), 99U) << "every operation has its row in the table";
  EXPECT_GT(total, 0);
  std::cout << total << " allocation failures injected into "
            << operations_.size() - didNotAllocate.size() << " operations; "
            << didNotAllocate.size() << " allocate nothing\n";
}

// A reader discards a field's old text before it makes the new one. When there is no memory for the
// new one, the field must still be usable.
TEST(FailingMemoryOfOneRecord, LeavesFieldsThatHeldLongTextsUsable) {
  std::string const before(100, 'b');
  std::string const text = "<Number>" + std::string(200, 'n') + "</Number><DeflectName>" +
                           std::string(300, 'd') + "</DeflectName>";
  auto const live = allocations::live();
  long injected = 0;
  bool failed = true;
  for (long nth = 1; failed; ++nth) {
    MissedCallItem::MissedCallInfo call;
    call.number = call.timeDate = call.deflectName = before;
    failed = false;
    try {
      allocations::Failure const failure(nth, Failing::once);
      JournalServiceHelper::getXMLMissedCallInfo(text.c_str(), call);
    } catch (std::bad_alloc const&) {
      failed = true;
      ++injected;
    }
    for (auto const* field : {&call.number, &call.timeDate, &call.deflectName})
      EXPECT_EQ(std::string(*field).size(), field->size());
    EXPECT_TRUE(failed || call.deflectName.size() == 300) << nth;
    EXPECT_TRUE(call.number.empty() || call.number == before || call.number[0] == 'n') << nth;
  }
  EXPECT_GT(injected, 1);
  EXPECT_EQ(allocations::live(), live);
}

} // namespace
