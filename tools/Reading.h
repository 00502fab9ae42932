// Shows how the library's readers read a message.
#ifndef TOOLS_READING_H
#define TOOLS_READING_H

#include <iosfwd>
#include <string>

#include "Message.h"

/// @param values whether every field of the entries that were read is shown as well
void printReading(std::ostream& out, std::string const& text, Nodes const& nodes,
                  Subject const& subject, bool values);

#endif
