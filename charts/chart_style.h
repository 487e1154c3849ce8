#pragma once

// The styles of bar charts by the keywords that pages name them with, and what a style does to the numbers.

#include <cstdint>
#include <string_view>

#include "amortix2/automation/variant.h"

namespace amortix2 {

enum class BarMode : std::uint8_t { Plain, Stacked, Overlapped, Horizontal };

struct ChartStyle {
  std::string_view keyword = {};
  BarMode mode = BarMode::Plain;
  bool reversed = false;  ///< the series' order when stacked, the rows' when horizontal
  bool line = false;      ///< no background, and values below zero whatever the settings
};

/// The style that `typ` names ("OL", "OV", "OR", "ST", "SR", "LINE", "HZ", "HR", in capitals); plain columns
/// for anything else.
ChartStyle FindStyle(const Variant& typ);

/// Whether an HTML chart of that style draws values below zero, when its settings ask for negative bars or
/// not; otherwise they count as 0.
bool KeepsNegatives(const ChartStyle& style, bool negativeBars);

}  // namespace amortix2
