#include "amortix2/engine/savings_solver.h"

#include <array>

#include "amortix2/engine/elementary.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/rounding.h"
#include "amortix2/engine/running_savings.h"
#include "amortix2/engine/savings_rate.h"
#include "amortix2/engine/savings_schedule.h"

namespace amortix2 {
namespace {

/// What the opening balance and deposits of 1 come to by the last whole period.
struct SavingsFactors {
  double opening = 1;
  double deposits = 0;
};

SavingsFactors CompoundFactors(double growth, std::int32_t count) {
  const double opening = Finite(Power(growth, count));
  return {opening, growth == 1 ? static_cast<double>(count) : (opening - 1) / (growth - 1)};
}

/// The opening balance alone earns interest.
SavingsFactors SimpleFactors(double interestOfOne, std::int32_t count) {
  return {1 + count * interestOfOne, static_cast<double>(count)};
}

/// The lines' own factors, of their real days.
SavingsFactors ContinuousFactors(const tSavingsDesc& save, double annualRate, std::int32_t count) {
  const std::array<double, 32> daily = BuildDailyFactorTable(annualRate);
  DateSteps dates = SavingsDates(save, count);
  SavingsFactors factors;
  Date previous = save.startDate;
  for (std::int32_t line = 1; line <= count; ++line) {
    const Date date = dates.Next();
    const double growth = GrowthOfDays(daily, date.serial - previous.serial);
    factors.opening *= growth;
    factors.deposits = factors.deposits * growth + 1;
    previous = date;
  }
  return {Finite(factors.opening), Finite(factors.deposits)};
}

/// The goal as it stands after the last whole period, and the factors that lead there.
struct SavingsTarget {
  double balance;
  SavingsFactors factors;
};

SavingsTarget TargetOf(const tSavingsDesc& save) {
  const double rate = AfterTaxFraction(save) * save.intRate;
  const WholePeriods span = SavingsPeriods(save);
  const double leftoverGrowth = span.periods >= 1 ? 1 + save.intRate * span.days / 36500 : 1;
  const double balance = Divide(save.endingBalance, leftoverGrowth);
  switch (CompoundingMode(save)) {
    case continuousMode:
      return {balance, ContinuousFactors(save, rate, span.periods)};
    case exactDaysMode:
      return {balance, SimpleFactors(rate / 100, span.periods)};
    default:
      return {balance, CompoundFactors(Finite(LineGrowth(save, rate)), span.periods)};
  }
}

double SolveNetDeposit(const tSavingsDesc& save) {
  const auto [balance, factors] = TargetOf(save);
  return RoundToCents(Divide(balance - save.startingBalance * factors.opening, factors.deposits));
}

double SolveOpeningBalance(const tSavingsDesc& save) {
  const auto [balance, factors] = TargetOf(save);
  return RoundToCents(Divide(balance - NetDeposit(save) * factors.deposits, factors.opening));
}

}  // namespace

void SolveSavings(tSavingsDesc& save, RecordArray<tGoalDesc>&, tCreditQualification&) {
  if (IsUnknown(save.intRate)) {
    save.intRate = RoundToMills(FindSavingsRate(save).annualPercent);
  } else if (IsUnknown(save.startingBalance)) {
    save.startingBalance = SolveOpeningBalance(save);
  } else if (IsUnknown(save.deposit)) {
    save.deposit = SolveNetDeposit(save) + save.withdrawal;
  } else if (IsUnknown(save.withdrawal)) {
    save.withdrawal = save.deposit - SolveNetDeposit(save);
  }
  BuildSavingsSchedule(save);
}

}  // namespace amortix2
