// Converts the raw values of elements into the values of members.
#include "records/FieldReader.h"

#include "ClientUtils.h"
#include "bytes/ReplaceInPlace.h"

namespace journal {

std::string const& FieldReader::argument(std::string_view raw) {
  auto& argument = raw.size() < arguments_.size() ? arguments_[raw.size()] : longArgument_;
  return argument.assign(raw.data(), raw.size());
}

Enumeration::Value FieldReader::lookUpMember(std::string_view raw, Enumeration const& enumeration) {
  return enumeration.memberOf(ClientUtils::unescapeXMLString(argument(raw)));
}

// The fast path, for most values. What would need more registers is left to replaceUnprepared.
void FieldReader::replace(std::string& text, std::string_view raw) {
  if (raw.size() >= arguments_.size() || arguments_[raw.size()].size() != raw.size())
    return replaceUnprepared(text, raw);
  auto& argument = arguments_[raw.size()];
  copyBytes(argument.data(), raw.data(), raw.size());
  replaceInPlace(text, ClientUtils::unescapeXMLString, argument);
}

void FieldReader::replaceUnprepared(std::string& text, std::string_view raw) {
  replaceInPlace(text, ClientUtils::unescapeXMLString, argument(raw));
}

} // namespace journal
