// Internal. The values that a message's writer was given and its readers do not store.
#ifndef INSPECT_WRITTEN_H
#define INSPECT_WRITTEN_H

#include <string_view>
#include <vector>

#include "inspect/Message.h"

namespace inspect {

/// Reliable for a message as the library writes it; another one need not be written again.
std::vector<Written> writtenIn(std::string_view text, Message const& message);

/// Puts them into a message.
void restore(std::vector<Written> const& written, Message& message);

} // namespace inspect

#endif
