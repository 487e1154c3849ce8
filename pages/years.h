#pragma once

// A schedule in calendar years: which of its lines belong to a year, and what stands for them there.

#include <cstdint>
#include <optional>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/date.h"
#include "amortix2/automation/variant.h"
#include "amortix2/component/meaning.h"

namespace amortix2::pages {

/// The lines of a calendar year, both inclusive.
struct YearOfLines {
  std::int32_t year;
  std::int32_t first;
  std::int32_t last;
  Date end;  ///< the day of the last line
};

/// The years of a schedule by its column of dates, without the state at the start; empty for a table that has
/// none.
std::vector<YearOfLines> YearsOf(const TableInfo& table, const Array& lines);

/// What a year has in a column: the sum of its cells, or the last, as the column says; Empty where it says
/// nothing, and where the year has no cell.
Variant CellOfYear(const TableInfo& table, const Array& lines, const YearOfLines& year, std::int32_t column);

/// The heading of a column; null when there is none.
const HeadingInfo* ColumnHeading(const TableInfo& table, std::int32_t column);

/// The day of a line; nothing when it has none.
std::optional<Date> DayOf(const TableInfo& table, const Array& lines, std::int32_t line);

}  // namespace amortix2::pages
