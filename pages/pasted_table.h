#pragma once

// Reading a table that somebody pastes: copied from a spreadsheet (tabs), CSV, or columns of text.

#include <string>
#include <string_view>

#include "amortix2/automation/variant.h"

namespace amortix2::pages {

inline constexpr std::size_t kMostPastedRows = 200;
inline constexpr std::size_t kMostPastedSeries = 8;

struct PastedTable {
  /// As the chart classes take it: labels in column 0, the series' names in row 0, a number or Empty
  /// elsewhere.
  Variant data;
  std::string error{};  ///< a sentence for a person; empty when the table was read
};

/// Columns are parted by tabs, else by semicolons, by two blanks or more, by commas (with quotes, as CSV has
/// them), else by single blanks, whatever is there first. A first line with a column of text names the
/// series. The first column holds the labels, unless there is but one. Numbers are read as people write them:
/// "$1,200", "(5)", "6.5 %".
PastedTable ReadPastedTable(std::string_view text);

}  // namespace amortix2::pages
