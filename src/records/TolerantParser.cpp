// The fallback: continues where the strict parser stopped, over text of any kind.
//
// docs/architecture.md has the proof that the result is that of plain searches.
#include "records/TolerantParser.h"

#include <algorithm>

#include "records/PlainSearch.h"

namespace journal {
namespace {

/// Goes to the next tag; returns false at the end of the text or at a NUL. A tag holds "<" only at
/// its front, so the search continues right behind each one.
bool findTag(StrictParser& parser, std::string_view& tag) {
  constexpr std::ptrdiff_t longest = 32; // no tag is longer, and a search for ">" takes no longer
  for (auto const* at = parser.at();; ++at) {
    at = findByteOrNul(at, parser.end(), '<');
    parser.goTo(at);
    if (at == parser.end() || *at == '\0')
      return false;
    auto const* const limit = at + std::min(longest, parser.end() - at);
    auto const* const close = findByteOrNul(at + 1, limit, '>');
    if (close != limit && *close == '>') {
      tag = {at, static_cast<std::size_t>(close + 1 - at)};
      return true;
    }
  }
}

bool closes(std::string_view tag) {
  return tag[1] == '/';
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
  FieldPass(StrictParser& parser, LoopedFields fields, void* record, FieldReader& reader,
            FieldStates const& states)
      : parser_(parser), fields_(fields), record_(record), reader_(reader), states_(states),
        next_(fields.begin()) {}

  /// Reads fields up to the next other tag; returns false at the end of the text or at a NUL.
  bool findOther(std::string_view& tag) {
    while (findTag(parser_, tag)) {
      auto const* const field = fieldOf(tag);
      if (field == nullptr)
        return true;
      read(tag, *field, FieldSet{1} << (field - fields_.begin()));
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
    for (auto const& field : fields_)
      if (auto const bit = FieldSet{1} << (&field - fields_.begin());
          ((states_.unseen | states_.open) & bit) != 0)
        store(absent, field);
  }

  /// Whether a tag begins a field that is in a set.
  static bool begins(std::string_view tag, LoopedFields fields, FieldSet set) {
    for (auto const& field : fields)
      if (((set >> (&field - fields.begin())) & 1) != 0 && tag == field.begin())
        return true;
    return false;
  }

private:
  /// The field that a tag belongs to, if any. Most tags are in order, so the search starts behind
  /// the field found last.
  FieldDescriptor const* fieldOf(std::string_view tag) {
    for (auto left = fields_.end() - fields_.begin(); left > 0; --left) {
      if (next_ == fields_.end())
        next_ = fields_.begin();
      auto const& field = *next_++;
      auto const own = closes(tag) ? field.close() : field.begin();
      if (own.size() == tag.size() && sameBytes(own.data(), tag.data(), tag.size()))
        return &field;
    }
    return nullptr;
  }

  /// Reads an element whose begin tag is new; passes over every other tag of a field.
  void read(std::string_view tag, FieldDescriptor const& field, FieldSet bit) {
    parser_.goTo(tag.data() + tag.size());
    auto const isNew = (states_.unseen & bit) != 0;
    if (closes(tag)) {
      isNested_ |= (states_.open & bit) != 0;
    } else if (field.reading() == Reading::unclosed) {
      isNested_ |= !isNew; // its begin tag closes it
      store(absent, field);
      states_.unseen &= ~bit;
    } else if (isNew) {
      states_.unseen &= ~bit;
      readValue(field, bit);
    }
  }

  void readValue(FieldDescriptor const& field, FieldSet bit) {
    auto const* const front = parser_.at();
    auto const* const end = findByteOrNul(front, parser_.end(), '<');
    parser_.goTo(end);
    if (parser_.take(field.close()))
      store({front, static_cast<std::size_t>(end - front)}, field);
    else
      states_.open |= bit;
  }

  void store(std::string_view raw, FieldDescriptor const& field) {
    if (field.reading() != Reading::discarded)
      reader_.store(raw, field, record_);
  }

  StrictParser& parser_;
  LoopedFields fields_;
  void* record_;
  FieldReader& reader_;
  FieldStates states_;
  FieldDescriptor const* next_;
  bool isNested_ = false;
};

void passOver(StrictParser& parser, std::string_view tag) {
  parser.goTo(tag.data() + 1);
}

/// Whether a tag among the calls changes what an entry's fields or its list of calls hold.
bool isMisplaced(std::string_view tag, RecordOps const& ops, FieldSet entryUnseen) {
  return isStructure(tag) || FieldPass::begins(tag, ops.entryFields, entryUnseen);
}

/// Reads the rest of a call and the Item's close tag.
bool continueCall(char const* front, StrictParser& parser, RecordOps const& ops, void* call,
                  FieldReader& reader, FieldStates const& states, FieldSet entryUnseen) {
  FieldPass pass(parser, ops.callFields, call, reader, states);
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
  if (ops.parseCallFields(parser, call, reader, states) && parser.take(element<word::ITEM>.close()))
    return true;
  return continueCall(front, parser, ops, call, reader, states, entryUnseen);
}

} // namespace

bool parseCall(StrictParser& parser, RecordOps const& ops, void* call, FieldReader& reader) {
  FieldStates states;
  if (ops.parseCallFields(parser, call, reader, states) && parser.rest().empty())
    return true;
  FieldPass pass(parser, ops.callFields, call, reader, states);
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

/// A message that is read as one entry may hold others, and more elements behind them.
bool isStructure(std::string_view tag, Ending ending) {
  return ending == Ending::text
             ? tag == element<word::LOGLIST>.begin() || tag == element<word::LOGLIST>.close()
             : isStructure(tag);
}

/// Reads the rest of an entry, from the first tag that the strict parser did not expect.
bool continueEntry(StrictParser& parser, RecordOps const& ops, void* entry, void* calls,
                   FieldReader& reader, FieldStates const& states, bool hasCalls, Ending ending) {
  FieldPass pass(parser, ops.entryFields, entry, reader, states);
  for (std::string_view tag; pass.findOther(tag);) {
    if (tag == element<word::LOGLIST>.begin() && !hasCalls && !pass.isOpen()) {
      parser.goTo(tag.data() + tag.size());
      if (!parseCalls(parser, ops, calls, reader, pass.unseen()))
        return false;
      hasCalls = true;
    } else if (ending == Ending::tag && tag == element<word::ENTRY>.close()) {
      break;
    } else if (isStructure(tag, ending)) {
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
  auto const hasCalls = ops.parseEntryFields(parser, entry, reader, states) &&
                        parser.take(element<word::LOGLIST>.begin());
  if (hasCalls && !parseCalls(parser, ops, calls, reader, states.unseen))
    return false;
  if (ending == Ending::tag && parser.at() == front && takeEnding(parser, ending))
    return false; // empty, which is no entry
  return (hasCalls && takeEnding(parser, ending)) ||
         continueEntry(parser, ops, entry, calls, reader, states, hasCalls, ending);
}

} // namespace journal
