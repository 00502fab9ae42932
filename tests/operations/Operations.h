// A table of all operations. Each row runs on the same type of input and writes into the same type
// of output, whatever the operation's parameters are.
#ifndef TESTS_OPERATIONS_OPERATIONS_H
#define TESTS_OPERATIONS_OPERATIONS_H

#include <cstdint>
#include <deque>
#include <functional>
#include <list>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "JournalServiceHelper.h"
#include "members/Members.h"
#include "resulthash/ResultHash.h"

namespace operations {

using Missed = MissedCallItem;
using Dialled = DialledCallItem;
using Received = ReceivedCallItem;
using Forwarded = ForwardedCallItem;
template <class Item>
using InfoOf = members::CallOf<Item>;

/// What operations read. The first text of an operation is `text`, a second one `name`; a cursor's
/// tags are `begin` and `close`.
struct Input {
  std::string text;
  std::string name;
  std::string begin;
  std::string close;
  std::set<std::string> ids;
  std::uint32_t number = 0; // also as an enumeration's value
  bool flag = false;
  std::tuple<Missed, Dialled, Received, Forwarded, std::deque<Missed>, std::deque<Dialled>,
             std::deque<Received>, std::deque<Forwarded>>
      records;
};

/// What operations write.
struct Outputs {
  explicit Outputs(Input const& input) : edited(input.text), argument(input.name) {}

  std::string edited;   // a text that is both read and written
  std::string argument; // a text that is passed by value
  std::string text = "held before";
  bool flag = true;
  unsigned int number = 77;
  NumberType::NT numberType = NumberType::MOBILE;
  std::string resultText;
  std::int32_t result = 0; // any other result; a cursor as its distance from the text's start
  std::tuple<InfoOf<Missed>, InfoOf<Dialled>, InfoOf<Received>, InfoOf<Forwarded>,
             std::list<InfoOf<Missed>>, std::list<InfoOf<Dialled>>, std::list<InfoOf<Received>>,
             std::list<InfoOf<Forwarded>>, Missed, Dialled, Received, Forwarded, std::deque<Missed>,
             std::deque<Dialled>, std::deque<Received>, std::deque<Forwarded>>
      records;

  /// Puts the input's records into the outputs, so that decoders are given records in use.
  void fill(Input const& input) {
    fillKind<Missed>(input);
    fillKind<Dialled>(input);
    fillKind<Received>(input);
    fillKind<Forwarded>(input);
  }

private:
  template <class Item>
  void fillKind(Input const& input) {
    auto const& item = std::get<Item>(input.records);
    std::get<std::deque<Item>>(records) = std::get<std::deque<Item>>(input.records);
    std::get<Item>(records) = item;
    std::get<std::list<InfoOf<Item>>>(records) = item.callInfoList;
    if (!item.callInfoList.empty())
      std::get<InfoOf<Item>>(records) = item.callInfoList.front();
  }
};

constexpr int NO_KIND = -1;

struct Operation {
  std::string name;
  int kind;           // of call log: 0 to 3, or NO_KIND
  bool readsText;     // what it does depends on the input's text
  bool writesRecords; // what it does depends on the input's records
  bool readsIds;      // what it does depends on the input's ids
  std::function<void(Input const&, Outputs&)> run;
  std::function<void(Outputs const&, ResultHash&)> feed; // hashes what it wrote
};

/// All operations of JournalServiceHelper, in the order of the header except that each kind has its
/// operations together.
std::vector<Operation> all();

} // namespace operations

#endif
