#include "amortix2/charts/chart_table.h"

#include <algorithm>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/charts/markup.h"
#include "amortix2/charts/page_text.h"

namespace amortix2 {

ChartTable::ChartTable(const Array& data) {
  // Looked up before anything is allocated: bounds that leave (0, 0) out may promise far more cells than there
  // are.
  static_cast<void>(data.At(0, 0));
  rows_ = data.Dimension(1).upper;
  series_ = data.Dimension(2).upper;
  const std::size_t count = static_cast<std::size_t>(rows_) + 1;
  values_.resize(count * static_cast<std::size_t>(series_));
  labels_.resize(count);
}

ChartTable PrepareTable(const Array& data, bool keepNegatives) {
  ChartTable table(data);
  const bool hasLabels = !IsNumeric(data.At(0, 0));
  for (std::int32_t row = 0; row <= table.Rows(); ++row) {
    table.Label(row) = hasLabels ? PageText(data.At(row, 0)) : SignedText(row);
    for (std::int32_t series = 1; series <= table.Series(); ++series) {
      const double value = NumericOrZero(data.At(row, series));
      table.At(row, series) = value < 0 && !keepNegatives ? 0 : value;
    }
  }
  return table;
}

ChartTable RunningTotals(ChartTable table) {
  for (std::int32_t row = 0; row <= table.Rows(); ++row) {
    for (std::int32_t series = table.Series() - 1; series >= 1; --series) {
      table.At(row, series) += table.At(row, series + 1);
    }
  }
  return table;
}

void ReverseRows(ChartTable& table) {
  for (std::int32_t i = 1, j = table.Rows(); i < j; ++i, --j) {
    for (std::int32_t series = 1; series <= table.Series(); ++series) {
      std::swap(table.At(i, series), table.At(j, series));
    }
    std::swap(table.Label(i), table.Label(j));
  }
}

AxisRange TableAxis(const ChartTable& table) {
  double largest = 0;
  double smallest = 0;
  for (std::int32_t row = 0; row <= table.Rows(); ++row) {
    for (std::int32_t series = 1; series <= table.Series(); ++series) {
      largest = std::max(largest, table.At(row, series));
      smallest = std::min(smallest, table.At(row, series));
    }
  }
  return FindAxisRange(largest, smallest);
}

}  // namespace amortix2
