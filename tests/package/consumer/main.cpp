// A loan, a chart written to a file, and an error that comes out of the library: what crosses its border.

#include <cstdio>
#include <cstring>

#include "amortix2/automation/error.h"
#include "amortix2/calculators/loans.h"
#include "amortix2/charts/svg_chart.h"

using namespace amortix2;

int main() {
  const LoanAnswer loan = Solve(LoanQuestion{.amount = 200000, .months = 360, .annualPercent = 6.5});
  try {
    Solve(LoanQuestion{.amount = 200000, .months = 0, .annualPercent = 6.5});
    return 1;
  } catch (const AutomationError& error) {
    if (error.Number() != ErrorNumber::DivisionByZero || std::strlen(error.what()) == 0) return 2;
  }
  SvgChart chart;
  chart.SetGraphDimensions(200, 300);
  std::printf("%.2f\n", loan.payment);
}
