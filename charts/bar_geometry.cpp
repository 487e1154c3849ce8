#include "amortix2/charts/bar_geometry.h"

#include <algorithm>
#include <cmath>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"

// Every upright style is a pattern of slices in which bars stand behind one another. Side by side, each bar
// has a slice of its own. Stacked bars all stand in one slice, drawn from running totals: the last series in
// front, and of each series before it only what rises above. Overlapped bars are as wide as several slices,
// so that they share some with their neighbours.

namespace amortix2 {
namespace {

Pixels Floor(double value) {
  if (!(std::abs(value) < 0x1p53)) Raise(ErrorNumber::Overflow);
  return static_cast<Pixels>(std::floor(value));
}

Pixels Nearest(double value) { return Floor(value + 0.5); }

struct Columns {
  std::int32_t groups;
  Pixels width;
};

Columns FitColumns(const BarChartSettings& settings, std::int32_t rows, std::int32_t series) {
  const double graphWidth = settings.graph.width;
  const double bars = static_cast<double>(rows) * series;
  Columns columns{rows, Floor((graphWidth - rows) / bars)};
  if (columns.width < settings.minimumColumnWidth) {
    columns.width = settings.minimumColumnWidth;
    const double narrowest = static_cast<double>(columns.width) * series + 1;
    if (narrowest == 0) Raise(ErrorNumber::DivisionByZero);
    const Pixels fitting = Floor(graphWidth / narrowest);
    columns.groups = static_cast<std::int32_t>(std::clamp<Pixels>(fitting, 0, rows));
  }
  columns.width = std::min<Pixels>(columns.width, settings.maximumColumnWidth);
  return columns;
}

// The part of an overlapped bar that its neighbour to the right leaves free.
Pixels OverlapStep(const BarChartSettings& settings, std::int32_t rows, std::int32_t series) {
  const double count = settings.minimumOverlapCount;
  const double spaces = series + count - 1;
  if (count == 0 || spaces == 0) Raise(ErrorNumber::DivisionByZero);
  const double room = std::floor((static_cast<double>(settings.graph.width) - rows) / rows);
  double step = std::floor(room / spaces);
  const double widest = settings.maximumColumnWidth / count;
  if (widest < step) step = ToLong(widest);
  return Floor(std::max<double>(step, settings.minimumOverlapSpace));
}

// Slices of `front`, each bar standing in `count` of them, with a slice of `gap` in the middle of every bar.
std::vector<Slice> OverlappedSlices(std::int32_t series, std::int32_t count, Pixels front, Pixels gap) {
  std::vector<Slice> slices;
  for (std::int32_t slice = 1; slice < series + count; ++slice) {
    slices.push_back({front, std::max(1, slice - count + 1), std::min(slice, series)});
    if (gap > 0 && slice <= series) slices.push_back({gap, slice, slice});
  }
  return slices;
}

}  // namespace

Pixels GroupPattern::Width() const {
  Pixels width = 0;
  for (const Slice& slice : slices) width += slice.width;
  return width;
}

GroupPattern PlainGroup(const BarChartSettings& settings, std::int32_t rows, std::int32_t series) {
  const Columns columns = FitColumns(settings, rows, series);
  GroupPattern pattern{columns.groups, {}};
  for (std::int32_t bar = 1; bar <= series; ++bar) pattern.slices.push_back({columns.width, bar, bar});
  return pattern;
}

GroupPattern StackedGroup(const BarChartSettings& settings, std::int32_t rows, std::int32_t series) {
  const Columns columns = FitColumns(settings, rows, series);
  GroupPattern pattern{columns.groups, {{columns.width, 1, series}}};
  if (const Pixels margins = columns.width * (series - 1); margins > 0) {
    pattern.slices.insert(pattern.slices.begin(), {margins / 2});
    pattern.slices.push_back({margins - margins / 2});
  }
  return pattern;
}

GroupPattern OverlappedGroup(const BarChartSettings& settings, std::int32_t rows, std::int32_t series) {
  const double count = settings.minimumOverlapCount;
  const Pixels step = OverlapStep(settings, rows, series);
  if (count >= 2) return {rows, OverlappedSlices(series, ToInteger(count), step, 0)};

  const double overlap = std::floor((count - 1) * static_cast<double>(step) + 0.5);
  const Pixels front = Floor(std::max<double>(overlap, settings.minimumColumnWidth));
  const Pixels gap = step - front;
  return {rows, gap < 2 ? OverlappedSlices(series, 2, step, 0) : OverlappedSlices(series, 2, front, gap)};
}

VerticalSplit SplitAtZero(const AxisRange& axis, Pixels height) {
  const Pixels zeroRow = Nearest(axis.top / axis.step);
  const auto area = [&](Pixels rows) { return Nearest(static_cast<double>(height * rows) * 0.1); };
  return {axis, static_cast<int>(zeroRow), area(zeroRow), area(kGridIntervals - zeroRow)};
}

Pixels VerticalSplit::BarHeight(double value) const {
  const auto height = [](double distance, Pixels area, double end, Pixels most) {
    return std::clamp<Pixels>(Nearest(distance * static_cast<double>(area) / end), 0,
                              std::max<Pixels>(most, 0));
  };
  if (value > 0 && zeroRow > 0) return height(value, above, axis.top, above);
  if (value < 0 && zeroRow < kGridIntervals) return -height(-value, below, -axis.bottom, below - 1);
  return 0;
}

Pixels HorizontalBarThickness(const BarChartSettings& settings, std::int32_t rows, std::int32_t series) {
  const double spaces = (series + 1.0) * rows + 1;
  const Pixels thickness =
      std::max<Pixels>(Floor(settings.graph.height / spaces), settings.minimumColumnWidth);
  return std::min<Pixels>(thickness, settings.maximumColumnWidth);
}

Pixels HorizontalBarLength(double value, const AxisRange& axis, Pixels width) {
  return std::min(Nearest(value * static_cast<double>(width) / axis.top), width);
}

std::optional<double> GridLabel(const AxisRange& axis, int line, ValueLabels labels) {
  if (line == 0) return axis.top;
  if (line == kGridIntervals) return axis.bottom;
  const double value = axis.top - line * axis.step;
  if (std::abs(value) < axis.step / 10) return 0;
  const bool middle = line == kGridIntervals / 2 && labels == ValueLabels::EndsAndMiddle;
  return middle || labels == ValueLabels::All ? std::optional(value) : std::nullopt;
}

std::vector<LabelCell> GroupLabelCells(std::int32_t groups, Pixels pitch) {
  using enum LabelCell::Kind;
  constexpr std::int32_t kLabelAll = 12;
  std::vector<LabelCell> cells;
  if (groups <= kLabelAll) {
    // As wide as the group's bars; the table spreads the pixels between the groups.
    for (std::int32_t group = 1; group <= groups; ++group) cells.push_back({Middle, pitch - 1, group});
    return cells;
  }
  const std::int32_t interval = (groups - 1 + 5) / 6;
  const std::int32_t beside =
      (interval - 1) / 2;  // groups whose width a label takes on either side of its own
  std::int32_t covered = 0;
  const auto add = [&](LabelCell::Kind kind, std::int32_t first, std::int32_t last, std::int32_t group) {
    if (first > covered + 1) cells.push_back({Gap, (first - covered - 1) * pitch});
    cells.push_back({kind, (last - first + 1) * pitch, group});
    covered = last;
  };
  add(Left, 1, 1 + beside, 1);
  for (std::int32_t group = 1 + interval; group + beside < groups - beside; group += interval) {
    add(Middle, group - beside, group + beside, group);
  }
  add(Right, groups - beside, groups, groups);
  return cells;
}

std::vector<LabelCell> GridLabelCells(const AxisRange& axis, ValueLabels labels, Pixels width) {
  using enum LabelCell::Kind;
  std::vector<LabelCell> cells;
  for (int line = kGridIntervals; line >= 0; --line) {
    if (GridLabel(axis, line, labels)) cells.push_back({Middle, 0, line});
  }
  // The cells meet half way between their lines, so that each label is centred on its own; the ends have
  // half.
  const Pixels halves = 2 * (static_cast<Pixels>(cells.size()) - 1);
  Pixels start = 0;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const Pixels end = width * (2 * static_cast<Pixels>(i) + 1) / halves;
    cells[i].width = end - start;
    start = end;
  }
  cells.front().kind = Left;
  cells.back().kind = Right;
  cells.back().width = width + 1 - (start - cells.back().width);
  return cells;
}

Pixels LegendTextWidth(Pixels graphWidth, std::int32_t series) {
  constexpr Pixels kBesideText = 24;
  constexpr Pixels kNarrowest = 30;
  return std::max(Floor(static_cast<double>(graphWidth - 10) / series) - kBesideText, kNarrowest);
}

}  // namespace amortix2
