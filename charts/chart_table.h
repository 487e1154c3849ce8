#pragma once

// The numbers of one chart, prepared from a page's table: one group per row, one series per column, and a
// label for every group. Plain data; the page's table is read once and never changed here.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/public.h"
#include "amortix2/charts/axis_range.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Rows 0 to `rows` of series 1 to `series`. Row 0 is never drawn but counts for the axis.
class ChartTable {
 public:
  /// All zero, with room for the rows and series of a table. Raises SubscriptOutOfRange when that has another
  /// number of dimensions or no cell (0, 0).
  explicit ChartTable(const Array& data);
  /// All zero, for a program's own numbers. Raises SubscriptOutOfRange for a count below 0.
  ChartTable(std::int32_t rows, std::int32_t series);

  std::int32_t Rows() const noexcept { return rows_; }
  std::int32_t Series() const noexcept { return series_; }

  // Unchecked: row 0 to Rows(), series 1 to Series().
  double& At(std::int32_t row, std::int32_t series) { return values_[Offset(row, series)]; }
  double At(std::int32_t row, std::int32_t series) const { return values_[Offset(row, series)]; }
  std::string& Label(std::int32_t row) { return labels_[static_cast<std::size_t>(row)]; }
  const std::string& Label(std::int32_t row) const { return labels_[static_cast<std::size_t>(row)]; }

 private:
  std::size_t Offset(std::int32_t row, std::int32_t series) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(series_) +
           static_cast<std::size_t>(series - 1);
  }

  std::int32_t rows_ = 0;
  std::int32_t series_ = 0;
  std::vector<double> values_;
  std::vector<std::string> labels_;
};

/// Reads a two-dimensional array, rows 0 to R by columns 0 to C. Column 0 holds the labels when cell (0, 0)
/// is not numeric; otherwise the labels are the row numbers with a leading blank. Cells that are no number
/// count as 0, infinities among them, and so do values below zero unless `keepNegatives`. Raises
/// SubscriptOutOfRange when the array has another number of dimensions or no cell (0, 0), TypeMismatch when a
/// label has no text.
ChartTable PrepareTable(const Array& data, bool keepNegatives);

/// Every series replaced by the sum of itself and all series behind it, so that series 1 holds the row's
/// total.
ChartTable RunningTotals(ChartTable table);

/// The order of rows 1 to R turned round, with their labels.
void ReverseRows(ChartTable& table);

/// The axis for all rows, row 0 included. Raises Overflow when it leaves the range of doubles.
AxisRange TableAxis(const ChartTable& table);

}  // namespace amortix2
