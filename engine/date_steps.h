#pragma once

// The dates of a schedule's lines, each a period after the one before.

#include <algorithm>

#include "amortix2/automation/calendar_walk.h"
#include "amortix2/automation/public.h"
#include "amortix2/engine/frequency.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// The dates 1, 2, 3, ... steps after a start, as StepDate gives them, without its divisions for steps of
/// days and months.
class DateSteps {
 public:
  /// Raises what the furthest date, `count` steps after the start, raises.
  DateSteps(Date start, const PeriodStep& step, std::int32_t count)
      : day_(ToCivil(start).day), step_(step), month_(start), last_(start) {
    StepDate(ToCivil(start), step, count);
  }

  Date Next() {
    for (int i = 0; i < step_.months; ++i) month_.Advance();
    if (step_.months != 0) return Date{month_.FirstSerial() + std::min(day_, month_.Days()) - 1};
    if (step_.days != 0) return last_ = Date{last_.serial + step_.days};
    return StepDate({month_.Year(), month_.Month(), day_}, PeriodStep(step_), ++years_);
  }

 private:
  int day_;
  PeriodStep step_;
  CalendarMonth month_;
  Date last_;
  std::int32_t years_ = 0;
};

}  // namespace amortix2
