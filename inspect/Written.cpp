#include "inspect/Written.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "ClientUtils.h"
#include "inspect/Format.h"
#include "inspect/Tags.h"
#include "vocabulary/Words.h"

namespace inspect {
namespace {

namespace word = journal::word;
constexpr auto none = Written::none;
constexpr auto npos = std::string_view::npos;

/// What the finder has to know of each element of a log's records.
struct Carried {
  Field const* field = nullptr;
  bool ofCall = false;
  bool escaped = false;
};
using CarriedElements = std::array<Carried, elementSlots>;

CarriedElements carriedBy(Log log) {
  CarriedElements elements;
  auto const add = [&](Fields fields, Rows const& rows, bool ofCall) {
    for (Field const& field : fields)
      if (Row const* const row = findRow(rows, field.element))
        elements[slotOf(*findElement(field.element))] = {&field, ofCall, row->escaped};
  };
  add(entryFieldsOf(log), entryRowsOf(log), false);
  add(callFieldsOf(log), callRowsOf(log), true);
  return elements;
}

CarriedElements const& elementsOf(Log log) {
  static CarriedElements const elements[logs] = {carriedBy(Log::missed), carriedBy(Log::dialled),
                                                 carriedBy(Log::received),
                                                 carriedBy(Log::forwarded)};
  return elements[static_cast<std::size_t>(log)];
}

enum class Visits : std::uint8_t { some, all };

/// Finds them in one pass. Entries and calls are counted. Most tags are passed over by their first
/// letter: only a value with an entity, and the fields that are not read back, can differ. Where an
/// entity is not right behind a begin tag but behind markup in a text, all tags have to be visited.
class Finder {
public:
  Finder(std::string_view message, Log log, bool list, Visits visits)
      : text(message), elements(elementsOf(log)), isList(list), entry(list ? none : 0),
        ampersand(findChar(message, '&', 0)) {
    if (visits == Visits::all)
      letters.fill(true);
    letters[letterOf(word::ENTRY)] = letters[letterOf(word::ITEM)] = true;
    for (Field const& field : callFieldsOf(log))
      if (field.travel == members::Travel::writtenOnly)
        letters[letterOf(field.element)] = true;
  }

  std::vector<Written> run(std::size_t entries) {
    for (auto at = findChar(text, '<', 0); at != npos;) {
      auto const next = findChar(text, '<', at + 1);
      bool const holdsEntity = ampersand < next;
      if (at + 1 < text.size() && (holdsEntity || letters[letterOf(text.substr(at + 1))])) {
        Tag const tag = tagAt(text, at);
        if (tag && !tag.close)
          visit(tag);
        metMarkup = metMarkup || (holdsEntity && findElement(tag.name) == nullptr);
      }
      if (holdsEntity)
        ampersand = next == npos ? npos : findChar(text, '&', next);
      at = next;
    }
    if (entry + 1 != entries)
      found.clear();
    return std::move(found);
  }

  bool hasToVisitAll() const { return metMarkup; }

private:
  static std::size_t letterOf(std::string_view name) {
    return static_cast<unsigned char>(name.front());
  }

  void visit(Tag const& tag) {
    Row const* const row = findElement(tag.name);
    if (row == nullptr)
      return;
    if (row->content == Content::part)
      enter(tag.name);
    else if (tag.name == word::UNIQUEIDTODELETE)
      addRaw(tag, none, nullptr);
    else if (Carried const& carried = elements[slotOf(*row)]; carried.field != nullptr)
      add(tag, carried);
  }

  void enter(std::string_view name) {
    if (name == word::ITEM) {
      ++call;
    } else if (name == word::ENTRY && isList) {
      ++entry;
      call = none;
    }
  }

  void add(Tag const& tag, Carried const& carried) {
    auto const index = carried.ofCall ? call : none;
    if (entry == none || carried.ofCall != (call != none))
      return;
    if (carried.field->travel == members::Travel::writtenOnly)
      addDropped(tag, index, carried);
    else if (carried.field->type == Type::text && !carried.escaped)
      addRaw(tag, index, carried.field);
  }

