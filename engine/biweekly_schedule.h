#pragma once

// The schedule of a loan that is paid every two weeks: monthly payments until the switch date, then half a
// payment on that date and every 14 days after it.

#include "amortix2/engine/records.h"

namespace amortix2 {

/// Fills `schedule`, totals and present values as BuildLoanSchedule does. Monthly lines are dated before
/// `biweeklyDate`; where that is not after `startDate`, the first half payment falls 14 days after
/// `startDate`. Interest of a half payment's line is simple, by days, on a year of 365.
///
/// With `period` unknown the lines run until the debt is paid, and `period` becomes the months to the last
/// line, a started month counting whole; where half a payment does not exceed 14 days' interest on the
/// amount, one line pays it all, `payment` becomes that amount and `period` 1. With `period` given, the lines
/// end with the last one dated within it.
///
/// Present values discount by days: growth a month to the power of days * 12 / 365. The home's monthly
/// charges count 12/26 on a half payment's line. Raises as BuildLoanSchedule does; Overflow past 32767 lines.
void BuildBiWeeklySchedule(tLoanDesc& loan, const tCreditQualification& qualification);

}  // namespace amortix2
