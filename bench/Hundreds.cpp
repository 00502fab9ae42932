// A large log's entries in logs of 100, one after the other: as much memory is gone through as for
// the large log, so that what is left between the two is the size of the log alone.
#include <string>
#include <vector>

#include "Samples.h"
#include "Timing.h"
#include "records/RecordComparison.h"

namespace bench {

namespace {

template <class Kind>
class Hundreds {
public:
  using Log = typename Kind::Log;

  Hundreds() {
    auto const& all = sampleOf<Kind>(LARGE).log;
    for (auto from = all.begin(); from != all.end(); from += COMPARED_SIZE) {
      logs_.emplace_back(from, from + COMPARED_SIZE);
      messages_.push_back(Kind::oracleEncode(logs_.back(), 7));
      bytes_ += messages_.back().size();
    }
  }

  std::size_t bytes() const { return bytes_; }

  /// All logs, kept like a large one.
  std::vector<Log> decode() const {
    std::vector<Log> decoded(messages_.size());
    for (std::size_t at = 0; at < messages_.size(); ++at)
      Kind::decode(messages_[at], decoded[at]);
    return decoded;
  }

  /// The length of all messages, none of which is kept.
  std::size_t encode() const {
    std::size_t length = 0;
    for (auto const& log : logs_)
      length += Kind::encode(log, 7).size();
    return length;
  }

  bool decodesRight() const {
    Log joined;
    for (auto const& log : decode())
      joined.insert(joined.end(), log.begin(), log.end());
    return joined == sampleOf<Kind>(LARGE).decoded;
  }

  bool encodesRight() const {
    for (std::size_t at = 0; at < logs_.size(); ++at)
      if (Kind::encode(logs_[at], 7) != messages_[at])
        return false;
    return encode() == bytes_;
  }

private:
  std::vector<Log> logs_;
  std::vector<std::string> messages_;
  std::size_t bytes_ = 0;
};

template <class Kind>
Hundreds<Kind> const& hundredsOf() {
  static Hundreds<Kind> const hundreds;
  return hundreds;
}

template <class Kind, class Operation, class IsRight>
void add(char const* what, Operation operation, IsRight isRight) {
  auto const name = nameOf(what, Kind::name, LARGE, "hundreds");
  registerTiming(name, LARGE, [=](benchmark::State& state) {
    auto const& hundreds = hundredsOf<Kind>();
    timeProven(
        state, name, [&] { return (hundreds.*operation)(); },
        [&] { return (hundreds.*isRight)(); });
    state.counters["message"] = static_cast<double>(hundreds.bytes());
  });
}

template <class Kind>
void addKind() {
  add<Kind>("decode", &Hundreds<Kind>::decode, &Hundreds<Kind>::decodesRight);
  add<Kind>("encode", &Hundreds<Kind>::encode, &Hundreds<Kind>::encodesRight);
}

} // namespace

void registerHundreds() {
  forEachKind([](auto kind) { addKind<decltype(kind)>(); });
}

} // namespace bench
