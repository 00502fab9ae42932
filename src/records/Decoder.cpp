// Reads records, on two roads that give one result.
//
// The straight road (Forward) takes a text that is exactly what our encoder writes: it reads each
// element where it is expected. The general road (Cursor) takes any text. An entry that is not
// straight to its very end is read again on the general road, which sets every field that the
// straight road may have set.
#include "records/Decoder.h"

#include "records/FieldReader.h"
#include "records/Walks.h"
#include "xml/Cursor.h"
#include "xml/Forward.h"

namespace journal {
namespace {

/// The records of a kind for a reader that does not know their types, so that there is one reader
/// for all kinds.
struct Layout {
  LoopedRows entry;
  LoopedRows detail; // in the order in which they are read
  bool (*takeEntry)(Forward& forward, void* item, FieldReader& reader);
  bool (*takeDetail)(Forward& forward, void* info, FieldReader& reader);
  void* (*addItem)(void* items);
  void (*dropItem)(void* items); // the last one
  void* (*infosOf)(void* item);
  void* (*addInfo)(void* infos);
  void (*clearInfos)(void* infos);
};

JOURNAL_INLINE inline void storeRead(std::string_view raw, Field const& row, void* record,
                                     FieldReader& reader) {
  if (row.reading != Reading::discarded)
    reader.store(raw, row.content(), row.in(record));
}

// ---- The general road

void readFields(LoopedRows rows, Cursor& cursor, void* record, FieldReader& reader) {
  forEach(rows, [&](Field const& row) JOURNAL_INLINE {
    auto const begin = row.element.begin();
    auto const close = row.reading == Reading::unclosed ? begin : row.element.close();
    storeRead(cursor.read(begin, close), row, record, reader);
  });
}

void readInfo(std::string_view text, Layout const& layout, void* info, FieldReader& reader) {
  Cursor cursor(text);
  readFields(layout.detail, cursor, info, reader);
}

void readInfos(std::string_view text, Layout const& layout, void* infos, FieldReader& reader) {
  layout.clearInfos(infos);
  Pieces details(readFirst<word::LOGLIST>(text), element<word::ITEM>);
  while (details.enter()) {
    auto const detail = details.leave();
    if (isMissing(detail))
      return;
    if (!detail.empty())
      readInfo(detail, layout, layout.addInfo(infos), reader);
  }
}

void readItem(std::string_view text, Layout const& layout, void* item, void* infos,
              FieldReader& reader) {
  Cursor cursor(text);
  readFields(layout.entry, cursor, item, reader);
  readInfos(cursor.rest(), layout, infos, reader);
}

// ---- The straight road

template <class Rows>
bool takeFields(Rows rows, Forward& from, void* record, FieldReader& reader) {
  auto forward = from; // of its own, so that it can stay in registers
  auto const store = [&](std::string_view raw, Field const& row) JOURNAL_INLINE {
    // There is no second begin tag here for an unclosed element to be found by.
    storeRead(row.reading == Reading::unclosed ? missing : raw, row, record, reader);
  };
  auto asUsual = false;
  auto const straight = allOf(rows, [&](Field const& row, std::string_view run) JOURNAL_INLINE {
    if (!row.joined)
      asUsual = !run.empty() && forward.take(run);
    std::string_view raw;
    if (asUsual)
      store(row.usualValue(), row);
    else if (forward.take(row.element, raw))
      store(raw, row);
    else
      return false;
    return true;
  });
  from = forward;
  return straight;
}

bool takeInfos(Forward& forward, Layout const& layout, void* infos, FieldReader& reader) {
  if (!forward.take(element<word::LOGLIST>.begin()))
    return false;
  while (forward.take(element<word::ITEM>.begin())) {
    if (forward.take(element<word::ITEM>.close()))
      continue;
    if (!layout.takeDetail(forward, layout.addInfo(infos), reader) ||
        !forward.take(element<word::ITEM>.close()))
      return false;
  }
  return forward.take(element<word::LOGLIST>.close());
}

bool takeItem(Forward& forward, Layout const& layout, void* item, void* infos,
              FieldReader& reader) {
  return layout.takeEntry(forward, item, reader) && takeInfos(forward, layout, infos, reader);
}

// ---- Both

void readInfo(std::string_view text, Layout const& layout, void* info) {
  FieldReader reader;
  Forward forward(text);
  if (!layout.takeDetail(forward, info, reader) || !forward.rest().empty())
    readInfo(text, layout, info, reader);
}

void readInfos(std::string_view text, Layout const& layout, void* infos) {
  FieldReader reader;
  readInfos(text, layout, infos, reader);
}

void readItem(std::string_view text, Layout const& layout, void* item, void* infos) {
  FieldReader reader;
  Forward forward(text);
  if (!takeItem(forward, layout, item, infos, reader) || !forward.rest().empty())
    readItem(text, layout, item, infos, reader);
}

// Whether a NUL ends the text is seen on the way, where a value or what is skipped holds one: to
// look for it first would be a pass over the message of its own.
std::string_view readItems(std::string_view text, Layout const& layout, void* items) {
  FieldReader reader;
  auto unknown = text;
  Pieces entries(text, element<word::ENTRY>);
  for (auto before = entries.rest(); entries.enter(); before = entries.rest()) {
    auto* const item = layout.addItem(items);
    auto* const infos = layout.infosOf(item);
    Forward forward(entries.rest());
    if (takeItem(forward, layout, item, infos, reader) &&
        forward.take(element<word::ENTRY>.close())) {
      auto const skipped = before.substr(0, before.size() - entries.rest().size());
      if (unknown.data() == before.data() && !holds<word::HANDLE>(skipped))
        unknown = forward.rest();
      entries.goOnWith(forward.rest());
      continue;
    }
    auto const entry = entries.leave();
    if (isMissing(entry) || entry.empty())
      layout.dropItem(items);
    else
      readItem(entry, layout, item, infos, reader);
    if (isMissing(entry))
      break;
  }
  return unknown;
}

/// Becomes a record that holds its members' defaults, in the place where it is to stand. Made from
/// nothing, as by emplace_back(), a record would be filled with zeros first, which took up to a
/// tenth of the time of decoding.
template <class Record>
struct Defaults {
  operator Record() const {
    Record record;
    return record;
  }
};

template <class Item>
struct Records {
  using Info = typename Kind<Item>::Info;
  using Items = std::deque<Item>;
  using Infos = std::list<Info>;

