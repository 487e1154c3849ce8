#include "amortix2/charts/chart_table.h"

#include <algorithm>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/charts/markup.h"
#include "amortix2/charts/page_text.h"

namespace amortix2 {

namespace {

/// Looked up before anything is allocated: bounds that leave (0, 0) out may promise far more cells than there
/// are.
const Array& WithCorner(const Array& data) {
  static_cast<void>(data.At(0, 0));
  return data;
}

}  // namespace

ChartTable::ChartTable(const Array& data)
    : ChartTable(WithCorner(data).Dimension(1).upper, data.Dimension(2).upper) {}

ChartTable::ChartTable(std::int32_t rows, std::int32_t series) : rows_(rows), series_(series) {
  if (rows < 0 || series < 0) Raise(ErrorNumber::SubscriptOutOfRange);
  const std::size_t count = static_cast<std::size_t>(rows) + 1;
  values_.resize(count * static_cast<std::size_t>(series));
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
