// The library's operations.
#include "digest/OperationTable.h"

template std::vector<operations::Operation> operations::all<JournalServiceHelper>();
