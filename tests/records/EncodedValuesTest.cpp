// The values inside the elements of a written entry: enumerations, flags, bytes.
#include <climits>
#include <cstdint>

#include "records/TestedKinds.h"

namespace {

template <class KindType>
class EncodedValues : public ::testing::Test {};
TYPED_TEST_SUITE(EncodedValues, kinds::All, kinds::KindNames);

constexpr std::int32_t values[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 257, 65536, -1, INT_MAX, INT_MIN};

// A value outside the members is written as the default member, and changes nothing else.
TYPED_TEST(EncodedValues, OfEveryEnumerationAreItsMembersAndNoOthers) {
  using Info = typename TypeParam::Info;
  auto const fresh = TypeParam::oneCall({});
  members::forEachField<Info>([&](auto const& member) {
    using Value = typename std::decay_t<decltype(member)>::Value;
    if constexpr (std::is_enum_v<Value>) {
      std::string const element(member.element);
      auto const unset = kinds::tagged(element, members::nameOf(member.in(Info())));
      auto const at = fresh.find(unset);
      ASSERT_NE(at, std::string::npos) << element;
      for (auto const number : values) {
        auto const value = static_cast<Value>(number);
        Info call;
        member.in(call) = value;
        auto expected = fresh;
        if (members::isEnumerator(value))
          expected.replace(at, unset.size(), kinds::tagged(element, members::nameOf(value)));
        EXPECT_EQ(TypeParam::oneCall(call), expected) << element << " " << number;
      }
    }
  });
}

TEST(EncodedFlags, PriorityIsWrittenWithoutConnectedNumberToo) {
  DialledCallItem::DialledCallInfo call;
  EXPECT_NE(kinds::Dialled::oneCall(call).find(
                "<NumberType>NO_ICON</NumberType>"
                "<ConnectedNumberPriority>False</ConnectedNumberPriority>"),
            std::string::npos);
}

// NUL and other control characters are bytes like any other.
TEST(EncodedTexts, AreCopiedByteByByte) {
  MissedCallItem item;
  item.uniqueId = std::string("a\0b", 3);
  item.surname = std::string("\0\n\xff", 3);
  auto const text = kinds::Missed::body(item);
  EXPECT_EQ(text.find("<UniqueId>" + item.uniqueId + "</UniqueId><Surname>" + item.surname +
                      "</Surname>"),
            0U);
}

} // namespace
