#pragma once

// The value axis that bar charts and line charts share: from the extremes of the data to round numbers at the
// ends of ten equal grid intervals, with zero on the axis. Pure arithmetic; knows no chart, table or pixel.

#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

inline constexpr int kGridIntervals = 10;

struct AxisRange {
  double top = 1;     ///< upper end of the axis, >= 0
  double bottom = 0;  ///< lower end, <= 0
  double step = 0.1;  ///< one grid interval: (top - bottom) / 10, > 0
};

/// The axis for data whose largest value is `largest` and whose smallest is `smallest` (both finite; zero is
/// always included, so data of one sign may pass either extreme on the far side of zero, or 0). Data that are
/// all zero get an axis from 0 to 1. Raises Overflow when the ends of the axis leave the range of doubles.
///
///     FindAxisRange(250, 0)           top 300, bottom 0, step 30
///     FindAxisRange(1234.25, -300)    top 1400, bottom -300, step 170
AxisRange FindAxisRange(double largest, double smallest);

}  // namespace amortix2
