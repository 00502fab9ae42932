// Counts what operator new and operator delete do in the whole program, its shared libraries
// included, and lets allocations fail.
#ifndef TESTS_MEMORY_ALLOCATIONS_H
#define TESTS_MEMORY_ALLOCATIONS_H

namespace allocations {

/// Allocations so far, without those that failed.
long made();

/// Blocks that are allocated and not yet freed.
long live();

enum class Failing { once, fromThenOn };

/// While it exists, the nth allocation fails, counted from 1; or all from the nth on.
class Failure {
public:
  Failure(long nth, Failing failing);
  ~Failure();
  Failure(Failure const&) = delete;
  Failure& operator=(Failure const&) = delete;

  /// How many allocations have failed.
  long injected() const;
};

/// How many allocations something makes.
template <class Something>
long countedIn(Something&& something) {
  auto const before = made();
  something();
  return made() - before;
}

} // namespace allocations

#endif
