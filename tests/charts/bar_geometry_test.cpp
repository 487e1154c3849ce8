#include "amortix2/charts/bar_geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

#include "amortix2/automation/error.h"

namespace amortix2 {
namespace {

BarChartSettings Settings(double overlapCount = 3, std::int16_t width = 380) {
  BarChartSettings settings;
  settings.minimumOverlapCount = overlapCount;
  settings.graph.width = width;
  return settings;
}

std::string Describe(const GroupPattern& pattern) {
  std::string text = std::to_string(pattern.groups) + " groups:";
  for (const Slice& s : pattern.slices) {
    text += " " + std::to_string(s.width);
    if (s.first <= s.last) text += "[" + std::to_string(s.first) + "-" + std::to_string(s.last) + "]";
  }
  return text;
}

// 380 pixels wide unless said otherwise; figures worked out by hand.
TEST(BarGeometry, GroupPatterns) {
  BarChartSettings wide = Settings();
  wide.maximumColumnWidth = 200;
  BarChartSettings apart = Settings(1.5);
  apart.minimumColumnWidth = 10;
  const struct {
    GroupPattern pattern;
    std::string expected;
  } cases[] = {
      // (380 - rows) / bars, between 3 and 80.
      {PlainGroup(Settings(), 12, 3), "12 groups: 10[1-1] 10[2-2] 10[3-3]"},
      {PlainGroup(Settings(), 1, 2), "1 groups: 80[1-1] 80[2-2]"},
      {PlainGroup(wide, 1, 2), "1 groups: 189[1-1] 189[2-2]"},
      {PlainGroup(Settings(), 54, 2), "54 groups: 3[1-1] 3[2-2]"},
      {PlainGroup(Settings(), 55, 2), "54 groups: 3[1-1] 3[2-2]"},  // 380 / 7 groups of 3 + 3 + 1 fit
      {PlainGroup(Settings(3, 5), 3, 2), "0 groups: 3[1-1] 3[2-2]"},
      // One pile in the middle.
      {StackedGroup(Settings(), 12, 1), "12 groups: 30[1-1]"},
      {StackedGroup(Settings(), 12, 2), "12 groups: 7 15[1-2] 8"},
      // 30 / (3 + 3 - 1) = 6 stands out; every bar is three of these wide.
      {OverlappedGroup(Settings(), 12, 3), "12 groups: 6[1-1] 6[1-2] 6[1-3] 6[2-3] 6[3-3]"},
      {OverlappedGroup(Settings(2.5), 12, 2), "12 groups: 8[1-1] 8[1-2] 8[2-2]"},  // 2.5 rounds to even
      {OverlappedGroup(Settings(2.6), 12, 2), "12 groups: 8[1-1] 8[1-2] 8[1-2] 8[2-2]"},
      // At most 80 / 3, to even: 27; at least 2.
      {OverlappedGroup(Settings(), 1, 2), "1 groups: 27[1-1] 27[1-2] 27[1-2] 27[2-2]"},
      {OverlappedGroup(Settings(), 300, 2), "300 groups: 2[1-1] 2[1-2] 2[1-2] 2[2-2]"},
      // Below two spaces: 30 / 3.5 = 8, overlap 4 of it, 4 free between the overlaps.
      {OverlappedGroup(Settings(1.5), 12, 3), "12 groups: 4[1-1] 4[1-1] 4[1-2] 4[2-2] 4[2-3] 4[3-3] 4[3-3]"},
      // The overlap is at least a column: 8 - 10 leaves no gap, so all slices are 8.
      {OverlappedGroup(apart, 12, 3), "12 groups: 8[1-1] 8[1-2] 8[2-3] 8[3-3]"},
  };
  for (const auto& c : cases) EXPECT_EQ(Describe(c.pattern), c.expected);

  EXPECT_THROW(OverlappedGroup(Settings(0), 12, 3), AutomationError);
  EXPECT_THROW(OverlappedGroup(Settings(-2), 12, 3), AutomationError);
  EXPECT_THROW(OverlappedGroup(Settings(40000), 12, 3), AutomationError);
}

TEST(BarGeometry, BarHeights) {
  const VerticalSplit both = SplitAtZero({54, -20, 7.4}, 100);  // zero row 54 / 7.4 = 7.3
  EXPECT_EQ(both.above, 70);
  EXPECT_EQ(both.below, 30);
  EXPECT_EQ(both.BarHeight(50), 65);  // 64.81
  EXPECT_EQ(both.BarHeight(-10), -15);
  EXPECT_EQ(both.BarHeight(-20), -29);  // the zero line has the thirtieth
  EXPECT_EQ(both.BarHeight(54.004), 70);
  EXPECT_EQ(both.BarHeight(0), 0);

  const VerticalSplit small = SplitAtZero({360, -1, 36.1}, 300);  // the small side rounds to no row
  EXPECT_EQ(small.zeroRow, 10);
  EXPECT_EQ(small.BarHeight(360), 300);
  EXPECT_EQ(small.BarHeight(-1), 0);
  const VerticalSplit large = SplitAtZero({1, -360, 36.1}, 300);
  EXPECT_EQ(large.zeroRow, 0);
  EXPECT_EQ(large.BarHeight(1), 0);
  EXPECT_EQ(large.BarHeight(-180), -150);
}

TEST(BarGeometry, HorizontalBars) {
  // 300 pixels by bars and gaps, between 3 and 80; figures worked out by hand.
  EXPECT_EQ(HorizontalBarThickness(Settings(), 1, 2), 75);  // 2 bars, 2 gaps
  EXPECT_EQ(HorizontalBarThickness(Settings(), 12, 3), 6);  // 49 spaces of 6.1
  EXPECT_EQ(HorizontalBarThickness(Settings(), 100, 2), 3);
  EXPECT_EQ(HorizontalBarThickness(Settings(), 1, 1), 80);
  const AxisRange axis{50, 0, 5};
  EXPECT_EQ(HorizontalBarLength(40, axis, 380), 304);
  EXPECT_EQ(HorizontalBarLength(0.07, axis, 380), 1);  // 0.53
  EXPECT_EQ(HorizontalBarLength(50.1, axis, 380), 380);
}

// Cells fill a row of `width` pixels, have room for their labels, and those inside stand at `placeOf` them.
template <class WidthOf, class PlaceOf>
void CheckLabelRow(const std::vector<LabelCell>& cells, Pixels width, WidthOf widthOf, PlaceOf placeOf) {
  using enum LabelCell::Kind;
  Pixels end = 0;
  for (const LabelCell& cell : cells) {
    const Pixels start = std::exchange(end, end + cell.width);
    if (cell.kind == Gap) {
      ASSERT_GE(cell.width, 5);
      continue;
    }
    ASSERT_GE(cell.width, widthOf(cell.index));
    ASSERT_EQ(cell.kind == Left, start == 0);
    ASSERT_EQ(cell.kind == Right, end == width);
    if (cell.kind == Middle) {
      ASSERT_NEAR(0.5 * static_cast<double>(start + end), placeOf(cell.index), 3);
    }
  }
  ASSERT_EQ(end, width);
}

// Pixels from left to right: 16 groups of 7, labels of 20 and 3 beside them, then a tenth of 390 for each
// value.
TEST(BarGeometry, LabelsStandAtTheirPixels) {
  const auto row = [](const std::vector<LabelCell>& cells) {
    std::string text;
    for (const LabelCell& cell : cells) {
      text += (text.empty() ? "" : " ") + std::to_string(cell.width);
      if (cell.kind != LabelCell::Kind::Gap) text += "[" + std::to_string(cell.index) + "]";
    }
    return text;
  };
  EXPECT_EQ(row(GroupLabelCells(16, 7, 20)), "27[1] 23[6] 12 23[11] 5 23[16]");
  EXPECT_EQ(row(GridLabelCells({24, 18, 18, 18, 18, 18, 18, 18, 18, 18, 6}, ValueLabels::All, 390)),
            "6[10] 24 18[9] 21 18[8] 21 18[7] 21 18[6] 21 18[5] 21 18[4] 21 18[3] 21 18[2] 21 18[1] 6 25[0]");
}

TEST(BarGeometry, LabelRowsFillTheWidth) {
  EXPECT_EQ(GroupLabelCells(12, 7, 50).size(), 12U);
  EXPECT_EQ(GroupLabelCells(12, 7, 50).front().width, 6);  // of the bars alone
  for (std::int32_t groups = 13; groups <= 400; ++groups) {
    for (const Pixels pitch : {2, 4, 9, 31}) {
      for (const Pixels longest : {7, 28, 58, 400}) {
        const Pixels width = groups * pitch + 1;
        const auto cells = GroupLabelCells(groups, pitch, longest);
        CheckLabelRow(
            cells, width, [&](int) { return std::min(longest, width / 2); },
            [&](int group) { return 0.5 + (group - 0.5) * static_cast<double>(pitch); });
        EXPECT_TRUE(cells.front().index == 1 && cells.back().index == groups);
        if (HasFatalFailure()) FAIL() << groups << " groups, " << pitch << ", " << longest;
      }
    }
  }
  EXPECT_EQ(GroupLabelCells(40, 9, 58).size(), 6U);  // 1, 11, 21, 40, and two gaps
  const auto gridLabels = [](ValueLabels mode, Pixels digit, Pixels width = 380) {
    GridLabelWidths widths;
    for (std::size_t line = 0; line < widths.size(); ++line) widths[line] = line == 0 ? 4 * digit : 3 * digit;
    widths.back() = digit;
    const auto cells = GridLabelCells(widths, mode, width);
    CheckLabelRow(
        cells, width + 1, [&](int line) { return widths[static_cast<std::size_t>(line)]; },
        [&](int line) { return static_cast<double>(width - width / 10 * line); });
    return std::ranges::count_if(cells, [](const LabelCell& c) { return c.kind != LabelCell::Kind::Gap; });
  };
  using enum ValueLabels;
  EXPECT_EQ(gridLabels(All, 6, 390), 11);  // 6 + 4 + 1.5 digits fill a tenth
  for (const Pixels digit : {1, 4, 5, 7, 14, 15, 19, 21, 47, 76}) {
    EXPECT_EQ(gridLabels(Ends, digit), 2);
    EXPECT_EQ(gridLabels(EndsAndMiddle, digit), digit < 35 ? 3 : 2);  // 4 + 1.5 digits in 190 pixels
    EXPECT_EQ(gridLabels(All, digit), digit < 6 ? 11 : digit < 13 ? 6 : digit < 35 ? 3 : 2);
  }
}

}  // namespace
}  // namespace amortix2
