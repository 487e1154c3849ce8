#include "amortix2/charts/axis_range.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "amortix2/automation/error.h"

namespace amortix2 {
namespace {

// Worked out apart from the program, by the rule on paper.
TEST(AxisRange, RoundEnds) {
  const struct {
    double largest, smallest, top, bottom;
  } cases[] = {
      {0, 0, 1, 0},                                  // nothing to show
      {0.4, 0, 1, 0},                                // below one counts as one
      {250, 0, 300, 0},                              // steps of 30
      {100, 0, 100, 0},                              // already round
      {1e5, 0, 1e5, 0},                              // steps of multiples of 100
      {0, -7, 0, -7},                                // all below zero
      {5, 5, 5, 0},                                  // zero is always on the axis
      {-3, -7, 0, -7},        {100, -50, 100, -50},  // five intervals on each side
      {95, -30, 100, -30},    {17, -17, 18, -17},   {1234.25, -300, 1400, -300},
      {3, -1000, 3.2, -1000},  // the small side gets two intervals and a step of its own
      {1e6, -1, 1e6, -1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.largest << " to " << c.smallest);
    const AxisRange axis = FindAxisRange(c.largest, c.smallest);
    EXPECT_DOUBLE_EQ(axis.top, c.top);
    EXPECT_DOUBLE_EQ(axis.bottom, c.bottom);
    EXPECT_EQ(axis.step, (axis.top - axis.bottom) / 10);
  }
}

TEST(AxisRange, CoversEveryValue) {
  for (double largest = 1e-4; largest < 1e9; largest *= 1.7) {
    for (double ratio : {0.0, -0.001, -0.3, -1.0, -77.0}) {
      SCOPED_TRACE(testing::Message() << largest << " by " << ratio);
      const double smallest = largest * ratio;
      const AxisRange axis = FindAxisRange(largest, smallest);
      EXPECT_GE(axis.top + 0.005, largest);
      EXPECT_LE(axis.bottom - 0.005, smallest);
      EXPECT_GT(axis.step, 0);
    }
  }
}

TEST(AxisRange, TooLongAnAxisOverflows) {
  const double most = std::numeric_limits<double>::max();
  EXPECT_TRUE(std::isfinite(FindAxisRange(1e308, 0).top));
  EXPECT_THROW(FindAxisRange(most, -most), AutomationError);
}

}  // namespace
}  // namespace amortix2
