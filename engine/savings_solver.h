#pragma once

// Finds the quantity of a savings plan that holds UNKNOWNLOANVALUE, then schedules the plan. Balances and
// deposits have a closed form, the rate is searched for (savings_rate.h), an unknown end is found while the
// schedule is built (savings_schedule.h).

#include "amortix2/automation/array.h"
#include "amortix2/automation/public.h"
#include "amortix2/engine/records.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Solves one marked quantity of `save` in place and builds its schedule. Let n lines make of an opening
/// balance of 1 the factor f, and of deposits of 1 the factor a: with growth G a line f = G^n and a = (G^n -
/// 1) / (G - 1); in exactDaysMode f = 1 + n r / 100 at a rate r
/// after tax and a = n; in continuousMode f is the product of the
/// lines' factors over their real days, and a what deposits of 1 then come to. The goal is first divided by
/// the growth of leftover days, 1 + rate x days / 36500, where there is a whole period. Then the net deposit
/// is D = (goal - B0 f) / a and the opening balance B0 = (goal - D a) / f, to the cent; a marked withdrawal
/// is the deposit less D. The rate is rounded to three decimals. `endingBalance`, the goal, ends as the
/// balance that the schedule reaches. Goals and household are carried for callers.
///
/// Raises Overflow, DivisionByZero (a plan without a whole period has no deposit and no rate to find), and as
/// the schedule does; the record then holds what had been solved.
void SolveSavings(tSavingsDesc& save, RecordArray<tGoalDesc>& goals, tCreditQualification& qualification);

}  // namespace amortix2
