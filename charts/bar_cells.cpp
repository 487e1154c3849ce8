#include "amortix2/charts/bar_cells.h"

#include "amortix2/charts/label_text.h"

namespace amortix2 {
namespace {

TextStyle Choose(const BarChartSettings& settings, Markup styleClass, TextStyle plain) {
  return settings.useStyleSheets ? TextStyle{styleClass, ""_m} : plain;
}

}  // namespace

TextStyle AxisLabelStyle(const BarChartSettings& settings) {
  return Choose(settings, " CLASS=%xyaxis%>"_m, {"><FONT SIZE=%1%>"_m, "</FONT>"_m});
}

TextStyle ChartTitleStyle(const BarChartSettings& settings) {
  return Choose(settings, "CLASS=%chtitle%>"_m, {"><FONT SIZE=%3%><b>"_m, "</b></FONT>"_m});
}

TextStyle YCaptionStyle(const BarChartSettings& settings) {
  return Choose(settings, "CLASS=%xylabel%>"_m, {"><FONT SIZE=%3%><b>"_m, "</b></FONT>"_m});
}

TextStyle XCaptionStyle(const BarChartSettings& settings) {
  return Choose(settings, "CLASS=%xylabel%>"_m, {"><b>"_m, "</b>"_m});
}

void WriteLabelCell(MarkupWriter& out, const BarChartSettings& settings, const LabelCell& cell,
                    std::string_view text) {
  const TextStyle style = AxisLabelStyle(settings);
  const auto label = [&](Markup opening) {
    out.Line(opening, cell.width, "%"_m, style.opening, FittedLabel(text, cell.width), style.closing,
             "</TD>"_m);
  };
  switch (cell.kind) {
    case LabelCell::Kind::Left:
      return label("<TD ALIGN=%left% width=%"_m);
    case LabelCell::Kind::Middle:
      return label("<TD ALIGN=%middle% width=%"_m);
    case LabelCell::Kind::Right:
      return label("<TD ALIGN=%right% width =%"_m);
    case LabelCell::Kind::Gap:
      return out.Line("<TD width=%"_m, cell.width, "%>&nbsp;</TD>"_m);
  }
}

void SpacerCell(MarkupWriter& out, std::string_view blank, Pixels width) { ImageCell(out, 1, blank, width); }

void OpenPile(MarkupWriter& out, Edge edge) {
  out.Line(edge == Edge::Top ? "<TD VALIGN=%top%>"_m : "<TD VALIGN=%bottom%>"_m);
  out.Line("<table border=%0% cellspacing=%0% cellpadding=%0%>"_m);
}

void PileRow(MarkupWriter& out, Edge edge, const PileImage& image) {
  out.Line(edge == Edge::Top ? "<tr><td valign=%top%><IMG border=0 alt=%"_m
                             : "<tr><td valign=%bottom%><IMG border=0 alt=%"_m,
           image.tooltip, "% height =%"_m, image.height, "% src=%"_m, image.image, "% width=%"_m, image.width,
           "% ></td></tr>"_m);
}

void ClosePile(MarkupWriter& out) { out.Line("</Table></TD>"_m); }

void MakeTooltip(std::string& tooltip, const BarChartInput& input, std::int32_t row, std::int32_t series) {
  tooltip.clear();
  if (input.settings.altLabelWithLegend) {
    tooltip += input.texts.legends[static_cast<std::size_t>(series)];
    if (!tooltip.empty()) tooltip += ", ";
  }
  input.tooltipFormat.AppendTo(tooltip, input.values.At(row, series));
}

}  // namespace amortix2
