#include "charts/bar_layout.h"

#include "charts/bar_cells.h"

namespace amortix2 {
namespace {

constexpr Pixels kFrameWidth = 3;

void OpenFrame(MarkupWriter& out, const BarChartInput& input) {
  const BarChartSettings& settings = input.settings;
  out.Line("<TABLE WIDTH=%", settings.totalFrameWidth, "% BORDER=%0% ", "CELLPADDING=%0% CELLSPACING=%0%>");
  out.Line("<TR>");
  if (settings.useStyleSheets) {
    out.Line("<TD CLASS=%title% COLSPAN=%3%>&nbsp;", input.texts.frameTitle);
  } else {
    out.Line("<TD BGCOLOR=%#666666% COLSPAN=%3%>");
    out.Line("<FONT color=%#ffffff%>");
    out.Line("<STRONG>&nbsp; ", input.texts.frameTitle, "</STRONG>");
    out.Line("</FONT>");
  }
  out.Line("</TD></TR>");
  const Markup look = settings.useStyleSheets ? Markup("CLASS=%frame%") : Markup("BGCOLOR=%silver%");
  out.Line("<TR><TD HEIGHT=%3% COLSPAN=%3% ", look, "><IMG src=%", settings.spaceImage, "% ></TD></TR>");
  out.Line("<TR>");
  out.Line("<TD WIDTH=%3% ", look, "><IMG src=%", settings.spaceImage, "% ></TD>");
  out.Line("<TD WIDTH=%", settings.totalFrameWidth - 2 * kFrameWidth, "%>");
}

void CloseFrame(MarkupWriter& out, const BarChartSettings& settings) {
  const Markup look = settings.useStyleSheets ? Markup("CLASS=%frame%>") : Markup("bgcolor=%silver%>");
  out.Line("</TD>");
  out.Line("<TD WIDTH=%3% ", look, "<IMG height=%1% ", "src=%", settings.spaceImage, "% ></TD>");
  out.Line("</TR>");
  out.Line("<TR>");
  out.Line("<TD HEIGHT=%3% COLSPAN=%3% ", look, "<IMG height=%1% src=%", settings.spaceImage, "% ></TD>");
  out.Line("</TR>");
  out.Line("</TABLE>");
}

void WriteChartTitle(MarkupWriter& out, const BarChartInput& input) {
  const TextStyle style = ChartTitleStyle(input.settings);
  out.Line("<TR>");
  out.Line("<TD COLSPAN=%3% ALIGN=%middle% ", style.opening, input.texts.chartTitle, style.closing, "</TD>");
  out.Line("</TR>");
}

void WritePlot(MarkupWriter& out, const BarChartInput& input, const Plot& plot) {
  out.Line("<TD>");
  if (input.hasBackground) {
    out.Line("<TABLE BORDER=%0% background=%", input.texts.background, "% CELLSPACING=%0% CELLPADDING=%0%>");
  } else {
    out.Line(kPlainTable);
  }
  out.Line("<TR>");
  ImageCell(out, SignedNumber{plot.AxisHeight()}, input.settings.axisImage, 1);
  plot.WriteBars(out);
  out.Line("</TR>");
  out.Line("</TABLE>");
}

// The axis line below the plot and its labels, in the plot's own cell.
void WriteBottomAxis(MarkupWriter& out, const BarChartInput& input, const Plot& plot) {
  const auto open = [&](Markup rest) { out.Line("<TABLE ", "width =%", plot.Width(), "%", rest); };
  open(" BORDER=%0% CELLPADDING=%0%  CELLSPACING=%0%>");
  out.Line("<TR><TD>");
  out.Append("<IMG border=0 height=% 1% src=%", input.settings.axisImage, "% ");
  out.Line("width =%", plot.Width(), "% ></TD>");
  out.Line("</TR>");
  out.Line("</TABLE>");
  open(" BORDER=%0% CELLPADDING=%0%  CELLSPACING=%0%><TR>");
  plot.WriteBottomLabels(out);
  out.Line("</TR></TABLE>");
  out.Line("</TD>");
  out.Line("</TR>");
}

void WriteXCaption(MarkupWriter& out, const BarChartInput& input) {
  const TextStyle style = XCaptionStyle(input.settings);
  out.Line("<TR>");
  out.Line("<TD COLSPAN=%2%></TD>");
  out.Line("<TD ALIGN=%middle% ", style.opening, input.texts.xCaption, style.closing, "</TD>");
  out.Line("</TR>");
}

void WriteLegend(MarkupWriter& out, const BarChartInput& input) {
  constexpr Pixels kImageWidth = 20;
  const std::int32_t count = input.values.Series();
  const Pixels textWidth = LegendTextWidth(input.settings.graph.width, count);
  out.Line("<TR>");
  out.Line("<TD COLSPAN=%2%>&nbsp;</TD>");
  out.Line("<TD VALIGN=%middle% >");
  out.Line("<TABLE  VALIGN=%middle% BORDER=%0% CELLPADDING=%2% ", "CELLSPACING=%2%>");
  out.Line("<TR>");
  out.Line("<TD width=%10%>&nbsp;</TD>");
  for (std::int32_t i = 1; i <= count; ++i) {
    const auto series = static_cast<std::size_t>(input.reversedLegend ? count + 1 - i : i);
    const std::string& legend = input.texts.legends[series];
    out.Line("<TD VALIGN=%bottom%><IMG border=0  height=15 ", "alt=%", legend, "% src=%",
             input.texts.images[series], "% width=%", kImageWidth, "% ></TD>");
    out.Line("<TD ALIGN=%left% width=%", textWidth, "%>", legend, "</TD>");
  }
  out.Line("</TR>");
  out.Line("</TABLE>");
  out.Line("</TD>");
  out.Line("</TR>");
}

}  // namespace

void WriteBarChart(MarkupWriter& out, const BarChartInput& input, const Plot& plot) {
  const bool framed = !input.texts.frameTitle.empty();
  const TextStyle captionStyle = YCaptionStyle(input.settings);
  out.Line("<!-- Generated Chart -->");
  if (framed) OpenFrame(out, input);
  out.Line(kPlainTable);
  WriteChartTitle(out, input);
  out.Line("<TR>");
  out.Line("<TD VALIGN=%center% ", captionStyle.opening, input.texts.yCaption, captionStyle.closing, "</TD>");
  out.Line("<TD VALIGN=%top%>");
  plot.WriteSideLabels(out);
  out.Line("</TD>");
  WritePlot(out, input, plot);
  WriteBottomAxis(out, input, plot);
  WriteXCaption(out, input);
  if (input.hasLegend) WriteLegend(out, input);
  out.Line("</TABLE>");
  if (framed) CloseFrame(out, input.settings);
  out.Line("<!-- End Of Generated Chart -->");
}

}  // namespace amortix2
