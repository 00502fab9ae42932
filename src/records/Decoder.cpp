// Reads records: a strict fast path with a general fallback; both give the same result.
//
// The strict parser accepts text exactly as our encoder writes it; the tolerant parser continues
// over any other. Where neither can tell the result, plain searches read the record again. They set
// every field that a parser may have set.
#include "records/Decoder.h"

#include "records/PlainSearch.h"
#include "records/RecordOps.h"
#include "records/StrictParser.h"
#include "records/TolerantParser.h"
#include "xml/Cursor.h"
#include "xml/ElementIterator.h"

namespace journal {
namespace {

bool holdsHandle(std::string_view text) {
  return text.find(element<word::HANDLE>.begin()) != std::string_view::npos;
}

/// Reads every entry; the log is cleared first. The text ends at its first NUL, and the readers
/// stop there. Searching for the NUL first would take another pass over the message.
/// @return the part of the text in which the first Handle can be: without the front that is known
///         to hold none, and not cut at the NUL yet
std::string_view decodeEntries(std::string_view text, RecordOps const& ops, void* log) {
  ops.clearLog(log);
  FieldReader reader;
  auto unsearched = text;
  ElementIterator entries(text, element<word::ENTRY>);
  for (auto before = entries.rest(); entries.enter(); before = entries.rest()) {
    auto* const entry = ops.appendEntry(log);
    auto* const calls = ops.callsOf(entry);
    StrictParser parser(entries.rest());
    if (parseEntry(parser, ops, entry, calls, reader, Ending::tag)) {
      auto const skipped = before.substr(0, before.size() - entries.rest().size());
      if (unsearched.data() == before.data() && !holdsHandle(skipped))
        unsearched = parser.rest();
      entries.continueAt(parser.rest());
      continue;
    }
    auto const content = entries.leave();
    if (isAbsent(content) || content.empty())
      ops.dropLastEntry(log);
    else
      searchEntry(content, ops, entry, calls, reader);
    if (isAbsent(content))
      break;
  }
  return unsearched;
}

} // namespace

bool erased::decodeCall(LogKind kind, char const* text, void* call) {
  auto const& ops = opsOf(kind);
  auto const view = viewOf(text);
  FieldReader reader;
  StrictParser parser(view);
  if (!parseCall(parser, ops, call, reader))
    searchCall(view, ops, call, reader);
  return true;
}

bool erased::decodeCalls(LogKind kind, char const* text, void* calls) {
  auto const& ops = opsOf(kind);
  FieldReader reader;
  searchCalls(viewOf(text), ops, calls, reader);
  return !ops.isEmpty(calls);
}

void erased::decodeEntry(LogKind kind, char const* text, void* entry, void* calls) {
  auto const& ops = opsOf(kind);
  auto const view = viewOf(text);
  FieldReader reader;
  StrictParser parser(view);
  if (!parseEntry(parser, ops, entry, calls, reader, Ending::text))
    searchEntry(view, ops, entry, calls, reader);
}

bool erased::decodeLog(LogKind kind, std::string const& text, void* log) {
  decodeEntries(text, opsOf(kind), log);
  return true;
}

bool erased::decodeLog(LogKind kind, std::string const& text, void* log, unsigned int& handle) {
  auto unsearched = decodeEntries(text, opsOf(kind), log);
  unsearched = unsearched.substr(0, unsearched.find('\0'));
  handle = static_cast<unsigned int>(
      numberAtFrontOf(unescaped(readFirst(unsearched, element<word::HANDLE>))));
  return true;
}

} // namespace journal
