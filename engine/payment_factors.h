#pragma once

// Payment factors: what n payments of 1 are worth at the start, at a growth of g a payment (1 + annual rate /
// 1200). A loan's amount is its factor times its payment. All raise Overflow or DivisionByZero where the
// growth's powers leave the doubles or vanish.

#include <cstdint>

#include "amortix2/automation/public.h"
#include "amortix2/engine/records.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Payments at the end of each month: ((g^n - 1) / (g - 1)) / g^n; n when g is 1.
double AnnuityFactor(double growth, std::int32_t payments);

/// A credit card's payments fall in the middle of the month, so that each but the first is averaged over two
/// neighbouring months: ((g^(n-1) - 1)(g + 1) / (2 (g - 1)) + 1) / g / g^(n-1); n when g is 1 or less.
double CreditCardAnnuityFactor(double growth, std::int32_t payments);

struct PaymentFactors {
  double annuity = 0;      ///< F: the present value of the payments
  double finalGrowth = 1;  ///< G: growth over the whole term, for what is left at its end (leases only)
};

/// Of n lease payments p are made in advance and count at full value: F = AnnuityFactor(g, n - p) + p, G =
/// g^n; F = n and G = 1 when g is 1.
PaymentFactors LeaseAnnuityFactors(double growth, std::int32_t payments, std::int32_t prepays);

/// What decides a loan's factors, apart from its rate.
struct PaymentTerms {
  enumLoanType typ;       ///< loanAsLease and creditCard have factors of their own, all others the annuity
  std::int32_t payments;  ///< n
  std::int32_t prepays;   ///< p, leases only
};

/// Raises Overflow when the rounded period leaves 16 bits.
PaymentTerms TermsOf(const tLoanDesc& loan);

/// 1 + annual percent / 1200.
inline double MonthlyGrowth(double annualPercent) { return 1 + annualPercent / 1200; }

PaymentFactors LoanPaymentFactor(const PaymentTerms& terms, double growth);
PaymentFactors LoanPaymentFactor(const tLoanDesc& loan);

}  // namespace amortix2
