// What users rely on when they compile: 32-bit enumerations, in which any such value may be stored,
// and classes without objects. scripts/abi compares every signature.
#include <cstdint>
#include <type_traits>

#include "ClientUtils.h"
#include "JournalServiceHelper.h"

namespace {

template <class Enumeration, class Underlying>
constexpr bool isOver = std::is_same_v<std::underlying_type_t<Enumeration>, Underlying>;

static_assert(isOver<NumberType::NT, std::int32_t>);
static_assert(isOver<CallLogEntryEvent::_TFormat, std::int32_t>);
static_assert(isOver<CallLogEntryEvent::_PresentationValue, std::int32_t>);
static_assert(isOver<CallLogEntryEvent::_LogTarget, std::int32_t>);
static_assert(isOver<JournalServiceObserverIfc::ActionType, std::int32_t>);
static_assert(isOver<JournalServiceHelper::MethodCode, std::uint32_t>);

static_assert(!std::is_default_constructible_v<JournalServiceHelper>);
static_assert(!std::is_default_constructible_v<ClientUtils>);

} // namespace
