// Decoding a large log's entries in logs of 100, one after the other. None is destroyed before the
// last is decoded, so they touch as much memory as the large log: only the size of a log differs.
#include <string>
#include <vector>

#include "Samples.h"
#include "Timing.h"
#include "members/Equality.h"

namespace bench {

namespace {

static_assert(LARGE % COMPARED_SIZE == 0);

template <class Kind>
struct Hundreds {
  using Log = typename Kind::Log;

  Hundreds() {
    auto const& all = sampleOf<Kind>(LARGE).log;
    for (auto from = all.begin(); from != all.end(); from += COMPARED_SIZE) {
      messages.push_back(Kind::oracleEncode(Log(from, from + COMPARED_SIZE), 7));
      bytes += messages.back().size();
    }
  }

  std::vector<Log> decode() const {
    std::vector<Log> logs(messages.size());
    for (std::size_t at = 0; at < messages.size(); ++at)
      Kind::decode(messages[at], logs[at]);
    return logs;
  }

  bool isRight() const {
    Log joined;
    for (auto const& log : decode())
      joined.insert(joined.end(), log.begin(), log.end());
    return members::equal(joined, sampleOf<Kind>(LARGE).decoded);
  }

  std::vector<std::string> messages;
  std::size_t bytes = 0;
};

template <class Kind>
void add() {
  auto const name = nameOf("decode", Kind::name, LARGE, "hundreds");
  registerTiming(name, LARGE, [=](benchmark::State& state) {
    static Hundreds<Kind> const hundreds;
    timeProven(
        state, name, [] { return hundreds.decode(); }, [] { return hundreds.isRight(); });
    state.counters["message"] = static_cast<double>(hundreds.bytes);
  });
}

} // namespace

void registerHundreds() {
  forEachKind([](auto kind) { add<decltype(kind)>(); });
}

} // namespace bench
