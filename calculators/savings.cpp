#include "amortix2/calculators/savings.h"

#include <cmath>
#include <utility>

#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/savings_results.h"
#include "amortix2/calculators/tables.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/savings_solver.h"

namespace amortix2 {

namespace calculators {

void SolveRecord(tSavingsDesc& plan) {
  RecordArray<tGoalDesc> goals;
  tCreditQualification household;
  SolveSavings(plan, goals, household);
}

Date EndOf(Date start, enumFrequencyType frequency, const std::optional<double>& periods,
           const std::optional<Date>& endDate) {
  if (!periods) return endDate.value_or(kFirstDay);
  if (*periods < 0) Raise(ErrorNumber::InvalidProcedureCall, "periods");
  return DateAfter(start, frequency, *periods);
}

std::int32_t RowsWithLeftover(Date start, enumFrequencyType frequency, Date end) {
  const WholePeriods count = CountWholePeriods(start, frequency, end);
  return count.periods + (count.days != 0 ? 1 : 0);
}

}  // namespace calculators

namespace {

using namespace calculators;

/// Leaves out what is to be found in a plan with a known term.
void LeaveOutZero(SavingsQuestion& question) {
  if (question.endingBalance == 0) {
    if (question.balance != 0 || question.deposit != 0) question.endingBalance.reset();
  } else if (question.deposit == 0) {
    question.deposit.reset();
  } else if (question.balance == 0) {
    question.balance.reset();
  } else if (question.annualPercent == 0) {
    question.annualPercent.reset();
  } else {
    question.endingBalance.reset();
  }
}

}  // namespace

Date DateAfter(Date start, enumFrequencyType frequency, double periods) {
  return AdvanceDate(start, frequency, ToLong(std::floor(periods)));
}

SavingsAnswer Solve(const SavingsQuestion& question) {
  const StandardArithmetic arithmetic;
  RequireOneUnknown({{"balance", question.balance.has_value()},
                     {"deposit", question.deposit.has_value()},
                     {"annualPercent", question.annualPercent.has_value()},
                     {"endingBalance", question.endingBalance.has_value()},
                     {"periods", question.periods || question.endDate}});
  tSavingsDesc plan = PlanOf(question);
  plan.deposit = OrUnknown(question.deposit);
  plan.endingBalance = OrUnknown(question.endingBalance);
  plan.taxRate = question.taxPercent;
  SolveRecord(plan);
  return {.balance = plan.startingBalance,
          .deposit = plan.deposit,
          .annualPercent = plan.intRate,
          .endingBalance = plan.endingBalance,
          .startDate = plan.startDate,
          .endDate = plan.endDate,
          .totalInterest = plan.totIntCredited,
          .totalTax = plan.totTaxCharged,
          .totalDeposits = plan.totPayments,
          .schedule = std::move(plan.schedule)};
}

void Calculator::SimpleSavingsCalculator(const Variant& vStartDate, Number vCurrBal, Number vPayment,
                                         Number vFreq, Number vEndingBal, Number vPeriod, Number vIntRate,
                                         Number vIncTaxRate, Variant& vResCurrBal, Variant& vResPayment,
                                         Variant& vResEndingBal, Variant& vResEndDate, Variant& vResIntRate,
                                         Variant& vDetArray) const {
  SavingsQuestion question{.balance = vCurrBal,
                           .deposit = vPayment,
                           .annualPercent = vIntRate,
                           .endingBalance = vEndingBal,
                           .taxPercent = vIncTaxRate,
                           .startDate = ToDate(vStartDate)};
  question.frequency = FrequencyOf(vFreq);
  question.endDate = EndAfter(question.startDate, question.frequency, vPeriod);
  // Without a term the engine runs the plan to its goal, and with that there is nothing else to find.
  if (vPeriod != 0) LeaveOutZero(question);
  const SavingsAnswer answer = Solve(question);
  vResCurrBal = answer.balance;
  vResPayment = answer.deposit;
  vResIntRate = answer.annualPercent;
  vResEndingBal = answer.endingBalance;
  vResEndDate = answer.endDate;
  vDetArray = SavingsTable(vDetArray, answer.schedule,
                           RowsWithLeftover(answer.startDate, question.frequency, answer.endDate));
}

}  // namespace amortix2
