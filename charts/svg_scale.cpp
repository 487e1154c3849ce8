#include "amortix2/charts/svg_scale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/date.h"
#include "amortix2/automation/error.h"
#include "amortix2/automation/number_format.h"

namespace amortix2 {
namespace {

// Kept in decimal, so that three tenths are the double nearest to 0.3 and not three times that of 0.1.
struct RoundStep {
  int digit = 1;
  int exponent = 0;

  /// Infinite beyond the doubles.
  double Times(double count) const {
    const std::string text = std::to_string(std::llround(count * digit)) + 'e' + std::to_string(exponent);
    return ParseNumber(text).value_or(count < 0 ? -HUGE_VAL : HUGE_VAL);
  }
};

RoundStep FindStep(double atLeast) {
  RoundStep step;
  while (step.exponent < 308 && step.Times(10) <= atLeast) ++step.exponent;
  while (step.exponent > -300 && step.Times(1) > atLeast) --step.exponent;
  for (const int digit : {1, 2, 5}) {
    step.digit = digit;
    if (step.Times(1) >= atLeast) return step;
  }
  return {1, step.exponent + 1};
}

constexpr std::array<std::string_view, 12> kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::vector<AxisTick> MonthTicks(std::int32_t low, std::int32_t high, int months) {
  std::vector<AxisTick> ticks;
  const CivilDate start = ToCivil(Date{low});
  std::int64_t month = std::int64_t{start.year} * 12 + start.month - 1;
  month = (month + months - 1) / months * months;
  constexpr std::int64_t kEnd = std::int64_t{10000} * 12;
  for (; month < kEnd; month += months) {
    const std::int64_t year = month / 12;
    const std::int32_t day = MakeDate(year, month % 12 + 1, 1).serial;
    if (day > high) break;
    if (day < low) continue;
    std::string text = std::to_string(year);
    if (months < 12) text.insert(0, " ").insert(0, kMonths[static_cast<std::size_t>(month % 12)]);
    ticks.push_back({static_cast<double>(day), std::move(text)});
  }
  return ticks;
}

}  // namespace

std::vector<double> RoundValues(double low, double high, int most, int& decimals) {
  constexpr double kNoFiner = 1e-15;  // of the larger end: doubles hold no more digits
  const double size = std::max(std::abs(low), std::abs(high));
  const RoundStep step = FindStep(std::max((high - low) / most, size * kNoFiner));
  decimals = std::max(0, -step.exponent);
  const double unit = step.Times(1);
  const double first = std::ceil(low / unit);
  std::vector<double> values;
  for (int i = 0; i <= most; ++i) {
    const double value = step.Times(first + i);
    if (value > high) break;
    if (value >= low) values.push_back(value + 0.0);  // and never -0
  }
  return values;
}

AxisRange FitAxis(double low, double high) {
  constexpr int kIntervals = 8;
  constexpr double kFlat = 0.1;  // the part of a value that the axis of values all alike shows around it
  if (low == high) {
    const double around = low == 0 ? 1 : std::abs(low) * kFlat;
    low -= around;
    high += around;
  }
  const double span = high - low;
  if (!std::isfinite(span)) Raise(ErrorNumber::Overflow);
  const RoundStep step =
      FindStep(std::max(span / kIntervals, std::max(std::abs(low), std::abs(high)) * 1e-14));
  const double unit = step.Times(1);
  const double bottom = step.Times(std::floor(low / unit)) + 0.0;
  const double top = step.Times(std::ceil(high / unit)) + 0.0;
  if (!std::isfinite(top - bottom)) Raise(ErrorNumber::Overflow);
  return {top, bottom, (top - bottom) / kGridIntervals};
}

std::vector<AxisTick> DateTicks(double low, double high, int most) {
  const auto from = static_cast<std::int32_t>(std::ceil(low));
  const auto to = static_cast<std::int32_t>(std::floor(high));
  constexpr double kMonth = 30.4;
  for (const int days : {1, 2, 7, 14}) {
    if ((high - low) / days > most) continue;
    std::vector<AxisTick> ticks;
    for (std::int32_t day = from; day <= to; day += days) {
      ticks.push_back({static_cast<double>(day), std::string(View(FormatIso(Date{day})))});
    }
    return ticks;
  }
  for (const int months : {1, 2, 3, 6, 12, 24, 60, 120, 240, 600, 1200, 2400, 6000, 12000}) {
    if ((high - low) / (kMonth * months) <= most) return MonthTicks(from, to, months);
  }
  return MonthTicks(from, to, 24000);
}

std::string AxisNumber(double value, int decimals) {
  constexpr double kExponentFrom = 1e15;
  if (std::abs(value) >= kExponentFrom || decimals > 12) return NumberText(value);
  std::string pattern = "#,##0";
  if (decimals > 0) pattern.append(".").append(static_cast<std::size_t>(decimals), '0');
  return NumberPattern(pattern).Format(value);
}

}  // namespace amortix2
