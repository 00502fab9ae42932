// Reads records, on two roads that give one result.
//
// The straight road (Forward) takes a text that is exactly what our encoder writes: it reads each
// element where it is expected. The general road (Cursor) takes any text. An entry that is not
// straight to its very end is read again on the general road, which sets every field that the
// straight road may have set; the entry's list is replaced by neither unless the whole entry is
// read.
#include "records/Decoder.h"

#include "records/FieldReader.h"
#include "xml/Cursor.h"
#include "xml/Forward.h"

namespace journal {
namespace {

template <class Item>
using InfoList = std::list<typename Kind<Item>::Info>;

template <class Record>
JOURNAL_INLINE inline void storeRead(std::string_view raw, Field<Record> const& row, Record& record,
                                     FieldReader& reader) {
  if (row.reading != Reading::discarded)
    reader.store(raw, row.content, row.in(record));
}

// An entry without a single call leaves the list as it was.
template <class Item>
void replaceList(Item& item, InfoList<Item>& list) {
  if (!list.empty())
    item.callInfoList = std::move(list);
}

// ---- The general road

template <auto const& rows, class Record>
void readFields(Cursor& cursor, Record& record, FieldReader& reader) {
  visitRows<rows, false>([&](Field<Record> const& row, std::size_t) JOURNAL_INLINE {
    auto const close = row.reading == Reading::unclosed ? row.element.begin : row.element.close;
    storeRead(cursor.read(row.element.begin, close), row, record, reader);
    return true;
  });
}

template <class Item>
void readInfo(std::string_view text, typename Kind<Item>::Info& info, FieldReader& reader) {
  Cursor cursor(text);
  readFields<Kind<Item>::detailRead>(cursor, info, reader);
}

template <class Item>
void readInfoList(std::string_view text, InfoList<Item>& list, FieldReader& reader) {
  list.clear();
  Pieces details(readFirst<word::LOGLIST>(text), element<word::ITEM>);
  while (details.enter()) {
    auto const detail = details.leave();
    if (isMissing(detail))
      return;
    if (!detail.empty())
      readInfo<Item>(detail, list.emplace_back(), reader);
  }
}

template <class Item>
void readItem(std::string_view text, Item& item, FieldReader& reader) {
  Cursor cursor(text);
  readFields<Kind<Item>::entry>(cursor, item, reader);
  InfoList<Item> list;
  readInfoList<Item>(cursor.rest(), list, reader);
  replaceList(item, list);
}

// ---- The straight road

template <auto const& rows, class Record>
bool takeFields(Forward& from, Record& record, FieldReader& reader) {
  auto forward = from; // of its own, so that it can stay in registers
  auto const straight = visitRows<rows>([&](Field<Record> const& row, std::size_t) JOURNAL_INLINE {
    std::string_view raw;
    if (!forward.take(row.element, row.usual, raw))
      return false;
    // There is no second begin tag here for an unclosed element to be found by.
    storeRead(row.reading == Reading::unclosed ? missing : raw, row, record, reader);
    return true;
  });
  from = forward;
  return straight;
}

template <class Item>
bool takeInfoList(Forward& forward, InfoList<Item>& list, FieldReader& reader) {
  if (!forward.take(element<word::LOGLIST>.begin))
    return false;
  while (forward.take(element<word::ITEM>.begin)) {
    if (forward.take(element<word::ITEM>.close))
      continue;
    if (!takeFields<Kind<Item>::detail>(forward, list.emplace_back(), reader) ||
        !forward.take(element<word::ITEM>.close))
      return false;
  }
  return forward.take(element<word::LOGLIST>.close);
}

template <class Item>
bool takeItem(Forward& forward, Item& item, InfoList<Item>& list, FieldReader& reader) {
  return takeFields<Kind<Item>::entry>(forward, item, reader) &&
         takeInfoList<Item>(forward, list, reader);
}

// ---- Both

} // namespace

template <class Item>
void readInfo(std::string_view text, typename Kind<Item>::Info& info) {
  FieldReader reader;
  Forward forward(text);
  if (!takeFields<Kind<Item>::detail>(forward, info, reader) || !forward.rest().empty())
    readInfo<Item>(text, info, reader);
}

template <class Item>
bool readInfoList(std::string_view text, std::list<typename Kind<Item>::Info>& list) {
  FieldReader reader;
  readInfoList<Item>(text, list, reader);
  return !list.empty();
}

template <class Item>
void readItem(std::string_view text, Item& item) {
  FieldReader reader;
  Forward forward(text);
  InfoList<Item> list;
  if (takeItem(forward, item, list, reader) && forward.rest().empty())
    replaceList(item, list);
  else
    readItem(text, item, reader);
}

template <class Item>
std::string_view readItems(std::string_view text, std::deque<Item>& items) {
  items.clear();
  FieldReader reader;
  auto unknown = text;
  Pieces entries(text, element<word::ENTRY>);
  for (auto before = entries.rest(); entries.enter(); before = entries.rest()) {
    auto& item = items.emplace_back();
    Forward forward(entries.rest());
    InfoList<Item> list;
    if (takeItem(forward, item, list, reader) && forward.take(element<word::ENTRY>.close)) {
      replaceList(item, list);
      auto const skipped = before.substr(0, before.size() - entries.rest().size());
      if (unknown.data() == before.data() && !holds<word::HANDLE>(skipped))
        unknown = forward.rest();
      entries.goOnWith(forward.rest());
      continue;
    }
    auto const entry = entries.leave();
    if (isMissing(entry) || entry.empty())
      items.pop_back();
    else
      readItem(entry, item, reader);
    if (isMissing(entry))
      break;
  }
  return unknown;
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
