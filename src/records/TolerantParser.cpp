// The fallback: continues where the strict parser stopped, over text of any kind.
//
// docs/architecture.md has the proof that the result is that of plain searches.
#include "records/TolerantParser.h"

#include <algorithm>

#include "records/PlainSearch.h"

namespace journal {
namespace {

/// Goes to the next tag; returns false at the end of the text or at a NUL. A tag holds "<" only at
/// its front, so the search continues directly behind each one.
JOURNAL_INLINE inline bool findTag(StrictParser& parser, std::string_view& tag) {
  auto const* const end = parser.end();
  for (auto const* at = parser.at();; ++at) {
    at = findByteOrNul(at, end, '<');
    if (at == end || *at != '<')
      return false;
    // No tag is longer, so the search for its ">" takes no longer.
    auto const* const limit = at + std::min<std::ptrdiff_t>(detail::longestTag, end - at);
    auto const* const close = findByteOrNul(at + 1, limit, '>');
    if (close != limit && *close == '>') {
      tag = {at, static_cast<std::size_t>(close + 1 - at)};
      parser.goTo(at);
      return true;
    }
  }
}

bool closes(std::string_view tag) {
  return tag[1] == '/';
}

bool isIn(FieldSet set, std::size_t number) {
  return (set >> number & 1) != 0;
}

/// The tags that bound records, and the one that ends the search for a message's handle.
bool isStructure(std::string_view tag) {
  for (auto const element : {element<word::ITEM>, element<word::LOGLIST>, element<word::ENTRY>})
    if (tag == element.begin() || tag == element.close())
      return true;
  return tag == element<word::HANDLE>.begin();
}

/// A pass over the fields of one record, in any order and among any other text.
class FieldPass {
public:
  FieldPass(StrictParser& parser, RecordFields const& fields, void* record, FieldReader& reader,
            FieldStates const& states)
      : parser_(parser), fields_(fields), record_(record), reader_(reader), states_(states) {}

  /// Reads fields up to the next other tag; returns false at the end of the text or at a NUL.
  bool findOther(std::string_view& tag) {
    while (findTag(parser_, tag)) {
      auto const isClose = closes(tag);
      if (isClose && !isOpen())
        return true;
      auto const number = fields_.index.find(fields_.list, tag, isClose);
      if (number == FieldIndex::none)
        return true;
      parser_.goTo(tag.data() + tag.size());
      if (isClose)
        isNested_ |= isIn(states_.open, number);
      else
        readBegun(number);
    }
    return false;
  }

  /// Whether an element's value holds a "<", or a second begin tag closes an unclosed element. Only
  /// plain searches then tell what the record holds.
  bool isNested() const { return isNested_; }

  /// Whether an element has no close tag so far.
  bool isOpen() const { return states_.open != 0; }
  FieldSet unseen() const { return states_.unseen; }

  /// Ends the record: what was not found is absent.
  void storeAbsent() {
    auto missing = states_.unseen | states_.open;
    for (auto const& field : fields_.list) {
      if (isIn(missing, 0))
        store(absent, field);
      missing >>= 1;
    }
  }

private:
  /// Behind a begin tag: reads the element if it is the field's first.
  void readBegun(std::size_t number) {
    auto const& field = fields_.list.begin()[number];
    if (isIn(states_.unseen, number)) {
      states_.unseen &= ~(FieldSet{1} << number);
      readValue(field, number);
      if (isInOrder(number))
        fields_.parse(parser_, record_, reader_, states_, number + 1);
    } else if (field.reading() == Reading::unclosed) {
      isNested_ = true; // its begin tag closes it
    }
  }

  void readValue(FieldDescriptor const& field, std::size_t number) {
    auto const* const front = parser_.at();
    auto const* const end = findByteOrNul(front, parser_.end(), '<');
    parser_.goTo(end);
    if (field.reading() == Reading::unclosed)
      store(absent, field);
    else if (parser_.takeTag(field.close()))
      store({front, static_cast<std::size_t>(end - front)}, field);
    else
      states_.open |= FieldSet{1} << number;
  }

  /// Whether the strict parser can read on: a tag follows, and only fields before it were seen.
  bool isInOrder(std::size_t number) const {
    return parser_.at() != parser_.end() && *parser_.at() == '<' && !isOpen() &&
           ~states_.unseen >> number == 1;
  }

  void store(std::string_view raw, FieldDescriptor const& field) {
    if (field.reading() != Reading::discarded)
      reader_.store(raw, field, record_);
  }

