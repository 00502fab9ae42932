// The operators new and delete of the whole program, on top of malloc and free.
#include "memory/Allocations.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> madeCount{0};
std::atomic<long> liveCount{0};

// How many more succeed before one fails; negative for none to fail.
constexpr long NEVER = -1;
std::atomic<long> untilFailure{NEVER};
std::atomic<bool> failsOn{false};
std::atomic<long> injectedCount{0};

bool fails() {
  auto const left = untilFailure.load();
  if (left == NEVER)
    return false;
  if (left > 0) {
    untilFailure = left - 1;
    return false;
  }
  if (!failsOn)
    untilFailure = NEVER;
  ++injectedCount;
  return true;
}

void* allocate(std::size_t size, std::size_t alignment) noexcept {
  if (fails())
    return nullptr;
  auto const wanted = size > 0 ? size : 1;
  void* block = nullptr;
  if (alignment <= alignof(std::max_align_t))
    block = std::malloc(wanted);
  else if (posix_memalign(&block, alignment, wanted) != 0)
    block = nullptr;
  if (block != nullptr) {
    ++madeCount;
    ++liveCount;
  }
  return block;
}

void* allocateOrThrow(std::size_t size, std::size_t alignment) {
  void* const block = allocate(size, alignment);
  if (block == nullptr)
    throw std::bad_alloc();
  return block;
}

void release(void* block) noexcept {
  if (block == nullptr)
    return;
  --liveCount;
  std::free(block);
}

constexpr std::size_t plain = alignof(std::max_align_t);
constexpr std::size_t of(std::align_val_t alignment) {
  return static_cast<std::size_t>(alignment);
}

} // namespace

namespace allocations {

long made() {
  return madeCount;
}
long live() {
  return liveCount;
}

Failure::Failure(long nth, Failing failing) {
  injectedCount = 0;
  failsOn = failing == Failing::fromThenOn;
  untilFailure = nth - 1;
}
Failure::~Failure() {
  untilFailure = NEVER;
}
long Failure::injected() const {
  return injectedCount;
}

} // namespace allocations

using Size = std::size_t;
using Align = std::align_val_t;
using Nothrow = std::nothrow_t const&;

void* operator new(Size size) {
  return allocateOrThrow(size, plain);
}
void* operator new[](Size size) {
  return allocateOrThrow(size, plain);
}
void* operator new(Size size, Align alignment) {
  return allocateOrThrow(size, of(alignment));
}
void* operator new[](Size size, Align alignment) {
  return allocateOrThrow(size, of(alignment));
}
void* operator new(Size size, Nothrow) noexcept {
  return allocate(size, plain);
}
void* operator new[](Size size, Nothrow) noexcept {
  return allocate(size, plain);
}
void* operator new(Size size, Align alignment, Nothrow) noexcept {
  return allocate(size, of(alignment));
}
void* operator new[](Size size, Align alignment, Nothrow) noexcept {
  return allocate(size, of(alignment));
}

void operator delete(void* block) noexcept {
  release(block);
}
void operator delete[](void* block) noexcept {
  release(block);
}
void operator delete(void* block, Size) noexcept {
  release(block);
}
void operator delete[](void* block, Size) noexcept {
  release(block);
}
void operator delete(void* block, Align) noexcept {
  release(block);
}
void operator delete[](void* block, Align) noexcept {
  release(block);
}
void operator delete(void* block, Size, Align) noexcept {
  release(block);
}
void operator delete[](void* block, Size, Align) noexcept {
  release(block);
}
void operator delete(void* block, Nothrow) noexcept {
  release(block);
}
void operator delete[](void* block, Nothrow) noexcept {
  release(block);
}
void operator delete(void* block, Align, Nothrow) noexcept {
  release(block);
}
void operator delete[](void* block, Align, Nothrow) noexcept {
  release(block);
}
