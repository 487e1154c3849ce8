#pragma once

// The marks of an SVG chart: bars with their geometry after the values, and lines through points. Tables of
// more rows than the plot has pixels are thinned, so that each pixel still shows the least and the largest
// value of its rows.

#include <cstdint>
#include <string>
#include <vector>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/charts/svg_plot.h"

namespace amortix2 {

/// A rectangle in the picture.
struct SvgBox {
  double left;
  double top;
  double right;
  double bottom;

  bool Meets(const SvgBox& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
};

/// A value that may be written beside its mark. `row` is from 1; a line's mark is a point.
struct SvgMark {
  std::int32_t row;
  double value;
  SvgBox box;
};

/// Draws the bars of all series, each with its title. Returns what can be labelled (in stacks the totals;
/// nothing of a thinned table).
std::vector<SvgMark> DrawBars(EscapedMarkup& out, const SvgInput& input, const SvgPlot& plot);

/// The same for lines. A gap interrupts its line.
std::vector<SvgMark> DrawLines(EscapedMarkup& out, const SvgInput& input, const SvgPlot& plot);

/// What a mark's title says: "2001, Principal: $120"; the series where there are several or the settings ask
/// for it.
std::string MarkTitle(const SvgInput& input, std::int32_t row, std::int32_t series);

/// Writes values beside their marks as the settings say, the largest first, and leaves out those that would
/// meet a mark or another label.
void DrawPointLabels(EscapedMarkup& out, const SvgInput& input, const SvgPlot& plot,
                     const std::vector<SvgMark>& marks);

/// The marker of a series at a point, and what sets lines of different series apart when dashes are on: empty
/// for a whole line.
void DrawMarker(EscapedMarkup& out, std::size_t series, double x, double y, double radius);
std::string_view DashPattern(const SvgSettings& settings, std::size_t series);

}  // namespace amortix2
