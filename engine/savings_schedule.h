#pragma once

// A savings plan's schedule: an opening line, then one line a deposit or withdrawal with its interest after
// tax, every step rounded to cents, and a last line for days that make no period. For example 1000 and 100 a
// month at 12 % over 3 months and 10 days:
//
//   line  date        deposit  interest  balance
//   0     2026-01-31     0.00      0.00  1000.00
//   1     2026-02-28   100.00     10.00  1110.00
//   2     2026-03-31   100.00     11.10  1221.10
//   3     2026-04-30   100.00     12.21  1333.31
//   4     2026-05-10     0.00      4.38  1337.69

#include <cstdint>
#include <vector>

#include "amortix2/automation/public.h"
#include "amortix2/engine/date_steps.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/records.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Fills `schedule`, the totals and `endingBalance` of a plan with nothing unknown but perhaps its end. With
/// the end unknown (`endDate` before `startDate`) `endDate` becomes that of the line where the goal,
/// `endingBalance`, is reached (savings_goal.h); with deposits or withdrawals, a last line that begins before
/// the goal and would end beyond it has the payment, perhaps of the other sign, that makes it end on the
/// goal. Where no goal can be reached the plan becomes one line that takes out its interest, in `deposit` and
/// `withdrawal` too.
///
/// Regular lines credit interest after tax; the leftover days' interest is simple, at the rate before tax,
/// and its tax is recorded without being deducted. exactDaysMode credits every line the opening balance's
/// interest; lines of exactDaysMode and continuousMode lie a year apart although their count is one of
/// months.
///
/// Raises Overflow (more than 32767 lines, a date's day or month beyond 16 bits, amounts beyond doubles) and
/// InvalidProcedureCall (a date past 9999); the record is then as it was.
void BuildSavingsSchedule(tSavingsDesc& save);

/// Whole periods and leftover days of a plan; none when its end is unknown. Raises as CountWholePeriods does.
WholePeriods SavingsPeriods(const tSavingsDesc& save);

/// Dates of a plan's `count` regular lines, each stepped from the start. Raises as AdvanceDate does.
DateSteps SavingsDates(const tSavingsDesc& save, std::int32_t count);

}  // namespace amortix2
