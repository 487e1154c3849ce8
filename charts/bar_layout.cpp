#include "amortix2/charts/bar_layout.h"

#include "amortix2/charts/bar_cells.h"

namespace amortix2 {
namespace {

constexpr Pixels kFrameWidth = 3;

void OpenFrame(MarkupWriter& out, const BarChartInput& input) {
  const BarChartSettings& settings = input.settings;
  out.Line("<TABLE WIDTH=%"_m, settings.totalFrameWidth, "% BORDER=%0% "_m,
           "CELLPADDING=%0% CELLSPACING=%0%>"_m);
  out.Line("<TR>"_m);
  if (settings.useStyleSheets) {
    out.Line("<TD CLASS=%title% COLSPAN=%3%>&nbsp;"_m, input.texts.frameTitle);
  } else {
    out.Line("<TD BGCOLOR=%#666666% COLSPAN=%3%>"_m);
    out.Line("<FONT color=%#ffffff%>"_m);
    out.Line("<STRONG>&nbsp; "_m, input.texts.frameTitle, "</STRONG>"_m);
    out.Line("</FONT>"_m);
  }
  out.Line("</TD></TR>"_m);
  const Markup look = settings.useStyleSheets ? "CLASS=%frame%"_m : "BGCOLOR=%silver%"_m;
  out.Line("<TR><TD HEIGHT=%3% COLSPAN=%3% "_m, look, "><IMG src=%"_m, settings.spaceImage,
           "% ></TD></TR>"_m);
  out.Line("<TR>"_m);
  out.Line("<TD WIDTH=%3% "_m, look, "><IMG src=%"_m, settings.spaceImage, "% ></TD>"_m);
  out.Line("<TD WIDTH=%"_m, settings.totalFrameWidth - 2 * kFrameWidth, "%>"_m);
}

void CloseFrame(MarkupWriter& out, const BarChartSettings& settings) {
  const Markup look = settings.useStyleSheets ? "CLASS=%frame%>"_m : "bgcolor=%silver%>"_m;
  out.Line("</TD>"_m);
  out.Line("<TD WIDTH=%3% "_m, look, "<IMG height=%1% "_m, "src=%"_m, settings.spaceImage, "% ></TD>"_m);
  out.Line("</TR>"_m);
  out.Line("<TR>"_m);
  out.Line("<TD HEIGHT=%3% COLSPAN=%3% "_m, look, "<IMG height=%1% src=%"_m, settings.spaceImage,
           "% ></TD>"_m);
  out.Line("</TR>"_m);
  out.Line("</TABLE>"_m);
}

void WriteChartTitle(MarkupWriter& out, const BarChartInput& input) {
  const TextStyle style = ChartTitleStyle(input.settings);
  out.Line("<TR>"_m);
  out.Line("<TD COLSPAN=%3% ALIGN=%middle% "_m, style.opening, input.texts.chartTitle, style.closing,
           "</TD>"_m);
  out.Line("</TR>"_m);
}

void WritePlot(MarkupWriter& out, const BarChartInput& input, const BarPlot& plot) {
  out.Line("<TD>"_m);
  if (input.hasBackground) {
    out.Line("<TABLE BORDER=%0% background=%"_m, input.texts.background,
             "% CELLSPACING=%0% CELLPADDING=%0%>"_m);
  } else {
    out.Line(kPlainTable);
  }
  out.Line("<TR>"_m);
  ImageCell(out, SignedNumber{plot.AxisHeight()}, input.settings.axisImage, 1);
  plot.WriteBars(out);
  out.Line("</TR>"_m);
  out.Line("</TABLE>"_m);
}

// The axis line below the plot and its labels, in the plot's own cell.
void WriteBottomAxis(MarkupWriter& out, const BarChartInput& input, const BarPlot& plot) {
  const auto open = [&](Markup rest) { out.Line("<TABLE "_m, "width =%"_m, plot.Width(), "%"_m, rest); };
  open(" BORDER=%0% CELLPADDING=%0%  CELLSPACING=%0%>"_m);
  out.Line("<TR><TD>"_m);
  out.Append("<IMG border=0 height=% 1% src=%"_m, input.settings.axisImage, "% "_m);
  out.Line("width =%"_m, plot.Width(), "% ></TD>"_m);
  out.Line("</TR>"_m);
  out.Line("</TABLE>"_m);
  open(" BORDER=%0% CELLPADDING=%0%  CELLSPACING=%0%><TR>"_m);
  plot.WriteBottomLabels(out);
  out.Line("</TR></TABLE>"_m);
  out.Line("</TD>"_m);
  out.Line("</TR>"_m);
}

void WriteXCaption(MarkupWriter& out, const BarChartInput& input) {
  const TextStyle style = XCaptionStyle(input.settings);
  out.Line("<TR>"_m);
  out.Line("<TD COLSPAN=%2%></TD>"_m);
  out.Line("<TD ALIGN=%middle% "_m, style.opening, input.texts.xCaption, style.closing, "</TD>"_m);
  out.Line("</TR>"_m);
}

void WriteLegend(MarkupWriter& out, const BarChartInput& input) {
  constexpr Pixels kImageWidth = 20;
  const std::int32_t count = input.values.Series();
  const Pixels textWidth = LegendTextWidth(input.settings.graph.width, count);
  out.Line("<TR>"_m);
  out.Line("<TD COLSPAN=%2%>&nbsp;</TD>"_m);
  out.Line("<TD VALIGN=%middle% >"_m);
  out.Line("<TABLE  VALIGN=%middle% BORDER=%0% CELLPADDING=%2% "_m, "CELLSPACING=%2%>"_m);
  out.Line("<TR>"_m);
  out.Line("<TD width=%10%>&nbsp;</TD>"_m);
  for (std::int32_t i = 1; i <= count; ++i) {
    const auto series = static_cast<std::size_t>(input.reversedLegend ? count + 1 - i : i);
    const std::string& legend = input.texts.legends[series];
    out.Line("<TD VALIGN=%bottom%><IMG border=0  height=15 "_m, "alt=%"_m, legend, "% src=%"_m,
             input.texts.images[series], "% width=%"_m, kImageWidth, "% ></TD>"_m);
    out.Line("<TD ALIGN=%left% width=%"_m, textWidth, "%>"_m, legend, "</TD>"_m);
  }
  out.Line("</TR>"_m);
  out.Line("</TABLE>"_m);
  out.Line("</TD>"_m);
  out.Line("</TR>"_m);
}

}  // namespace

void WriteBarChart(MarkupWriter& out, const BarChartInput& input, const BarPlot& plot) {
  const bool framed = !input.texts.frameTitle.empty();
  const TextStyle captionStyle = YCaptionStyle(input.settings);
  out.Line("<!-- Generated Chart -->"_m);
  if (framed) OpenFrame(out, input);
  out.Line(kPlainTable);
  WriteChartTitle(out, input);
  out.Line("<TR>"_m);
  out.Line("<TD VALIGN=%center% "_m, captionStyle.opening, input.texts.yCaption, captionStyle.closing,
           "</TD>"_m);
  out.Line("<TD VALIGN=%top%>"_m);
  plot.WriteSideLabels(out);
  out.Line("</TD>"_m);
  WritePlot(out, input, plot);
  WriteBottomAxis(out, input, plot);
  WriteXCaption(out, input);
  if (input.hasLegend) WriteLegend(out, input);
  out.Line("</TABLE>"_m);
  if (framed) CloseFrame(out, input.settings);
  out.Line("<!-- End Of Generated Chart -->"_m);
}

}  // namespace amortix2
