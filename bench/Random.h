// A small random generator: unlike those of the standard library, a seed gives the same numbers on
// every machine.
#ifndef BENCH_RANDOM_H
#define BENCH_RANDOM_H

#include <cstddef>
#include <cstdint>

namespace bench {

class Random {
public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  /// 0 .. bound - 1; bound must not be 0.
  std::size_t below(std::size_t bound) {
    // The multiplier and increment of Knuth's MMIX; the upper bits are the good ones.
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return static_cast<std::size_t>((state_ >> 33) % bound);
  }

  std::size_t between(std::size_t first, std::size_t last) {
    return first + below(last - first + 1);
  }

  bool percent(std::size_t chance) { return below(100) < chance; }

  template <class Value, std::size_t Count>
  Value const& oneOf(Value const (&values)[Count]) {
    return values[below(Count)];
  }

private:
  std::uint64_t state_;
};

} // namespace bench

#endif
