#pragma once

// The rate at which a savings plan reaches its goal. The goal, `endingBalance`, is met when the balance
// agrees with it to the cent.

#include "amortix2/engine/records.h"

namespace amortix2 {

struct SavingsRate {
  double annualPercent = 0;  ///< not rounded; 0 when no rate reaches the goal
  int rounds = 0;            ///< factors tried between the ends of the bracket
};

/// Searches the growth factors of one payment period, 1 + annual percent / (100 x payment periods a year).
/// The plan's rate is not read. A plan that grows past its goal without interest gets a negative rate, down
/// to factor 0; 0 where even that is too much, or where no rate is enough. The balance jumps from cent to
/// cent: where it meets the goal nowhere, the nearest side of the jump is taken. Raises DivisionByZero when
/// the plan has no first guess (no whole period, or deposits that add up to the opening balance's opposite),
/// Overflow.
SavingsRate FindSavingsRate(const tSavingsDesc& save);

}  // namespace amortix2
