// The fast path: one forward pass over text exactly as our encoder writes it.
#include "records/StrictParser.h"

#include "records/RecordOps.h"

namespace journal {
namespace {

bool parseCalls(StrictParser& parser, RecordOps const& ops, void* calls, FieldReader& reader) {
  if (!parser.take(element<word::LOGLIST>.begin()))
    return false;
  while (parser.take(element<word::ITEM>.begin())) {
    if (parser.take(element<word::ITEM>.close()))
      continue;
    if (!ops.parseCall(parser, ops.appendCall(calls), reader) ||
        !parser.take(element<word::ITEM>.close()))
      return false;
  }
  return parser.take(element<word::LOGLIST>.close());
}

} // namespace

bool parseEntry(StrictParser& parser, RecordOps const& ops, void* entry, void* calls,
                FieldReader& reader) {
  return ops.parseEntryFields(parser, entry, reader) && parseCalls(parser, ops, calls, reader);
}

} // namespace journal
