#pragma once

// The order of the fragments of a whole bar chart: frame, titles, captions, labels, plot and legend as nested
// HTML tables. Bars are images stretched to their size; nothing is drawn. The markup is made for pages in
// quirks or transitional mode; under a standards-mode doctype the style rule `td img{display:block}` keeps
// rows of one pixel as low as they are meant to be.

#include "amortix2/charts/bar_chart_input.h"
#include "amortix2/charts/bar_plot.h"
#include "amortix2/charts/markup.h"

namespace amortix2 {

/// Writes the chart of `input` around `plot`. Every table, row and cell that it opens is closed again.
void WriteBarChart(MarkupWriter& out, const BarChartInput& input, const BarPlot& plot);

}  // namespace amortix2
