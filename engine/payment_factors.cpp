#include "amortix2/engine/payment_factors.h"

#include "amortix2/automation/conversion.h"
#include "amortix2/engine/elementary.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {

double AnnuityFactor(double growth, std::int32_t payments) {
  if (growth == 1) return payments;
  const double finalGrowth = Finite(Power(growth, payments));
  return Divide((finalGrowth - 1) / (growth - 1), finalGrowth);
}

double CreditCardAnnuityFactor(double growth, std::int32_t payments) {
  if (growth <= 1) return payments;
  const double power = Finite(Power(growth, payments - 1));
  return Divide((power - 1) * (growth + 1) / (2 * (growth - 1)) + 1, growth) / power;
}

PaymentFactors LeaseAnnuityFactors(double growth, std::int32_t payments, std::int32_t prepays) {
  if (growth == 1) return {.annuity = static_cast<double>(payments), .finalGrowth = 1};
  return {.annuity = AnnuityFactor(growth, payments - prepays) + prepays,
          .finalGrowth = Finite(Power(growth, payments))};
}

PaymentTerms TermsOf(const tLoanDesc& loan) { return {loan.typ, ToInteger(loan.period), loan.numberPrepays}; }

PaymentFactors LoanPaymentFactor(const PaymentTerms& terms, double growth) {
  switch (terms.typ) {
    case loanAsLease:
      return LeaseAnnuityFactors(growth, terms.payments, terms.prepays);
    case creditCard:
      return {.annuity = CreditCardAnnuityFactor(growth, terms.payments)};
    default:
      return {.annuity = AnnuityFactor(growth, terms.payments)};
  }
}

PaymentFactors LoanPaymentFactor(const tLoanDesc& loan) {
  return LoanPaymentFactor(TermsOf(loan), MonthlyGrowth(loan.intRate));
}

}  // namespace amortix2
