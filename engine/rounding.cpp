#include "amortix2/engine/rounding.h"

namespace amortix2::rounding {

double RoundLarge(double x, double scale) {
  const double product = Finite(x * scale);
  // From 2^53 steps upwards the doubles near x lie further apart than a step, and x is nearest to its own
  // rounding.
  if (std::abs(product) >= 9007199254740992.0) return x;
  // The product is a whole number here, its rounding error at most a half.
  const double error = std::fma(x, scale, -product);
  return (product + std::floor(error + 0.5)) / scale;
}

}  // namespace amortix2::rounding
