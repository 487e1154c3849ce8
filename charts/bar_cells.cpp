#include "charts/bar_cells.h"

#include "automation/number_format.h"

namespace amortix2 {
namespace {

TextStyle Choose(const BarChartSettings& settings, Markup styleClass, TextStyle plain) {
  return settings.useStyleSheets ? TextStyle{styleClass, ""} : plain;
}

}  // namespace

TextStyle AxisLabelStyle(const BarChartSettings& settings) {
  return Choose(settings, " CLASS=%xyaxis%>", {"><FONT SIZE=%1%>", "</FONT>"});
}

TextStyle ChartTitleStyle(const BarChartSettings& settings) {
  return Choose(settings, "CLASS=%chtitle%>", {"><FONT SIZE=%3%><b>", "</b></FONT>"});
}

TextStyle YCaptionStyle(const BarChartSettings& settings) {
  return Choose(settings, "CLASS=%xylabel%>", {"><FONT SIZE=%3%><b>", "</b></FONT>"});
}

TextStyle XCaptionStyle(const BarChartSettings& settings) {
  return Choose(settings, "CLASS=%xylabel%>", {"><b>", "</b>"});
}

void WriteLabelCell(MarkupWriter& out, const BarChartSettings& settings, const LabelCell& cell,
                    std::string_view text) {
  const TextStyle style = AxisLabelStyle(settings);
  const auto label = [&](Markup opening) {
    out.Line(opening, cell.width, "%", style.opening, text, style.closing, "</TD>");
  };
  switch (cell.kind) {
    case LabelCell::Kind::Left:
      return label("<TD ALIGN=%left% width=%");
    case LabelCell::Kind::Middle:
      return label("<TD ALIGN=%middle% width=%");
    case LabelCell::Kind::Right:
      return label("<TD ALIGN=%right% width =%");
    case LabelCell::Kind::Gap:
      return out.Line("<TD width=%", cell.width, "%>&nbsp;</TD>");
  }
}

void SpacerCell(MarkupWriter& out, std::string_view blank, Pixels width) { ImageCell(out, 1, blank, width); }

void OpenPile(MarkupWriter& out, Markup edge) {
  out.Line("<TD VALIGN=%", edge, "%>");
  out.Line("<table border=%0% cellspacing=%0% cellpadding=%0%>");
}

void PileRow(MarkupWriter& out, Markup edge, const PileImage& image) {
  out.Append("<tr><td valign=%", edge, "%><IMG border=0 ");
  out.Line("alt=%", image.tooltip, "% height =%", image.height, "% src=%", image.image, "% width=%",
           image.width, "% ></td></tr>");
}

void ClosePile(MarkupWriter& out) { out.Line("</Table></TD>"); }

std::string BarTooltip(const BarChartSettings& settings, double value, std::string_view legend) {
  std::string text = FormatNumber(value, settings.altFormat);
  if (!settings.altLabelWithLegend || legend.empty()) return text;
  return std::string(legend) + ", " + text;
}

std::string BarTooltip(const BarChartInput& input, std::int32_t row, std::int32_t series) {
  const auto& legends = input.texts.legends;
  const std::string_view legend =
      legends.empty() ? std::string_view() : legends[static_cast<std::size_t>(series)];
  return BarTooltip(input.settings, input.values.At(row, series), legend);
}

}  // namespace amortix2
