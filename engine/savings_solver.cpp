#include "amortix2/engine/savings_solver.h"

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
  double opening;
  double deposits;
};

SavingsFactors FactorsOf(const tSavingsDesc& save) {
  const double growth = SavingsPeriodFactor(save);
  const std::int32_t count = SavingsPeriods(save).periods;
  const double opening = Finite(Power(growth, count));
  return {opening, growth == 1 ? count : (opening - 1) / (growth - 1)};
}

double SolveNetDeposit(const tSavingsDesc& save) {
  const SavingsFactors factors = FactorsOf(save);
  return RoundToCents(Divide(save.endingBalance - save.startingBalance * factors.opening, factors.deposits));
}

double SolveOpeningBalance(const tSavingsDesc& save) {
  const SavingsFactors factors = FactorsOf(save);
  return RoundToCents(Divide(save.endingBalance - NetDeposit(save) * factors.deposits, factors.opening));
}

}  // namespace

double SavingsPeriodFactor(const tSavingsDesc& save) {
  const double rate = AfterTaxFraction(save) * save.intRate;
  if (CompoundingMode(save) != continuousMode) return Finite(LineGrowth(save, rate));
  return Finite(Exponential(rate / 100 / PeriodsPerYear(save.paymentMode)));
}

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
