#include "amortix2/engine/frequency.h"

#include "amortix2/automation/checked.h"
#include "amortix2/engine/elementary.h"

namespace amortix2 {
namespace {

// Sundays that have begun since before the calendar: two dates of one week give the same number.
std::int32_t WeekNumber(Date date) {
  const std::int32_t sunday = date.serial - DayOfWeek(date);
  return (sunday - kFirstDay.serial + 7) / 7;
}

std::int32_t YearsBetween(const CivilDate& first, const CivilDate& second) {
  return second.year - first.year;
}

std::int32_t MonthsBetween(const CivilDate& first, const CivilDate& second) {
  return YearsBetween(first, second) * 12 + second.month - first.month;
}

// The target month's length, taken from its position in the year; February's from the calendar itself.
Date ClampToMonth(std::int16_t year, std::int16_t month, std::int16_t day) {
  const int position = ((month - 1) % 12 + 12) % 12;  // 0 for January
  switch (position) {
    case 1: {
      const int limited = day > 29 ? 29 : day;
      const Date date = MakeDate(year, month, limited);
      return limited == 29 && ToCivil(date).month == 3 ? MakeDate(year, month, 28) : date;
    }
    case 3:
    case 5:
    case 8:
    case 10:
      return MakeDate(year, month, day > 30 ? 30 : day);
    default:
      return MakeDate(year, month, day);
  }
}

}  // namespace

double PeriodsPerYear(enumFrequencyType frequency) {
  switch (frequency) {
    case dailymode:
      return 365;
    case weeklyMode:
      return 52;
    case biweeklyMode:
      return 26;
    case monthlyMode:
      return 12;
    case bimonthlyMode:
      return 6;
    case quarterlyMode:
      return 4;
    case semiannualMode:
      return 2;
    default:
      return 1;
  }
}

PeriodStep StepOf(enumFrequencyType frequency) {
  switch (frequency) {
    case dailymode:
      return {.days = 1};
    case weeklyMode:
      return {.days = 7};
    case biweeklyMode:
      return {.days = 14};
    case monthlyMode:
    case exactDaysMode:
    case continuousMode:
      return {.months = 1};
    case bimonthlyMode:
      return {.months = 2};
    case quarterlyMode:
      return {.months = 3};
    case semiannualMode:
      return {.months = 6};
    default:
      return {.years = 1};
  }
}

Date StepDate(const CivilDate& start, const PeriodStep& step, std::int32_t count) {
  return MakeClampedDate(Narrow<std::int16_t>(start.year), Narrow<std::int16_t>(start.month),
                         Narrow<std::int16_t>(start.day),
                         Narrow<std::int16_t>(std::int64_t{step.years} * count),
                         Narrow<std::int16_t>(std::int64_t{step.months} * count),
                         Narrow<std::int16_t>(std::int64_t{step.days} * count));
}

Date AdvanceDate(Date date, enumFrequencyType frequency, std::int32_t count) {
  return StepDate(ToCivil(date), StepOf(frequency), count);
}

std::int32_t PeriodsBetween(Date first, enumFrequencyType frequency, Date second) {
  const PeriodStep step = StepOf(frequency);
  if (step.days == 1) return second.serial - first.serial;
  if (step.days != 0) return (WeekNumber(second) - WeekNumber(first)) / (step.days / 7);
  const CivilDate a = ToCivil(first);
  const CivilDate b = ToCivil(second);
  return step.months != 0 ? MonthsBetween(a, b) / step.months : YearsBetween(a, b);
}

WholePeriods CountWholePeriods(Date start, enumFrequencyType frequency, Date end) {
  if (start == end) return {};
  std::int32_t next = PeriodsBetween(start, frequency, end) - 2;
  if (next < 1) next = 1;
  Date last;  // stays day 0 when no step fits
  for (;;) {
    const Date date = AdvanceDate(start, frequency, next);
    if (date <= end) {
      last = date;
      ++next;
    }
    if (date >= end) break;
  }
  return {next - 1, end.serial - last.serial};
}

Date MakeClampedDate(std::int16_t year, std::int16_t month, std::int16_t day, std::int16_t addYears,
                     std::int16_t addMonths, std::int16_t addDays) {
  const auto targetYear = Narrow<std::int16_t>(year + addYears);
  const auto targetMonth = Narrow<std::int16_t>(month + addMonths);
  const auto targetDay = Narrow<std::int16_t>(day + addDays);
  if (addMonths > 0) return ClampToMonth(targetYear, targetMonth, targetDay);
  return MakeDate(targetYear, targetMonth, targetDay);
}

std::array<double, 32> BuildDailyFactorTable(double annualRatePercent) {
  const double factor = Finite(Exponential(annualRatePercent / 100 / 365));
  std::array<double, 32> table{1};
  for (std::size_t day = 1; day < table.size(); ++day) table[day] = Finite(table[day - 1] * factor);
  return table;
}

}  // namespace amortix2
