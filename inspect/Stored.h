// Internal. Which value readers store for each piece of a message.
#ifndef INSPECT_STORED_H
#define INSPECT_STORED_H

#include <vector>

#include "inspect/Explain.h"

namespace inspect {

/// Sets the stored value and the reasons of each piece that carries a value. Every value is read
/// from the decoded message; a piece of which it cannot be told has none.
/// @return for each piece the record that it belongs to, a call or an entry; nullptr for none
std::vector<void*> addStored(std::vector<Piece>& pieces, std::string const& text,
                             Identity const& identity, Decoded const& decoded);

} // namespace inspect

#endif
