// The literal runs that the strict parser compares at once. An error in them would only make
// reading slower, and no test of results would notice.
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "records/FieldLists.h"
#include "records/Kinds.h"

namespace {

using Texts = std::vector<std::string>;

template <auto const& fields, std::size_t... index>
Texts runsOf(std::index_sequence<index...>) {
  Texts runs;
  for (std::string_view const run : {journal::detail::LiteralRun<fields, index>::text...})
    if (!run.empty())
      runs.emplace_back(run);
  return runs;
}

template <auto const& fields>
Texts runsOf() {
  return runsOf<fields>(std::make_index_sequence<std::size(fields)>());
}

std::string const noConnectedType = "<ConnectedNumberType>NO_ICON</ConnectedNumberType>";
std::string const shownNumber = "<NumberPresentation>ALLOWED</NumberPresentation>";
std::string const shownName = "<NamePresentation>ALLOWED</NamePresentation>";
std::string const notDeflected =
    "<DeflectNumberPresentation>NOT_AVAILABLE</DeflectNumberPresentation>"
    "<DeflectNumberType>NO_ICON</DeflectNumberType>"
    "<DeflectNamePresentation>NOT_AVAILABLE</DeflectNamePresentation>";
std::string const format = "<TimeFormat>FORM_24</TimeFormat>";

TEST(LiteralRuns, OfCallsAreWhatMostCallsHold) {
  Texts const incoming = {noConnectedType, shownNumber, shownName, notDeflected, format};
  EXPECT_EQ(incoming, runsOf<journal::Kind<MissedCallItem>::call>());
  EXPECT_EQ(incoming, runsOf<journal::Kind<ReceivedCallItem>::call>());

  Texts const dialled = {"<ConnectedNumberPriority>False</ConnectedNumberPriority>" +
                             noConnectedType,
                         shownNumber, shownName, format};
  EXPECT_EQ(dialled, runsOf<journal::Kind<DialledCallItem>::call>());

  EXPECT_EQ(Texts{noConnectedType}, runsOf<journal::Kind<ForwardedCallItem>::call>());
}

TEST(LiteralRuns, OfEntriesAreNone) {
  EXPECT_EQ(Texts(), runsOf<journal::Kind<MissedCallItem>::entry>());
  EXPECT_EQ(Texts(), runsOf<journal::Kind<DialledCallItem>::entry>());
  EXPECT_EQ(Texts(), runsOf<journal::Kind<ReceivedCallItem>::entry>());
  EXPECT_EQ(Texts(), runsOf<journal::Kind<ForwardedCallItem>::entry>());
}

} // namespace