  StrictParser& parser_;
  RecordFields const& fields_;
  void* record_;
  FieldReader& reader_;
  FieldStates states_;
  bool isNested_ = false;
};

void passOver(StrictParser& parser, std::string_view tag) {
  parser.goTo(tag.data() + 1);
}

/// Whether a tag among the calls changes what an entry's fields or its list of calls hold.
bool isMisplaced(std::string_view tag, RecordOps const& ops, FieldSet entryUnseen) {
  if (isStructure(tag))
    return true;
  auto const number =
      closes(tag) ? FieldIndex::none : ops.entry.index.find(ops.entry.list, tag, false);
  return number != FieldIndex::none && isIn(entryUnseen, number);
}

/// Reads the rest of a call and the Item's close tag.
bool continueCall(char const* front, StrictParser& parser, RecordOps const& ops, void* call,
                  FieldReader& reader, FieldStates const& states, FieldSet entryUnseen) {
  FieldPass pass(parser, ops.call, call, reader, states);
  for (std::string_view tag; pass.findOther(tag); passOver(parser, tag)) {
    if (tag == element<word::ITEM>.close()) {
      if (pass.isNested())
        searchCall({front, static_cast<std::size_t>(tag.data() - front)}, ops, call, reader);
      else
        pass.storeAbsent();
      parser.goTo(tag.data() + tag.size());
      return true;
    }
    if (isMisplaced(tag, ops, entryUnseen))
      return false;
  }
  return false;
}

/// Skips what is between calls, up to the next Item or the end of the LogList.
bool skipToItem(StrictParser& parser, RecordOps const& ops, FieldSet entryUnseen) {
  for (std::string_view tag; findTag(parser, tag); passOver(parser, tag)) {
    if (tag == element<word::ITEM>.begin() || tag == element<word::LOGLIST>.close())
      return true;
    if (isMisplaced(tag, ops, entryUnseen))
      return false;
  }
  return false;
}

bool parseItem(StrictParser& parser, RecordOps const& ops, void* call, FieldReader& reader,
               FieldSet entryUnseen) {
  auto const* const front = parser.at();
  FieldStates states;
  auto const startsWithTag = !parser.rest().empty() && *front == '<';
  if (startsWithTag && ops.call.parse(parser, call, reader, states, 0) &&
      parser.take(element<word::ITEM>.close()))
    return true;
  return continueCall(front, parser, ops, call, reader, states, entryUnseen);
}

} // namespace

bool parseCall(StrictParser& parser, RecordOps const& ops, void* call, FieldReader& reader) {
  FieldStates states;
  if (ops.call.parse(parser, call, reader, states, 0) && parser.rest().empty())
    return true;
  FieldPass pass(parser, ops.call, call, reader, states);
  for (std::string_view tag; pass.findOther(tag);)
    passOver(parser, tag);
  if (pass.isNested())
    return false;
  pass.storeAbsent();
  return true;
}

bool parseCalls(StrictParser& parser, RecordOps const& ops, void* calls, FieldReader& reader,
                FieldSet entryUnseen) {
  for (;;) {
    while (parser.take(element<word::ITEM>.begin()))
      if (!parser.take(element<word::ITEM>.close()) &&
          !parseItem(parser, ops, ops.appendCall(calls), reader, entryUnseen))
        return false;
    if (parser.take(element<word::LOGLIST>.close()))
      return true;
    if (!skipToItem(parser, ops, entryUnseen))
      return false;
  }
}

namespace {

bool takeEnding(StrictParser& parser, Ending ending) {
  return ending == Ending::text ? parser.rest().empty() : parser.take(element<word::ENTRY>.close());
}

/// Reads the rest of an entry, from the first tag that the strict parser did not expect.
bool continueEntry(StrictParser& parser, RecordOps const& ops, void* entry, void* calls,
                   FieldReader& reader, FieldStates const& states, bool hasCalls, Ending ending) {
  FieldPass pass(parser, ops.entry, entry, reader, states);
  for (std::string_view tag; pass.findOther(tag);) {
    if (tag == element<word::LOGLIST>.begin() && !hasCalls) {
      parser.goTo(tag.data() + tag.size());
      if (pass.isOpen() || !parseCalls(parser, ops, calls, reader, pass.unseen()))
        return false;
      hasCalls = true;
    } else if (ending == Ending::text) {
      passOver(parser, tag); // tags of other entries bound nothing
    } else if (tag == element<word::ENTRY>.close()) {
      break;
    } else if (isStructure(tag)) {
      return false;
    } else {
      passOver(parser, tag);
    }
  }
  if (pass.isNested() || !takeEnding(parser, ending))
    return false;
  pass.storeAbsent();
  return true;
}

} // namespace

bool parseEntry(StrictParser& parser, RecordOps const& ops, void* entry, void* calls,
                FieldReader& reader, Ending ending) {
  auto const* const front = parser.at();
  FieldStates states;
  auto const hasCalls = ops.entry.parse(parser, entry, reader, states, 0) &&
                        parser.take(element<word::LOGLIST>.begin());
  if (hasCalls && !parseCalls(parser, ops, calls, reader, states.unseen))
    return false;
  if (ending == Ending::tag && parser.at() == front && takeEnding(parser, ending))
    return false; // empty, which is no entry
  return (hasCalls && takeEnding(parser, ending)) ||
         continueEntry(parser, ops, entry, calls, reader, states, hasCalls, ending);
}

} // namespace journal
