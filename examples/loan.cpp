// The monthly payment of a loan, asked from C++.

#include <cstdio>

#include "amortix2/automation/error.h"
#include "amortix2/calculators/loans.h"

using namespace amortix2;

int main() {
  try {
    const LoanAnswer loan = Solve(LoanQuestion{.amount = 200000, .months = 360, .annualPercent = 6.5});
    std::printf("%.2f a month, %.2f interest in all\n", loan.payment, loan.totalInterest);
    std::printf("after a year %.2f is owed\n", loan.schedule[12].endingBalance);
  } catch (const AutomationError& error) {
    std::fprintf(stderr, "%d %s\n", static_cast<int>(error.Number()), error.what());
    return 1;
  }
}
