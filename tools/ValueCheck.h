// Judges the value of one element.
#ifndef TOOLS_VALUECHECK_H
#define TOOLS_VALUECHECK_H

#include <string>

#include "Elements.h"

/// @param text the value as it is in the message
/// @return what is wrong with it and what it is read as; empty when writers write such a value
std::string judgeValue(Value value, std::string const& text);

#endif
