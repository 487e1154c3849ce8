#include "charts/line_chart.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "automation/array.h"
#include "automation/raises.h"
#include "charts/gif_writer.h"
#include "charts/thick_line.h"

namespace amortix2 {
namespace {

std::uint8_t At(const Raster& raster, int x, int y) {
  return raster.Pixels()[static_cast<std::size_t>(y * raster.Width() + x)];
}

bool Touches(const Raster& raster, int x, int y, int reach) {
  for (int i = std::max(x - reach, 0); i <= std::min(x + reach, raster.Width() - 1); ++i) {
    for (int j = std::max(y - reach, 0); j <= std::min(y + reach, raster.Height() - 1); ++j) {
      if (At(raster, i, j) != 0) return true;
    }
  }
  return false;
}

// A line of radius 1 is its path: one pixel for each step along the longer side, from end to end, each within
// half a pixel of the straight line and next to the one before.
void ExpectPath(const Raster& raster, Point from, Point to) {
  const int dx = to.x - from.x;
  const int dy = to.y - from.y;
  const bool steep = std::abs(dy) > std::abs(dx);
  const int length = std::max({std::abs(dx), std::abs(dy), 1});
  EXPECT_EQ(At(raster, from.x, from.y), 1);
  EXPECT_EQ(At(raster, to.x, to.y), 1);
  int count = 0;
  for (int y = 0; y < raster.Height(); ++y) {
    for (int x = 0; x < raster.Width(); ++x) {
      if (At(raster, x, y) == 0) continue;
      ++count;
      const int aside = steep ? (x - from.x) * dy - (y - from.y) * dx : (y - from.y) * dx - (x - from.x) * dy;
      EXPECT_LE(2 * std::abs(aside), length) << x << "," << y;
    }
  }
  EXPECT_EQ(count, std::max(std::abs(dx), std::abs(dy)) + 1);
}

TEST(ThickLine, AllDirections) {
  const Point from{9, 10};
  for (int x = 0; x < 20; ++x) {
    for (int y = 0; y < 20; ++y) {
      Raster path(20, 20, 0);
      DrawThickLine(path, from, {x, y}, 1, 1);
      ExpectPath(path, from, {x, y});
      for (const int radius : {2, 4}) {
        Raster thick(20, 20, 0);
        DrawThickLine(thick, from, {x, y}, radius, 1);
        for (int i = 0; i < 400; ++i) {
          ASSERT_EQ(At(thick, i % 20, i / 20) != 0, Touches(path, i % 20, i / 20, radius - 1))
              << x << "," << y;
        }
      }
      if (testing::Test::HasFailure()) FAIL() << "line to " << x << "," << y;
    }
  }
}

TEST(ThickLine, IsCutAtTheEdges) {
  // What is seen of a line that leaves the raster is what a larger raster shows there.
  for (int x = -30; x <= 60; x += 3) {
    for (int y = -30; y <= 60; y += 3) {
      Raster small(20, 20, 0);
      DrawThickLine(small, {25, -7}, {x, y}, 2, 1);
      Raster large(100, 100, 0);
      DrawThickLine(large, {25 + 40, -7 + 40}, {x + 40, y + 40}, 2, 1);
      for (int i = 0; i < 400; ++i) {
        ASSERT_EQ(At(small, i % 20, i / 20), At(large, i % 20 + 40, i / 20 + 40)) << x << "," << y;
      }
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

// A column of the grid alone, `spacing` pixels from line to line; rows painted over it.
struct Stripe {
  int first;
  int last;
  std::uint8_t colour;
};
Colours Grid(int spacing, const std::vector<Stripe>& stripes = {}) {
  Colours colours;
  for (int y = 0; y < 10 * spacing; ++y) colours.push_back(y % spacing == 0 ? 211 : 192);
  for (const auto [first, last, colour] : stripes) {
    for (int y = first; y <= last; ++y) colours[static_cast<std::size_t>(y)] = colour;
  }
  return colours;
}

TEST(LineChart, GridAndZeroLine) {
  constexpr GraphSize size{.height = 50, .width = 41};
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
  constexpr GraphSize size{.height = 20, .width = 21};
  const Raster chart =
      DrawLineChart(size, Table({{100, "50", "none"}, {50, 50.0, kNull}, {100, Currency{500000}, kMissing}}));
  EXPECT_EQ(Column(chart, 0), Grid(2, {{0, 2, 1}, {9, 11, 2}, {19, 19, 3}}));
  EXPECT_EQ(Column(chart, 5), Grid(2, {{3, 7, 1}, {9, 11, 2}, {19, 19, 3}}));
  EXPECT_EQ(Column(chart, 10), Grid(2, {{8, 11, 1}, {9, 11, 2}, {19, 19, 3}}));
  for (int x = 0; x < 21; ++x) EXPECT_EQ(Column(chart, x), Column(chart, 20 - x));
}

TEST(LineChart, HeadRowCountsForTheAxisAndHeadColumnDoesNot) {
  constexpr GraphSize size{.height = 20, .width = 21};
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

class Page : public ScriptingContext, public PageResponse {
 public:
  PageResponse& Response() override { return *this; }
  void BinaryWrite(std::span<const std::uint8_t> bytes) override { sent.assign(bytes.begin(), bytes.end()); }

  std::vector<std::uint8_t> sent;
};

Variant FilledPalette(std::int32_t colours, std::int32_t components) {
  Array palette({0, colours - 1}, {0, components - 1});
  for (Variant& cell : palette.Cells()) cell = 7;
  return palette;
}

TEST(LineChart, SendsTheChartInItsOwnColours) {
  Page page;
  const Variant table = Table({{1, 2}, {3, 4}});
  SendLineChart({}, table, FilledPalette(256, 3), &page);
  Palette colours = ReadPalette(FilledPalette(256, 3));
  colours.Set(192, {255, 255, 255});
  colours.Set(193, {0, 0, 0});
  colours.Set(211, {182, 182, 170});
  colours.Set(255, {255, 255, 255});
  EXPECT_EQ(page.sent, EncodeGif(DrawLineChart({}, table), colours));
}

TEST(LineChart, ErrorsSendNothing) {
  const Variant table = Table({{1, 2}, {3, 4}});
  const Variant palette = FilledPalette(256, 3);
  const GraphSize size;
  const struct {
    GraphSize size;
    Variant table;
    Variant palette;
    ErrorNumber error;
  } rows[] = {
      {size, 5, palette, ErrorNumber::SubscriptOutOfRange},
      {size, Array(Bounds{0, 4}), palette, ErrorNumber::SubscriptOutOfRange},
      {size, Array({1, 4}, {0, 2}), palette, ErrorNumber::SubscriptOutOfRange},
      {size, Table({{1e307}, {-1e308}}), palette, ErrorNumber::Overflow},
      {size, Table({{1e306}, {2e306}}), palette, ErrorNumber::Overflow},
      {size, Array({0, 2}, {0, 256}), palette, ErrorNumber::Overflow},
      {size, table, FilledPalette(255, 3), ErrorNumber::SubscriptOutOfRange},
      {size, table, FilledPalette(256, 2), ErrorNumber::SubscriptOutOfRange},
      {size, table, Variant(), ErrorNumber::TypeMismatch},
      {{.height = -1, .width = 9}, table, palette, ErrorNumber::SubscriptOutOfRange},
      {{.height = 32767, .width = 32767}, table, palette, ErrorNumber::OutOfMemory},
  };
  Page page;
  for (const auto& row : rows) {
    EXPECT_EQ(ErrorOf([&] { SendLineChart(row.size, row.table, row.palette, &page); }), row.error)
        << "row " << &row - rows;
    EXPECT_TRUE(page.sent.empty());
  }
  EXPECT_EQ(ErrorOf([&] { SendLineChart(size, table, palette, nullptr); }), ErrorNumber::ObjectNotSet);
}

}  // namespace
}  // namespace amortix2
