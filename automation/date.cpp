#include "automation/date.h"

#include <chrono>

#include "automation/error.h"

namespace amortix2 {
namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr sys_days kDayZero = std::chrono::year{1899} / 12 / 30;

// Far beyond any valid date, and small enough for every product below to stay within 64 bits.
constexpr std::int64_t kLargestPart = 100'000'000;

bool IsSane(std::int64_t part) { return part >= -kLargestPart && part <= kLargestPart; }

Date Checked(std::int64_t serial) {
  if (serial < kFirstDay.serial || serial > kLastDay.serial) Raise(ErrorNumber::InvalidProcedureCall);
  return Date{static_cast<std::int32_t>(serial)};
}

char Digit(int value) { return static_cast<char>('0' + value % 10); }

}  // namespace

CivilDate ToCivil(Date date) noexcept {
  const std::chrono::year_month_day civil{kDayZero + days{date.serial}};
  return {static_cast<int>(civil.year()), static_cast<int>(static_cast<unsigned>(civil.month())),
          static_cast<int>(static_cast<unsigned>(civil.day()))};
}

Date MakeDate(std::int64_t year, std::int64_t month, std::int64_t day) {
  if (!IsSane(year) || !IsSane(month) || !IsSane(day)) Raise(ErrorNumber::InvalidProcedureCall);
  const std::int64_t months = year * 12 + month - 1;
  std::int64_t wholeYears = months / 12;
  if (months % 12 < 0) --wholeYears;
  const auto monthOfYear = static_cast<unsigned>(months - wholeYears * 12);  // 0 to 11
  // std::chrono::year holds 16 bits; a year beyond these bounds cannot come back into range by its days.
  constexpr std::int64_t kYearMargin = 30'000;
  if (wholeYears < -kYearMargin || wholeYears > kYearMargin) Raise(ErrorNumber::InvalidProcedureCall);
  const sys_days firstOfMonth =
      std::chrono::year{static_cast<int>(wholeYears)} / std::chrono::month{monthOfYear + 1} / 1;
  return Checked((firstOfMonth - kDayZero).count() + day - 1);
}

Date AddDays(Date date, std::int64_t days) {
  if (!IsSane(days)) Raise(ErrorNumber::InvalidProcedureCall);
  return Checked(date.serial + days);
}

int DayOfWeek(Date date) noexcept {
  constexpr int kSaturday = 6;  // the weekday of day 0
  const int sinceSaturday = date.serial % 7;
  return (sinceSaturday + kSaturday + 7) % 7;
}

DateText FormatMonthDayYear(Date date) noexcept {
  const CivilDate civil = ToCivil(date);
  return {Digit(civil.month / 10),  Digit(civil.month),      '-',
          Digit(civil.day / 10),    Digit(civil.day),        '-',
          Digit(civil.year / 1000), Digit(civil.year / 100), Digit(civil.year / 10),
          Digit(civil.year)};
}

DateText FormatIso(Date date) noexcept {
  const CivilDate civil = ToCivil(date);
  return {Digit(civil.year / 1000),
          Digit(civil.year / 100),
          Digit(civil.year / 10),
          Digit(civil.year),
          '-',
          Digit(civil.month / 10),
          Digit(civil.month),
          '-',
          Digit(civil.day / 10),
          Digit(civil.day)};
}

}  // namespace amortix2
