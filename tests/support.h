#pragma once

// What tests of every layer use: a fixed day, how far a sweep goes, and which error an action raises.

#include <cstdlib>
#include <optional>

#include "amortix2/automation/date.h"
#include "amortix2/automation/error.h"

namespace amortix2 {

inline const Date kToday = MakeDate(2001, 1, 31);
inline const FixedClock kClock(kToday);

/// How many cases a sweep runs: a sample, or the whole where AMORTIX2_ALL is set (`./dev test --all`).
inline int Cases(int sample, int whole) { return std::getenv("AMORTIX2_ALL") ? whole : sample; }

/// The error that an action raises; nothing when it goes well.
template <class Action>
std::optional<ErrorNumber> ErrorOf(Action action) {
  try {
    action();
  } catch (const AutomationError& error) {
    return error.Number();
  }
  return std::nullopt;
}

}  // namespace amortix2
