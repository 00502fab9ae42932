// The operators new and delete of the whole program, on top of malloc and free.
#include "memory/Allocations.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> madeCount{0};
std::atomic<long> liveCount{0};

// How many more succeed before one fails; negative when none is to fail.
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

void* allocate(std::size_t size) noexcept {
  if (fails())
    return nullptr;
  void* const block = std::malloc(size > 0 ? size : 1);
  if (block != nullptr) {
    ++madeCount;
    ++liveCount;
  }
  return block;
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

// The array forms of the standard library call these. Nothing here needs more than the usual
// alignment.

void* operator new(std::size_t size) {
  void* const block = allocate(size);
  if (block == nullptr)
    throw std::bad_alloc();
  return block;
}
void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
  return allocate(size);
}
void operator delete(void* block) noexcept {
  if (block == nullptr)
    return;
  --liveCount;
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
  ::operator delete(block);
}
void operator delete(void* block, std::nothrow_t const&) noexcept {
  ::operator delete(block);
}
