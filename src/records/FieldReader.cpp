// Turns the raw values of elements into the values of fields.
#include "records/FieldReader.h"

#include "ClientUtils.h"

namespace journal {

Enumeration::Value FieldReader::askForMember(std::string_view raw, Enumeration const& enumeration) {
  return enumeration.memberOf(unescape(raw));
}

std::string FieldReader::unescape(std::string_view raw) {
  if (raw.size() >= arguments_.size()) {
    longArgument_.assign(raw.data(), raw.size());
    return ClientUtils::unescapeXMLString(longArgument_);
  }
  auto& argument = arguments_[raw.size()];
  if (argument.size() != raw.size())
    argument.resize(raw.size());
  copyBytes(argument.data(), raw.data(), raw.size());
  return ClientUtils::unescapeXMLString(argument);
}

} // namespace journal
