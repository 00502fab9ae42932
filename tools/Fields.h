// Shows every field of an entry as the library read it.
#ifndef TOOLS_FIELDS_H
#define TOOLS_FIELDS_H

#include <cstddef>
#include <iosfwd>

#include "CallLogItems.h"

void printEntry(std::ostream& out, std::size_t number, MissedCallItem const& item);
void printEntry(std::ostream& out, std::size_t number, DialledCallItem const& item);
void printEntry(std::ostream& out, std::size_t number, ReceivedCallItem const& item);
void printEntry(std::ostream& out, std::size_t number, ForwardedCallItem const& item);

#endif
