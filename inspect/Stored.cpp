// Values come from the decoded message. A piece is matched with a record by its place, and taken
// for the one that was stored if it reads as the value that the record holds.
#include "inspect/Stored.h"

#include <algorithm>

#include "ClientUtils.h"
#include "inspect/Format.h"
#include "vocabulary/Words.h"

namespace inspect {
namespace {

using Api = JournalServiceHelper;
namespace word = journal::word;
using Form = Piece::Form;

bool isEmptyPart(std::string_view text, Piece const& part) {
  return text.compare(part.offset + part.size, 2, "</") == 0 &&
         text.compare(part.offset + part.size + 2, part.element.size(), part.element) == 0;
}

/// Walks over the pieces and tells to which entry and call each belongs.
class Places {
public:
  Places(std::string_view text, bool list, std::vector<RecordView> entries)
      : text_(text), list_(list), entries_(std::move(entries)) {
    if (!list_)
      enterEntry();
  }

  void visit(Piece const& piece) {
    if (piece.form == Form::part)
      begin(piece);
  }
  /// After the piece's own record was asked for.
  void leave(Piece const& piece) {
    if (piece.form != Form::closeTag && (piece.form != Form::end || !piece.closed))
      return;
    if (piece.element == word::ITEM)
      call_ = nullptr;
    else if (piece.element == word::LOGLIST)
      logList_ = false;
    else if (piece.element == word::ENTRY && list_)
      entry_ = call_ = nullptr;
  }

  /// Parts are judged by their own kind of record, even where damage puts them into another.
  void* ownerOf(Piece const& piece) const {
    if (piece.element == word::ITEM || (call_ != nullptr && piece.element != word::ENTRY))
      return call_;
    return entry_;
  }
  void* entry() const { return entry_; }
  void* call() const { return call_; }
  bool isReliable() const { return !list_ || counted_ >= entries_.size(); }

private:
  void begin(Piece const& piece) {
    bool const usable = piece.reachesClose && !isEmptyPart(text_, piece);
    if (piece.element == word::ENTRY && list_ && entry_ == nullptr && usable) {
      enterEntry();
    } else if (piece.element == word::LOGLIST && !anyLogList_ && entry_ != nullptr) {
      anyLogList_ = logList_ = true;
    } else if (piece.element == word::ITEM && logList_ && call_ == nullptr && usable) {
      call_ = nextCall_ < calls_.size() ? calls_[nextCall_] : nullptr;
      ++nextCall_;
    }
  }

  void enterEntry() {
    calls_.clear();
    nextCall_ = 0;
    anyLogList_ = logList_ = false;
    if (counted_ < entries_.size()) {
      entry_ = entries_[counted_].record;
      forEachCall(entries_[counted_], [&](void* call) { calls_.push_back(call); });
    }
    ++counted_;
  }

  std::string_view text_;
  bool list_;
  std::vector<RecordView> entries_;
  std::size_t counted_ = 0;
  std::vector<void*> calls_;
  std::size_t nextCall_ = 0;
  bool anyLogList_ = false;
  bool logList_ = false;
  void* entry_ = nullptr;
  void* call_ = nullptr;
};

/// What a value reads as, by the library's own conversions.
std::string readAs(Content content, std::string_view raw) {
  std::string const text = ClientUtils::unescapeXMLString(std::string(raw));
  switch (content) {
  case Content::flag:
    return std::string(raw == word::TRUE ? word::TRUE : word::FALSE);
  case Content::numberType:
    return Api::convertNumberType(Api::convertNumberType(text));
  case Content::timeFormat:
    return Api::convertTimeFormat(Api::convertTimeFormat(text));
  case Content::presentation:
    return Api::convertPresentationValue(Api::convertPresentationValue(text));
  case Content::targetLog:
    return Api::convertTargetLog(Api::convertTargetLog(text));
  case Content::number: {
    static std::string const name(word::HANDLE);
    unsigned number = 0;
    Api::getXMLValue(Api::createXMLField(name, text), name, number);
    return std::to_string(number);
  }
  default:
    return text;
  }
}

Field const* fieldOf(Fields fields, std::string_view element) {
  for (Field const& field : fields)
    if (field.element == element)
      return &field;
  return nullptr;
}

/// A piece that can have given a field its value.
struct Candidate {
  void* record;
  Field const* field;
  std::size_t piece;

