#pragma once

// Money on its way through a schedule, where every line rounds to cents what the line before has left. The
// chain of these roundings is the time of a schedule: multiply, scale, add a half, cut, divide, each waiting
// for the last. An Amount breaks it by carrying its hundredfold along. The next line starts from that, which
// is a whole number already; the value itself is made beside the chain, and every stored value is bit for bit
// the one that plain doubles give in the stated order of operations.
//
// The hundredfold is never trusted. Its nearest whole number n is the rounded amount exactly when the value x
// has n - 1/2 <= 100 x < n + 1/2. As long as n +- 1/2 are doubles, rounding, which is monotonic, cannot carry
// the product 100 x across them: where the double 100 * x lies strictly between them, so does the exact
// product. Everywhere else (ties, a hundredfold that has strayed, amounts beyond 2^51 cents, infinities, NaN)
// RoundToCents(double) decides. So no bound on rates, signs or the number of steps is needed; a stray
// hundredfold costs time, never a cent.

#include <cmath>

#include "amortix2/engine/rounding.h"

namespace amortix2 {

/// 1.5 * 2^52: a sum with it has no room for a fraction.
inline constexpr double kNoFraction = 6755399441055744.0;

struct Amount {
  double value = 0;
  double hundredfold = 0;

  constexpr Amount() = default;
  constexpr explicit Amount(double x) : value(x), hundredfold(x * 100) {}
  constexpr Amount(double x, double cents) : value(x), hundredfold(cents) {}
};

constexpr Amount operator+(Amount a, Amount b) { return {a.value + b.value, a.hundredfold + b.hundredfold}; }
constexpr Amount operator-(Amount a, Amount b) { return {a.value - b.value, a.hundredfold - b.hundredfold}; }
constexpr Amount operator*(Amount a, double factor) { return {a.value * factor, a.hundredfold * factor}; }

/// RoundToCents where the hundredfold does not decide. Kept out of the callers' loops, whose registers a call
/// in line would cost.
[[gnu::cold]] double RoundAside(double x);

/// To cents, halves up: the value is RoundToCents(exact.value) to the bit. Raises Overflow for an infinity or
/// NaN.
inline Amount RoundToCents(Amount exact) {
  constexpr double kMostCents = 2251799813685248.0;  // 2^51
  const double cents = exact.hundredfold + kNoFraction - kNoFraction;
  if (std::abs(exact.value * 100 - cents) < 0.5 && std::abs(cents) <= kMostCents) [[likely]] {
    return {cents / 100, cents};
  }
  return Amount(RoundAside(exact.value));
}

}  // namespace amortix2
