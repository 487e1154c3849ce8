// The loan engine next to its limit: the rounding chain of 360 schedule lines, each of which waits for the
// one before.
//   BareChain          the limit
//   SolveWithSchedule  SolveLoan of 200000 at 6.5 % over 360 months, with dates, totals and present values
//   WholeCalculator    SimpleLoanCalculator with its table of 361 by 6 cells
//   RateSearch         FindGrowth of the same loan
//   PaymentGrid        181 by 181 cells, each a loan solved without a schedule

#include <benchmark/benchmark.h>

#include "amortix2/calculators/calculator.h"
#include "amortix2/engine/loan_solver.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {
namespace {

struct FixedClock : Clock {
  Date Today() const override { return MakeDate(2001, 1, 31); }
};

void BareChain(benchmark::State& state) {
  const double growth = 1 + 6.5 / 1200;
  for (auto _ : state) {
    double balance = 200000;
    for (int k = 0; k < 360; ++k) balance = RoundToCents(balance * growth) - 1264.14;
    benchmark::DoNotOptimize(balance);
  }
}
BENCHMARK(BareChain);

void SolveWithSchedule(benchmark::State& state) {
  for (auto _ : state) {
    tLoanDesc loan;
    loan.typ = simpleLoan;
    loan.startDate = MakeDate(2001, 1, 31);
    loan.startingBalance = 200000;
    loan.payment = UNKNOWNLOANVALUE;
    loan.intRate = 6.5;
    loan.period = 360;
    tCreditQualification qualification;
    SolveLoan(loan, qualification, true);
    benchmark::DoNotOptimize(loan.totPayments);
  }
}
BENCHMARK(SolveWithSchedule);

void WholeCalculator(benchmark::State& state) {
  const FixedClock clock;
  const Variant amount(200000), months(360), rate(6.5), none;
  Variant purchase, payment, period, intRate, totPay, totInt, table;
  for (auto _ : state) {
    Calculator(clock).SimpleLoanCalculator(none, amount, none, months, rate, purchase, payment, period,
                                           intRate, totPay, totInt, table);
    benchmark::DoNotOptimize(table);
  }
}
BENCHMARK(WholeCalculator);

void RateSearch(benchmark::State& state) {
  const RateTarget target{{simpleLoan, 360, 0}, 200000, 1264.14, 0};
  int trials = 0;
  for (auto _ : state) {
    const RateFound found = FindGrowth(target);
    trials = found.trials;
    benchmark::DoNotOptimize(found.growth);
  }
  state.counters["trials"] = trials;
}
BENCHMARK(RateSearch);

void PaymentGrid(benchmark::State& state) {
  const FixedClock clock;
  Variant price(200000), down(20000), rate(7), months(360), downStep(100), rateStep(0.05), stepsX(90),
      stepsY(90);
  Variant grid;
  for (auto _ : state) {
    Calculator(clock).PaymentGridCalculator(price, down, rate, months, downStep, rateStep, stepsX, stepsY,
                                            grid);
    benchmark::DoNotOptimize(grid);
  }
}
BENCHMARK(PaymentGrid)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace amortix2
