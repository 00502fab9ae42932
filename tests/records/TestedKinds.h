// The four kinds of call log, for tests that are the same for each: operations and records.
#ifndef TESTS_RECORDS_TESTEDKINDS_H
#define TESTS_RECORDS_TESTEDKINDS_H

#include <string>

#include <gtest/gtest.h>

#include "differential/KindOperations.h"
#include "golden/GoldenRecords.h"
#include "records/RecordComparison.h"

namespace kinds {

template <class ItemType>
struct Kind : comparison::KindOperations<ItemType, JournalServiceHelper>,
              golden::Records<ItemType> {
  using Operations = comparison::KindOperations<ItemType, JournalServiceHelper>;

  /// The body of an entry as the library writes it.
  static std::string body(ItemType const& item) {
    std::string text;
    Operations::writeBody(item, text, false);
    return text;
  }

  /// The body that the golden log holds for one of its entries.
  static std::string goldenBody(ItemType const& item) {
    auto const log = Kind::log();
    std::size_t at = 0;
    while (!members::equal(log.at(at), item))
      ++at;
    return golden::bodies(std::string(Kind::NAME) + "-log").at(at);
  }

  /// A LogList of one call as the library writes it.
  static std::string oneCall(typename Operations::Info const& call) {
    ItemType item;
    item.callInfoList.push_back(call);
    std::string text;
    Operations::writeCalls(item, text);
    return text;
  }
};

using Missed = Kind<MissedCallItem>;
using Dialled = Kind<DialledCallItem>;
using Received = Kind<ReceivedCallItem>;
using Forwarded = Kind<ForwardedCallItem>;

using All = ::testing::Types<Missed, Dialled, Received, Forwarded>;

/// Names typed tests after their kind.
struct KindNames {
  template <class KindType>
  static std::string GetName(int) {
    return KindType::NAME;
  }
};

/// An element in full.
inline std::string tagged(std::string const& name, std::string const& value) {
  return "<" + name + ">" + value + "</" + name + ">";
}

} // namespace kinds

#endif
