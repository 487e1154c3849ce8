#pragma once

// The tables that the methods of Calculator return, and how they read dates.

#include <cstdint>
#include <optional>
#include <span>

#include "amortix2/automation/array.h"
#include "amortix2/automation/date.h"
#include "amortix2/automation/variant.h"
#include "amortix2/engine/records.h"

namespace amortix2::calculators {

/// The last column of a table with one schedule, and of one with its rates too.
inline constexpr std::int32_t kDetailColumns = 5;
inline constexpr std::int32_t kDetailColumnsWithRate = 6;

/// An empty table of rows 0 to lastRow and columns 0 to lastColumn. Raises SubscriptOutOfRange for less than
/// that, Overflow for rows beyond 16 bits: no schedule has so many lines; OutOfMemory.
Array Table(std::int32_t lastRow, std::int32_t lastColumn = kDetailColumns);

// The next three make the table that `result` is to receive, or Empty where a call leaves it out
// (left_out_tables.h), and raise the same then.

/// As Table.
Variant EmptyTable(const Variant& result, std::int32_t lastRow, std::int32_t lastColumn);

/// A loan's lines 0 to lastRow from column 1 on; row 0 is dated `opening`, line 0's date without one. Raises
/// as Table does, SubscriptOutOfRange for a line that is not there, Overflow for principal beyond doubles.
Variant LoanTable(const Variant& result, std::span<const tSchedule> lines, std::int32_t lastRow,
                  std::int32_t lastColumn = kDetailColumns, std::optional<Date> opening = {});

/// A plan's lines 0 to lastRow from column 1 on. Raises as LoanTable does.
Variant SavingsTable(const Variant& result, std::span<const tSchedule> lines, std::int32_t lastRow);

/// Fills a table's rows as LoanTable does. The rows before a line that is not there stay written.
void LoadLoanTable(std::span<const tSchedule> lines, std::optional<Date> opening, Array& table);

/// The value's date, or today when it is none.
Date DateOrToday(const Variant& value, const Clock& clock);

}  // namespace amortix2::calculators
