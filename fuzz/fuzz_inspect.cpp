// The inspection engine: any text, in any chunks, explained and judged; JSON there and back.
#include <algorithm>
#include <string>

#include "Fuzz.h"
#include "inspect/Explain.h"
#include "inspect/Json.h"
#include "inspect/Redact.h"
#include "inspect/Stream.h"

std::size_t const fuzz::selectorBytes = 2;

namespace {

using namespace inspect;

/// What JSON holds is what was decoded, and what is encoded from it stays the same.
void roundTrip(std::string const& text) {
  auto const json = toJson(decode(text));
  std::string error;
  auto const back = fromJson(json, error);
  if (!back || toJson(*back) != json)
    fuzz::expectEqual("JSON does not come back: " + error + "\n" + json + "\n");
}

/// Pieces cover the text, one behind the other.
void explainAll(std::string const& text) {
  std::size_t end = 0;
  for (auto const& piece : explain(text).pieces) {
    if (piece.offset != end)
      fuzz::expectEqual("The pieces leave a gap at " + std::to_string(end) + "\n");
    end = piece.offset + piece.size;
  }
  if (end != text.size())
    fuzz::expectEqual("The pieces end at " + std::to_string(end) + "\n");
}

void split(std::string const& text, std::size_t chunk, bool scan) {
  Stream::Options options;
  options.limit = 1 << 16;
  if (scan)
    options.scan = true;
  Stream stream(options);
  Found found;
  for (std::size_t at = 0; at < text.size(); at += chunk) {
    stream.push(std::string_view(text).substr(at, chunk));
    while (stream.next(found))
      roundTrip(found.text);
  }
  stream.finish();
  while (stream.next(found))
    explainAll(found.text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < fuzz::selectorBytes)
    return 0;
  auto const text = fuzz::textOf(data + fuzz::selectorBytes, size - fuzz::selectorBytes);
  split(text, std::max<std::size_t>(data[0], 1), data[1] % 2 != 0);
  roundTrip(text);
  explainAll(text);
  std::string error;
  if (auto const decoded = fromJson(text, error))
    encode(*decoded);
  if (redacted(text).size() != text.size())
    fuzz::expectEqual("Redaction changed the length\n");
  return 0;
}
