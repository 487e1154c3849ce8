#pragma once

// Bars that lie one below the other and grow to the right from the axis. Their groups are the rows of the
// table, labelled on the left; the values stand below the plot.

#include "amortix2/charts/bar_chart_input.h"
#include "amortix2/charts/bar_plot.h"

namespace amortix2 {

class HorizontalPlot : public BarPlot {
 public:
  /// `input`, whose values are all at least 0, must outlive the plot.
  explicit HorizontalPlot(const BarChartInput& input);

  Pixels AxisHeight() const override;
  Pixels Width() const override;
  void WriteSideLabels(MarkupWriter& out) const override;
  void WriteBars(MarkupWriter& out) const override;
  void WriteBottomLabels(MarkupWriter& out) const override;

 private:
  const BarChartInput& input_;
  Pixels length_;     // of the value axis
  Pixels thickness_;  // of a bar, and of the gaps before, between and after the groups
  Pixels pitch_;      // from one group to the next
};

}  // namespace amortix2
