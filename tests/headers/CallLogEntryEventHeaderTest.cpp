// CallLogEntryEvent.h, included first and alone.
#include "CallLogEntryEvent.h"

namespace {
constexpr CallLogEntryEvent::_TFormat format = CallLogEntryEvent::FORM_PM;
constexpr CallLogEntryEvent::_PresentationValue presentation = CallLogEntryEvent::NOT_ALLOWED;
constexpr CallLogEntryEvent::_LogTarget target = CallLogEntryEvent::OUT_BUSY;
} // namespace

#include "CallLogEntryEvent.h" // a second time does no harm

#include <gtest/gtest.h>

TEST(CallLogEntryEventHeader, StandsAlone) {
  EXPECT_EQ(2, static_cast<int>(format));
  EXPECT_EQ(2, static_cast<int>(presentation));
  EXPECT_EQ(6, static_cast<int>(target));
}
