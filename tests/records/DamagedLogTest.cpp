// Logs that arrive damaged: cut off at every length, and with a NUL at every position.
#include <vector>

#include "records/TestedKinds.h"

namespace {

template <typename KindType>
class DamagedLog : public ::testing::Test {
protected:
  using Log = typename KindType::Log;
  using Size = std::string::size_type;

  struct Result {
    Log items;
    unsigned int handle = 99;
    bool operator==(Result const& other) const {
      return items == other.items && handle == other.handle;
    }
  };

  static Result read(std::string const& text) {
    Result result;
    result.items = KindType::log();
    Log alone;
    EXPECT_TRUE(KindType::readLogAndHandle(text, result.items, result.handle));
    EXPECT_TRUE(KindType::readLog(text, alone));
    EXPECT_EQ(alone, result.items);
    return result;
  }

  // The golden log with the handle at its end, or in front.
  static std::string text(bool handleInFront) {
    std::string const message = golden::message(std::string(KindType::NAME) + "-log");
    auto const at = message.rfind("<Handle>");
    return handleInFront ? message.substr(at) + message.substr(0, at) : message;
  }

  // Exactly those entries remain whose close tags survive the cut, and the handle only whole.
  static void expectCut(std::string const& whole) {
    std::vector<Size> entryEnds;
    std::string const close = "</Entry>";
    for (Size at = 0; (at = whole.find(close, at)) != std::string::npos;)
      entryEnds.push_back(at += close.size());
    Size const handleEnd = whole.find("</Handle>") + std::string("</Handle>").size();
    Log const all = KindType::decodedLog();
    ASSERT_EQ(entryEnds.size(), all.size());

    for (Size length = 0; length <= whole.size(); ++length) {
      Log expected;
      for (Size entry = 0; entry < all.size() && entryEnds[entry] <= length; ++entry)
        expected.push_back(all[entry]);
      Result const result = read(whole.substr(0, length));
      ASSERT_EQ(result.items, expected) << "cut at " << length;
      ASSERT_EQ(result.handle, length >= handleEnd ? KindType::HANDLE : 0U) << "cut at " << length;
    }
  }
};

TYPED_TEST_SUITE(DamagedLog, kinds::All, kinds::KindNames);

TYPED_TEST(DamagedLog, CutAtEveryLength) {
  this->expectCut(this->text(false));
}

TYPED_TEST(DamagedLog, CutAtEveryLengthWithTheHandleInFront) {
  this->expectCut(this->text(true));
}

TYPED_TEST(DamagedLog, ANulAtEveryPositionCutsTheText) {
  for (bool const handleInFront : {false, true}) {
    std::string const whole = this->text(handleInFront);
    for (std::string::size_type at = 0; at < whole.size(); ++at) {
      auto const cut = this->read(whole.substr(0, at));
      for (std::string::size_type const replaced : {0U, 1U}) {
        std::string damaged = whole;
        damaged.replace(at, replaced, 1, '\0');
        std::string const before = damaged;
        ASSERT_TRUE(this->read(damaged) == cut) << "NUL at " << at;
        ASSERT_EQ(damaged, before) << "NUL at " << at;
      }
    }
  }
}

// A byte of a log replaced: whatever is read, both overloads agree (see read), the text is not
// changed, and the damage does not affect the entries before it.
TYPED_TEST(DamagedLog, AByteReplacedLeavesTheEntriesInFrontOfItAlone) {
  std::string const whole = this->text(false);
  auto const all = TypeParam::decodedLog();
  std::string const close = "</Entry>";
  for (char const wrong : {'<', '>', 'x'}) {
    std::string::size_type inFront = 0;
    for (std::string::size_type at = 0; at < whole.size(); ++at) {
      if (at >= close.size() && whole.compare(at - close.size(), close.size(), close) == 0)
        ++inFront;
      std::string damaged = whole;
      damaged[at] = wrong;
      std::string const before = damaged;
      auto const result = this->read(damaged);
      ASSERT_GE(result.items.size(), inFront) << at;
      for (std::string::size_type entry = 0; entry < inFront; ++entry)
        ASSERT_EQ(result.items[entry], all[entry]) << at;
      ASSERT_EQ(damaged, before);
    }
  }
}

} // namespace
