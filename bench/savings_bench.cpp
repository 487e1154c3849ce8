// What a savings plan of 360 months costs, next to the least that its lines need:
//
//   BareLines     only the interest, the rounding and the deposit of each line
//   Schedule      the plan's schedule with dates and totals
//   WholeCalculator  SimpleSavingsCalculator as a page calls it, from variants to the table
//   RateSearch    the rate that reaches a goal, without its schedule
//   RandomPlans   100,000 rate searches, over plans as people make them and over plans of any kind; `most` is
//                 the largest number of rounds, `slowest` the seconds of the slowest

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

#include "amortix2/automation/error.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/engine/rounding.h"
#include "amortix2/engine/savings_rate.h"
#include "amortix2/engine/savings_schedule.h"
#include "engine/random_savings.h"

namespace amortix2 {
namespace {

constexpr int kLines = 360;

tSavingsDesc Plan() {
  tSavingsDesc plan;
  plan.startDate = MakeDate(2026, 1, 31);
  plan.endDate = MakeDate(2056, 1, 31);
  plan.paymentMode = monthlyMode;
  plan.startingBalance = 1000;
  plan.deposit = 100;
  plan.intRate = 6;
  plan.endingBalance = 100000;
  return plan;
}

void BareLines(benchmark::State& state) {
  for (auto _ : state) {
    double balance = 1000;
    benchmark::DoNotOptimize(balance);
    for (int i = 0; i < kLines; ++i) balance = RoundToCents(balance * 1.005) + 100;
    benchmark::DoNotOptimize(balance);
  }
}
BENCHMARK(BareLines);

void Schedule(benchmark::State& state) {
  tSavingsDesc plan = Plan();
  for (auto _ : state) {
    BuildSavingsSchedule(plan);
    benchmark::DoNotOptimize(plan.schedule.data());
  }
}
BENCHMARK(Schedule);

struct FixedClock : Clock {
  Date Today() const override { return MakeDate(2026, 1, 31); }
};

void WholeCalculator(benchmark::State& state) {
  const FixedClock clock;
  const Calculator calculator(clock);
  const Variant start = MakeDate(2026, 1, 31);
  for (auto _ : state) {
    Variant balance, deposit, endingBalance, endDate, rate, detail;
    calculator.SimpleSavingsCalculator(start, 1000, 100, monthlyMode, 0, kLines, 6, 0, balance, deposit,
                                       endingBalance, endDate, rate, detail);
    benchmark::DoNotOptimize(detail);
  }
}
BENCHMARK(WholeCalculator);

void RateSearch(benchmark::State& state) {
  const tSavingsDesc plan = Plan();
  SavingsRate found;
  for (auto _ : state) benchmark::DoNotOptimize(found = FindSavingsRate(plan));
  state.counters["rounds"] = found.rounds;
}
BENCHMARK(RateSearch);

void RandomPlans(benchmark::State& state, tSavingsDesc (RandomSavings::*make)()) {
  using Clock = std::chrono::steady_clock;
  int most = 0;
  double slowest = 0;
  for (auto _ : state) {
    SeededRandom source(5);
    RandomSavings random(source);
    for (int i = 0; i < 100000; ++i) {
      const tSavingsDesc plan = (random.*make)();
      const Clock::time_point begin = Clock::now();
      try {
        most = std::max(most, FindSavingsRate(plan).rounds);
      } catch (const AutomationError&) {  // no first guess
      }
      slowest = std::max(slowest, std::chrono::duration<double>(Clock::now() - begin).count());
    }
  }
  state.counters["most"] = most;
  state.counters["slowest"] = slowest;
}
BENCHMARK_CAPTURE(RandomPlans, sensible, &RandomSavings::Sensible)->Iterations(1)->Unit(benchmark::kSecond);
BENCHMARK_CAPTURE(RandomPlans, wild, &RandomSavings::Wild)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
}  // namespace amortix2
