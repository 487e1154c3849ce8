#include "amortix2/calculators/leases.h"

#include <algorithm>

#include "amortix2/calculators/savings.h"
#include "amortix2/calculators/work.h"
#include "amortix2/engine/elementary.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/rounding.h"

namespace amortix2::calculators {
namespace {

/// Marks what is to be found; false when the inputs do not determine it.
bool MarkUnknown(tLoanDesc& lease) {
  if (lease.residualAmount == 0) {
    lease.residualAmount = UNKNOWNLOANVALUE;
    return lease.startingBalance != 0 && lease.payment != 0;
  }
  if (lease.startingBalance == 0) {
    lease.startingBalance = UNKNOWNLOANVALUE;
    return lease.payment != 0;
  }
  double& unknown = lease.intRate == 0 && lease.payment != 0 ? lease.intRate : lease.payment;
  unknown = UNKNOWNLOANVALUE;
  return true;
}

/// Interest may be compounded more often than payments are made where the one divides the other. Monthly
/// payments take any frequency of interest, also a lower one.
bool AcceptsInterest(std::int32_t payMode, std::int32_t intMode) {
  switch (payMode) {
    case weeklyMode:
      return intMode == dailymode;
    case biweeklyMode:
      return intMode == dailymode || intMode == weeklyMode;
    case bimonthlyMode:
    case quarterlyMode:
      return intMode == monthlyMode;
    case semiannualMode:
      return intMode >= monthlyMode && intMode <= quarterlyMode;
    case annualMode:
      return intMode >= monthlyMode && intMode <= semiannualMode;
    default:
      return true;
  }
}

/// The rate whose monthly growth is the growth of one payment period.
double RatePerPayment(double annualRate, enumFrequencyType payMode, enumFrequencyType intMode) {
  if (payMode == monthlyMode && intMode == monthlyMode) return annualRate;
  const double interestPeriods = PeriodsPerYear(intMode);
  const double growth = 1 + annualRate / 100 / interestPeriods;
  return Finite(1200 * (Power(growth, ToLong(interestPeriods / PeriodsPerYear(payMode))) - 1));
}

/// Replaces the dates of a lease's table from row 2 on by those of a plan's, whose row 1 is the first
/// payment.
void TakeDates(Array& lease, const Array& plan) {
  constexpr int kDateColumn = 1;
  const std::int32_t lastRow = lease.Dimension(1).upper;
  const std::int32_t lastDate = plan.Dimension(1).upper;
  for (std::int32_t i = 1; i < lastRow && i <= lastDate; ++i) {
    lease.At(i + 1, kDateColumn) = plan.At(i, kDateColumn);
  }
  lease.At(lastRow, kDateColumn) = plan.At(lastDate, kDateColumn);
}

}  // namespace

void MonthlyLeaseCalculator(const Clock& clock, const Variant& vDummy, const Variant& vPrincipal,
                            const Variant& vPayment, const Variant& vPeriod, const Variant& vIntRate,
                            const Variant& vPrepays, const Variant& vEndingBal, const Variant& vStartDate,
                            Variant& vResPrincipal, Variant& vResPayment, Variant& vResPeriod,
                            Variant& vResIntRate, Variant& vResPrepays, Variant& vResEndingBal,
                            Variant& vResTotPayments, Variant& vResTotInterest, Variant& vDetArr) {
  static_cast<void>(vDummy);
  Work work = Work::ForLoans(1);
  tLoanDesc& lease = work.loans.At(1);
  lease.typ = loanAsLease;
  lease.startDate = DateOrToday(vStartDate, clock);
  lease.startingBalance = NumericOrZero(vPrincipal);
  lease.payment = NumericOrZero(vPayment);
  lease.intRate = NumericOrZero(vIntRate);
  lease.residualAmount = NumericOrZero(vEndingBal);
  lease.period = std::max(NumericOrZero(vPeriod), 1.0);
  if (!MarkUnknown(lease)) {
    Array detail = Table(1);
    vResPrincipal = vResPayment = vResPeriod = vResIntRate = vResPrepays = vResEndingBal = 0.0;
    vResTotPayments = vResTotInterest = std::int16_t{0};
    vDetArr = std::move(detail);
    return;
  }
  lease.numberPrepays = ToInteger(std::clamp(NumericOrZero(vPrepays), 0.0, lease.period));
  work.Solve(LoanCalculator);
  Array detail = Detail(lease, static_cast<std::int32_t>(lease.schedule.size()) - 1);
  vResPrincipal = lease.startingBalance;
  vResPayment = lease.payment;
  vResPeriod = lease.period;
  vResIntRate = lease.intRate;
  vResPrepays = lease.numberPrepays;
  vResEndingBal = lease.residualAmount;
  vResTotPayments = lease.totPayments;
  vResTotInterest = lease.totIntCharged;
  vDetArr = std::move(detail);
}

void SimpleLeaseCalculator(const Clock& clock, const Variant& vDummy, const Variant& vPrincipal,
                           const Variant& vPayment, const Variant& vPeriod, const Variant& vIntRate,
                           const Variant& vPrepays, const Variant& vEndingBal, const Variant& vStartDate,
                           const Variant& vPayMode, const Variant& vIntMode, Variant& vResPrincipal,
                           Variant& vResPayment, Variant& vResPeriod, Variant& vResIntRate,
                           Variant& vResPrepays, Variant& vResEndingBal, Variant& vResTotPayments,
                           Variant& vResTotInterest, Variant& vDetArr) {
  const Variant startDate = DateOrToday(vStartDate, clock);
  const std::int32_t payMode = ToLong(NumericOrZero(vPayMode));
  const std::int32_t askedIntMode = ToLong(NumericOrZero(vIntMode));
  const std::int32_t intMode = AcceptsInterest(payMode, askedIntMode) ? askedIntMode : payMode;
  const double rate =
      RatePerPayment(NumericOrZero(vIntRate), enumFrequencyType{payMode}, enumFrequencyType{intMode});
  MonthlyLeaseCalculator(clock, vDummy, vPrincipal, vPayment, vPeriod, rate, vPrepays, vEndingBal, startDate,
                         vResPrincipal, vResPayment, vResPeriod, vResIntRate, vResPrepays, vResEndingBal,
                         vResTotPayments, vResTotInterest, vDetArr);

  // A savings plan at the payment frequency has the dates; its amounts do not matter.
  Variant balance, deposit, endingBalance, endDate, planRate, plan;
  SimpleSavingsCalculator(startDate, 0.0, 1.0, payMode, 0.0, vResPeriod, 3.0, 0.0, balance, deposit,
                          endingBalance, endDate, planRate, plan);
  TakeDates(vDetArr.GetArray(), plan.GetArray());
}

}  // namespace amortix2::calculators
