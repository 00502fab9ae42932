// JournalServiceHelperExport.h, included first and alone.
#include "JournalServiceHelperExport.h"

struct JOURNAL_EXPORT MarkedForExport {
  static int answer();
};
JOURNAL_EXPORT int markedFunction();

int MarkedForExport::answer() {
  return 1;
}
int markedFunction() {
  return 2;
}

#include "JournalServiceHelperExport.h" // a second time does no harm

#include <gtest/gtest.h>

TEST(JournalServiceHelperExportHeader, MarksTypesAndFunctions) {
  EXPECT_EQ(1, MarkedForExport::answer());
  EXPECT_EQ(2, markedFunction());
}
