#include "charts/line_chart.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "automation/array.h"
#include "automation/conversion.h"
#include "automation/error.h"
#include "charts/axis_range.h"
#include "charts/gif_writer.h"
#include "charts/thick_line.h"

// Values map to pixels linearly and are rounded half up. The axis top lies on row 0 and the axis bottom on
// the row below the last, so that without negative values the zero line falls outside the picture.

namespace amortix2 {
namespace {

constexpr std::uint8_t kBackground = 192;
constexpr std::uint8_t kZeroLine = 193;
constexpr std::uint8_t kGridLine = 211;
constexpr std::uint8_t kWhite = 255;

constexpr int kGridRadius = 1;    // lines of one pixel
constexpr int kSeriesRadius = 2;  // lines of three pixels

// The numbers of a chart: rows 0 to R and columns 0 to C.
struct ChartTable {
  std::int32_t lastRow;
  std::int32_t lastColumn;
  std::vector<double> values;

  double At(std::int32_t row, std::int32_t column) const {
    return values[static_cast<std::size_t>(row) * static_cast<std::size_t>(lastColumn + 1) +
                  static_cast<std::size_t>(column)];
  }
};

ChartTable ReadTable(const Variant& columns) {
  if (columns.Type() != VariantType::Array || columns.GetArray().Rank() != 2) {
    Raise(ErrorNumber::SubscriptOutOfRange);
  }
  const Array& array = columns.GetArray();
  const Bounds rows = array.Dimension(1);
  const Bounds series = array.Dimension(2);
  if (rows.lower != 0 || series.lower != 0) Raise(ErrorNumber::SubscriptOutOfRange);
  ChartTable table{rows.upper, series.upper, std::vector<double>(array.Cells().size())};
  std::ranges::transform(array.Cells(), table.values.begin(), NumericOrZero);
  return table;
}

AxisRange FindAxis(const ChartTable& table) {
  double largest = 0;
  double smallest = 0;
  for (std::int32_t row = 0; row <= table.lastRow; ++row) {
    for (std::int32_t column = 1; column <= table.lastColumn; ++column) {
      largest = std::max(largest, table.At(row, column));
      smallest = std::min(smallest, table.At(row, column));
    }
  }
  return FindAxisRange(largest, smallest);
}

// Where a value lies between two pixels when `lowValue` lies on the first and `highValue` on the second.
int MapToPixel(double value, double lowValue, double highValue, int lowPixel, int highPixel) {
  return ToLong(
      std::floor((value - lowValue) * (highPixel - lowPixel) / (highValue - lowValue) + lowPixel + 0.5));
}

class Plot {
 public:
  Plot(GraphSize size, const AxisRange& axis) : axis_(axis), raster_(size.width, size.height, kBackground) {}

  void DrawGrid() {
    for (int level = 0; level <= kGridIntervals; ++level) {
      const double value = axis_.top - level * axis_.step;
      const int y = Row(value);
      const bool isZero = std::abs(value) < axis_.step / 10;
      DrawThickLine(raster_, {0, y}, {raster_.Width() - 1, y}, kGridRadius, isZero ? kZeroLine : kGridLine);
    }
  }

  void DrawSeries(const ChartTable& table, std::int32_t column) {
    const std::uint8_t colour = ToByte(column);
    const auto point = [&](std::int32_t row) {
      return Point{MapToPixel(row, 1, table.lastRow, 0, raster_.Width() - 1), Row(table.At(row, column))};
    };
    if (table.lastRow < 2) return;
    Point from = point(1);
    for (std::int32_t row = 2; row <= table.lastRow; ++row) {
      const Point to = point(row);
      DrawThickLine(raster_, from, to, kSeriesRadius, colour);
      from = to;
    }
  }

  Raster Release() { return std::move(raster_); }

 private:
  int Row(double value) const { return MapToPixel(value, axis_.bottom, axis_.top, raster_.Height(), 0); }

  AxisRange axis_;
  Raster raster_;
};

void SetChartColours(Palette& palette) {
  palette.Set(kBackground, {255, 255, 255});
  palette.Set(kZeroLine, {0, 0, 0});
  palette.Set(kGridLine, {182, 182, 170});
  palette.Set(kWhite, {255, 255, 255});
}

}  // namespace

Raster DrawLineChart(GraphSize size, const Variant& columns) {
  const ChartTable table = ReadTable(columns);
  Plot plot(size, FindAxis(table));
  plot.DrawGrid();
  for (std::int32_t column = 1; column <= table.lastColumn; ++column) plot.DrawSeries(table, column);
  return plot.Release();
}

void SendLineChart(GraphSize size, const Variant& columns, const Variant& palette, ScriptingContext* page) {
  if (page == nullptr) Raise(ErrorNumber::ObjectNotSet);
  Palette colours = ReadPalette(palette);
  SetChartColours(colours);
  page->Response().BinaryWrite(EncodeGif(DrawLineChart(size, columns), colours));
}

}  // namespace amortix2
