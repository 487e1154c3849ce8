#pragma once

// How the frequencies of payments and interest step through the calendar. Pure functions on whole days; a
// value outside enumFrequencyType counts as once a year.

#include <array>
#include <cstdint>

#include "amortix2/automation/date.h"
#include "amortix2/automation/public.h"
#include "amortix2/engine/records.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Periods a year: 365, 52, 26, 12, 6, 4, 2 for dailymode to semiannualMode, 1 for everything else (also for
/// exactDaysMode and continuousMode, although AdvanceDate steps those by a month).
double PeriodsPerYear(enumFrequencyType frequency);

/// The step of one period: exactly one of the three is not zero.
struct PeriodStep {
  int years = 0;
  int months = 0;
  int days = 0;
};

/// The step of AdvanceDate: 1 day, 7 or 14 days, 1, 2, 3 or 6 months, else a year; exactDaysMode and
/// continuousMode step a month.
PeriodStep StepOf(enumFrequencyType frequency);

/// The date `count` steps after `start`, on AdvanceDate's terms.
Date StepDate(const CivilDate& start, const PeriodStep& step, std::int32_t count);

/// The date `count` steps after `date` (before it when negative). Every date of a plan is stepped from its
/// start, so a plan that starts on the 31st returns to the 31st in long months. Raises Overflow when the
/// steps' days, months or years leave 16 bits, InvalidProcedureCall when the date leaves the calendar.
Date AdvanceDate(Date date, enumFrequencyType frequency, std::int32_t count);

/// Calendar intervals from `first` to `second`, negative backwards: the month, year or week (from Sunday)
/// boundaries crossed, or days, divided towards zero by the frequency's length in them.
std::int32_t PeriodsBetween(Date first, enumFrequencyType frequency, Date second);

struct WholePeriods {
  std::int32_t periods = 0;  ///< whole steps from the start that end on or before the end
  std::int32_t days = 0;     ///< days from the last such step's date to the end
};

/// Whole steps and leftover days between two dates. When not even one step fits (and the dates differ),
/// `periods` is 0 and `days` counts from day 0, 30 December 1899. Raises as AdvanceDate does.
WholePeriods CountWholePeriods(Date start, enumFrequencyType frequency, Date end);

/// The date of a year, month and day moved by years, months and days. With months to add the day is first cut
/// to the target month's length (30 April for the 31st, 28 or 29 February); otherwise the calendar rolls
/// over. Raises Overflow when a sum leaves 16 bits, InvalidProcedureCall when the date leaves the calendar.
Date MakeClampedDate(std::int16_t year, std::int16_t month, std::int16_t day, std::int16_t addYears,
                     std::int16_t addMonths, std::int16_t addDays);

/// Growth of one unit over 0 to 31 days at an annual rate in percent, compounded continuously, 365 days a
/// year. Raises Overflow.
std::array<double, 32> BuildDailyFactorTable(double annualRatePercent);

}  // namespace amortix2
