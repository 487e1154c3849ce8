#include "amortix2/charts/horizontal_plot.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "amortix2/charts/bar_cells.h"
#include "amortix2/charts/label_text.h"

// All bars and gaps are rows of one pile, so that every bar starts at the axis whatever its length.

namespace amortix2 {

HorizontalPlot::HorizontalPlot(const BarChartInput& input)
    : input_(input),
      length_(input.settings.graph.width),
      thickness_(HorizontalBarThickness(input.settings, input.drawn.Rows(), input.drawn.Series())),
      pitch_(thickness_ * (input.drawn.Series() + 1)) {}

Pixels HorizontalPlot::AxisHeight() const { return pitch_ * input_.drawn.Rows() + thickness_; }

Pixels HorizontalPlot::Width() const { return length_ + 1; }

void HorizontalPlot::WriteSideLabels(MarkupWriter& out) const {
  constexpr Pixels kTextHeight = 10;  // of the smallest font: labels closer than that leave some out
  constexpr Pixels kLargestLine =
      20;  // of any browser's line of text: lower rows must not grow with their text
  const TextStyle style = AxisLabelStyle(input_.settings);
  const Markup fixed = pitch_ < kLargestLine ? "STYLE=%line-height:1px% "_m : ""_m;
  const auto row = [&](Pixels height, const auto&... content) {
    out.Line("<TR>"_m);
    out.Line("<TD VALIGN=%middle% ALIGN=%right% NOWRAP "_m, fixed, "height=%"_m, height, "% "_m,
             style.opening, content..., style.closing, "</TD>"_m);
    out.Line("</TR>"_m);
  };
  out.Line(kPlainTable);
  // Half a gap less than a whole one, so that every label stands at the middle of its group.
  row(thickness_ - thickness_ / 2, "<IMG src=%"_m, input_.settings.spaceImage, "% >"_m);
  const Pixels interval = (kTextHeight - 1) / std::max<Pixels>(pitch_, 1) + 1;
  for (std::int32_t group = 1; group <= input_.values.Rows(); ++group) {
    if ((group - 1) % interval == 0) {
      row(pitch_, "&nbsp;"_m, input_.values.Label(group), "&nbsp;"_m);  // clear of caption and axis
    } else {
      row(pitch_);
    }
  }
  out.Line("</TABLE>"_m);
}

void HorizontalPlot::WriteBars(MarkupWriter& out) const {
  const Edge edge = Edge::Bottom;
  const auto space = [&](Pixels width) { PileRow(out, edge, {input_.texts.blank, "", width, thickness_}); };
  std::string tooltip;
  OpenPile(out, edge);
  space(length_);
  for (std::int32_t row = 1; row <= input_.drawn.Rows(); ++row) {
    for (std::int32_t series = 1; series <= input_.drawn.Series(); ++series) {
      const Pixels bar = HorizontalBarLength(input_.drawn.At(row, series), input_.axis, length_);
      if (bar <= 0) {
        space(1);
      } else {
        const auto& image = input_.texts.images[static_cast<std::size_t>(series)];
        MakeTooltip(tooltip, input_, row, series);
        PileRow(out, edge, {image, tooltip, bar, thickness_});
      }
    }
    space(length_);
  }
  ClosePile(out);
}

void HorizontalPlot::WriteBottomLabels(MarkupWriter& out) const {
  const BarChartSettings& settings = input_.settings;
  std::array<std::string, kGridIntervals + 1> texts;
  GridLabelWidths widths;
  for (std::size_t line = 0; line < texts.size(); ++line) {
    texts[line] =
        input_.valueLabelFormat.Format(*GridLabel(input_.axis, static_cast<int>(line), ValueLabels::All));
    widths[line] = LabelWidth(texts[line]);
  }
  for (const LabelCell& cell : GridLabelCells(widths, settings.valueLabels, length_)) {
    WriteLabelCell(out, settings, cell, texts[static_cast<std::size_t>(cell.index)]);
  }
}

}  // namespace amortix2
