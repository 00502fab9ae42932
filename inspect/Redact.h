// Numbers and names of people, masked.
#ifndef INSPECT_REDACT_H
#define INSPECT_REDACT_H

#include <string>

namespace inspect {

/// Masks every text of a message except ids, dates and durations: a digit becomes 0, any other
/// byte x, except for white space and NUL. Lengths and places stay, and so do entities and what
/// readers make of them. Text outside elements is masked too, because damage may have put a name
/// there.
std::string redacted(std::string text);

} // namespace inspect

#endif
