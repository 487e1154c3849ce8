#pragma once

// A loan's schedule as a table of variants for a page: one row a line. Columns from atCol: date
// ("mm-dd-yyyy"), payment, principal repaid, interest, ending balance, and the line's rate where the table
// has a column for it.

#include <cstdint>
#include <span>

#include "amortix2/automation/array.h"
#include "amortix2/engine/records.h"

namespace amortix2 {

/// Writes lines 0 to lastRow into the rows of the same number. Row 0 shows the start date moved back by
/// `startDateDelay` days. Raises SubscriptOutOfRange at the first row, column or line that is not there; the
/// rows before it stay written.
void LoadDetArray(const tLoanDesc& loan, std::int16_t atCol, std::int16_t lastRow, Array& detArray);

/// The same of lines alone, with `opening` as the date of row 0.
void LoadDetArray(std::span<const tSchedule> lines, Date opening, std::int16_t atCol, std::int16_t lastRow,
                  Array& detArray);

}  // namespace amortix2