  static bool takeEntry(Forward& forward, void* item, FieldReader& reader) {
    return takeFields(rowsOf<Kind<Item>::entry>(), forward, item, reader);
  }
  static bool takeDetail(Forward& forward, void* info, FieldReader& reader) {
    return takeFields(rowsOf<Kind<Item>::detail>(), forward, info, reader);
  }
  static void* addItem(void* items) {
    return &static_cast<Items*>(items)->emplace_back(Defaults<Item>());
  }
  static void dropItem(void* items) { static_cast<Items*>(items)->pop_back(); }
  static void* infosOf(void* item) { return &static_cast<Item*>(item)->callInfoList; }
  static void* addInfo(void* infos) {
    return &static_cast<Infos*>(infos)->emplace_back(Defaults<Info>());
  }
  static void clearInfos(void* infos) { static_cast<Infos*>(infos)->clear(); }

  static constexpr Layout layout = {Kind<Item>::entry, Kind<Item>::detailRead,
                                    takeEntry,         takeDetail,
                                    addItem,           dropItem,
                                    infosOf,           addInfo,
                                    clearInfos};
};

} // namespace

template <class Item>
void readInfo(std::string_view text, typename Kind<Item>::Info& info) {
  readInfo(text, Records<Item>::layout, &info);
}

template <class Item>
bool readInfoList(std::string_view text, std::list<typename Kind<Item>::Info>& list) {
  readInfos(text, Records<Item>::layout, &list);
  return !list.empty();
}

template <class Item>
void readItem(std::string_view text, Item& item) {
  typename Records<Item>::Infos infos;
  readItem(text, Records<Item>::layout, &item, &infos);
  // An entry without a single call leaves the list as it was.
  if (!infos.empty())
    item.callInfoList.swap(infos);
}

template <class Item>
std::string_view readItems(std::string_view text, std::deque<Item>& items) {
  items.clear();
  return readItems(text, Records<Item>::layout, &items);
}

template void readInfo<MissedCallItem>(std::string_view, Kind<MissedCallItem>::Info&);
template bool readInfoList<MissedCallItem>(std::string_view,
                                           std::list<Kind<MissedCallItem>::Info>&);
template void readItem(std::string_view, MissedCallItem&);
template std::string_view readItems(std::string_view, std::deque<MissedCallItem>&);

template void readInfo<DialledCallItem>(std::string_view, Kind<DialledCallItem>::Info&);
template bool readInfoList<DialledCallItem>(std::string_view,
                                            std::list<Kind<DialledCallItem>::Info>&);
template void readItem(std::string_view, DialledCallItem&);
template std::string_view readItems(std::string_view, std::deque<DialledCallItem>&);

template void readInfo<ReceivedCallItem>(std::string_view, Kind<ReceivedCallItem>::Info&);
template bool readInfoList<ReceivedCallItem>(std::string_view,
                                             std::list<Kind<ReceivedCallItem>::Info>&);
template void readItem(std::string_view, ReceivedCallItem&);
template std::string_view readItems(std::string_view, std::deque<ReceivedCallItem>&);

template void readInfo<ForwardedCallItem>(std::string_view, Kind<ForwardedCallItem>::Info&);
template bool readInfoList<ForwardedCallItem>(std::string_view,
                                              std::list<Kind<ForwardedCallItem>::Info>&);
template void readItem(std::string_view, ForwardedCallItem&);
template std::string_view readItems(std::string_view, std::deque<ForwardedCallItem>&);

} // namespace journal
