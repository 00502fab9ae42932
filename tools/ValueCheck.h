// Judges the value of one element.
#ifndef TOOLS_VALUECHECK_H
#define TOOLS_VALUECHECK_H

#include <string>

#include "Elements.h"

/// @return what is to be said about a value as it stands in the bytes, and what it is read as;
/// empty when it is one that writers write
std::string judgeValue(Value value, std::string const& text);

#endif
