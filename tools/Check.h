// Finds where a message differs from what writers write.
#ifndef TOOLS_CHECK_H
#define TOOLS_CHECK_H

#include <string>

#include "Message.h"
#include "Remarks.h"

Remarks check(std::string const& text, Nodes const& nodes, Subject const& subject);

#endif
