#include <utility>

#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/savings_results.h"
#include "amortix2/calculators/tables.h"
#include "amortix2/engine/frequency.h"

namespace amortix2 {
namespace {

using namespace calculators;

/// Leaves out what is to be found; without a term the engine finds that. False when nothing can be found.
bool LeaveOutZero(SpendingQuestion& question, double periods) {
  const bool hasBalance = question.balance != 0;
  const bool hasWithdrawal = question.withdrawal != 0;
  if (periods == 0) return hasBalance && hasWithdrawal;
  if (!hasBalance && !hasWithdrawal) return false;
  if (!hasBalance) {
    question.balance.reset();
  } else if (hasWithdrawal && question.annualPercent == 0) {
    question.annualPercent.reset();
  } else {
    question.withdrawal.reset();
  }
  return true;
}

}  // namespace

SpendingAnswer Solve(const SpendingQuestion& question) {
  const StandardArithmetic arithmetic;
  RequireOneUnknown({{"balance", question.balance.has_value()},
                     {"withdrawal", question.withdrawal.has_value()},
                     {"annualPercent", question.annualPercent.has_value()},
                     {"periods", question.periods || question.endDate}});
  tSavingsDesc plan = PlanOf(question);
  plan.withdrawal = OrUnknown(question.withdrawal);
  SolveRecord(plan);
  return {.balance = plan.startingBalance,
          .withdrawal = plan.withdrawal,
          .annualPercent = plan.intRate,
          .startDate = plan.startDate,
          .endDate = plan.endDate,
          .lastsForEver = plan.endingBalance == plan.startingBalance,
          .totalInterest = plan.totIntCredited,
          .schedule = std::move(plan.schedule)};
}

void Calculator::SpendingCalculator(const Variant& vStartDate, Number vCurrBal, Number vPayment,
                                    Number vIntRate, Number vFreq, Number vPeriod, Variant& vResCurrBal,
                                    Variant& vResPayment, Variant& vResIntRate, Variant& vResPeriod,
                                    Variant& vDetArray) const {
  SpendingQuestion question{.balance = vCurrBal,
                            .withdrawal = vPayment,
                            .annualPercent = vIntRate,
                            .startDate = ToDate(vStartDate)};
  question.frequency = FrequencyOf(vFreq);
  if (!LeaveOutZero(question, vPeriod)) {
    vResCurrBal = double{vCurrBal};
    vResPayment = double{vPayment};
    vResIntRate = double{vIntRate};
    vResPeriod = double{vPeriod};
    vDetArray = Table(1);
  }
  question.endDate = EndAfter(question.startDate, question.frequency, vPeriod);
  const SpendingAnswer answer = Solve(question);
  vResCurrBal = answer.balance;
  vResPayment = answer.withdrawal;
  vResIntRate = answer.annualPercent;
  const WholePeriods lasting = CountWholePeriods(answer.startDate, question.frequency, answer.endDate);
  vResPeriod = answer.lastsForEver ? std::int16_t{-1} : ToInteger(lasting.periods);
  vDetArray = SavingsTable(vDetArray, answer.schedule, lasting.periods + (lasting.days != 0 ? 1 : 0));
}

}  // namespace amortix2
