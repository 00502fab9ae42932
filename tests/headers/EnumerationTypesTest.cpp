// The enumerations' underlying types: 32 bits everywhere, so that any such value may be stored.
#include <cstdint>
#include <limits>
#include <type_traits>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

template <class E, class Underlying>
constexpr bool isOver = std::is_enum_v<E>&& std::is_same_v<std::underlying_type_t<E>, Underlying>;

static_assert(isOver<NumberType::NT, std::int32_t>);
static_assert(isOver<CallLogEntryEvent::_TFormat, std::int32_t>);
static_assert(isOver<CallLogEntryEvent::_PresentationValue, std::int32_t>);
static_assert(isOver<CallLogEntryEvent::_LogTarget, std::int32_t>);
static_assert(isOver<JournalServiceObserverIfc::ActionType, std::int32_t>);
static_assert(isOver<JournalServiceHelper::MethodCode, std::uint32_t>);

template <class E>
void expectToHoldAny32BitValue() {
  using Number = std::underlying_type_t<E>;
  for (Number number : {Number(0), Number(27), std::numeric_limits<Number>::min(),
                        std::numeric_limits<Number>::max()}) {
    E volatile stored = static_cast<E>(number);
    EXPECT_EQ(number, static_cast<Number>(stored));
  }
  EXPECT_EQ(4u, sizeof(E));
}

TEST(EnumerationTypes, HoldAny32BitValue) {
  expectToHoldAny32BitValue<NumberType::NT>();
  expectToHoldAny32BitValue<CallLogEntryEvent::_TFormat>();
  expectToHoldAny32BitValue<CallLogEntryEvent::_PresentationValue>();
  expectToHoldAny32BitValue<CallLogEntryEvent::_LogTarget>();
  expectToHoldAny32BitValue<JournalServiceObserverIfc::ActionType>();
  expectToHoldAny32BitValue<JournalServiceHelper::MethodCode>();
}

} // namespace
