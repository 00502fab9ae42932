// The texts that the fast path compares at once. An error here would only make readers reach the
// same result more slowly, and no test of results would notice.
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "records/Kinds.h"
#include "records/Walks.h"

namespace {

using Texts = std::vector<std::string>;

template <auto const& rows, std::size_t... index>
Texts runsOf(std::index_sequence<index...>) {
  Texts runs;
  for (std::string_view const run : {journal::detail::Run<rows, index>::text...})
    if (!run.empty())
      runs.emplace_back(run);
  return runs;
}

template <auto const& rows>
Texts runsOf() {
  return runsOf<rows>(std::make_index_sequence<std::size(rows)>());
}

std::string const noConnectedType = "<ConnectedNumberType>NO_ICON</ConnectedNumberType>";
std::string const shownNumber = "<NumberPresentation>ALLOWED</NumberPresentation>";
std::string const shownName = "<NamePresentation>ALLOWED</NamePresentation>";
std::string const notDeflected =
    "<DeflectNumberPresentation>NOT_AVAILABLE</DeflectNumberPresentation>"
    "<DeflectNumberType>NO_ICON</DeflectNumberType>"
    "<DeflectNamePresentation>NOT_AVAILABLE</DeflectNamePresentation>";
std::string const format = "<TimeFormat>FORM_24</TimeFormat>";

TEST(Runs, OfCallsAreWhatMostCallsHold) {
  Texts const incoming = {noConnectedType, shownNumber, shownName, notDeflected, format};
  EXPECT_EQ(incoming, runsOf<journal::Kind<MissedCallItem>::detail>());
  EXPECT_EQ(incoming, runsOf<journal::Kind<ReceivedCallItem>::detail>());

  Texts const dialled = {"<ConnectedNumberPriority>False</ConnectedNumberPriority>" +
                             noConnectedType,
                         shownNumber, shownName, format};
  EXPECT_EQ(dialled, runsOf<journal::Kind<DialledCallItem>::detail>());

  EXPECT_EQ(Texts{noConnectedType}, runsOf<journal::Kind<ForwardedCallItem>::detail>());
}

TEST(Runs, OfEntriesAreNone) {
  EXPECT_EQ(Texts(), runsOf<journal::Kind<MissedCallItem>::entry>());
  EXPECT_EQ(Texts(), runsOf<journal::Kind<DialledCallItem>::entry>());
  EXPECT_EQ(Texts(), runsOf<journal::Kind<ReceivedCallItem>::entry>());
  EXPECT_EQ(Texts(), runsOf<journal::Kind<ForwardedCallItem>::entry>());
}

} // namespace
