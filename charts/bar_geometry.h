#pragma once

// The numbers of a bar chart: which bars stand where, and how many pixels long. Plain functions on plain
// data; no markup. Lengths are whole pixels in 64 bits, wide enough for every product of settings and table
// sizes.

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "amortix2/charts/axis_range.h"
#include "amortix2/charts/bar_settings.h"

namespace amortix2 {

using Pixels = std::int64_t;

/// A vertical strip of a group, with bars `first` to `last` standing in it one behind the other, later ones
/// in front. Without bars (first > last) it is a gap.
struct Slice {
  Pixels width;
  std::int32_t first = 1;
  std::int32_t last = 0;
};

/// How every group of an upright chart is made up, from left to right.
struct GroupPattern {
  std::int32_t groups;  ///< rows 1 to `groups` are drawn, as many as find room
  std::vector<Slice> slices;

  Pixels Width() const;                         ///< of one group's bars
  Pixels Pitch() const { return Width() + 1; }  ///< from one group to the next
};

// The pattern of each upright style, for rows 1 to `rows` of `series` series, both at least 1. Side by side
// and stacked bars raise DivisionByZero when the minimum column width leaves no group a width; overlapped
// ones when the overlap count is 0 or 1 - series, Overflow when the count leaves 16 bits.
GroupPattern PlainGroup(const BarChartSettings& settings, std::int32_t rows, std::int32_t series);
GroupPattern StackedGroup(const BarChartSettings& settings, std::int32_t rows, std::int32_t series);
GroupPattern OverlappedGroup(const BarChartSettings& settings, std::int32_t rows, std::int32_t series);

/// An upright plot divided at its zero line.
struct VerticalSplit {
  AxisRange axis;
  int zeroRow;   ///< grid steps above the zero line, 0 to 10
  Pixels above;  ///< height of the area above zero; nothing is drawn in it when zeroRow is 0
  Pixels
      below;  ///< height of the area below zero, the zero line's pixel included; not drawn when zeroRow is 10

  /// The height of a value's bar, negative for a bar that hangs below zero; 0 where it has no area.
  Pixels BarHeight(double value) const;
};

VerticalSplit SplitAtZero(const AxisRange& axis, Pixels height);

/// The thickness of a horizontal bar, and of the gaps around the groups.
Pixels HorizontalBarThickness(const BarChartSettings& settings, std::int32_t rows, std::int32_t series);

/// The length of a horizontal bar on an axis `width` pixels long.
Pixels HorizontalBarLength(double value, const AxisRange& axis, Pixels width);

/// The value written at a grid line, counted from 0 at the top of the axis to 10 at its bottom; nothing where
/// the line has no label.
std::optional<double> GridLabel(const AxisRange& axis, int line, ValueLabels labels);

/// A cell of the label row below a plot.
struct LabelCell {
  enum class Kind : std::uint8_t { Left, Middle, Right, Gap };
  Kind kind;
  Pixels width;
  std::int32_t index = 0;  ///< of the group, from 1, or of the grid line
};

/// The label row of an upright plot whose longest label is `longest` pixels wide: every group's label up to
/// twelve groups, above that as many at even distances as keep clear of one another, the first and the last
/// among them.
std::vector<LabelCell> GroupLabelCells(std::int32_t groups, Pixels pitch, Pixels longest);

/// The widths of the labels at the grid lines 0 to 10.
using GridLabelWidths = std::array<Pixels, kGridIntervals + 1>;

/// The label row of a horizontal plot `width` pixels wide: of the grid lines that are labelled as many at
/// even distances as find room, the ends among them, each label at its own line.
std::vector<LabelCell> GridLabelCells(const GridLabelWidths& labelWidths, ValueLabels labels, Pixels width);

/// The width of a legend text.
Pixels LegendTextWidth(Pixels graphWidth, std::int32_t series);

}  // namespace amortix2
