#pragma once

// The axis of a whole chart: which values of a table it has to reach in each style, so that every kind of
// chart of one table has the same axis, and a page can ask for it.

#include <cstdint>
#include <vector>

#include "amortix2/automation/variant.h"
#include "amortix2/charts/axis_range.h"
#include "amortix2/charts/chart_style.h"
#include "amortix2/charts/chart_table.h"

namespace amortix2 {

/// The order in which the series of a stack are added up, the one at the zero line first.
std::vector<std::int32_t> StackOrder(const ChartStyle& style, std::int32_t series);

/// The axis for all rows, row 0 included; in stacks for the sums of each row's values above zero and below
/// it. Raises Overflow when it leaves the range of doubles.
AxisRange FindTableAxis(const ChartTable& values, const ChartStyle& style);

/// Hands an axis to a caller.
void WriteAxisRange(const AxisRange& axis, Variant& vTop, Variant& vBottom, Variant& vStep);

}  // namespace amortix2
