// What comparing the library with the reference, or fuzzing it, brought to light: each case once
// more, with the reason why it went wrong.
#include <gtest/gtest.h>

#include <ostream>

#include "differential/Comparison.h"

namespace {

struct Case {
  char const* name;
  char const* reason;
  comparison::Difference (*compare)();
};

void PrintTo(Case const& found, std::ostream* out) {
  *out << found.name << ": " << found.reason;
}

template <class Item>
comparison::Difference writeAnEmptyEntry() {
  return comparison::compareEncoders(Item(), {});
}

Case const cases[] = {
    {"EmptyMissedEntry",
     "with nothing around the fields, a copy of no bytes from a null pointer, which only the"
     " undefined-behaviour sanitizer sees",
     &writeAnEmptyEntry<MissedCallItem>},
    {"EmptyDialledEntry", "as a missed one", &writeAnEmptyEntry<DialledCallItem>},
    {"EmptyReceivedEntry", "as a missed one", &writeAnEmptyEntry<ReceivedCallItem>},
    {"EmptyForwardedEntry", "as a missed one", &writeAnEmptyEntry<ForwardedCallItem>},
};

class Divergences : public ::testing::TestWithParam<Case> {};

TEST_P(Divergences, AreGone) {
  EXPECT_EQ(GetParam().compare(), "") << GetParam().reason;
}

INSTANTIATE_TEST_SUITE_P(Found, Divergences, ::testing::ValuesIn(cases),
                         [](auto const& found) { return std::string(found.param.name); });

} // namespace
