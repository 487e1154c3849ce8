#include "amortix2/calculators/loan_results.h"

#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/engine/loan_solver.h"

namespace amortix2::calculators {

LoanAnswer AnswerOf(tLoanDesc loan) {
  return {.amount = loan.startingBalance,
          .payment = loan.payment,
          .months = loan.period,
          .annualPercent = loan.intRate,
          .totalPayments = loan.totPayments,
          .totalInterest = loan.totIntCharged,
          .schedule = std::move(loan.schedule)};
}

LoanAnswer SolveRecord(tLoanDesc loan) {
  tCreditQualification household;
  SolveLoan(loan, household, true);
  return AnswerOf(std::move(loan));
}

void LoanResults::Echo(double amount, double pay, double months, double rate, std::int32_t lastColumn) const {
  Array detail = Table(ToLong(months), lastColumn);
  purchaseAmt = amount;
  payment = pay;
  period = months;
  intRate = rate;
  totPay = std::int16_t{0};
  totInt = std::int16_t{0};
  detArray = std::move(detail);
}

void LoanResults::Write(const LoanAnswer& answer, std::optional<Date> opening) const {
  Array detail = LoanTable(answer.schedule, ToLong(answer.months), kDetailColumns, opening);
  purchaseAmt = answer.amount;
  payment = answer.payment;
  intRate = answer.annualPercent;
  period = answer.months;
  totPay = answer.totalPayments;
  totInt = answer.totalInterest;
  detArray = std::move(detail);
}

}  // namespace amortix2::calculators
