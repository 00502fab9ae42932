// The operations of the plain implementation.
#include "operations/OperationTable.h"
#include "reference/Reference.h"

template std::vector<operations::Operation> operations::all<Reference>();
