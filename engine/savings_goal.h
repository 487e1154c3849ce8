#pragma once

// How long a plan takes to its goal. It counts lines only; schedules are made by savings_schedule.h.

#include <cstdint>
#include <optional>

#include "amortix2/engine/records.h"

namespace amortix2 {

struct SavingsGoal {
  std::int16_t lines = 1;
  std::optional<double> goal;  ///< none when it cannot be reached: the plan then takes out its interest
  double deposit = 0;
  double withdrawal = 0;
};

/// Runs the balance, before tax, until at most 0.49 is missing to the goal, `endingBalance`. A goal that the
/// first period does not bring nearer by 0.0001, and a goal of UNKNOWNLOANVALUE, cannot be reached: one line,
/// and net deposits that take out (or make up for) exactly one period's interest. Raises Overflow past 32767
/// lines.
SavingsGoal FindGoal(const tSavingsDesc& save);

}  // namespace amortix2
