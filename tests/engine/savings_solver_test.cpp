#include "amortix2/engine/savings_solver.h"

#include <gtest/gtest.h>

#include <cmath>

#include "amortix2/engine/amortix.h"
#include "amortix2/engine/savings_rate.h"
#include "amortix2/engine/savings_schedule.h"
#include "automation/raises.h"
#include "engine/random_savings.h"

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
  const Row rows[] = {
      {Plan(monthlyMode, 10, 0, kUnknown, 6, 16387.98), &tSavingsDesc::deposit, 100, 16387.98},
      {Plan(monthlyMode, 10, kUnknown, 100, 6, 20000), &tSavingsDesc::startingBalance, 1985.31, 19999.97},
      {taxed, &tSavingsDesc::deposit, 66.14, 10000.29},
      {continuous, &tSavingsDesc::deposit, 60.97, 10002.61},
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

TEST(SavingsSolver, SolvedAmountsReachTheGoal) {
  RandomSavings random(2);
  for (int i = 0; i < 6000; ++i) {
    tSavingsDesc plan = random.Sensible();
    const double goal = plan.endingBalance;
    double tSavingsDesc::*const unknowns[] = {&tSavingsDesc::startingBalance, &tSavingsDesc::deposit,
                                              &tSavingsDesc::withdrawal};
    plan.*unknowns[i % 3] = kUnknown;
    Solve(plan);
    // Half a cent of each line and of the solved amount itself, grown to the end.
    const double growth = SavingsPeriodFactor(plan);
    const auto lines = static_cast<double>(plan.schedule.size());
    EXPECT_NEAR(plan.endingBalance, goal, 0.01 * lines * std::pow(growth, lines)) << i;
  }
}

TEST(SavingsSolver, SolvedRatesStandBetweenTheirNeighbours) {
  RandomSavings random(3);
  int solved = 0;
  for (int i = 0; i < 3000; ++i) {
    tSavingsDesc plan = random.Sensible();
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
    EXPECT_LE(balanceAt(plan.intRate - 0.001), goal + 0.01) << i;
    EXPECT_GE(balanceAt(plan.intRate + 0.001), goal - 0.01) << i;
  }
  EXPECT_GT(solved, 2500);
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