  void addDropped(Tag const& tag, std::size_t index, Carried const& carried) {
    auto value = valueBehind(tag);
    if (carried.escaped)
      value = ClientUtils::unescapeXMLString(value);
    found.push_back({entry, index, carried.field, std::move(value)});
  }

  /// A raw text changes only where it holds an entity.
  void addRaw(Tag const& tag, std::size_t index, Field const* field) {
    auto value = valueBehind(tag);
    if (ClientUtils::unescapeXMLString(value) != value)
      found.push_back({field == nullptr ? none : entry, index, field, std::move(value)});
  }

  /// The value up to the next tag of the format, if that is the close tag. A raw text may hold
  /// other markup.
  std::string valueBehind(Tag const& begin) const {
    Tag tag = nextTag(text, begin.end);
    while (tag && findElement(tag.name) == nullptr)
      tag = nextTag(text, tag.end);
    if (!tag || !tag.close || tag.name != begin.name)
      return {};
    return std::string(text.substr(begin.end, tag.offset - begin.end));
  }

  std::string_view text;
  CarriedElements const& elements;
  bool isList;
  std::size_t entry;
  std::size_t call = none;
  std::size_t ampersand; ///< the next one
  bool metMarkup = false;
  std::array<bool, 256> letters{};
  std::vector<Written> found;
};

void store(Written const& written, void* record) {
  Field const& field = *written.field;
  if (field.type == Type::text) {
    field.text(record) = written.value;
    return;
  }
  Names const names = namesOf(field.type);
  for (std::size_t number = 0; number < names.size; ++number)
    if (names.first[number] == written.value)
      setNumber(field, record, static_cast<std::int32_t>(number));
}

/// Calls visit(written, record) for each that belongs to a record of the message.
template <class Visit>
void forEachWritten(std::vector<Written> const& all, Message const& message, Visit visit) {
  auto const entries = entriesOf(message);
  auto next = all.begin();
  for (std::size_t entry = 0; entry < entries.size() && next != all.end(); ++entry) {
    auto const visitAll = [&](std::size_t call, void* record) {
      for (; next != all.end() && next->entry == entry && next->call == call; ++next)
        visit(*next, record);
    };
    visitAll(none, entries[entry].record);
    if (next == all.end() || next->entry != entry)
      continue;
    std::size_t number = 0;
    forEachCall(entries[entry], [&](void* call) { visitAll(number++, call); });
    visitAll(none, entries[entry].record);
  }
}

} // namespace

std::vector<Written> writtenIn(std::string_view text, Message const& message) {
  auto const entries = entriesOf(message);
  if (entries.empty())
    return {};
  bool const list = kindOf(message) == Kind::listResponse;
  Finder finder(text, entries[0].log, list, Visits::some);
  auto found = finder.run(entries.size());
  if (finder.hasToVisitAll())
    found = Finder(text, entries[0].log, list, Visits::all).run(entries.size());
  std::vector<Written> different;
  forEachWritten(found, message, [&](Written const& written, void const* record) {
    if (written.value != valueOf(*written.field, record))
      different.push_back(written);
  });
  for (Written const& written : found)
    if (written.field == nullptr)
      different.push_back(written);
  // An entry's own values first, then those of its calls, each in the order of declaration.
  std::stable_sort(different.begin(), different.end(), [](Written const& a, Written const& b) {
    return std::make_tuple(a.entry, a.call + 1, a.field) <
           std::make_tuple(b.entry, b.call + 1, b.field);
  });
  // Where damage repeats an element, the first one counts.
  auto const same = [](Written const& a, Written const& b) {
    return std::tie(a.entry, a.call, a.field) == std::tie(b.entry, b.call, b.field);
  };
  different.erase(std::unique(different.begin(), different.end(), same), different.end());
  return different;
}

void restore(std::vector<Written> const& written, Message& message) {
  forEachWritten(written, message, [](Written const& one, void* record) { store(one, record); });
  if (auto* const notification = std::get_if<EntryNotification>(&message))
    for (Written const& one : written)
      if (one.field == nullptr)
        notification->uniqueIdToDelete = one.value;
}

} // namespace inspect
