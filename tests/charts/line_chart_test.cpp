#include "amortix2/charts/line_chart.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/charts/gif_chart.h"
#include "amortix2/charts/gif_writer.h"
#include "amortix2/charts/thick_line.h"
#include "support.h"

namespace amortix2 {
namespace {

std::uint8_t At(const Raster& raster, int x, int y) {
  return raster.Pixels().begin()[std::ptrdiff_t{y} * raster.Width() + x];
}

// A line of radius 1 is its path: one pixel for each step along the longer side, from end to end, each within
// half a pixel of the straight line. A thicker line is every pixel that a square around one of these covers,
// and a raster shows of it what a larger one shows at the same place.
void CheckLine(Point from, Point to) {
  Raster path(60, 60, 0);
  DrawThickLine(path, from, to, 1, 1);
  const int dx = to.x - from.x;
  const int dy = to.y - from.y;
  const int length = std::max(std::abs(dx), std::abs(dy));
  Raster stamped(20, 20, 0);
  int count = 0;
  for (int i = 0; i < 60 * 60; ++i) {
    const int x = i % 60;
    const int y = i / 60;
    if (At(path, x, y) == 0) continue;
    ++count;
    ASSERT_LE(2 * std::abs((x - from.x) * dy - (y - from.y) * dx), length);
    stamped.FillRectangle(x - 22, y - 22, x - 18, y - 18, 1);
  }
  ASSERT_EQ(count, length + 1);
  ASSERT_TRUE(At(path, from.x, from.y) == 1 && At(path, to.x, to.y) == 1);
  Raster thick(20, 20, 0);
  DrawThickLine(thick, {from.x - 20, from.y - 20}, {to.x - 20, to.y - 20}, 3, 1);
  ASSERT_TRUE(std::ranges::equal(thick.Pixels(), stamped.Pixels()));
}

TEST(ThickLine, AllDirections) {
  for (const Point from : {Point{29, 30}, Point{10, 37}}) {
    for (int i = 0; i < 60 * 60; i += 7) {
      CheckLine(from, {i % 60, i / 60});
      if (HasFatalFailure()) FAIL() << "to " << i % 60 << "," << i / 60;
    }
  }
}

// Points by series; row 0 and column 0 stay Empty.
Variant Table(const std::vector<std::vector<Variant>>& rows) {
  const std::size_t series = rows.empty() ? 0 : rows[0].size();
  Array table({0, static_cast<std::int32_t>(rows.size())}, {0, static_cast<std::int32_t>(series)});
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t j = 0; j < series; ++j) {
      table.At(static_cast<std::int64_t>(i) + 1, static_cast<std::int64_t>(j) + 1) = rows[i][j];
    }
  }
  return table;
}

using Colours = std::vector<std::uint8_t>;

Colours Column(const Raster& raster, int x) {
  Colours colours;
  for (int y = 0; y < raster.Height(); ++y) colours.push_back(At(raster, x, y));
  return colours;
}

// A column of the grid, `spacing` pixels from line to line, with stripes {first row, last row, colour} over
// it.
Colours Grid(int spacing, const std::vector<std::array<std::uint8_t, 3>>& stripes = {}) {
  Colours colours;
  for (int y = 0; y < 10 * spacing; ++y) colours.push_back(y % spacing == 0 ? 211 : 192);
  for (const auto [first, last, colour] : stripes) {
    std::fill(colours.begin() + first, colours.begin() + last + 1, colour);
  }
  return colours;
}

TEST(LineChart, GridAndZeroLine) {
  const GraphSize size{.height = 50, .width = 41};
  const auto column = [&](const Variant& table) { return Column(DrawLineChart(size, table), 40); };
  // The axis bottom lies on row 50, below the picture, and without negatives that is where zero is.
  EXPECT_EQ(column(Table({})), Grid(5));
  EXPECT_EQ(column(Table({{100, 7}})), Grid(5)) << "a single point";
  EXPECT_EQ(column(Table({{}, {}})), Grid(5)) << "no series";
  EXPECT_EQ(column(Table({{70, -30}})), Grid(5, {{35, 35, 193}}));
  EXPECT_EQ(column(Table({{-100}})), Grid(5, {{0, 0, 193}}));
}

