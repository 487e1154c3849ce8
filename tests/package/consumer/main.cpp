// A loan, a chart and an error that comes out of the library: what crosses its border.

#include <cfenv>
#include <cstdio>
#include <cstring>

#include "amortix2/automation/error.h"
#include "amortix2/calculators/loans.h"
#include "amortix2/charts/svg_chart.h"

using namespace amortix2;

int main() {
  const LoanQuestion question{.amount = 200000, .months = 360, .annualPercent = 6.5};
  const LoanAnswer loan = Solve(question);
  try {
    Solve(LoanQuestion{.amount = 200000, .months = 0, .annualPercent = 6.5});
    return 1;
  } catch (const AutomationError& error) {
    if (error.Number() != ErrorNumber::DivisionByZero || std::strlen(error.what()) == 0) return 2;
  }
  std::fesetround(FE_UPWARD);  // which the library neither computes in nor loses
  const bool isTheSame = Solve(question).totalInterest == loan.totalInterest;
  if (!isTheSame || std::fegetround() != FE_UPWARD) return 3;
  std::fesetround(FE_TONEAREST);
  SvgChart chart;
  chart.SetGraphDimensions(200, 300);
  std::printf("%.2f\n", loan.payment);
}
