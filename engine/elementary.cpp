#include "amortix2/engine/elementary.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

namespace amortix2 {
namespace {

// ln 2 in two parts: the first has so few bits that its product with any exponent of a double is exact.
constexpr double kLn2High = 0x1.62e42feep-1;
constexpr double kLn2Low = 0x1.a39ef35793c76p-33;
constexpr std::array<double, 16> kInverseFactorials = [] {
  std::array<double, 16> inverses{1};
  for (std::size_t n = 1; n < inverses.size(); ++n) inverses[n] = inverses[n - 1] / static_cast<double>(n);
  return inverses;
}();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

}  // namespace

double Power(double base, std::int32_t exponent) {
  std::int64_t left = exponent < 0 ? -std::int64_t{exponent} : exponent;
  double result = 1;
  for (double square = base; left != 0; square *= square) {
    if (left & 1) result *= square;
    left >>= 1;
    if (left == 0) break;  // one more square could overflow for nothing
  }
  return exponent < 0 ? 1 / result : result;
}

double Exponential(double x) {
  if (std::isnan(x)) return x;
  if (x > 709.79) return kInfinity;
  if (x < -745.2) return 0;
  // e^x = 2^k e^r with |r| at most ln 2 / 2. Terms up to the 15th power reach the last bit.
  const double k = std::floor(x / (kLn2High + kLn2Low) + 0.5);
  const double high = x - k * kLn2High;
  const double low = k * kLn2Low;
  const double r = high - low;
  double tail = 0;  // (e^r - 1 - r) / r^2
  for (std::size_t n = kInverseFactorials.size() - 1; n >= 2; --n) tail = tail * r + kInverseFactorials[n];
  const double error = (high - r) - low;
  return std::ldexp(1 + (r + (r * r * tail + error)), static_cast<int>(k));
}

double NaturalLogarithm(double x) {
  if (x == 0) return -kInfinity;
  if (!(x > 0)) return kNaN;
  if (x == kInfinity) return x;
  // x = 2^k m with m from sqrt(1/2) to sqrt(2); ln m = 2 atanh(s) with s = (m - 1) / (m + 1), |s| below
  // 0.172.
  int k = 0;
  double m = std::frexp(x, &k);
  if (m < 0.70710678118654752) {
    m *= 2;
    --k;
  }
  const double f = m - 1;
  const double s = f / (m + 1);
  const double s2 = s * s;
  double series = 0;  // 2 (s^2 / 3 + s^4 / 5 + ...)
  for (int n = 21; n >= 3; n -= 2) series = (series + 2.0 / n) * s2;
  // ln m = 2s + s * series, and 2s = f - s * f exactly in real numbers, which keeps the leading part exact.
  const double logarithm = f - s * (f - series);
  return k * kLn2High + (logarithm + k * kLn2Low);
}

double RealPower(double base, double exponent) {
  return exponent == 0 ? 1 : Exponential(exponent * NaturalLogarithm(base));
}

}  // namespace amortix2
