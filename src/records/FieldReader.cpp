// Turns the raw values of elements into the values of fields.
#include "records/FieldReader.h"

#include "ClientUtils.h"

namespace journal {

std::string FieldReader::unescape(std::string_view raw) {
  // A string holds so many characters in itself, in the libraries that we know.
  constexpr std::size_t fitsInside = 15;
  if (raw.size() <= fitsInside)
    return ClientUtils::unescapeXMLString(std::string(raw));
  scratch_.assign(raw.data(), raw.size());
  return ClientUtils::unescapeXMLString(scratch_);
}

void FieldReader::readText(std::string_view raw, std::string& text) {
  if (isMissing(raw))
    text.clear();
  else
    text = unescape(raw);
}

} // namespace journal
