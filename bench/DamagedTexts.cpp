// Decoding damaged texts: the library, a reader made of strstr(), and RapidXML.
#include <algorithm>
#include <cstddef>
#include <map>
#include <string>

#include "Damage.h"
#include "Own.h"
#include "Samples.h"
#include "Timing.h"
#include "members/Equality.h"
#include "peers/RapidXmlPeer.h"
#include "peers/StrstrPeer.h"

namespace bench {

namespace {

struct Case {
  char const* name;
  Damage damage;
  bool isXml = true;       // so that RapidXML can parse it
  bool keepsOrder = false; // so that strstr() from element to element finds all of them
};

Case const CASES[] = {{"spaces", Damage::spaces, true, true},
                      {"indented", Damage::indented, true, true},
                      {"extended", Damage::extended, true, true},
                      {"unknown", Damage::unknown, true, true},
                      {"swapped", Damage::swapped},
                      {"repeated", Damage::repeated, true, true},
                      {"reversed", Damage::reversed},
                      {"mixed", Damage::mixed},
                      {"cut", Damage::cut, false}};

template <class Kind>
struct DamagedSample {
  explicit DamagedSample(Damage damage)
      : message(damaged(sampleOf<Kind>(COMPARED_SIZE).message, damage)),
        document("<Log>" + message.substr(bodyOf(message)) + "</Log>"),
        decoded(OracleDecoder<Kind>{message}.decode()) {}

  bool isDamaged() const { return message != sampleOf<Kind>(COMPARED_SIZE).message; }

  std::string message;
  std::string document; // the same with a root element instead of the method
  typename Kind::Log decoded;
};

template <class Kind>
DamagedSample<Kind> const& damagedSampleOf(Damage damage) {
  static std::map<Damage, DamagedSample<Kind>> samples;
  return samples.try_emplace(damage, damage).first->second;
}

/// How many entries differ; one that only one of the logs has does.
template <class Log>
std::size_t differences(Log const& log, Log const& expected) {
  std::size_t const common = std::min(log.size(), expected.size());
  std::size_t count = std::max(log.size(), expected.size()) - common;
  for (std::size_t at = 0; at < common; ++at)
    count += members::equal(log[at], expected[at]) ? 0 : 1;
  return count;
}

/// @param decoderOf makes the decoder of a sample, outside the timing
/// @param mustAgree whether other records than the oracle's are an error; they are counted anyway
template <class Kind, class DecoderOf>
void add(Case const& damage, std::string const& who, bool mustAgree, DecoderOf decoderOf) {
  std::string const name = nameOf(damage.name, Kind::name, COMPARED_SIZE, who);
  registerTiming(name, COMPARED_SIZE, [=, &damage](benchmark::State& state) {
    auto const& sample = damagedSampleOf<Kind>(damage.damage);
    auto decoder = decoderOf(sample);
    auto const differing = differences(decoder.decode(), sample.decoded);
    timeProven(
        state, name, [&] { return decoder.decode(); },
        [&] { return sample.isDamaged() && (differing == 0 || !mustAgree); });
    state.counters["differing"] = static_cast<double>(differing);
  });
}

template <class Kind>
void addKind(Case const& damage) {
  using S = DamagedSample<Kind>;
  add<Kind>(damage, "library", true, [](S const& s) { return LibraryDecoder<Kind>{s.message}; });
  add<Kind>(damage, "strstr", damage.keepsOrder,
            [](S const& s) { return StrstrDecoder<Kind>(s.message); });
  if (damage.isXml)
    forEachRapidXmlCopy([&](auto copy) {
      add<Kind>(damage, "rapidxml@" + std::to_string(copy), true, [](S const& s) {
        return RapidXmlDecoder<Kind, decltype(copy)::value>(s.document);
      });
    });
}

} // namespace

void registerDamagedTexts() {
  for (Case const& damage : CASES)
    forEachKind([&](auto kind) { addKind<decltype(kind)>(damage); });
}

} // namespace bench
