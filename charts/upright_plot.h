#pragma once

// Bars that stand on the zero line, or hang from it: side by side, stacked and overlapped alike, told apart
// by the pattern of their groups alone.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/charts/bar_chart_input.h"
#include "amortix2/charts/bar_plot.h"

namespace amortix2 {

class UprightPlot : public BarPlot {
 public:
  /// `input` must outlive the plot.
  UprightPlot(const BarChartInput& input, GroupPattern pattern);

  Pixels AxisHeight() const override;
  Pixels Width() const override;
  void WriteSideLabels(MarkupWriter& out) const override;
  void WriteBars(MarkupWriter& out) const override;
  void WriteBottomLabels(MarkupWriter& out) const override;

 private:
  enum class Side : std::int8_t { Above = 1, Below = -1 };

  /// A bar of the group that is being written, on one side of the zero line.
  struct Bar {
    Pixels height = 0;  // not above 0: no bar on this side
    std::string tooltip;
  };

  /// A bar's visible part in one slice.
  struct Segment {
    std::string_view image;
    std::string_view tooltip;
    Pixels height;
  };

  void WriteAbove(MarkupWriter& out) const;
  void WriteZeroLine(MarkupWriter& out) const;
  void WriteBelow(MarkupWriter& out) const;
  void WriteGroups(MarkupWriter& out, Side side) const;
  /// The segments of a slice, from the zero line outwards.
  void VisibleSegments(const Slice& slice, std::span<const Bar> bars, std::vector<Segment>& segments) const;
  void WriteSlice(MarkupWriter& out, Side side, Pixels width, std::span<const Segment> segments) const;

  const BarChartInput& input_;
  GroupPattern pattern_;
  Pixels groupsWidth_;
  VerticalSplit split_;
};

}  // namespace amortix2
