#pragma once

// A savings plan's schedule as a table of variants for a page: one row a line. Columns from atCol: date
// ("mm-dd-yyyy"), deposit, interest, growth (deposit and interest together), ending balance.

#include <cstdint>
#include <span>

#include "amortix2/automation/array.h"
#include "amortix2/engine/records.h"

namespace amortix2 {

/// Raises what LoadSaveDetArray raises for lines 1 to lastRow of such a table.
void CheckSavingsLines(std::span<const tSchedule> lines, std::int32_t lastRow);

/// Writes the start date and the opening balance into row 0, leaving its other cells as they are, and lines 1
/// to lastRow into the rows of the same number. Raises SubscriptOutOfRange at the first row, column or line
/// that is not there, Overflow for a growth beyond doubles; what was written before it stays.
void LoadSaveDetArray(const tSavingsDesc& save, std::int16_t atCol, std::int16_t lastRow, Array& detArray);

/// The same of lines alone; date and balance of row 0 are those of line 0. Raises SubscriptOutOfRange without
/// lines.
void LoadSaveDetArray(std::span<const tSchedule> lines, std::int16_t atCol, std::int16_t lastRow,
                      Array& detArray);

}  // namespace amortix2
