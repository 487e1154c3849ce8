#pragma once

// Line charts: a table of numbers drawn as lines over a grid into a raster. Draws no text and no legend, and
// knows neither pages nor files.

#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"
#include "amortix2/charts/axis_range.h"
#include "amortix2/charts/chart_table.h"
#include "amortix2/charts/graph_size.h"
#include "amortix2/charts/raster.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Draws a chart.
///
/// `columns` is a two-dimensional array of numbers from (0, 0): column 0 is not plotted, each further column
/// j is a line in palette colour j, later ones on top; rows from 1 are its points, from the left edge to the
/// right one. Row 0 counts for the axis alone. Cells that are no number count as 0. With a single row of
/// points there is nothing to join, and without points or columns the chart is its grid.
///
/// Raises SubscriptOutOfRange for a table that is not two-dimensional from (0, 0) or a negative size,
/// Overflow for a value that is too large to draw or more than 255 lines, OutOfMemory above 2^26 pixels.
Raster DrawLineChart(GraphSize size, const Variant& columns);

/// The same of numbers: row 0 counts for the axis alone.
Raster DrawLineChart(GraphSize size, const ChartTable& table);

/// The axis of that chart. Raises SubscriptOutOfRange for the same tables, Overflow for values too large.
AxisRange LineChartAxis(const Variant& columns);

/// Sets the colours that a chart has for itself: 192 and 255 (background and white), 193 (zero line) and 211
/// (grid). Raises SubscriptOutOfRange for a palette of fewer than 256 colours or three components.
void SetChartColours(Palette& palette);

}  // namespace amortix2
