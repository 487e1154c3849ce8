#pragma once

// How amounts and rates are rounded. A half rounds up, also below zero (-0.125 gives -0.12), and it is the
// exact value of the double that counts: 2.675 lies just below its half and gives 2.67.

#include <cmath>
#include <cstdint>

#include "amortix2/automation/checked.h"
#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

namespace rounding {

/// floor(scale * x + 1/2) / scale for the values that the quick path leaves: |scale * x| of 2^52 and above,
/// and what is not finite. Raises Overflow.
double RoundLarge(double x, double scale);

/// True when the exact product scale * x lies below `half`, its rounded neighbour.
inline bool LiesBelow(double x, double scale, double half) { return std::fma(x, scale, -half) < 0; }

/// floor(scale * x + 1/2) / scale. Rounding to nearest is monotonic, so the double sum can differ from the
/// exact one only where it comes out as a whole number; only there is the exact side looked at.
inline double RoundTo(double x, double scale) {
  constexpr double kExactHalves = 4503599627370496.0;  // 2^52: below it, whole numbers less 1/2 are doubles
  const double raised = x * scale + 0.5;
  if (!(raised > -kExactHalves && raised < kExactHalves)) return RoundLarge(x, scale);
  // By way of 64 bits because std::floor is a library call on baseline x86-64.
  auto whole = static_cast<double>(static_cast<std::int64_t>(raised));
  if (whole > raised) whole -= 1;
  if (whole == raised && LiesBelow(x, scale, whole - 0.5)) whole -= 1;
  return whole / scale;
}

}  // namespace rounding

/// To cents, halves up. Raises Overflow for an infinity or NaN.
inline double RoundToCents(double x) { return rounding::RoundTo(x, 100); }

/// To three decimals, halves up; for rates. Raises Overflow for an infinity or NaN.
inline double RoundToMills(double x) { return rounding::RoundTo(x, 1000); }

}  // namespace amortix2
