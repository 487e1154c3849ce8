#include "amortix2/charts/upright_plot.h"

#include <algorithm>
#include <string>
#include <utility>

#include "amortix2/automation/error.h"
#include "amortix2/charts/bar_cells.h"
#include "amortix2/charts/label_text.h"

// A row of the plot is a row of cells: for every group its slices, then one free pixel. Where bars hang below
// zero the whole is written twice, once for each side of the zero line, and a slice without a bar on that
// side keeps its place with a blank image.

namespace amortix2 {

UprightPlot::UprightPlot(const BarChartInput& input, GroupPattern pattern)
    : input_(input),
      pattern_(std::move(pattern)),
      groupsWidth_(pattern_.groups * pattern_.Pitch()),
      split_(SplitAtZero(input.axis, input.settings.graph.height)) {}

Pixels UprightPlot::AxisHeight() const { return input_.settings.graph.height; }

Pixels UprightPlot::Width() const { return groupsWidth_ + 1; }

void UprightPlot::WriteSideLabels(MarkupWriter& out) const {
  const TextStyle style = AxisLabelStyle(input_.settings);
  const Pixels height = AxisHeight();
  const auto row = [&](Markup edge, Pixels rowHeight, const auto&... content) {
    out.Line("<TR>"_m);
    out.Line("<TD VALIGN=%"_m, edge, "% ALIGN=%right% height=%"_m, rowHeight, "% "_m, style.opening,
             content..., style.closing, "</TD>"_m);
    out.Line("</TR>"_m);
  };
  out.Line("<TABLE width=33 BORDER=%0% height=%"_m, SignedNumber{height},
           "% CELLSPACING=%0% CELLPADDING=%0%>"_m);
  for (int line = 0; line <= kGridIntervals; ++line) {
    const bool end = line == 0 || line == kGridIntervals;
    const Markup edge = line == 0 ? "top"_m : line == kGridIntervals ? "bottom"_m : "middle"_m;
    const Pixels rowHeight = height / (end ? 2 * kGridIntervals : kGridIntervals);
    if (const auto value = GridLabel(input_.axis, line, input_.settings.valueLabels)) {
      row(edge, rowHeight, input_.valueLabelFormat.Format(*value));
    } else {
      row(edge, rowHeight, "<IMG src=%"_m, input_.settings.spaceImage, "% >"_m);
    }
  }
  out.Line("</TABLE>"_m);
}

void UprightPlot::WriteBars(MarkupWriter& out) const {
  constexpr std::size_t kShortestCell = 66;  // characters of a cell without a bar and with an empty URL
  const auto groups = static_cast<std::size_t>(pattern_.groups);
  if (groups * pattern_.slices.size() > kLargestMarkup / kShortestCell) Raise(ErrorNumber::OutOfMemory);
  if (split_.zeroRow == kGridIntervals) return WriteGroups(out, Side::Above);
  out.Line("<TD>"_m, kPlainTable);
  if (split_.zeroRow > 0) WriteAbove(out);
  WriteZeroLine(out);
  WriteBelow(out);
  out.Line("</TABLE></TD>"_m);
}

void UprightPlot::WriteAbove(MarkupWriter& out) const {
  out.Line("<TR><TD>"_m, kPlainTable);
  out.Line("<TR height=%"_m, split_.above, "% >"_m);
  WriteGroups(out, Side::Above);
  out.Line("</TR></TABLE></TD></TR>"_m);
}

void UprightPlot::WriteZeroLine(MarkupWriter& out) const {
  out.Line("<TR height=%1% ><TD>"_m);
  out.Line("<IMG border=0 height=% 1% src=%"_m, input_.settings.axisImage, "% width =%"_m, groupsWidth_,
           "% ></TD>"_m);
  out.Line("</TR>"_m);
}

void UprightPlot::WriteBelow(MarkupWriter& out) const {
  out.Line("<TR height=%"_m, split_.below - 1, "% >"_m);  // the zero line has the other pixel
  out.Line("<TD VALIGN=%top%>"_m, kPlainTable);
  out.Line("<TR>"_m);
  WriteGroups(out, Side::Below);
  out.Line("</TR></TABLE></TD></TR>"_m);
}

void UprightPlot::WriteGroups(MarkupWriter& out, Side side) const {
  std::vector<Bar> bars(static_cast<std::size_t>(input_.drawn.Series()));
  std::vector<Segment> segments;
  for (std::int32_t row = 1; row <= pattern_.groups; ++row) {
    for (std::int32_t series = 1; series <= input_.drawn.Series(); ++series) {
      Bar& bar = bars[static_cast<std::size_t>(series - 1)];
      bar.height = split_.BarHeight(input_.drawn.At(row, series)) * static_cast<int>(side);
      if (bar.height > 0) MakeTooltip(bar.tooltip, input_, row, series);
    }
    for (const Slice& slice : pattern_.slices) {
      VisibleSegments(slice, bars, segments);
      if (side == Side::Above) std::ranges::reverse(segments);
      WriteSlice(out, side, slice.width, segments);
    }
    SpacerCell(out, input_.texts.blank, 1);
  }
}

void UprightPlot::VisibleSegments(const Slice& slice, std::span<const Bar> bars,
                                  std::vector<Segment>& segments) const {
  segments.clear();
  Pixels reached = 0;
  for (std::int32_t series = slice.last; series >= slice.first; --series) {
    const Bar& bar = bars[static_cast<std::size_t>(series - 1)];
    if (bar.height <= reached) continue;
    segments.push_back(
        {input_.texts.images[static_cast<std::size_t>(series)], bar.tooltip, bar.height - reached});
    reached = bar.height;
  }
}

void UprightPlot::WriteSlice(MarkupWriter& out, Side side, Pixels width,
                             std::span<const Segment> segments) const {
  if (segments.empty()) return SpacerCell(out, input_.texts.blank, width);
  const Edge edge = side == Side::Above ? Edge::Bottom : Edge::Top;
  OpenPile(out, edge);
  for (const Segment& segment : segments) {
    PileRow(out, edge, {segment.image, segment.tooltip, width, segment.height});
  }
  ClosePile(out);
}

void UprightPlot::WriteBottomLabels(MarkupWriter& out) const {
  Pixels longest = 0;
  for (std::int32_t group = 1; group <= pattern_.groups; ++group) {
    longest = std::max(longest, LabelWidth(input_.values.Label(group)));
  }
  for (const LabelCell& cell : GroupLabelCells(pattern_.groups, pattern_.Pitch(), longest)) {
    WriteLabelCell(out, input_.settings, cell, input_.values.Label(cell.index));
  }
}

}  // namespace amortix2
