// Prints a message, one element per line.
#ifndef TOOLS_LAYOUT_H
#define TOOLS_LAYOUT_H

#include <iosfwd>

#include "Message.h"

void printLayout(std::ostream& out, Nodes const& nodes, Subject const& subject);

#endif
