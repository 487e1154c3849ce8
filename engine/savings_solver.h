#pragma once

// Finds the quantity of a savings plan that holds UNKNOWNLOANVALUE, then schedules the plan. Balances and
// deposits have a closed form, the rate is searched for (savings_rate.h), an unknown end is found while the
// schedule is built (savings_schedule.h).

#include "amortix2/automation/array.h"
#include "amortix2/engine/records.h"

namespace amortix2 {

/// Solves one marked quantity of `save` in place and builds its schedule. With growth G a period, n whole
/// periods and a = (G^n - 1) / (G - 1), the net deposit is D = (goal - B0 G^n) / a and the opening balance B0
/// = (goal - D a) / G^n, to the cent; a marked withdrawal is the deposit less D. The rate is rounded to three
/// decimals. `endingBalance`, the goal, ends as the balance that the schedule reaches. Goals and household
/// are carried for callers.
///
/// Raises Overflow, DivisionByZero (a plan without a whole period has no deposit and no rate to find), and as
/// the schedule does; the record then holds what had been solved.
void SolveSavings(tSavingsDesc& save, RecordArray<tGoalDesc>& goals, tCreditQualification& qualification);

/// G: growth of one payment period after tax, 1 + rate / (100 x compounding periods a year), or the
/// exponential with continuous compounding. Raises Overflow.
double SavingsPeriodFactor(const tSavingsDesc& save);

}  // namespace amortix2
