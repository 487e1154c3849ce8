#include "amortix2/charts/bar_geometry.h"

#include <algorithm>
#include <cmath>
#include <utility>

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

// The cells of a label row, put one behind the other.
class LabelRow {
 public:
  // A cell from `start` to `end`; what is free in front of it becomes an empty cell, or where that is too
  // narrow goes to its neighbour.
  void Add(LabelCell::Kind kind, Pixels start, Pixels end, std::int32_t index) {
    constexpr Pixels kNarrowestGap = 5;  // an empty cell is as wide as its blank
    if (const Pixels gap = start - covered_; gap >= kNarrowestGap) {
      cells_.push_back({LabelCell::Kind::Gap, gap});
    } else if (gap > 0 && kind != LabelCell::Kind::Right) {
      cells_.back().width += gap;
    } else {
      start = covered_;
    }
    cells_.push_back({kind, end - start, index});
    covered_ = end;
  }

  Pixels Covered() const { return covered_; }
  std::vector<LabelCell> Release() { return std::move(cells_); }

 private:
  std::vector<LabelCell> cells_;
  Pixels covered_ = 0;
};

// The widest of the labels that stand between the ends of the axis at every `stride`-th line.
Pixels WidestInside(const GridLabelWidths& labelWidths, int stride) {
  Pixels widest = 0;
  for (int line = stride; line < kGridIntervals; line += stride) {
    widest = std::max(widest, labelWidths[static_cast<std::size_t>(line)]);
  }
  return widest;
}

// How many lines on from one label the next stands, at least: labels keep clear of one another, and those of
// the ends stand wholly inside.
int LabelStride(const GridLabelWidths& labelWidths, ValueLabels labels, Pixels width) {
  constexpr Pixels kApart = 6;
  const int smallest = labels == ValueLabels::All             ? 1
                       : labels == ValueLabels::EndsAndMiddle ? 5
                                                              : kGridIntervals;
  for (const int stride : {1, 2, 5}) {
    const Pixels inside = WidestInside(labelWidths, stride);
    const Pixels ends = std::max(labelWidths.front(), labelWidths.back());
    const Pixels needed = kApart + std::max(inside, ends + (inside + 1) / 2);
    if (stride >= smallest && needed <= width * stride / kGridIntervals) return stride;
  }
  return kGridIntervals;
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

std::vector<LabelCell> GroupLabelCells(std::int32_t groups, Pixels pitch, Pixels longest) {
  using enum LabelCell::Kind;
  constexpr std::int32_t kLabelAll = 12;
  std::vector<LabelCell> cells;
  if (groups <= kLabelAll) {
    // As wide as the group's bars; the table spreads the pixels between the groups.
    for (std::int32_t group = 1; group <= groups; ++group) cells.push_back({Middle, pitch - 1, group});
    return cells;
  }
  constexpr Pixels kMargin = 3;
  const Pixels width = 1 + groups * pitch;  // with the axis
  const Pixels own = std::min(longest + kMargin, width / 2);
  // The first label starts at its group and not half a label before it, and the second keeps clear of it.
  const Pixels interval = pitch > 0 ? std::max<Pixels>((3 * own + pitch - 1) / (2 * pitch), 1) : groups;
  const Pixels middle = interval == 1 ? pitch : own;
  LabelRow row;
  row.Add(Left, 0, own, 1);
  for (Pixels group = 1 + interval; group < groups; group += interval) {
    const Pixels start = ((2 * group - 1) * pitch + 1 - middle) / 2;
    if (start + middle > width - own) break;
    row.Add(Middle, start, start + middle, static_cast<std::int32_t>(group));
  }
  row.Add(Right, width - own, width, groups);
  return row.Release();
}

std::vector<LabelCell> GridLabelCells(const GridLabelWidths& labelWidths, ValueLabels labels, Pixels width) {
  using enum LabelCell::Kind;
  const int stride = LabelStride(labelWidths, labels, width);
  const Pixels last = kGridIntervals / stride;
  const Pixels firstWidth = labelWidths.back();
  const Pixels lastWidth = labelWidths.front();
  const auto lineOf = [&](Pixels cell) { return static_cast<std::int32_t>(kGridIntervals - cell * stride); };
  LabelRow row;
  // Cells that meet half way between their lines have each label centred on its own, and give the ends half.
  if (2 * last * std::max(firstWidth, lastWidth) <= width) {
    for (Pixels cell = 0; cell < last; ++cell) {
      row.Add(cell == 0 ? Left : Middle, row.Covered(), width * (2 * cell + 1) / (2 * last), lineOf(cell));
    }
    row.Add(Right, row.Covered(), width + 1, 0);
    return row.Release();
  }
  const Pixels half = (WidestInside(labelWidths, stride) + 1) / 2;
  row.Add(Left, 0, std::min(firstWidth, width / 2), kGridIntervals);
  for (Pixels cell = 1; cell < last; ++cell) {
    const Pixels centre = width * cell / last;
    row.Add(Middle, centre - half, centre + half, lineOf(cell));
  }
  row.Add(Right, std::max(width - lastWidth, row.Covered()), width + 1, 0);
  return row.Release();
}

Pixels LegendTextWidth(Pixels graphWidth, std::int32_t series) {
  constexpr Pixels kBesideText = 24;
  constexpr Pixels kNarrowest = 30;
  return std::max(Floor(static_cast<double>(graphWidth - 10) / series) - kBesideText, kNarrowest);
}

}  // namespace amortix2
