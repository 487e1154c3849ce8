#pragma once

// The small fragments that bar charts are put together from: images in cells, rows of a pile, tooltips, and
// the pairs of markup that style a text with or without style sheets.

#include <cstdint>
#include <string>
#include <string_view>

#include "amortix2/charts/bar_chart_input.h"
#include "amortix2/charts/bar_geometry.h"
#include "amortix2/charts/markup.h"

namespace amortix2 {

/// What stands before and after a text in its cell: the rest of the opened cell tag, and what closes it
/// again.
struct TextStyle {
  Markup opening;
  Markup closing;
};

TextStyle AxisLabelStyle(const BarChartSettings& settings);
TextStyle ChartTitleStyle(const BarChartSettings& settings);
TextStyle YCaptionStyle(const BarChartSettings& settings);
TextStyle XCaptionStyle(const BarChartSettings& settings);

inline constexpr Markup kPlainTable = "<TABLE BORDER=%0% CELLSPACING=%0% CELLPADDING=%0%>"_m;

/// A cell of the plot's row that holds one stretched image. `height` is a number or a SignedNumber.
template <class Height>
void ImageCell(MarkupWriter& out, Height height, std::string_view image, Pixels width) {
  out.Line("<TD VALIGN=%bottom%><IMG border=0 height=%"_m, height, "% src=%"_m, image, "% width =%"_m, width,
           "% ></TD>"_m);
}

/// A cell of the label row below the plot, its text made to fit; a gap's text is not written.
void WriteLabelCell(MarkupWriter& out, const BarChartSettings& settings, const LabelCell& cell,
                    std::string_view text);

/// Keeps `width` pixels of the plot's row free.
void SpacerCell(MarkupWriter& out, std::string_view blank, Pixels width);

/// An image of a pile: bars, and the gaps between them, one above the other in a table of one column.
struct PileImage {
  std::string_view image;
  std::string_view tooltip;
  Pixels width;
  Pixels height;
};

/// The side of its cell on which a pile stands.
enum class Edge : std::uint8_t { Top, Bottom };

/// A cell with a pile, opened and closed again around its images.
void OpenPile(MarkupWriter& out, Edge edge);
void PileRow(MarkupWriter& out, Edge edge, const PileImage& image);
void ClosePile(MarkupWriter& out);

/// Replaces `tooltip` by that of one bar: its value in the alternative format, behind its legend and ", "
/// when the settings ask for that and there is one. The string's memory serves one bar after the other.
void MakeTooltip(std::string& tooltip, const BarChartInput& input, std::int32_t row, std::int32_t series);

}  // namespace amortix2
