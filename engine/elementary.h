#pragma once

// Powers, exponentials and logarithms made of the basic operations alone. The standard library's differ in
// their last bit from platform to platform; these give the same bits everywhere, within two units in the last
// place (powers: a few more, growing with the exponent).

#include <cstdint>

namespace amortix2 {

/// base to a whole power, by squaring; the inverse of the positive power for a negative exponent. An infinite
/// or undefined result is returned as such: the caller's next Finite, Divide or RoundToCents raises.
double Power(double base, std::int32_t exponent);

/// e to the power of x. Infinite above 709.8, 0 below -745.2.
double Exponential(double x);

/// The natural logarithm of x > 0; minus infinity for 0, NaN below.
double NaturalLogarithm(double x);

/// base >= 0 to any power: Exponential(exponent * NaturalLogarithm(base)), and 1 for the power 0. A base
/// below 0 gives NaN for any other power.
double RealPower(double base, double exponent);

}  // namespace amortix2
