#include "amortix2/charts/axis_range.h"

#include <algorithm>
#include <cmath>

#include "amortix2/automation/checked.h"

// The ten intervals are shared out between the two sides of zero. Each side's length is raised until its step
// is a round number, so every split wastes some of the axis; the split kept is the one whose data fill the
// largest part of it. The fit rises with the number of intervals below zero up to the best split and falls
// after it, so the search ends at the first fall. Near ties hang on the last bit: the order of the operations
// is fixed.

namespace amortix2 {
namespace {

// Steps grow no coarser than multiples of this, however large the values are.
constexpr double kLargestMagnitude = 100;
constexpr double kSlack = 0.005;  // what a value may stand above a round length without raising it

// The step that carries a length of `value` on `intervals` intervals.
double NiceStep(double value, int intervals) {
  value = std::max(value, 1.0);
  double magnitude = kLargestMagnitude;
  while (9 * magnitude > value) magnitude /= 10;
  magnitude *= intervals;
  const double whole = std::floor(value / magnitude) * magnitude;
  if (whole + kSlack < value) value = whole + magnitude;
  return value / intervals;
}

struct Ends {
  double top;
  double bottom;
};

Ends Split(double largest, double smallest, int below) {
  const int above = kGridIntervals - below;
  return {above > 0 ? above * NiceStep(largest, above) : 0.0,
          below > 0 ? -below * NiceStep(-smallest, below) : 0.0};
}

Ends BestSplit(double largest, double smallest) {
  Ends best = {};
  double bestFit = 0;
  for (int below = 1; below < kGridIntervals; ++below) {
    const Ends ends = Split(largest, smallest, below);
    const double fit = (largest - smallest) / (ends.top - ends.bottom);
    if (fit < bestFit) break;
    best = ends;
    bestFit = fit;
  }
  return best;
}

}  // namespace

AxisRange FindAxisRange(double largest, double smallest) {
  largest = std::max(largest, 0.0);
  smallest = std::min(smallest, 0.0);
  const Ends ends = smallest == 0  ? Split(largest, 0, 0)
                    : largest == 0 ? Split(0, smallest, kGridIntervals)
                                   : BestSplit(largest, smallest);
  const double span = Finite(ends.top - ends.bottom);
  return {ends.top, ends.bottom, span / kGridIntervals};
}

}  // namespace amortix2
