#pragma once

// The numbers of an SVG chart: those of the HTML and GIF charts, and beside them which cells hold no number
// (gaps, not zeros), the names of the series, and the rows' places on an axis of numbers or dates.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "amortix2/automation/variant.h"
#include "amortix2/charts/chart_table.h"
#include "amortix2/charts/svg_settings.h"

namespace amortix2 {

struct SvgTable {
  ChartTable values;                ///< gaps count as 0
  std::vector<bool> gaps;           ///< by row and series, as `values`
  std::vector<std::string> labels;  ///< of row 1 and up, from 0
  std::vector<std::string> names;   ///< of series 1 and up, from 0
  RowAxis rowAxis = RowAxis::Text;
  std::vector<double> places;  ///< of row 1 and up on an axis of numbers or dates, ascending; else empty

  std::int32_t Rows() const { return values.Rows(); }
  std::int32_t Series() const { return values.Series(); }
  bool IsGap(std::int32_t row, std::int32_t series) const {
    return gaps[static_cast<std::size_t>(row) * static_cast<std::size_t>(Series()) +
                static_cast<std::size_t>(series - 1)];
  }
  const std::string& Label(std::int32_t row) const { return labels[static_cast<std::size_t>(row) - 1]; }
  const std::string& Name(std::int32_t series) const { return names[static_cast<std::size_t>(series) - 1]; }
};

/// Reads a table as PrepareTable does, with its errors; and DivisionByZero when there is no row or no series
/// to draw. A cell that is empty or no number is a gap. A series is named by `names` (a list from 1), else by
/// the settings, else by the text in its column of row 0, else by its number; TypeMismatch when a name is an
/// array. The rows' axis is that of the settings when column 0 holds nothing but numbers or dates; rows of
/// lines
/// (`mayReorder`) are then put in their order, other charts keep the axis of texts unless they ascend.
SvgTable ReadSvgTable(const Variant& vColDat, const Variant& names, const SvgSettings& settings,
                      bool keepNegatives, bool mayReorder);

/// Turns round the order of the rows, on an axis of texts.
void ReverseRows(SvgTable& table);

}  // namespace amortix2
