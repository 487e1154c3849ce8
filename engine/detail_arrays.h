#pragma once

// A loan's schedule as a table of variants for a page: one row a line. Columns from atCol: date
// ("mm-dd-yyyy"), payment, principal repaid, interest, ending balance, and the line's rate where the table
// has a column for it.

#include <cstdint>
#include <span>

#include "amortix2/automation/array.h"
#include "amortix2/automation/checked.h"
#include "amortix2/engine/records.h"

namespace amortix2 {

/// Lines 0 to lastRow, of which a table can be made. Raises Overflow for principal beyond doubles,
/// SubscriptOutOfRange at the first line that is not there.
std::span<const tSchedule> LoanLines(std::span<const tSchedule> lines, std::int32_t lastRow);

/// The principal that a line repays. Raises Overflow.
inline double PrincipalOf(const tSchedule& line) { return Finite(line.startingBalance - line.endingBalance); }

/// Writes lines 0 to lastRow into the rows of the same number. Row 0 shows the start date moved back by
/// `startDateDelay` days. Raises SubscriptOutOfRange at the first row, column or line that is not there; the
/// rows before it stay written.
void LoadDetArray(const tLoanDesc& loan, std::int16_t atCol, std::int16_t lastRow, Array& detArray);

/// The same of lines alone, with `opening` as the date of row 0.
void LoadDetArray(std::span<const tSchedule> lines, Date opening, std::int16_t atCol, std::int16_t lastRow,
                  Array& detArray);

}  // namespace amortix2
