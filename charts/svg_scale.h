#pragma once

// From values to pixels, and the round values at which an axis is labelled. Pure arithmetic.

#include <string>
#include <vector>

#include "amortix2/charts/axis_range.h"

namespace amortix2 {

/// Maps `low` to pixel `from` and `high` to pixel `to`, linearly; `low` < `high`, `high - low` finite.
struct SvgScale {
  double low = 0;
  double high = 1;
  double from = 0;
  double to = 1;

  double At(double value) const { return from + (value - low) / (high - low) * (to - from); }
};

struct AxisTick {
  double value;
  std::string text;
};

/// The multiples of 1, 2 or 5 times a power of ten that lie between `low` and `high`, both included: the
/// smallest such step of at most `most` intervals. `decimals` receives the decimals that the step needs.
std::vector<double> RoundValues(double low, double high, int most, int& decimals);

/// The axis from the round value at or below `low` to the one at or above `high`, both finite. Raises
/// Overflow when it leaves the range of doubles.
AxisRange FitAxis(double low, double high);

/// The first days of years, months or days, in steps people use, between two day counts: at most `most`
/// intervals. Named "2001", "Jan 2001" or "2001-01-31".
std::vector<AxisTick> DateTicks(double low, double high, int most);

/// A number as axes write it: with thousands separators and `decimals`, or with an exponent from 1e15.
std::string AxisNumber(double value, int decimals);

}  // namespace amortix2
