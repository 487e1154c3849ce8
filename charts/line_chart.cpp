#include "amortix2/charts/line_chart.h"

#include <cmath>
#include <cstdint>
#include <utility>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/charts/axis_range.h"
#include "amortix2/charts/chart_table.h"
#include "amortix2/charts/page_text.h"
#include "amortix2/charts/thick_line.h"

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

ChartTable ReadNumbers(const Variant& columns) {
  const Array& array = PageArray(columns);
  ChartTable table(array);
  for (std::int32_t row = 0; row <= table.Rows(); ++row) {
    for (std::int32_t series = 1; series <= table.Series(); ++series) {
      table.At(row, series) = NumericOrZero(array.At(row, series));
    }
  }
  return table;
}

// Where a value lies between two pixels when `lowValue` lies on the first and `highValue` on the second.
int MapToPixel(double value, double lowValue, double highValue, int lowPixel, int highPixel) {
  return ToLong(
      std::floor((value - lowValue) * (highPixel - lowPixel) / (highValue - lowValue) + lowPixel + 0.5));
}

class LinePicture {
 public:
  LinePicture(GraphSize size, const AxisRange& axis)
      : axis_(axis), raster_(size.width, size.height, kBackground) {}

  void DrawGrid() {
    for (int level = 0; level <= kGridIntervals; ++level) {
      const double value = axis_.top - level * axis_.step;
      const int y = Row(value);
      const bool isZero = std::abs(value) < axis_.step / 10;
      DrawThickLine(raster_, {0, y}, {raster_.Width() - 1, y}, kGridRadius, isZero ? kZeroLine : kGridLine);
    }
  }

  void DrawSeries(const ChartTable& table, std::int32_t series) {
    const std::uint8_t colour = ToByte(series);
    const std::int32_t points = table.Rows();
    if (points < 2) return;
    const auto place = [&](std::int32_t row) {
      return Point{MapToPixel(row, 1, points, 0, raster_.Width() - 1), Row(table.At(row, series))};
    };
    Point from = place(1);
    for (std::int32_t row = 2; row <= points; ++row) {
      const Point to = place(row);
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

}  // namespace

AxisRange LineChartAxis(const Variant& columns) { return TableAxis(ReadNumbers(columns)); }

Raster DrawLineChart(GraphSize size, const Variant& columns) {
  return DrawLineChart(size, ReadNumbers(columns));
}

Raster DrawLineChart(GraphSize size, const ChartTable& table) {
  LinePicture picture(size, TableAxis(table));
  picture.DrawGrid();
  for (std::int32_t series = 1; series <= table.Series(); ++series) picture.DrawSeries(table, series);
  return picture.Release();
}

void SetChartColours(Palette& palette) {
  palette.Set(kBackground, {255, 255, 255});
  palette.Set(kZeroLine, {0, 0, 0});
  palette.Set(kGridLine, {182, 182, 170});
  palette.Set(kWhite, {255, 255, 255});
}

}  // namespace amortix2
