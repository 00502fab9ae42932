// The library's operations.
#include "operations/OperationTable.h"

template std::vector<operations::Operation> operations::all<JournalServiceHelper>();
