#pragma once

// The part of a bar chart that depends on the direction of its bars. The layout (charts/bar_layout.h) writes
// everything else around it.

#include "amortix2/charts/bar_geometry.h"
#include "amortix2/charts/markup.h"

namespace amortix2 {

class BarPlot {
 public:
  virtual ~BarPlot() = default;

  /// The length of the axis at the left edge of the plot.
  virtual Pixels AxisHeight() const = 0;

  /// The width of the plot with that axis.
  virtual Pixels Width() const = 0;

  /// The table of labels to the left of the plot.
  virtual void WriteSideLabels(MarkupWriter& out) const = 0;

  /// The bars: cells of the plot's one row, behind the axis cell.
  virtual void WriteBars(MarkupWriter& out) const = 0;

  /// The labels below the plot: cells of one row, as wide as the plot.
  virtual void WriteBottomLabels(MarkupWriter& out) const = 0;
};

}  // namespace amortix2
