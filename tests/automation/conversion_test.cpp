#include "amortix2/automation/conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "amortix2/automation/array.h"
#include "support.h"

namespace amortix2 {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

template <class Whole>
void CheckInteger(Whole (*convert)(double)) {
  constexpr double kLowest = std::numeric_limits<Whole>::min();   // even in every type
  constexpr double kHighest = std::numeric_limits<Whole>::max();  // odd in every type
  const std::vector<std::pair<double, double>> whole{{0.5, 0},
                                                     {1.5, 2},
                                                     {2.5, 2},
                                                     {3.5, 4},
                                                     {254.5, 254},
                                                     {0.49999999999999994, 0},
                                                     {kLowest + 0.5, kLowest},
                                                     {kLowest + 1.5, kLowest + 2},
                                                     {kLowest, kLowest},
                                                     {kLowest - 0.5, kLowest},
                                                     {kHighest - 0.5, kHighest - 1},
                                                     {kHighest, kHighest},
                                                     {kHighest + 0.25, kHighest}};
  for (const auto& [value, expected] : whole) EXPECT_EQ(convert(value), expected) << value;
  for (const double value : {kLowest - 0.51, kLowest - 1, kHighest + 0.5, kHighest + 1, 1e308, -1e308,
                             kInfinity, -kInfinity, std::nan("")}) {
    EXPECT_EQ(ErrorOf([&] { convert(value); }), ErrorNumber::Overflow) << value;
  }
}

TEST(Integers, RoundHalvesToEvenAndOverflowWhereThatLeavesTheirRange) {
  CheckInteger(ToByte);
  CheckInteger(ToInteger);
  CheckInteger(ToLong);
  EXPECT_EQ(ToInteger(-0.5), 0);
  EXPECT_EQ(ToInteger(-1.5), -2);
  EXPECT_EQ(ToInteger(-2.5), -2);
}

struct VariantCase {
  Variant value;
  double numericOrZero;
  bool isNumeric;
  std::optional<double> strict;     // nothing: TypeMismatch
  std::optional<std::string> text;  // nothing: TypeMismatch
};

// clang-format off
const std::vector<VariantCase> kVariants{
    {Variant(), 0, true, 0, ""}, {kNull, 0, false, {}, {}}, {kMissing, 0, false, {}, {}},
    {true, -1, true, -1, "True"}, {false, 0, true, 0, "False"}, {std::uint8_t{255}, 255, true, 255, "255"},
    {std::int16_t{-32768}, -32768, true, -32768, "-32768"},
    {INT32_MIN, INT32_MIN, true, INT32_MIN, "-2147483648"}, {-1.25, -1.25, true, -1.25, "-1.25"},
    {kInfinity, 0, false, {}, {}}, {std::nan(""), 0, false, {}, {}},
    {Currency{12345}, 1.2345, true, 1.2345, "1.2345"}, {Currency{-500}, -0.05, true, -0.05, "-0.05"},
    {Currency{100000}, 10, true, 10, "10"},
    {Currency{INT64_MIN}, -922337203685477.5808, true, -922337203685477.5808, "-922337203685477.5808"},
    {Date{36922}, 0, false, 36922, "1/31/2001"}, {"12.5", 12.5, true, 12.5, "12.5"},
    {"1/31/2001", 0, false, {}, "1/31/2001"}, {"", 0, false, {}, ""},
    {Array(Bounds{0, 1}), 0, false, {}, {}},
};
// clang-format on

TEST(Numbers, EveryTypeHasItsLenientAndItsStrictValue) {
  for (const VariantCase& c : kVariants) {
    SCOPED_TRACE(static_cast<int>(c.value.Type()));
    EXPECT_EQ(NumericOrZero(c.value), c.numericOrZero);
    EXPECT_EQ(IsNumeric(c.value), c.isNumeric);
    std::optional<double> strict;
    std::optional<std::string> text;
    const auto numberError = ErrorOf([&] { strict = ToDouble(c.value); });
    EXPECT_EQ(numberError.value_or(ErrorNumber::TypeMismatch), ErrorNumber::TypeMismatch);
    const auto textError = ErrorOf([&] { text = ToText(c.value); });
    EXPECT_EQ(textError.value_or(ErrorNumber::TypeMismatch), ErrorNumber::TypeMismatch);
    EXPECT_EQ(strict, c.strict);
    EXPECT_EQ(text, c.text);
  }
}

TEST(Dates, StrictConversionTakesDatesDateTextAndDayCounts) {
  const auto serial = [](const Variant& value) { return ToDate(value).serial; };
  EXPECT_EQ(serial(Date{5}), 5);
  EXPECT_EQ(serial("31-Jan-2001"), 36922);
  EXPECT_EQ(serial(Variant()), 0);
  EXPECT_EQ(serial(true), -1);
  EXPECT_EQ(serial(36922.999), 36922);
  EXPECT_EQ(serial(-1.25), -1);  // six o'clock on day -1
  EXPECT_EQ(serial(-657434.9), kFirstDay.serial);
  EXPECT_EQ(serial(2958465.9), kLastDay.serial);
  for (const double outside : {-657435.0, 2958466.0, 1e308}) {
    EXPECT_EQ(ErrorOf([&] { ToDate(outside); }), ErrorNumber::Overflow) << outside;
  }
  for (const Variant& other :
       {Variant("36922"), Variant(kNull), Variant(kMissing), Variant(Array(Bounds{}))}) {
    EXPECT_EQ(ErrorOf([&] { ToDate(other); }), ErrorNumber::TypeMismatch);
  }
}

TEST(Dates, NumbersAreNoDates) {
  EXPECT_TRUE(IsDate(Date{0}));
  EXPECT_TRUE(IsDate("2001-01-31"));
  for (const Variant& other :
       {Variant(36922.0), Variant("36922"), Variant(), Variant(kNull), Variant(true)}) {
    EXPECT_FALSE(IsDate(other));
  }
}

}  // namespace
}  // namespace amortix2
