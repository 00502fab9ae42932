// The envelope of messages, and the text building beneath it.
#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"
#include "vocabulary/Words.h"
#include "xml/Building.h"

namespace journal {

namespace {

using Pieces = std::initializer_list<std::string_view>;

std::size_t sizeOf(Pieces pieces) {
  std::size_t size = 0;
  for (auto const piece : pieces)
    size += piece.size();
  return size;
}

} // namespace

void append(std::string& out, Pieces pieces) {
  auto const needed = out.size() + sizeOf(pieces);
  if (needed > out.capacity())
    out.reserve(needed > 2 * out.capacity() ? needed : 2 * out.capacity());
  for (auto const piece : pieces)
    out.append(piece);
}

std::string enveloped(Pieces body, std::string_view schemaName) {
  std::string message;
  auto const schemaSize = schemaName.empty() ? 0
                                             : word::SCHEMA_NAMED_BEGIN.size() + schemaName.size() +
                                                   word::SCHEMA_NAMED_END.size() +
                                                   element<word::SCHEMA>.close().size();
  message.reserve(word::XMLHEADER.size() + sizeOf(body) + schemaSize);
  message.append(word::XMLHEADER);
  if (!schemaName.empty())
    append(message, {word::SCHEMA_NAMED_BEGIN, schemaName, word::SCHEMA_NAMED_END});
  append(message, body);
  if (!schemaName.empty())
    message.append(element<word::SCHEMA>.close());
  return message;
}

} // namespace journal

void JournalServiceHelper::addXMLHeaderFooter(std::string& message, std::string const& schemaName) {
  message = journal::enveloped({message}, schemaName);
}

bool JournalServiceHelper::addSuccessResp(std::string& message) {
  using namespace journal;
  append(message, {element<word::VALUE>.begin(), word::SUCCESS, element<word::VALUE>.close()});
  return true;
}
