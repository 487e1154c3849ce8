#include <gtest/gtest.h>

#include <cmath>

#include "amortix2/engine/savings_rate.h"
#include "amortix2/engine/savings_schedule.h"
#include "amortix2/engine/savings_solver.h"
#include "engine/random_savings.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

void Solve(tSavingsDesc& plan) {
  RecordArray<tGoalDesc> goals;
  tCreditQualification qualification;
  SolveSavings(plan, goals, qualification);
}

constexpr double kUnknown = UNKNOWNLOANVALUE;

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
  int solved = 0;
  const int cases = Cases(2000, 20000);
  ForAll(cases, [&](Random& random) {
    tSavingsDesc plan = RandomSavings(random).OfEveryModeAndSpan();
    const double goal = plan.endingBalance;
    double tSavingsDesc::*const unknowns[] = {&tSavingsDesc::startingBalance, &tSavingsDesc::deposit,
                                              &tSavingsDesc::withdrawal};
    const std::int64_t unknown = random.Below(3);
    plan.*unknowns[unknown] = kUnknown;
    if (ErrorOf([&] { Solve(plan); }) || HasRunDry(plan)) return;
    ++solved;
    const Growths growths = GrowthsOf(plan);
    // Simple losses may turn what was opened with round.
    const double opening = std::abs(growths.opening);
    const double tolerance = 0.005 * ((unknown == 0 ? opening : growths.deposits) + growths.roundings);
    const double noise = 1e-12 * (std::abs(goal) + std::abs(plan.startingBalance) * opening +
                                  std::abs(plan.deposit - plan.withdrawal) * growths.deposits);
    ASSERT_NEAR(plan.endingBalance, goal, tolerance + noise)
        << plan.paymentMode << ' ' << plan.compoundingMode << ' ' << plan.intRate;
  });
  EXPECT_GT(solved, cases * 3 / 4);
}

TEST(SavingsSolver, SolvedRatesStandBetweenTheirNeighbours) {
  int solved = 0;
  const int cases = Cases(2000, 20000);
  ForAll(cases, [&](Random& random) {
    tSavingsDesc plan = RandomSavings(random).OfEveryModeAndSpan();
    const double goal = plan.endingBalance;
    plan.intRate = kUnknown;
    if (ErrorOf([&] { Solve(plan); }) || plan.intRate == 0) return;
    ++solved;
    const auto balanceAt = [&](double rate) {
      tSavingsDesc other = plan;
      other.intRate = rate;
      BuildSavingsSchedule(other);
      return other.endingBalance;
    };
    const double tolerance = 0.005 * GrowthsOf(plan).roundings + 1e-9;
    ASSERT_LE(balanceAt(plan.intRate - 0.0005), goal + tolerance);
    ASSERT_GE(balanceAt(plan.intRate + 0.0005), goal - tolerance);
  });
  EXPECT_GT(solved, cases / 2);
}

// Lines that compound as the search for the horizon does.
TEST(SavingsSolver, HorizonsEndAtTheirGoal) {
  int reached = 0;
  const int cases = Cases(2000, 20000);
  ForAll(cases, [&](Random& random) {
    tSavingsDesc plan = RandomSavings(random).OfEveryModeAndSpan();
    plan.taxRate = 0;
    const double deposit = plan.deposit - plan.withdrawal;
    const double sign = deposit < 0 ? -1 : 1;
    const enumFrequencyType mode = plan.compoundingMode == 0 ? plan.paymentMode : plan.compoundingMode;
    const bool isOtherwise = mode == exactDaysMode || mode == continuousMode || deposit == 0;
    if (isOtherwise || sign * plan.startingBalance > sign * plan.endingBalance) return;
    const double goal = plan.endingBalance;
    plan.endDate = AddDays(plan.startDate, -1);
    if (ErrorOf([&] { Solve(plan); }) || plan.deposit - plan.withdrawal != deposit) return;
    ++reached;
    const double missing = sign * (goal - plan.endingBalance);
    ASSERT_TRUE(missing >= 0 && missing <= 0.49 + 1e-9) << missing;
  });
  EXPECT_GT(reached, cases / 3);
}

TEST(SavingsSolver, EveryRateSearchEnds) {
  int most = 0;
  ForAll(Cases(1500, 20000), [&](Random& random) {
    const tSavingsDesc plan = RandomSavings(random).Wild();
    SavingsRate found;
    ErrorOf([&] { found = FindSavingsRate(plan); });
    EXPECT_TRUE(std::isfinite(found.annualPercent));
    most = std::max(most, found.rounds);
  });
  EXPECT_LE(most, 64 + 53 + 1024);  // secants, then bits of a double, then its exponents
}

TEST(SavingsSchedule, FailuresLeaveThePlan) {
  ForAll(Cases(2000, 20000), [](Random& random) {
    tSavingsDesc plan = RandomSavings(random).Wild();
    const tSavingsDesc before = plan;
    if (ErrorOf([&] { BuildSavingsSchedule(plan); })) {
      EXPECT_EQ(plan.endDate, before.endDate);
      EXPECT_EQ(plan.endingBalance, before.endingBalance);
      EXPECT_TRUE(plan.schedule.empty());
    } else {
      EXPECT_TRUE(std::isfinite(plan.endingBalance + plan.totIntCredited));
    }
  });
}

}  // namespace
}  // namespace amortix2
