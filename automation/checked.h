#pragma once

// Arithmetic that refuses what does not fit: the guards that keep infinities, NaN, -0 and wrapped counts out
// of every result.

#include <cmath>
#include <concepts>
#include <utility>

#include "amortix2/automation/error.h"
#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// `x` itself. Raises Overflow when it is infinite or not a number.
inline double Finite(double x) {
  if (!std::isfinite(x)) Raise(ErrorNumber::Overflow);
  return x;
}

/// `x` itself, but 0 for -0, which no result is to show.
inline double WithoutMinusZero(double x) { return x + 0.0; }

/// a / b. Raises DivisionByZero for a non-zero number over 0, Overflow for 0 / 0 and for a quotient that is
/// too large.
inline double Divide(double a, double b) {
  if (b == 0 && a != 0 && !std::isnan(a)) Raise(ErrorNumber::DivisionByZero);
  return Finite(a / b);
}

/// A whole number in a narrower type. Raises Overflow when it does not fit.
template <std::integral To>
To Narrow(std::integral auto value) {
  if (!std::in_range<To>(value)) Raise(ErrorNumber::Overflow);
  return static_cast<To>(value);
}

}  // namespace amortix2
