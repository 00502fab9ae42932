// Decoding a list response into records: the library, the bound and the peers.
#include <string>

#include "Own.h"
#include "Samples.h"
#include "Timing.h"
#include "members/Equality.h"
#include "peers/ExpatPeer.h"
#include "peers/ProtobufPeer.h"
#include "peers/PugixmlPeer.h"
#include "peers/RapidXmlPeer.h"
#include "peers/StrstrPeer.h"
#include "peers/TinyXml2Peer.h"

namespace bench {

namespace {

/// @param decoderOf makes the decoder of a sample, outside the timing
template <class Kind, Destruction destruction = Destruction::counted, class DecoderOf>
void add(std::string const& who, std::size_t entries, DecoderOf decoderOf) {
  auto const* const what = destruction == Destruction::counted ? "decode" : "decode-alone";
  std::string const name = nameOf(what, Kind::name, entries, who);
  registerTiming(name, entries, [=](benchmark::State& state) {
    Sample<Kind> const& sample = sampleOf<Kind>(entries);
    auto decoder = decoderOf(sample);
    timeProven<destruction>(
        state, name, [&] { return decoder.decode(); },
        [&] { return members::equal(decoder.decode(), sample.decoded); });
    state.counters["message"] = static_cast<double>(sample.message.size());
  });
}

template <class Kind>
void addKind(std::size_t size) {
  using S = Sample<Kind>;
  // Created before anything is timed: on a used heap, a log would be scattered.
  if (size != LARGE)
    sampleOf<Kind>(size);
  add<Kind>("library", size, [](S const& s) { return LibraryDecoder<Kind>{s.message}; });
  add<Kind>("handle", size, [](S const& s) { return LibraryHandleDecoder<Kind>{s.message}; });
  add<Kind>("copy", size, [](S const& s) { return DeepCopy<Kind>{s.decoded}; });
  if (size == LARGE) {
    constexpr auto leftOut = Destruction::leftOut;
    add<Kind, leftOut>("library", size, [](S const& s) { return LibraryDecoder<Kind>{s.message}; });
    add<Kind, leftOut>("copy", size, [](S const& s) { return DeepCopy<Kind>{s.decoded}; });
  }
  forEachRapidXmlCopy([size](auto copy) {
    add<Kind>("rapidxml@" + std::to_string(copy), size,
              [](S const& s) { return RapidXmlDecoder<Kind, decltype(copy)::value>(s.document); });
  });
  add<Kind>("strstr", size, [](S const& s) { return StrstrDecoder<Kind>(s.message); });
  add<Kind>("pugixml", size, [](S const& s) { return PugixmlDecoder<Kind>(s.document); });
  add<Kind>("expat", size, [](S const& s) { return ExpatDecoder<Kind>(s.document); });
  add<Kind>("tinyxml2", size, [](S const& s) { return TinyXml2Decoder<Kind>(s.document); });
  add<Kind>("protobuf", size,
            [](S const& s) { return ProtobufDecoder<Kind, protobuf::Fresh>(s.log); });
  add<Kind>("protobuf-arena", size,
            [](S const& s) { return ProtobufDecoder<Kind, protobuf::OnArena>(s.log); });
  add<Kind>("protobuf-kept", size,
            [](S const& s) { return ProtobufDecoder<Kind, protobuf::Kept>(s.log); });
  add<Kind>("protobuf-arena-kept", size,
            [](S const& s) { return ProtobufDecoder<Kind, protobuf::KeptOnArena>(s.log); });
}

} // namespace

void registerDecoding() {
  for (std::size_t const size : SIZES)
    forEachKind([size](auto kind) { addKind<decltype(kind)>(size); });
}

} // namespace bench