  bool isWith(Candidate const& other) const {
    return record == other.record && field == other.field;
  }
};

class Storing {
public:
  Storing(std::vector<Piece>& all, std::string const& message, Identity const& sort,
          Decoded const& result)
      : pieces(all), text(message), identity(sort), decoded(result), nul(message.find('\0')) {}

  std::vector<void*> run() {
    std::vector<void*> owners(pieces.size());
    auto const entries = entriesOf(decoded.message);
    noteHidden();
    if (!entries.empty()) {
      addCandidates(owners, entries);
      settleRecords(entries[0].log);
    }
    std::visit([this](auto const& message) { settle(message); }, decoded.message);
    return owners;
  }

private:
  bool isHidden(Piece const& piece) const { return piece.offset > nul; }
  static bool isValue(Piece const& piece) {
    return piece.form == Form::leaf || piece.form == Form::beginTag;
  }

  /// Readers of records and of the setting stop at a NUL; those of single elements do not.
  void noteHidden() {
    bool const notification = identity.kind == Kind::entryNotification;
    bool const records = notification || identity.kind == Kind::listResponse ||
                         identity.kind == Kind::lastDialled || identity.kind == Kind::entry ||
                         identity.kind == Kind::setting;
    for (Piece& piece : pieces)
      if (records && isValue(piece) && isHidden(piece) &&
          (!notification || fits(*identity.log, piece.element)))
        piece.reasons.push_back(RuleId::afterNul);
  }

  void addCandidates(std::vector<void*>& owners, std::vector<RecordView> const& entries) {
    bool const list = identity.kind == Kind::listResponse;
    auto const entryFields = entryFieldsOf(entries[0].log);
    auto const callFields = callFieldsOf(entries[0].log);
    Places places(text, list, entries);
    for (std::size_t at = 0; at < pieces.size(); ++at) {
      Piece& piece = pieces[at];
      places.visit(piece);
      owners[at] = places.ownerOf(piece);
      bool const value = isValue(piece) && !isHidden(piece);
      if (auto const* field = fieldOf(callFields, piece.element);
          value && field != nullptr && places.call() != nullptr)
        candidates.push_back({places.call(), field, at});
      else if (auto const* own = fieldOf(entryFields, piece.element);
               value && own != nullptr && places.entry() != nullptr)
        candidates.push_back({places.entry(), own, at});
      places.leave(piece);
    }
    if (!places.isReliable())
      candidates.clear();
  }

  void settleRecords(Log log) {
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](Candidate const& left, Candidate const& right) {
                       return left.record != right.record ? left.record < right.record
                                                          : left.field < right.field;
                     });
    for (auto first = candidates.begin(); first != candidates.end();) {
      auto const last = std::find_if(first, candidates.end(),
                                     [&](Candidate const& other) { return !other.isWith(*first); });
      settleField(*findElement(first->field->element, log), first, last);
      first = last;
    }
  }

  using Candidates = std::vector<Candidate>::iterator;

  void settleField(Row const& row, Candidates first, Candidates last) {
    auto const stored = valueOf(*first->field, first->record);
    std::vector<std::size_t> group;
    for (auto at = first; at != last; ++at)
      group.push_back(at->piece);
    settleGroup(row, group, stored);
  }

  /// @param group the pieces that carry one value, in wire order
  void settleGroup(Row const& row, std::vector<std::size_t> const& group,
                   std::string const& stored) {
    if (row.treatment != Treatment::kept) {
      for (auto const at : group)
        pieces[at].reasons.push_back(row.treatment == Treatment::discarded ? RuleId::notKept
                                                                           : RuleId::beginAsClose);
      pieces[group[0]].stored = stored;
      return;
    }
    auto const taken = std::find_if(group.begin(), group.end(), [&](std::size_t at) {
      return pieces[at].form == Form::leaf && readAs(row.content, pieces[at].raw) == stored;
    });
    bool const found = taken != group.end();
    auto const chosen = found ? *taken : group[0];
    for (auto const at : group)
      if (at != chosen && pieces[at].form == Form::leaf)
        pieces[at].reasons.push_back(found && at < chosen ? RuleId::passedOver : RuleId::repeated);
    pieces[chosen].stored = stored;
    if (!found && pieces[chosen].form == Form::leaf)
      pieces[chosen].reasons.push_back(RuleId::otherValue);
    else
      addDifference(pieces[chosen], row);
  }

