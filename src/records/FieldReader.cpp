// Turns the raw values of elements into the values of fields.
#include "records/FieldReader.h"

#include <new>

#include "ClientUtils.h"

namespace journal {

JOURNAL_INLINE inline std::string const& FieldReader::argument(std::string_view raw) {
  if (raw.size() >= arguments_.size())
    return longArgument_.assign(raw.data(), raw.size());
  auto& argument = arguments_[raw.size()];
  if (argument.size() != raw.size())
    argument.resize(raw.size());
  copyBytes(argument.data(), raw.data(), raw.size());
  return argument;
}

Enumeration::Value FieldReader::askForMember(std::string_view raw, Enumeration const& enumeration) {
  return enumeration.memberOf(ClientUtils::unescapeXMLString(argument(raw)));
}

void FieldReader::replace(std::string& text, std::string_view raw) {
  auto const& escaped = argument(raw);
  // Made anew in its own place, which spares moving it there. The mark leaves one branch out of the
  // coverage: the compiler's own, by which an exception undoes a `new`, and which has one way here.
  text.~basic_string();
  try {
    ::new (&text) std::string(ClientUtils::unescapeXMLString(escaped)); // GCOVR_EXCL_BR_LINE
  } catch (...) {
    ::new (&text) std::string();
    throw;
  }
}

} // namespace journal
