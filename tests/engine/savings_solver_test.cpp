#include "amortix2/engine/savings_solver.h"

#include <gtest/gtest.h>

#include <cmath>

#include "amortix2/engine/amortix.h"
#include "amortix2/engine/savings_rate.h"
#include "amortix2/engine/savings_schedule.h"
#include "automation/raises.h"
#include "engine/random_savings.h"
#include "sweep.h"

namespace amortix2 {
namespace {

void Solve(tSavingsDesc& plan) {
  RecordArray<tGoalDesc> goals;
  tCreditQualification qualification;
  SolveSavings(plan, goals, qualification);
}

tSavingsDesc Plan(enumFrequencyType mode, int years, double balance, double deposit, double rate,
                  double goal) {
  tSavingsDesc plan;
  plan.startDate = MakeDate(2026, 1, 1);
  plan.endDate = MakeDate(2026 + years, 1, 1);
  plan.paymentMode = mode;
  plan.startingBalance = balance;
  plan.deposit = deposit;
  plan.intRate = rate;
  plan.endingBalance = goal;
  return plan;
}

constexpr double kUnknown = UNKNOWNLOANVALUE;

// Figures computed independently.
TEST(SavingsSolver, FindsEachQuantity) {
  struct Row {
    tSavingsDesc plan;
    double tSavingsDesc::*unknown;
    double found, endingBalance;
  };
  tSavingsDesc spending = Plan(monthlyMode, 10, 100000, 0, 6, 0);
  spending.withdrawal = kUnknown;
  tSavingsDesc spendingRate = Plan(monthlyMode, 10, 100000, 0, kUnknown, 0);
  spendingRate.withdrawal = 1000;
  tSavingsDesc taxed = Plan(monthlyMode, 10, 0, kUnknown, 6, 10000);
  taxed.taxRate = 25;
  tSavingsDesc continuous = Plan(monthlyMode, 10, 0, kUnknown, 6, 10000);
  continuous.compoundingMode = continuousMode;
  tSavingsDesc leftover = Plan(annualMode, 2, kUnknown, 0, 6, 10000);
  leftover.startDate = MakeDate(2026, 1, 15);
  leftover.endDate = MakeDate(2027, 12, 15);
  tSavingsDesc once = Plan(continuousMode, 0, 0, 100, kUnknown, 1500);
  once.endDate = MakeDate(2026, 2, 1);
  const Row rows[] = {
      {Plan(monthlyMode, 10, 0, kUnknown, 6, 16387.98), &tSavingsDesc::deposit, 100, 16387.98},
      {Plan(monthlyMode, 10, kUnknown, 100, 6, 20000), &tSavingsDesc::startingBalance, 1985.31, 19999.97},
      {taxed, &tSavingsDesc::deposit, 66.14, 10000.29},
      {continuous, &tSavingsDesc::deposit, 60.95, 9999.38},
      {leftover, &tSavingsDesc::startingBalance, 8942.96, 10000.01},
      {Plan(exactDaysMode, 5, 1000, kUnknown, 6, 2000), &tSavingsDesc::deposit, -43.33, 2000.20},
      {spending, &tSavingsDesc::withdrawal, 1110.21, 0},
      {Plan(monthlyMode, 10, 0, 100, kUnknown, 16387.98), &tSavingsDesc::intRate, 6, 16387.98},
      {Plan(annualMode, 5, 1000, 0, kUnknown, 2000), &tSavingsDesc::intRate, 14.87, 2000.01},
      {Plan(monthlyMode, 5, 1000, 0, kUnknown, 2000), &tSavingsDesc::intRate, 13.944, 2000.03},
      {spendingRate, &tSavingsDesc::intRate, 3.737, 0},
      // Losses, no interest, more than even a total loss leaves, and a goal beyond any rate.
      {Plan(annualMode, 5, 1000, 0, kUnknown, 800), &tSavingsDesc::intRate, -4.365, 800},
      {Plan(annualMode, 2, 1000, 0, kUnknown, 250), &tSavingsDesc::intRate, -50, 250},
      {Plan(annualMode, 5, 1000, 100, kUnknown, 1200), &tSavingsDesc::intRate, -5.532, 1200.01},
      {Plan(annualMode, 5, 1000, 100, kUnknown, 1500), &tSavingsDesc::intRate, 0, 1500},
      {Plan(annualMode, 5, 1000, 100, kUnknown, 50), &tSavingsDesc::intRate, 0, 1500},
      {Plan(annualMode, 5, 0, -1, kUnknown, 50), &tSavingsDesc::intRate, 0, 0},
      // Nothing that could grow, and debts, which grow with the rate.
      {once, &tSavingsDesc::intRate, 0, 100},
      {Plan(annualMode, 5, -1000, 0, kUnknown, 1500), &tSavingsDesc::intRate, 0, -1000},
      {Plan(monthlyMode, 5, -1000, 100, kUnknown, 1000000), &tSavingsDesc::intRate, 0, 5000},
  };
  for (Row row : rows) {
    Solve(row.plan);
    EXPECT_NEAR(row.plan.*row.unknown, row.found, 1e-9);
    EXPECT_NEAR(row.plan.endingBalance, row.endingBalance, 1e-9) << row.found;
  }
}

TEST(SavingsSolver, RaisesWhereNothingDeterminesTheUnknown) {
  tSavingsDesc rows[] = {
      Plan(monthlyMode, 0, 0, kUnknown, 6, 100),        // no period to deposit in
      Plan(monthlyMode, 0, 10, 100, kUnknown, 1000),    // nor to grow in
      Plan(monthlyMode, 1, 0, 0, kUnknown, 1000),       // nothing to grow
      Plan(annualMode, 10, 1000, -100, kUnknown, 2000)  // deposits that take out all of the balance
  };
  for (tSavingsDesc& plan : rows) EXPECT_EQ(ErrorOf([&] { Solve(plan); }), ErrorNumber::DivisionByZero);
}

/// What a solved plan's schedule makes of 1 opened with, of deposits of 1, and of a rounding of 1 on each
/// line.
struct Growths {
  double opening = 1, deposits = 0, roundings = 0;
};

Growths GrowthsOf(const tSavingsDesc& plan) {
  const enumFrequencyType mode = plan.compoundingMode == 0 ? plan.paymentMode : plan.compoundingMode;
  const double rate = plan.intRate * (1 - plan.taxRate / 100) / 100;
  const auto regular = static_cast<std::size_t>(SavingsPeriods(plan).periods);
  Growths sums;
  for (std::size_t k = 1; k < plan.schedule.size(); ++k) {
    const int days = plan.schedule[k].lineDate.serial - plan.schedule[k - 1].lineDate.serial;
    const bool isSimple = mode == exactDaysMode && k <= regular;
    const double growth = k > regular              ? 1 + plan.intRate * days / 36500
                          : isSimple               ? 1
                          : mode == continuousMode ? std::exp(rate * days / 365)
                                                   : 1 + rate / PeriodsPerYear(mode);
    sums.opening = sums.opening * growth + (isSimple ? rate : 0);
    sums.deposits = sums.deposits * growth + (k > regular ? 0 : 1);
    sums.roundings = sums.roundings * growth + 1;
  }
  return sums;
}

bool HasRunDry(const tSavingsDesc& plan) {
  const auto regular = static_cast<std::size_t>(SavingsPeriods(plan).periods);
  return std::abs(plan.schedule[regular].payment - (plan.deposit - plan.withdrawal)) > 1e-9;
}

// Half a cent of what was solved, and half a cent of each line, grown to the end.
TEST(SavingsSolver, SolvedAmountsReachTheGoal) {
  RandomSavings random(2);
  int solved = 0;
  const int cases = Cases(4000, 20000);
  for (int i = 0; i < cases; ++i) {
    tSavingsDesc plan = random.OfEveryModeAndSpan();
    const double goal = plan.endingBalance;
    double tSavingsDesc::*const unknowns[] = {&tSavingsDesc::startingBalance, &tSavingsDesc::deposit,
                                              &tSavingsDesc::withdrawal};
    plan.*unknowns[i % 3] = kUnknown;
    if (ErrorOf([&] { Solve(plan); }) || HasRunDry(plan)) continue;
    ++solved;
    const Growths growths = GrowthsOf(plan);
    // Simple losses may turn what was opened with round.
    const double opening = std::abs(growths.opening);
    const double tolerance = 0.005 * ((i % 3 == 0 ? opening : growths.deposits) + growths.roundings);
    const double noise = 1e-12 * (std::abs(goal) + std::abs(plan.startingBalance) * opening +
                                  std::abs(plan.deposit - plan.withdrawal) * growths.deposits);
    ASSERT_NEAR(plan.endingBalance, goal, tolerance + noise)
        << i << ' ' << plan.paymentMode << ' ' << plan.compoundingMode << ' ' << plan.intRate;
  }
  EXPECT_GT(solved, cases * 3 / 4);
}

TEST(SavingsSolver, SolvedRatesStandBetweenTheirNeighbours) {
  RandomSavings random(3);
  int solved = 0;
  const int cases = Cases(2000, 20000);
  for (int i = 0; i < cases; ++i) {
    tSavingsDesc plan = random.OfEveryModeAndSpan();
    const double goal = plan.endingBalance;
    plan.intRate = kUnknown;
    if (ErrorOf([&] { Solve(plan); }) || plan.intRate == 0) continue;
    ++solved;
    const auto balanceAt = [&](double rate) {
      tSavingsDesc other = plan;
      other.intRate = rate;
      BuildSavingsSchedule(other);
      return other.endingBalance;
    };
    const double tolerance = 0.005 * GrowthsOf(plan).roundings + 1e-9;
    ASSERT_LE(balanceAt(plan.intRate - 0.0005), goal + tolerance) << i;
    ASSERT_GE(balanceAt(plan.intRate + 0.0005), goal - tolerance) << i;
  }
  EXPECT_GT(solved, cases / 2);
}

// Lines that compound as the search for the horizon does.
TEST(SavingsSolver, HorizonsEndAtTheirGoal) {
  RandomSavings random(5);
  int reached = 0;
  const int cases = Cases(4000, 20000);
  for (int i = 0; i < cases; ++i) {
    tSavingsDesc plan = random.OfEveryModeAndSpan();
    plan.taxRate = 0;
    const double deposit = plan.deposit - plan.withdrawal;
    const double sign = deposit < 0 ? -1 : 1;
    const enumFrequencyType mode = plan.compoundingMode == 0 ? plan.paymentMode : plan.compoundingMode;
    const bool isOtherwise = mode == exactDaysMode || mode == continuousMode || deposit == 0;
    if (isOtherwise || sign * plan.startingBalance > sign * plan.endingBalance) continue;
    const double goal = plan.endingBalance;
    plan.endDate = AddDays(plan.startDate, -1);
    if (ErrorOf([&] { Solve(plan); }) || plan.deposit - plan.withdrawal != deposit) continue;
    ++reached;
    const double missing = sign * (goal - plan.endingBalance);
    ASSERT_TRUE(missing >= 0 && missing <= 0.49 + 1e-9) << i << ' ' << missing;
  }
  EXPECT_GT(reached, cases / 3);
}

TEST(SavingsSolver, EveryRateSearchEnds) {
  RandomSavings random(4);
  int most = 0;
  for (int i = 0; i < 20000; ++i) {
    const tSavingsDesc plan = random.Wild();
    SavingsRate found;
    ErrorOf([&] { found = FindSavingsRate(plan); });
    EXPECT_TRUE(std::isfinite(found.annualPercent));
    most = std::max(most, found.rounds);
  }
  EXPECT_LE(most, 64 + 53 + 1024);  // secants, then bits of a double, then its exponents
}

TEST(SavingsSolver, GoalsAreAcceptedAndNotComputed) {
  RecordArray<tLoanDesc> loans;
  RecordArray<tSavingsDesc> plans(0, 1), none;
  RecordArray<tGoalDesc> goals;
  tCreditQualification qualification;
  plans.At(1) = Plan(monthlyMode, 10, 0, 100, 6, kUnknown);
  EXPECT_EQ(Amortix(SavingsGoalsCalculator, loans, plans, goals, qualification), 0);
  EXPECT_EQ(plans.At(1).endingBalance, kUnknown);
  EXPECT_EQ(ErrorOf([&] { Amortix(SavingsGoalsCalculator, loans, none, goals, qualification); }),
            ErrorNumber::SubscriptOutOfRange);
}

}  // namespace
}  // namespace amortix2