  /// Why the stored value is not the text itself, though it was read from it.
  static void addDifference(Piece& piece, Row const& row) {
    if (piece.form != Form::leaf || piece.raw.empty() || *piece.stored == piece.raw)
      return;
    if (row.content == Content::text)
      piece.reasons.push_back(row.escaped ? RuleId::escaped : RuleId::entity);
    else if (row.content == Content::number && piece.raw.front() == '-')
      piece.reasons.push_back(RuleId::signedNumber);
  }

  // ---- Elements of the message itself

  std::vector<std::size_t> named(std::string_view element) const {
    std::vector<std::size_t> found;
    for (std::size_t at = 0; at < pieces.size(); ++at) {
      auto const form = pieces[at].form;
      bool const value = form == Form::leaf || form == Form::beginTag || form == Form::closeTag;
      if (value && pieces[at].element == element)
        found.push_back(at);
    }
    return found;
  }

  /// @param present whether readers find a value
  void settle(std::string_view element, Content content, std::string const& stored, bool present) {
    auto const group = named(element);
    if (group.empty())
      return;
    if (pieces[group[0]].form != Form::closeTag)
      return settleGroup({element, content}, group, stored);
    if (present) {
      pieces[group[0]].stored = stored;
      pieces[group[0]].reasons.push_back(RuleId::firstClose);
      return;
    }
    for (auto const at : group)
      if (pieces[at].form == Form::leaf)
        pieces[at].reasons.push_back(RuleId::hiddenByClose);
  }

  void settleIds(std::vector<std::string> const& ids) {
    std::size_t next = 0;
    for (auto const at : named(word::ENTRYID)) {
      Piece& piece = pieces[at];
      if (piece.form != Form::leaf)
        continue;
      if (next >= ids.size()) {
        piece.reasons.push_back(RuleId::blocked);
        continue;
      }
      piece.stored = ids[next++];
      addDifference(piece, {piece.element, Content::text});
    }
  }

  void settle(Unknown const&) {}
  void settle(BareEntry const&) {}
  void settle(LastDialled const&) {}
  void settle(Request const& message) { settleIds(message.entryIds); }
  /// Readers of a list search for the close tag behind the begin tag, so a stray one in front
  /// does no harm.
  void settle(ListResponse const& message) {
    auto group = named(word::HANDLE);
    group.erase(std::remove_if(group.begin(), group.end(),
                               [&](auto at) { return pieces[at].form == Form::closeTag; }),
                group.end());
    if (!group.empty())
      settleGroup({word::HANDLE, Content::number}, group, std::to_string(message.handle));
  }
  void settle(EntryNotification const& message) {
    settle(word::UNIQUEIDTODELETE, Content::text, message.uniqueIdToDelete,
           !message.uniqueIdToDelete.empty());
    if (message.action)
      settle(word::ACTIONTYPE, Content::number, std::to_string(*message.action), true);
    settle(word::HANDLE, Content::number, std::to_string(message.handle), message.handle != 0);
  }
  void settle(CounterNotification const& message) {
    settle(word::VALUE, Content::number, std::to_string(message.value), message.value != 0);
  }
  void settle(StoreRequest const& message) {
    settle(word::REASONFORMESSAGE, Content::text, message.reason, !message.reason.empty());
  }
  void settle(Outcome const& message) {
    settleIds(message.entryIds);
    for (auto const at : named(word::VALUE))
      pieces[at].stored = Api::respBool(message.ok);
  }
  void settle(Setting const& message) {
    for (auto const at : named(word::CALL_LOG_ENABLED))
      if (pieces[at].form == Form::leaf && !isHidden(pieces[at])) {
        pieces[at].stored = message.enabled ? "enabled" : "disabled";
        return;
      }
  }

  std::vector<Piece>& pieces;
  std::string const& text;
  Identity const& identity;
  Decoded const& decoded;
  std::size_t nul;
  std::vector<Candidate> candidates;
};

} // namespace

std::vector<void*> addStored(std::vector<Piece>& pieces, std::string const& text,
                             Identity const& identity, Decoded const& decoded) {
  return Storing(pieces, text, identity, decoded).run();
}

} // namespace inspect
