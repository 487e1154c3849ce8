#pragma once

// The numbers that a chart of an answer draws, as the chart classes take them.

#include "amortix2/automation/variant.h"
#include "amortix2/component/meaning.h"
#include "amortix2/pages/calculation.h"

namespace amortix2::pages {

struct ChartNumbers {
  Variant table;  ///< labels in column 0, names of series in row 0; Empty when there is nothing to draw
  bool hasDates = false;   ///< the labels are dates
  Unit unit = Unit::None;  ///< of all series
};

/// Schedules are folded into calendar years, unless they are short.
ChartNumbers NumbersOf(const Calculation& calculation, const ChartInfo& chart);

}  // namespace amortix2::pages
