// The loan engine next to its limit: the rounding chain of 360 schedule lines, each of which waits for the
// one before.
//   BareChain          the limit
//   SolveWithSchedule  SolveLoan of 200000 at 6.5 % over 360 months, with dates, totals and present values
//   SolveAndDiscount   the same where money grows: a division a line
//   FindTerm           the term of the same loan
//   WholeCalculator    SimpleLoanCalculator with its table of 361 by 6 cells, from numbers and from texts
//   HandWrittenPage    the same table as one page's author might write it, from texts
//   RateSearch         FindGrowth of the same loan
//   PaymentGrid        181 by 181 cells, each a loan solved without a schedule

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "amortix2/calculators/calculator.h"
#include "amortix2/engine/loan_schedule.h"
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

void Schedule(benchmark::State& state, double moneyGrowth) {
  for (auto _ : state) {
    tLoanDesc loan;
    loan.typ = simpleLoan;
    loan.startDate = MakeDate(2001, 1, 31);
    loan.startingBalance = 200000;
    loan.payment = UNKNOWNLOANVALUE;
    loan.intRate = 6.5;
    loan.period = 360;
    tCreditQualification qualification;
    qualification.investmentGrowthRate = moneyGrowth;
    SolveLoan(loan, qualification, true);
    benchmark::DoNotOptimize(loan.totPayments);
  }
}
void SolveWithSchedule(benchmark::State& state) { Schedule(state, 0); }
void SolveAndDiscount(benchmark::State& state) { Schedule(state, 5); }
BENCHMARK(SolveWithSchedule);
BENCHMARK(SolveAndDiscount);

void FindTerm(benchmark::State& state) {
  tLoanDesc loan;
  loan.startingBalance = 200000;
  loan.payment = 1264.14;
  loan.intRate = 6.5;
  for (auto _ : state) {
    benchmark::DoNotOptimize(loan);
    benchmark::DoNotOptimize(amortix2::FindTerm(loan).payments);
  }
}
BENCHMARK(FindTerm);

void WholeCalculator(benchmark::State& state, const Variant& amount, const Variant& months,
                     const Variant& rate) {
  const FixedClock clock;
  const Variant none;
  Variant purchase, payment, period, intRate, totPay, totInt, table;
  for (auto _ : state) {
    Calculator(clock).SimpleLoanCalculator(none, amount, none, months, rate, purchase, payment, period,
                                           intRate, totPay, totInt, table);
    benchmark::DoNotOptimize(table);
  }
}
BENCHMARK_CAPTURE(WholeCalculator, numbers, 200000, 360, 6.5);
BENCHMARK_CAPTURE(WholeCalculator, texts, "200000", "360", "6.5");

struct HandWrittenRow {
  char date[11];
  double payment, principal, interest, balance;
};

/// What the author of one page would write for this one loan: doubles, std::round, no checks.
std::vector<HandWrittenRow> HandWrittenTable(const char* amountText, const char* monthsText,
                                             const char* rateText) {
  double balance = std::strtod(amountText, nullptr);
  const int months = std::atoi(monthsText);
  const double monthlyRate = std::strtod(rateText, nullptr) / 1200;
  const double payment =
      std::round(balance * monthlyRate / (1 - std::pow(1 + monthlyRate, -months)) * 100) / 100;
  std::vector<HandWrittenRow> rows;
  rows.reserve(static_cast<std::size_t>(months));
  for (int k = 1; k <= months; ++k) {
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const int year = 2001 + k / 12;
    const int month = k % 12;
    const int day = month == 1 && year % 4 == 0 ? 29 : kDays[month];
    HandWrittenRow& row = rows.emplace_back();
    const int parts[] = {month + 1, day, year / 100, year % 100};
    for (int part = 0; part < 4; ++part) {
      char* const digits = row.date + std::min(part * 3, 6 + (part - 2) * 2);
      digits[0] = static_cast<char>('0' + parts[part] / 10);
      digits[1] = static_cast<char>('0' + parts[part] % 10);
    }
    row.date[2] = row.date[5] = '-';
    row.date[10] = '\0';
    row.interest = std::round(balance * monthlyRate * 100) / 100;
    row.payment = payment;
    row.principal = payment - row.interest;
    row.balance = balance -= row.principal;
  }
  return rows;
}

void HandWrittenPage(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(HandWrittenTable("200000", "360", "6.5"));
}
BENCHMARK(HandWrittenPage);

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
