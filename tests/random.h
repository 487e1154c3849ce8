#pragma once

// Where tests and benchmarks take random values from.

#include <cstddef>
#include <cstdint>
#include <random>

namespace amortix2 {

class Random {
 public:
  virtual ~Random() = default;

  /// 0 to `limit` - 1, all alike.
  virtual std::int64_t Below(std::int64_t limit) = 0;

  /// 0 to less than 1.
  double Unit() { return static_cast<double>(Below(std::int64_t{1} << 53)) * 0x1p-53; }
  bool OneIn(std::int64_t count) { return Below(count) == 0; }

  template <class List>
  const auto& OneOf(const List& values) {
    return values[static_cast<std::size_t>(Below(static_cast<std::int64_t>(std::size(values))))];
  }
};

/// The same values for a seed, as fast as can be.
class SeededRandom final : public Random {
 public:
  explicit SeededRandom(std::uint64_t seed) : random_(seed) {}
  std::int64_t Below(std::int64_t limit) override {
    return static_cast<std::int64_t>(random_() % static_cast<std::uint64_t>(limit));
  }

 private:
  std::mt19937_64 random_;
};

}  // namespace amortix2
