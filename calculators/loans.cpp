#include "amortix2/calculators/loans.h"

#include <cstdint>
#include <utility>

#include "amortix2/automation/checked.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/loan_results.h"
#include "amortix2/calculators/tables.h"
#include "amortix2/engine/loan_solver.h"

namespace amortix2 {
namespace {

using namespace calculators;

tLoanDesc RecordOf(const LoanQuestion& question) {
  RequireOneUnknown({{"amount", question.amount.has_value()},
                     {"payment", question.payment.has_value()},
                     {"months", question.months.has_value()},
                     {"annualPercent", question.annualPercent.has_value()}});
  tLoanDesc loan;
  loan.typ = question.type;
  loan.startDate = question.startDate;
  loan.startingBalance = OrUnknown(question.amount);
  loan.payment = OrUnknown(question.payment);
  loan.period = OrUnknown(question.months);
  loan.intRate = OrUnknown(question.annualPercent);
  return loan;
}

bool IsCreditCard(const Variant& loanType) {
  if (loanType.Type() != VariantType::String) return false;
  return loanType.GetString() == "C" || loanType.GetString() == "c";
}

/// Leaves out the quantity that is 0, looked for in the order amount, payment, term, rate; the payment when
/// none is. False when the others do not determine it.
bool LeaveOutZero(LoanQuestion& question) {
  if (question.amount == 0) {
    question.amount.reset();
    return question.months != 0 && question.payment != 0;
  }
  if (question.payment == 0) {
    question.payment.reset();
    return question.months != 0;
  }
  if (question.months == 0) {
    question.months.reset();
  } else if (question.annualPercent == 0) {
    question.annualPercent.reset();
  } else {
    question.payment.reset();
  }
  return true;
}

}  // namespace

LoanAnswer Solve(const LoanQuestion& question) {
  const StandardArithmetic arithmetic;
  return calculators::SolveRecord(RecordOf(question));
}

double PaymentOf(const LoanQuestion& question) {
  const StandardArithmetic arithmetic;
  tLoanDesc loan = RecordOf(question);
  tCreditQualification household;
  SolveLoan(loan, household, false);
  return loan.payment;
}

void Calculator::SimpleLoanCalculator(const Variant& vLoanType, Number vPurchaseAmt, Number vPayment,
                                      Number vPeriod, Number vIntRate, Variant& vResPurchaseAmt,
                                      Variant& vResPayment, Variant& vResPeriod, Variant& vResIntRate,
                                      Variant& vTotPay, Variant& vTotInt, Variant& vDetArray) const {
  const LoanResults results{vResPurchaseAmt, vResPayment, vResPeriod, vResIntRate,
                            vTotPay,         vTotInt,     vDetArray};
  results.Echo(vPurchaseAmt, vPayment, vPeriod, vIntRate);
  LoanQuestion question{.amount = vPurchaseAmt,
                        .payment = vPayment,
                        .months = vPeriod,
                        .annualPercent = vIntRate,
                        .startDate = clock_.Today(),
                        .type = IsCreditCard(vLoanType) ? creditCard : simpleLoan};
  if (LeaveOutZero(question)) results.Write(Solve(question));
}

void Calculator::PaymentGridCalculator(Variant& vPrincipal, Variant& vDownPayment, Variant& vIntRate,
                                       Variant& vPeriod, Variant& vDownChange, Variant& vRateChange,
                                       Variant& vStepX, Variant& vStepY, Variant& vGrid) const {
  const double principal = Number(vPrincipal);
  const double downChange = Number(vDownChange);
  const double rateChange = Number(vRateChange);
  const double stepsX = Number(vStepX);
  const double stepsY = Number(vStepY);
  // One step below the first row and column, so that those have index 1.
  const double downPayment = Number(vDownPayment) - (stepsY + 1) * downChange;
  const double rate = Number(vIntRate) - (stepsX + 1) * rateChange;

  // One record for all cells: making it anew would take as long as solving it.
  tLoanDesc loan;
  loan.typ = simpleLoan;
  loan.startDate = clock_.Today();
  loan.period = Number(vPeriod);
  tCreditQualification household;
  const std::int16_t rows = ToInteger(2 * stepsX + 1);
  const std::int16_t columns = ToInteger(2 * stepsY + 1);
  Array grid = Table(rows, columns);
  for (std::int32_t i = 1; i <= rows; ++i) {
    for (std::int32_t j = 1; j <= columns; ++j) {
      loan.startingBalance = Finite(principal - downPayment - j * downChange);
      loan.intRate = Finite(i * rateChange + rate);
      loan.payment = UNKNOWNLOANVALUE;
      SolveLoan(loan, household, false);
      grid.At(i, j) = loan.payment;
    }
  }
  vGrid = std::move(grid);
}

}  // namespace amortix2
