#pragma once

// Line charts: a table of numbers drawn as lines over a grid into a raster, sent to a page as a GIF image.
// Draws no text and no legend, and touches no file.

#include "amortix2/automation/page.h"
#include "amortix2/automation/variant.h"
#include "amortix2/charts/graph_size.h"
#include "amortix2/charts/raster.h"

namespace amortix2 {

/// Draws and sends a chart to the response of the page.
///
/// `columns` is a two-dimensional array of numbers from (0, 0): column 0 is not plotted, each further column
/// j is a line in palette colour j, later ones on top; rows from 1 are its points, from the left edge to the
/// right one. Row 0 counts for the axis alone. Cells that are no number count as 0. With a single row of
/// points there is nothing to join, and without points or columns the chart is its grid. `palette` has 256
/// colours of red, green and blue; 192 and 255 (background and white), 193 (zero line) and 211 (grid) become
/// the chart's own.
///
/// Raises ObjectNotSet when `page` is null, SubscriptOutOfRange for a table that is not two-dimensional from
/// (0, 0), a palette of fewer than 256 colours or a negative size, what ReadPalette raises, Overflow for a
/// value that is too large to draw or more than 255 lines, OutOfMemory above 2^26 pixels. Nothing is sent
/// then.
void SendLineChart(GraphSize size, const Variant& columns, const Variant& palette, ScriptingContext* page);

/// The chart's raster alone, with `columns` as above.
Raster DrawLineChart(GraphSize size, const Variant& columns);

}  // namespace amortix2
