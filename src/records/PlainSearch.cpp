// Reads records from any text by plain searches, as the format defines it.
#include "records/PlainSearch.h"

#include "xml/Cursor.h"
#include "xml/ElementIterator.h"

namespace journal {
namespace {

void searchFields(LoopedFields fields, Cursor& cursor, void* record, FieldReader& reader) {
  for (auto const& field : fields) {
    auto const raw = cursor.read(field.begin(), field.searchedClose());
    if (field.reading() != Reading::discarded)
      reader.store(raw, field, record);
  }
}

} // namespace

void searchCall(std::string_view text, RecordOps const& ops, void* call, FieldReader& reader) {
  Cursor cursor(text);
  searchFields(ops.callRead, cursor, call, reader);
}

void searchCalls(std::string_view text, RecordOps const& ops, void* calls, FieldReader& reader) {
  ops.clearCalls(calls);
  ElementIterator items(readFirst(text, element<word::LOGLIST>), element<word::ITEM>);
  while (items.enter()) {
    auto const item = items.leave();
    if (isAbsent(item))
      return;
    if (!item.empty())
      searchCall(item, ops, ops.appendCall(calls), reader);
  }
}

void searchEntry(std::string_view text, RecordOps const& ops, void* entry, void* calls,
                 FieldReader& reader) {
  Cursor cursor(text);
  searchFields(ops.entry.list, cursor, entry, reader);
  searchCalls(cursor.rest(), ops, calls, reader);
}

} // namespace journal
