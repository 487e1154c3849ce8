// The four questions of a plan of whole years differ in what is given and what is marked unknown.

#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/calculators/savings.h"
#include "amortix2/calculators/savings_plan.h"
#include "amortix2/engine/frequency.h"

namespace amortix2::calculators {
namespace {

tSavingsDesc YearsPlan(const Variant& vStartDate, const Variant& vFreq, const Variant& vPeriod) {
  tSavingsDesc plan = NewPlan(ToDate(vStartDate), vFreq);
  plan.endDate = DateAfter(plan, annualMode, NumericOrZero(vPeriod));
  return plan;
}

/// Solves the plan for `unknown`, one of its fields, and writes the two results.
void Answer(tSavingsDesc& plan, double& unknown, Variant& result, Variant& vDetArray) {
  unknown = UNKNOWNLOANVALUE;
  const std::int32_t rows = CountWholePeriods(plan.startDate, plan.paymentMode, plan.endDate).periods;
  Solve(plan);
  Array detail = PlanDetail(plan, rows);
  result = unknown;
  vDetArray = std::move(detail);
}

}  // namespace

void AmountSavedCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                           const Variant& vFreq, const Variant& vPeriod, const Variant& vIntRate,
                           Variant& vEndBal, Variant& vDetArray) {
  tSavingsDesc plan = YearsPlan(vStartDate, vFreq, vPeriod);
  plan.startingBalance = NumericOrZero(vCurrBal);
  plan.deposit = NumericOrZero(vPayment);
  plan.intRate = NumericOrZero(vIntRate);
  Answer(plan, plan.endingBalance, vEndBal, vDetArray);
}

void SavingsRateCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                           const Variant& vFreq, const Variant& vPeriod, const Variant& vEndingBal,
                           Variant& vIntRate, Variant& vDetArray) {
  tSavingsDesc plan = YearsPlan(vStartDate, vFreq, vPeriod);
  plan.startingBalance = NumericOrZero(vCurrBal);
  plan.deposit = NumericOrZero(vPayment);
  plan.endingBalance = NumericOrZero(vEndingBal);
  Answer(plan, plan.intRate, vIntRate, vDetArray);
}

void StartingAmountCalculator(const Variant& vStartDate, const Variant& vPayment, const Variant& vFreq,
                              const Variant& vPeriod, const Variant& vIntRate, const Variant& vEndingBal,
                              Variant& vCurrBal, Variant& vDetArray) {
  tSavingsDesc plan = YearsPlan(vStartDate, vFreq, vPeriod);
  plan.deposit = NumericOrZero(vPayment);
  plan.intRate = NumericOrZero(vIntRate);
  plan.endingBalance = NumericOrZero(vEndingBal);
  Answer(plan, plan.startingBalance, vCurrBal, vDetArray);
}

void DepositCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vFreq,
                       const Variant& vPeriod, const Variant& vIntRate, const Variant& vEndingBal,
                       Variant& vPayment, Variant& vDetArray) {
  tSavingsDesc plan = YearsPlan(vStartDate, vFreq, vPeriod);
  plan.startingBalance = NumericOrZero(vCurrBal);
  plan.intRate = NumericOrZero(vIntRate);
  plan.endingBalance = NumericOrZero(vEndingBal);
  Answer(plan, plan.deposit, vPayment, vDetArray);
}

}  // namespace amortix2::calculators
