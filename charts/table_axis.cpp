#include "amortix2/charts/table_axis.h"

#include <algorithm>

namespace amortix2 {

std::vector<std::int32_t> StackOrder(const ChartStyle& style, std::int32_t series) {
  std::vector<std::int32_t> order;
  for (std::int32_t i = 1; i <= series; ++i) order.push_back(i);
  if (!style.reversed) std::ranges::reverse(order);
  return order;
}

AxisRange FindTableAxis(const ChartTable& values, const ChartStyle& style) {
  if (style.mode != BarMode::Stacked) return TableAxis(values);
  const auto order = StackOrder(style, values.Series());
  double largest = 0;
  double smallest = 0;
  for (std::int32_t row = 0; row <= values.Rows(); ++row) {
    double above = 0;
    double below = 0;
    for (const std::int32_t series : order) {
      const double value = values.At(row, series);
      (value < 0 ? below : above) += value;
    }
    largest = std::max(largest, above);
    smallest = std::min(smallest, below);
  }
  return FindAxisRange(largest, smallest);
}

void WriteAxisRange(const AxisRange& axis, Variant& vTop, Variant& vBottom, Variant& vStep) {
  vTop = axis.top;
  vBottom = axis.bottom;
  vStep = axis.step;
}

}  // namespace amortix2
