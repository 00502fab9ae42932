// Encoding records into a list response: the library, the bound and the peers.
#include <string>
#include <string_view>

#include "Own.h"
#include "Samples.h"
#include "Timing.h"
#include "members/Equality.h"
#include "peers/LibxmlPeer.h"
#include "peers/ProtobufPeer.h"
#include "peers/PugixmlPeer.h"
#include "peers/RapidXmlPeer.h"

namespace bench {

namespace {

/// @param encoderOf makes the encoder of a sample, outside the timing
/// @param isRight whether an encoder's result is right for a sample
template <class Kind, class EncoderOf, class IsRight>
void add(char const* who, std::size_t entries, EncoderOf encoderOf, IsRight isRight) {
  std::string const name = nameOf("encode", Kind::name, entries, who);
  registerTiming(name, entries, [=](benchmark::State& state) {
    Sample<Kind> const& sample = sampleOf<Kind>(entries);
    auto encoder = encoderOf(sample);
    timeProven(
        state, name, [&]() -> decltype(auto) { return encoder.encode(); },
        [&] { return isRight(encoder.encode(), sample); });
    state.counters["message"] = static_cast<double>(sample.message.size());
  });
}

template <class Kind>
void addKind(std::size_t size) {
  using S = Sample<Kind>;
  auto const sameText = [](std::string const& text, S const& s) { return text == s.message; };
  // A peer's document may have other bytes than ours, but has to hold the same records.
  auto const sameDocument = [](std::string_view text, S const& s) {
    return members::equal(RapidXmlDecoder<Kind>(std::string(text)).decode(), s.decoded);
  };
  auto const sameBinary = [](std::string const& binary, S const& s) {
    return members::equal(ProtobufDecoder<Kind>(binary).decode(), s.decoded);
  };
  add<Kind>(
      "library", size, [](S const& s) { return LibraryEncoder<Kind>{s.log}; }, sameText);
  add<Kind>(
      "memcpy", size, [](S const& s) { return CopyOfMessage<Kind>(s.message); }, sameText);
  add<Kind>(
      "pugixml", size, [](S const& s) { return PugixmlEncoder<Kind>(s.log); }, sameDocument);
  add<Kind>(
      "libxml2", size, [](S const& s) { return LibxmlEncoder<Kind>(s.log); }, sameDocument);
  add<Kind>(
      "protobuf", size, [](S const& s) { return ProtobufEncoder<Kind, protobuf::Fresh>(s.log); },
      sameBinary);
  add<Kind>(
      "protobuf-arena", size,
      [](S const& s) { return ProtobufEncoder<Kind, protobuf::OnArena>(s.log); }, sameBinary);
  add<Kind>(
      "protobuf-kept", size,
      [](S const& s) { return ProtobufEncoder<Kind, protobuf::Kept>(s.log); }, sameBinary);
  add<Kind>(
      "protobuf-arena-kept", size,
      [](S const& s) { return ProtobufEncoder<Kind, protobuf::KeptOnArena>(s.log); }, sameBinary);
}

} // namespace

void registerEncoding() {
  for (std::size_t const size : SIZES)
    forEachKind([size](auto kind) { addKind<decltype(kind)>(size); });
}

} // namespace bench
