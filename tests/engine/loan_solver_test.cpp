#include "amortix2/engine/loan_solver.h"

#include <gtest/gtest.h>

#include <cmath>

#include "amortix2/engine/rounding.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

TEST(LoanSolver, RateSearchEndsAndMeetsThePayment) {
  int mostTrials = 0;
  ForAll(Cases(20000, 100000), [&](Random& random) {
    const enumLoanType typ = random.OneIn(5) ? creditCard : random.OneIn(4) ? loanAsLease : simpleLoan;
    const auto months = static_cast<std::int32_t>(1 + random.Below(480));
    const double amount = RoundToCents(std::pow(10, 1 + 6 * random.Unit()));
    const double residual = typ == loanAsLease ? RoundToCents(amount * random.Unit() * 0.8) : 0;
    const auto prepays = static_cast<std::int32_t>(typ == loanAsLease ? random.Below(4) : 0) % months;
    const double payment = RoundToCents((amount - residual) / months * (0.9 + random.Unit()) + 0.01);
    const PaymentTerms terms{typ, months, prepays};
    RateFound found{};
    if (ErrorOf([&] { found = FindGrowth({terms, amount, payment, residual}); })) return;
    mostTrials = std::max(mostTrials, found.trials);
    if (found.trials == 0) return;
    const auto paymentAt = [&](double growth) {
      const PaymentFactors factors = LoanPaymentFactor(terms, growth);
      return (amount - residual / factors.finalGrowth) / factors.annuity;
    };
    // Met to the cent, or closed in as far as a cent of payment tells growths apart.
    ASSERT_NEAR(paymentAt(found.growth), payment, 0.0101)
        << typ << ' ' << amount << ' ' << payment << ' ' << months;
  });
  EXPECT_LT(mostTrials, 60);
  // Charges far above the amount: every step comes closer, by next to nothing.
  EXPECT_LE(FindGrowth({{simpleLoan, 45, 0}, -4e23, 3123941613041.4, 0}).trials, 5000);
}

}  // namespace
}  // namespace amortix2
