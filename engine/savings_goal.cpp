#include "amortix2/engine/savings_goal.h"

#include <cmath>
#include <limits>

#include "amortix2/engine/rounding.h"
#include "amortix2/engine/running_savings.h"

namespace amortix2 {
namespace {

SavingsGoal TakeOutInterest(const tSavingsDesc& save, double growth) {
  const double interest = RoundToCents(save.startingBalance * growth) - save.startingBalance;
  SavingsGoal found;
  (interest >= 0 ? found.withdrawal : found.deposit) = std::abs(interest);
  return found;
}

}  // namespace

SavingsGoal FindGoal(const tSavingsDesc& save) {
  constexpr double kLeastProgress = 0.0001;
  constexpr double kNearEnough = 0.49;
  const double growth = LineGrowth(save, save.intRate);
  const Amount deposit(NetDeposit(save));
  const double goal = save.endingBalance;
  Amount balance(save.startingBalance);
  const double missingAtFirst = std::abs(goal - balance.value);
  for (std::int16_t lines = 1;; ++lines) {
    balance = RoundToCents(balance * growth) + deposit;
    if (lines == 1 && (IsUnknown(goal) || std::abs(goal - balance.value) > missingAtFirst - kLeastProgress)) {
      return TakeOutInterest(save, growth);
    }
    const double missing = deposit.value < 0 ? balance.value - goal : goal - balance.value;
    if (missing <= kNearEnough) return {lines, goal, save.deposit, save.withdrawal};
    if (lines == std::numeric_limits<std::int16_t>::max()) Raise(ErrorNumber::Overflow);
  }
}

}  // namespace amortix2
