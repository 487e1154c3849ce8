// Plans of which one quantity is asked by name: plans of whole years, and a single sum between two dates.

#include <utility>

#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/savings_results.h"
#include "amortix2/calculators/tables.h"
#include "amortix2/engine/frequency.h"

namespace amortix2 {
namespace {

using namespace calculators;

/// Writes the quantity that `question` leaves out for a plan of whole years, and a table with a row for each
/// whole period.
void AnswerYears(SavingsQuestion question, const Variant& vStartDate, double frequency, double years,
                 double SavingsAnswer::*found, Variant& result, Variant& vDetArray) {
  question.startDate = ToDate(vStartDate);
  question.frequency = FrequencyOf(frequency);
  question.endDate = DateAfter(question.startDate, annualMode, years);
  const std::int32_t rows =
      CountWholePeriods(question.startDate, question.frequency, *question.endDate).periods;
  const SavingsAnswer answer = Solve(question);
  Variant detail = SavingsTable(vDetArray, answer.schedule, rows);
  result = answer.*found;
  vDetArray = std::move(detail);
}

SavingsQuestion SingleSum(const Variant& vStartDate, const Variant& vEndingDate, double frequency,
                          const Clock& clock) {
  return {.deposit = 0,
          .endDate = DateOrToday(vEndingDate, clock),
          .frequency = FrequencyOf(frequency),
          .startDate = DateOrToday(vStartDate, clock)};
}

/// Solves the sum; `vDetArray` receives its table.
SavingsAnswer AnswerSum(const SavingsQuestion& question, Variant& vDetArray) {
  const std::int32_t rows = RowsWithLeftover(question.startDate, question.frequency, *question.endDate);
  SavingsAnswer answer = Solve(question);
  vDetArray = SavingsTable(vDetArray, answer.schedule, rows);
  return answer;
}

}  // namespace

void Calculator::AmountSavedCalculator(const Variant& vStartDate, Number vCurrBal, Number vPayment,
                                       Number vFreq, Number vPeriod, Number vIntRate, Variant& vEndBal,
                                       Variant& vDetArray) const {
  AnswerYears({.balance = vCurrBal, .deposit = vPayment, .annualPercent = vIntRate}, vStartDate, vFreq,
              vPeriod, &SavingsAnswer::endingBalance, vEndBal, vDetArray);
}

void Calculator::SavingsRateCalculator(const Variant& vStartDate, Number vCurrBal, Number vPayment,
                                       Number vFreq, Number vPeriod, Number vEndingBal, Variant& vIntRate,
                                       Variant& vDetArray) const {
  AnswerYears({.balance = vCurrBal, .deposit = vPayment, .endingBalance = vEndingBal}, vStartDate, vFreq,
              vPeriod, &SavingsAnswer::annualPercent, vIntRate, vDetArray);
}

void Calculator::StartingAmountCalculator(const Variant& vStartDate, Number vPayment, Number vFreq,
                                          Number vPeriod, Number vIntRate, Number vEndingBal,
                                          Variant& vCurrBal, Variant& vDetArray) const {
  AnswerYears({.deposit = vPayment, .annualPercent = vIntRate, .endingBalance = vEndingBal}, vStartDate,
              vFreq, vPeriod, &SavingsAnswer::balance, vCurrBal, vDetArray);
}

void Calculator::DepositCalculator(const Variant& vStartDate, Number vCurrBal, Number vFreq, Number vPeriod,
                                   Number vIntRate, Number vEndingBal, Variant& vPayment,
                                   Variant& vDetArray) const {
  AnswerYears({.balance = vCurrBal, .annualPercent = vIntRate, .endingBalance = vEndingBal}, vStartDate,
              vFreq, vPeriod, &SavingsAnswer::deposit, vPayment, vDetArray);
}

void Calculator::PresentValueCalculator(const Variant& vStartDate, const Variant& vEndingDate,
                                        Number vEndingBal, Number vIntRate, Number vFreq, Variant& vCurrBal,
                                        Variant& vDetArray) const {
  SavingsQuestion question = SingleSum(vStartDate, vEndingDate, vFreq, clock_);
  question.endingBalance = vEndingBal;
  question.annualPercent = vIntRate;
  vCurrBal = AnswerSum(question, vDetArray).balance;
}

void Calculator::FutureValueCalculator(const Variant& vStartDate, const Variant& vEndingDate, Number vCurrBal,
                                       Number vIntRate, Number vFreq, Variant& vEndingBal,
                                       Variant& vDetArray) const {
  SavingsQuestion question = SingleSum(vStartDate, vEndingDate, vFreq, clock_);
  question.balance = vCurrBal;
  question.annualPercent = vIntRate;
  Variant detail;
  vEndingBal = AnswerSum(question, detail).endingBalance;
  vDetArray = std::move(detail);
}

void Calculator::YieldCalculator(const Variant& vStartDate, const Variant& vEndingDate, Number vCurrBal,
                                 Number vEndingBal, Number vFreq, Variant& vIntRate, Variant& vResEndingBal,
                                 Variant& vDetArray) const {
  SavingsQuestion question = SingleSum(vStartDate, vEndingDate, vFreq, clock_);
  question.balance = vCurrBal;
  question.endingBalance = vEndingBal;
  const SavingsAnswer answer = AnswerSum(question, vDetArray);
  vIntRate = answer.annualPercent;
  vResEndingBal = answer.endingBalance;
}

}  // namespace amortix2
