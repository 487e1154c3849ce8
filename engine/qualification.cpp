#include "amortix2/engine/qualification.h"

#include <algorithm>

#include "amortix2/engine/loan_solver.h"
#include "amortix2/engine/payment_factors.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {

void ComputeQualifyingPayment(tCreditQualification& qualification) {
  const double debts = qualification.creditCardPayment + qualification.autoLoanPayment +
                       qualification.childSupportPayment + qualification.otherMonthlyPayment;
  const double income = qualification.monthlyIncome;
  const double allowance = std::min(0.28 * income, 0.36 * (income - debts));
  qualification.monthlyPayment = Finite(allowance + debts);
}

void SolveAffordableLoan(tLoanDesc& loan, tCreditQualification& qualification) {
  const double paymentOfOne = Divide(1, LoanPaymentFactor(loan).annuity);
  const double monthlyTax = qualification.propertyTaxRate / 1200;
  qualification.propertyTaxCharge = WithoutMinusZero(Finite(monthlyTax * qualification.downPaymentAmount));
  const double available =
      qualification.monthlyPayment - qualification.propertyTaxCharge - qualification.insuranceCharge -
      qualification.associationDues - qualification.otherMonthlyLoanCharge - qualification.creditCardPayment -
      qualification.autoLoanPayment - qualification.childSupportPayment - qualification.otherMonthlyPayment;
  loan.startingBalance = RoundToCents(Divide(available, paymentOfOne + monthlyTax));
  loan.payment = UNKNOWNLOANVALUE;
  SolveLoan(loan, qualification, true);
}

}  // namespace amortix2
