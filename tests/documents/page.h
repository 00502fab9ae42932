// What the pages in docs/ say that their fragments start with.
#include <JournalServiceHelper.h>

#include <cassert>

using Helper = JournalServiceHelper;
