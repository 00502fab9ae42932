// The envelope of requests and counter notifications.
#include "xml/Envelope.h"

#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"

namespace journal {

std::string enveloped(Texts body, std::string_view schemaName) {
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
