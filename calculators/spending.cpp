#include "amortix2/calculators/savings.h"
#include "amortix2/calculators/savings_plan.h"
#include "amortix2/calculators/work.h"
#include "amortix2/engine/frequency.h"

namespace amortix2::calculators {
namespace {

/// Marks what is to be found; without a term the engine finds that. False when nothing can be found.
bool MarkUnknown(tSavingsDesc& plan, double periods) {
  const bool hasBalance = plan.startingBalance != 0;
  const bool hasWithdrawal = plan.withdrawal != 0;
  if (periods == 0) return hasBalance && hasWithdrawal;
  if (!hasBalance && !hasWithdrawal) return false;
  double& unknown = !hasBalance                          ? plan.startingBalance
                    : hasWithdrawal && plan.intRate == 0 ? plan.intRate
                                                         : plan.withdrawal;
  unknown = UNKNOWNLOANVALUE;
  return true;
}

}  // namespace

void SpendingCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                        const Variant& vIntRate, const Variant& vFreq, const Variant& vPeriod,
                        Variant& vResCurrBal, Variant& vResPayment, Variant& vResIntRate, Variant& vResPeriod,
                        Variant& vDetArray) {
  tSavingsDesc plan = NewPlan(ToDate(vStartDate), vFreq);
  plan.startingBalance = NumericOrZero(vCurrBal);
  plan.withdrawal = NumericOrZero(vPayment);
  plan.intRate = NumericOrZero(vIntRate);
  const double periods = NumericOrZero(vPeriod);
  if (!MarkUnknown(plan, periods)) {
    vResCurrBal = plan.startingBalance;
    vResPayment = plan.withdrawal;
    vResIntRate = plan.intRate;
    vResPeriod = periods;
    vDetArray = Table(1);
  }
  if (periods > 0) plan.endDate = DateAfter(plan, plan.paymentMode, periods);
  Solve(plan);
  vResCurrBal = plan.startingBalance;
  vResPayment = plan.withdrawal;
  vResIntRate = plan.intRate;
  const WholePeriods lasting = CountWholePeriods(plan.startDate, plan.paymentMode, plan.endDate);
  const bool isForEver = plan.endingBalance == plan.startingBalance;
  vResPeriod = isForEver ? std::int16_t{-1} : ToInteger(lasting.periods);
  vDetArray = PlanDetail(plan, RowsWithLeftover(plan));
}

}  // namespace amortix2::calculators
