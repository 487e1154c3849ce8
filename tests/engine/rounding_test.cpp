#include "amortix2/engine/rounding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "amortix2/engine/elementary.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

/// 128 bits: room for the product of an amount and all bits of a double.
__extension__ typedef __int128 WideInteger;  // only thus -Wpedantic lets it pass

/// floor(scale * x + 1/2) / scale from the bits of x, in whole numbers.
double RoundExactly(double x, int scale) {
  int exponent = 0;
  const auto mantissa = static_cast<WideInteger>(std::ldexp(std::frexp(x, &exponent), 53));
  const int shift = 53 - exponent;  // x = mantissa / 2^shift
  if (shift <= 0) return x;         // a whole number
  if (shift > 100) return x < 0 || x == 0 ? -0.0 + 0.0 : 0.0;
  const WideInteger half = static_cast<WideInteger>(1) << (shift - 1);
  const WideInteger steps = (mantissa * scale + half) >> shift;  // an arithmetic shift floors
  return static_cast<double>(steps) / scale;
}

TEST(Rounding, HalvesAsWritten) {
  const struct {
    double x, cents, mills;
  } rows[] = {{0.125, 0.13, 0.125},
              {-0.0625, -0.06, -0.062},
              {2.675, 2.67, 2.675},
              {-2.345, -2.35, -2.345},
              {1e-300, 0, 0},
              {-1e-300, 0, 0},
              {0, 0, 0},
              {-0.004999, 0, -0.005},
              {1e15, 1e15, 1e15},
              {1e300, 1e300, 1e300},
              {-1e300, -1e300, -1e300}};
  for (const auto& row : rows) {
    EXPECT_EQ(RoundToCents(row.x), row.cents) << row.x;
    EXPECT_EQ(RoundToMills(row.x), row.mills) << row.x;
  }
  for (const double bad : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN(), 1.7e307}) {
    EXPECT_THROW(RoundToMills(bad), AutomationError) << bad;
  }
}

TEST(Rounding, AgreesWithExactArithmeticRoundEveryHalf) {
  ForAll(Cases(20000, 300000), [](Random& random) {
    const double steps = static_cast<double>(random.Below(std::int64_t{1} << random.Below(54))) + 0.5;
    for (const int scale : {100, 1000}) {
      double x = steps / scale;
      for (int ulps = 0; ulps < 3; ++ulps) x = std::nextafter(x, 0.0);
      for (int ulps = -3; ulps <= 3; ++ulps, x = std::nextafter(x, 1e300)) {
        ASSERT_EQ(rounding::RoundTo(x, scale), RoundExactly(x, scale)) << std::hexfloat << x;
        ASSERT_EQ(rounding::RoundTo(-x, scale), RoundExactly(-x, scale)) << std::hexfloat << -x;
      }
    }
  });
}

TEST(Rounding, DivisionTellsItsTwoErrorsApart) {
  const auto errorOf = [](double a, double b) { return ErrorOf([&] { Divide(a, b); }); };
  EXPECT_EQ(errorOf(1, 0), ErrorNumber::DivisionByZero);
  EXPECT_EQ(errorOf(0, 0), ErrorNumber::Overflow);
  EXPECT_EQ(errorOf(1e300, 1e-300), ErrorNumber::Overflow);
  EXPECT_EQ(errorOf(0, 3), std::nullopt);
}

// The platform's functions in 80 bits are the reference; a unit in the last place is 2.2e-16.
TEST(Elementary, AgreesWithTheWiderPlatformFunctions) {
  const auto relative = [](double value, long double reference) {
    return static_cast<double>(std::abs((static_cast<long double>(value) - reference) / reference));
  };
  ForAll(Cases(10000, 100000), [&](Random& random) {
    const double x = 1400 * (random.Unit() - 0.5) / (random.OneIn(2) ? 1 : 1000);
    ASSERT_LT(relative(Exponential(x), std::exp(static_cast<long double>(x))), 4.5e-16) << x;
    const double y = Exponential(x);
    ASSERT_LT(relative(NaturalLogarithm(y), std::log(static_cast<long double>(y))), 4.5e-16) << y;
    const auto n = static_cast<std::int32_t>(random.Below(1000));
    const double g = 1 + x / 70000;
    ASSERT_LT(relative(Power(g, n), std::pow(static_cast<long double>(g), n)), 1e-15 * (1 + n))
        << g << ' ' << n;
  });
  EXPECT_EQ(Power(1.5, -2), 1 / 2.25);
  EXPECT_EQ(Power(0, 0), 1);
  EXPECT_TRUE(std::isinf(Power(0, -1)));
  EXPECT_TRUE(std::isinf(Exponential(710)));
  EXPECT_EQ(Exponential(-800), 0);
  EXPECT_EQ(Exponential(0), 1);
  EXPECT_EQ(NaturalLogarithm(1), 0);
}

}  // namespace
}  // namespace amortix2
