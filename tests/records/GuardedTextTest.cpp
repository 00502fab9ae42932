// Texts between inaccessible pages: a read before a text or past its NUL ends the program, on any
// machine and without a sanitizer.
#include <cstddef>
#include <cstring>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

#include "records/TestedKinds.h"

namespace {

/// Readable pages with an inaccessible page on each side.
class Guarded {
public:
  explicit Guarded(std::size_t atLeast)
      : page_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))),
        size_((atLeast / page_ + 1) * page_) {
    auto* const all = mmap(nullptr, size_ + 2 * page_, PROT_READ | PROT_WRITE,
                           MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    pages_ = all == MAP_FAILED ? nullptr : static_cast<char*>(all);
    if (pages_ != nullptr) {
      mprotect(pages_, page_, PROT_NONE);
      mprotect(pages_ + page_ + size_, page_, PROT_NONE);
    }
  }
  ~Guarded() {
    if (pages_ != nullptr)
      munmap(pages_, size_ + 2 * page_);
  }
  Guarded(Guarded const&) = delete;
  Guarded& operator=(Guarded const&) = delete;

  bool isThere() const { return pages_ != nullptr; }

  /// The text, with its first character right after a guard page.
  char const* afterGuard(std::string const& text) {
    return static_cast<char const*>(std::memcpy(pages_ + page_, text.c_str(), text.size() + 1));
  }

  /// The text, with its NUL right before a guard page.
  char const* beforeGuard(std::string const& text) {
    auto* const at = pages_ + page_ + size_ - text.size() - 1;
    return static_cast<char const*>(std::memcpy(at, text.c_str(), text.size() + 1));
  }

private:
  std::size_t page_;
  std::size_t size_;
  char* pages_ = nullptr;
};

template <class KindType>
class GuardedText : public ::testing::Test {
protected:
  static void read(char const* text) {
    typename KindType::Item item;
    EXPECT_TRUE(KindType::readItem(text, item));
    typename KindType::Info call;
    EXPECT_TRUE(KindType::readCall(text, call));
    typename KindType::InfoList calls;
    KindType::readCalls(text, calls);
  }
};

TYPED_TEST_SUITE(GuardedText, kinds::All, kinds::KindNames);

TYPED_TEST(GuardedText, IsReadFromItsFirstCharacterToItsNul) {
  auto const body = TypeParam::goldenBody(TypeParam::full());
  Guarded guarded(body.size());
  ASSERT_TRUE(guarded.isThere());
  for (std::size_t cut = 0; cut <= body.size(); ++cut) {
    this->read(guarded.afterGuard(body.substr(cut)));
    this->read(guarded.beforeGuard(body.substr(cut)));
    this->read(guarded.beforeGuard(body.substr(0, cut)));
  }
  // Shorter than the expected value, which the reader compares first.
  this->read(guarded.beforeGuard("<ConnectedNumberType></ConnectedNumberType>"));
}

} // namespace
