// The envelope of requests and counter notifications.
#ifndef JOURNAL_XML_ENVELOPE_H
#define JOURNAL_XML_ENVELOPE_H

#include <string>
#include <string_view>

#include "xml/Building.h"

namespace journal {

/// A finished message: the XML declaration, then the body, inside a Schema element when
/// schemaName is not empty.
std::string enveloped(Texts body, std::string_view schemaName = {});

} // namespace journal

#endif
