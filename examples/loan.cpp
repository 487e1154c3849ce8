// The monthly payment of a loan, asked from C++.

#include <cstdio>

#include "amortix2/automation/array.h"
#include "amortix2/common/system_clock.h"
#include "amortix2/component/calculator.h"

using namespace amortix2;

int main() {
  const SystemClock clock;
  const Calculator calculator(clock);
  Variant amount, payment, period, rate, totalPayments, totalInterest, schedule;
  try {
    calculator.SimpleLoanCalculator("", 200000, 0, 360, 6.5, amount, payment, period, rate, totalPayments,
                                    totalInterest, schedule);
  } catch (const AutomationError& error) {
    std::fprintf(stderr, "%d %s\n", static_cast<int>(error.Number()), error.what());
    return 1;
  }
  std::printf("%.2f a month, %.2f interest in all\n", payment.GetDouble(), totalInterest.GetDouble());
  std::printf("after a year %.2f is owed\n", schedule.GetArray().At(12, 5).GetDouble());
}
