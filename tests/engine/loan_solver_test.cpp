#include "amortix2/engine/loan_solver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "amortix2/engine/rounding.h"
#include "support.h"

namespace amortix2 {
namespace {

TEST(LoanSolver, RateSearchEndsAndMeetsThePayment) {
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> unit(0, 1);
  int mostTrials = 0;
  for (int i = 0; i < 100000; ++i) {
    const enumLoanType typ = i % 5 == 0 ? creditCard : i % 5 == 1 ? loanAsLease : simpleLoan;
    const auto months = static_cast<std::int32_t>(1 + random() % 480);
    const double amount = RoundToCents(std::pow(10, 1 + 6 * unit(random)));
    const double residual = typ == loanAsLease ? RoundToCents(amount * unit(random) * 0.8) : 0;
    const auto prepays = static_cast<std::int32_t>(typ == loanAsLease ? random() % 4 : 0) % months;
    const double payment = RoundToCents((amount - residual) / months * (0.9 + unit(random)) + 0.01);
    const PaymentTerms terms{typ, months, prepays};
    RateFound found{};
    if (ErrorOf([&] { found = FindGrowth({terms, amount, payment, residual}); })) continue;
    mostTrials = std::max(mostTrials, found.trials);
    if (found.trials == 0) continue;
    const auto paymentAt = [&](double growth) {
      const PaymentFactors factors = LoanPaymentFactor(terms, growth);
      return (amount - residual / factors.finalGrowth) / factors.annuity;
    };
    // Met to the cent, or closed in as far as a cent of payment tells growths apart.
    ASSERT_NEAR(paymentAt(found.growth), payment, 0.0101)
        << typ << ' ' << amount << ' ' << payment << ' ' << months;
  }
  EXPECT_LT(mostTrials, 60);
  // Charges far above the amount: every step comes closer, by next to nothing.
  EXPECT_LE(FindGrowth({{simpleLoan, 45, 0}, -4e23, 3123941613041.4, 0}).trials, 5000);
}

}  // namespace
}  // namespace amortix2