TEST(LineChart, SeriesStandWhereTheirValuesAre) {
  // Two pixels to a tenth of the axis, 0 to 100; points at x = 0, 10 and 20. The first series falls and rises
  // again at 45 degrees, the second crosses its turn, the third lies on the axis bottom: one row is left of
  // it.
  const GraphSize size{.height = 20, .width = 21};
  const Raster chart =
      DrawLineChart(size, Table({{100, "50", "none"}, {50, 50.0, kNull}, {100, Currency{500000}, kMissing}}));
  EXPECT_EQ(Column(chart, 0), Grid(2, {{0, 2, 1}, {9, 11, 2}, {19, 19, 3}}));
  EXPECT_EQ(Column(chart, 5), Grid(2, {{3, 7, 1}, {9, 11, 2}, {19, 19, 3}}));
  EXPECT_EQ(Column(chart, 10), Grid(2, {{8, 11, 1}, {9, 11, 2}, {19, 19, 3}}));
  for (int x = 0; x < 21; ++x) EXPECT_EQ(Column(chart, x), Column(chart, 20 - x));
}

TEST(LineChart, HeadRowCountsForTheAxisAndHeadColumnDoesNot) {
  const GraphSize size{.height = 20, .width = 21};
  Variant table = Table({{100}, {100}});
  table.GetArray().At(1, 0) = 1e6;
  EXPECT_EQ(Column(DrawLineChart(size, table), 9), Grid(2, {{0, 1, 1}}));
  table.GetArray().At(0, 1) = 200;
  EXPECT_EQ(Column(DrawLineChart(size, table), 9), Grid(2, {{9, 11, 1}}));
}

TEST(LineChart, HalfPixelsGoUp) {
  // The middle of three points lies at 1.5 of four pixels: its peak covers 1 to 3.
  const Raster chart = DrawLineChart({.height = 20, .width = 4}, Table({{0}, {100}, {0}}));
  EXPECT_EQ(At(chart, 0, 0), 211);
  EXPECT_EQ(At(chart, 1, 0), 1);
  EXPECT_EQ(At(chart, 3, 0), 1);
}

struct Page : ScriptingContext, PageResponse {
  PageResponse& Response() override { return *this; }
  void BinaryWrite(std::span<const std::uint8_t> bytes) override { sent.assign(bytes.begin(), bytes.end()); }

  std::vector<std::uint8_t> sent;
};

Variant Sevens(std::int32_t colours, std::int32_t components) {
  Array palette({0, colours - 1}, {0, components - 1});
  for (Variant& cell : palette.Cells()) cell = 7;
  return palette;
}

TEST(GifChart, SendsTheChartInItsOwnColoursOrNothing) {
  const Variant table = Table({{1, 2}, {3, 4}});
  const Variant palette = Sevens(256, 3);
  const struct {
    Variant table;
    Variant palette;
    ErrorNumber error;
    int height = 0, width = 0;
  } rows[] = {
      {5, palette, ErrorNumber::SubscriptOutOfRange},
      {Array(Bounds{0, 4}), palette, ErrorNumber::SubscriptOutOfRange},
      {Array({1, 4}, {0, 2}), palette, ErrorNumber::SubscriptOutOfRange},
      {Table({{1e307}, {-1e308}}), palette, ErrorNumber::Overflow},
      {Array({0, 2}, {0, 256}), palette, ErrorNumber::Overflow},
      {table, Sevens(255, 3), ErrorNumber::SubscriptOutOfRange},
      {table, Sevens(256, 2), ErrorNumber::SubscriptOutOfRange},
      {table, Variant(), ErrorNumber::TypeMismatch},
      {table, palette, ErrorNumber::SubscriptOutOfRange, -1, 9},
      {table, palette, ErrorNumber::OutOfMemory, 32767, 32767},
  };
  const auto page = std::make_shared<Page>();
  for (const auto& row : rows) {
    GifChart chart;
    chart.OnStartPage(page);
    chart.SetGraphDimensions(row.height, row.width);
    EXPECT_EQ(ErrorOf([&] { chart.LineChart(row.table, row.palette, ""); }), row.error)
        << "row " << &row - rows;
  }
  GifChart chart;
  EXPECT_EQ(ErrorOf([&] { chart.LineChart(table, palette, ""); }), ErrorNumber::ObjectNotSet);
  EXPECT_TRUE(page->sent.empty());

  chart.OnStartPage(page);
  chart.LineChart(table, palette, "");
  Palette colours = ReadPalette(palette);
  colours.Set(192, {255, 255, 255});
  colours.Set(193, {0, 0, 0});
  colours.Set(211, {182, 182, 170});
  colours.Set(255, {255, 255, 255});
  EXPECT_EQ(page->sent, EncodeGif(DrawLineChart({}, table), colours));
}

}  // namespace
}  // namespace amortix2
