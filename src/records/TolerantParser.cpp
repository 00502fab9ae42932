// The fallback: continues where the strict parser stopped, over text of any kind.
//
// docs/architecture.md has the proof that the result is that of plain searches.
#include "records/TolerantParser.h"

#include <algorithm>

#include "records/PlainSearch.h"

namespace journal {
namespace {

/// Goes to the next "<"; returns false at the end of the text or at a NUL.
bool goToTag(StrictParser& parser) {
  parser.goTo(findByteOrNul(parser.at(), parser.end(), '<'));
  return parser.at() != parser.end() && *parser.at() == '<';
}

/// The tag that starts here; empty when there is none.
std::string_view tagAt(StrictParser const& parser) {
  auto const* const at = parser.at();
  // No tag is longer, so the search for its ">" takes no longer.
  auto const* const limit = at + std::min<std::ptrdiff_t>(detail::longestTag, parser.end() - at);
  auto const* const close = findByteOrNul(at + 1, limit, '>');
  if (close == limit || *close != '>')
    return {};
  return {at, static_cast<std::size_t>(close + 1 - at)};
}

/// Goes to the next tag; returns false at the end of the text or at a NUL. A tag holds "<" only at
/// its front, so the search continues directly behind each one.
bool findTag(StrictParser& parser, std::string_view& tag) {
  for (; goToTag(parser); parser.goTo(parser.at() + 1)) {
    tag = tagAt(parser);
    if (!tag.empty())
      return true;
  }
  return false;
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
      parser_.goTo(tag.data() + tag.size());
      if (closes(tag))
        isNested_ |= (states_.open & bitOf(*field)) != 0;
      else
        readBegun(*field);
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
      if (((states_.unseen | states_.open) & bitOf(field)) != 0)
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
  FieldSet bitOf(FieldDescriptor const& field) const {
    return FieldSet{1} << (&field - fields_.begin());
  }

  /// The field that a tag belongs to, if any. Most tags are in order, so the search starts behind
  /// the field found last.
  FieldDescriptor const* fieldOf(std::string_view tag) {
    auto const isClose = closes(tag);
    auto const nameSize = tag.size() - (isClose ? 3 : 2);
    for (auto left = fields_.end() - fields_.begin(); left > 0; --left) {
      if (next_ == fields_.end())
        next_ = fields_.begin();
      auto const& field = *next_++;
      if (field.nameSize() == nameSize && tag == (isClose ? field.close() : field.begin()))
        return &field;
    }
    return nullptr;
  }

  /// Behind a begin tag: reads the element if it is the field's first.
  void readBegun(FieldDescriptor const& field) {
    auto const bit = bitOf(field);
    auto const isNew = (states_.unseen & bit) != 0;
    states_.unseen &= ~bit;
    if (field.reading() == Reading::unclosed) {
      isNested_ |= !isNew; // its begin tag closes it
      store(absent, field);
    } else if (isNew) {
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

/// Reads the rest of an entry, from the first tag that the strict parser did not expect.
bool continueEntry(StrictParser& parser, RecordOps const& ops, void* entry, void* calls,
                   FieldReader& reader, FieldStates const& states, bool hasCalls, Ending ending) {
  FieldPass pass(parser, ops.entryFields, entry, reader, states);
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
