#include "amortix2/automation/conversion.h"
#include "amortix2/calculators/savings.h"
#include "amortix2/calculators/savings_plan.h"
#include "amortix2/engine/rounding.h"

namespace amortix2::calculators {
namespace {

/// Marks what is to be found in a plan with a known term.
void MarkUnknown(tSavingsDesc& plan) {
  if (plan.endingBalance == 0) {
    if (plan.startingBalance != 0 || plan.deposit != 0) plan.endingBalance = UNKNOWNLOANVALUE;
  } else if (plan.deposit == 0) {
    plan.deposit = UNKNOWNLOANVALUE;
  } else if (plan.startingBalance == 0) {
    plan.startingBalance = UNKNOWNLOANVALUE;
  } else {
    (plan.intRate == 0 ? plan.intRate : plan.endingBalance) = UNKNOWNLOANVALUE;
  }
}

}  // namespace

void SimpleSavingsCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                             const Variant& vFreq, const Variant& vEndingBal, const Variant& vPeriod,
                             const Variant& vIntRate, const Variant& vIncTaxRate, Variant& vResCurrBal,
                             Variant& vResPayment, Variant& vResEndingBal, Variant& vResEndDate,
                             Variant& vResIntRate, Variant& vDetArray) {
  tSavingsDesc plan = NewPlan(ToDate(vStartDate), vFreq);
  plan.startingBalance = NumericOrZero(vCurrBal);
  plan.deposit = NumericOrZero(vPayment);
  plan.endingBalance = NumericOrZero(vEndingBal);
  plan.intRate = NumericOrZero(vIntRate);
  plan.taxRate = NumericOrZero(vIncTaxRate);
  const double periods = NumericOrZero(vPeriod);
  // Without a term the engine runs the plan to its goal, and with that there is nothing else to find.
  if (periods != 0) MarkUnknown(plan);
  if (periods > 0) plan.endDate = DateAfter(plan, plan.paymentMode, periods);
  Solve(plan);
  vResCurrBal = plan.startingBalance;
  vResPayment = plan.deposit;
  vResIntRate = plan.intRate;
  vResEndingBal = plan.endingBalance;
  vResEndDate = plan.endDate;
  vDetArray = PlanDetail(plan, RowsWithLeftover(plan));
}

void IRACalculator(const Variant& vStartDate, const Variant& vTyp, const Variant& vCurrBal,
                   const Variant& vPayment, const Variant& vEndingBal, const Variant& vPeriod,
                   const Variant& vIntRate, const Variant& vIncTaxRate, Variant& vGrid, Variant& vDetArray) {
  const bool isTaxed = vTyp.Type() == VariantType::String && vTyp.GetString() == "T";
  double target = NumericOrZero(vEndingBal);
  if (isTaxed) target = RoundToCents(Divide(target, 1 - NumericOrZero(vIncTaxRate) / 100));

  const Variant yearly = std::int32_t{annualMode};
  Variant balance, contribution, endingBalance, endDate, rate;
  SimpleSavingsCalculator(vStartDate, vCurrBal, vPayment, yearly, target, vPeriod, vIntRate, 0.0, balance,
                          contribution, endingBalance, endDate, rate, vDetArray);

  double afterTax = NumericOrZero(endingBalance);
  // Strictly this time: a tax rate that is no number is an error here.
  if (isTaxed) afterTax = RoundToCents(afterTax * (1 - ToDouble(vIncTaxRate) / 100));

  Array grid(Bounds{0, 6});
  grid.At(1) = balance;
  grid.At(2) = contribution;
  grid.At(3) = endingBalance;
  grid.At(4) = afterTax;
  grid.At(5) = endDate;
  grid.At(6) = rate;
  vGrid = std::move(grid);
}

}  // namespace amortix2::calculators
