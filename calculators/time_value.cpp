// Present value, future value and yield: a plan between two dates without deposits.

#include <utility>

#include "amortix2/calculators/savings.h"
#include "amortix2/calculators/savings_plan.h"
#include "amortix2/calculators/work.h"

namespace amortix2::calculators {
namespace {

tSavingsDesc SingleSum(const Clock& clock, const Variant& vStartDate, const Variant& vEndingDate,
                       const Variant& vFreq) {
  const Date startDate = DateOrToday(vStartDate, clock);
  const Date endDate = DateOrToday(vEndingDate, clock);
  tSavingsDesc plan = NewPlan(startDate, vFreq);
  plan.endDate = endDate;
  return plan;
}

/// Solves the plan for `unknown`, one of its fields, and returns the table.
Array SolveSum(tSavingsDesc& plan, double& unknown) {
  unknown = UNKNOWNLOANVALUE;
  const std::int32_t rows = RowsWithLeftover(plan);
  Solve(plan);
  return PlanDetail(plan, rows);
}

}  // namespace

void PresentValueCalculator(const Clock& clock, const Variant& vStartDate, const Variant& vEndingDate,
                            const Variant& vEndingBal, const Variant& vIntRate, const Variant& vFreq,
                            Variant& vCurrBal, Variant& vDetArray) {
  tSavingsDesc plan = SingleSum(clock, vStartDate, vEndingDate, vFreq);
  plan.endingBalance = NumericOrZero(vEndingBal);
  plan.intRate = NumericOrZero(vIntRate);
  vDetArray = SolveSum(plan, plan.startingBalance);
  vCurrBal = plan.startingBalance;
}

void FutureValueCalculator(const Clock& clock, const Variant& vStartDate, const Variant& vEndingDate,
                           const Variant& vCurrBal, const Variant& vIntRate, const Variant& vFreq,
                           Variant& vEndingBal, Variant& vDetArray) {
  tSavingsDesc plan = SingleSum(clock, vStartDate, vEndingDate, vFreq);
  plan.startingBalance = NumericOrZero(vCurrBal);
  plan.intRate = NumericOrZero(vIntRate);
  Array detail = SolveSum(plan, plan.endingBalance);
  vEndingBal = plan.endingBalance;
  vDetArray = std::move(detail);
}

void YieldCalculator(const Clock& clock, const Variant& vStartDate, const Variant& vEndingDate,
                     const Variant& vCurrBal, const Variant& vEndingBal, const Variant& vFreq,
                     Variant& vIntRate, Variant& vResEndingBal, Variant& vDetArray) {
  tSavingsDesc plan = SingleSum(clock, vStartDate, vEndingDate, vFreq);
  plan.startingBalance = NumericOrZero(vCurrBal);
  plan.endingBalance = NumericOrZero(vEndingBal);
  vDetArray = SolveSum(plan, plan.intRate);
  vIntRate = plan.intRate;
  vResEndingBal = plan.endingBalance;
}

}  // namespace amortix2::calculators
