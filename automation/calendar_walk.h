#pragma once

// Steps through the calendar month by month without a division: schedules and their tables go through
// hundreds of dates in order.

#include <algorithm>

#include "amortix2/automation/date.h"
#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// One month of the calendar, which moves forward.
class CalendarMonth {
 public:
  /// The month that `date`, or the nearest valid day, lies in.
  explicit CalendarMonth(Date date) noexcept {
    date = std::clamp(date, kFirstDay, kLastDay);
    const CivilDate civil = ToCivil(date);
    year_ = civil.year;
    month_ = civil.month;
    first_ = date.serial - civil.day + 1;
    days_ = Length();
  }

  int Year() const noexcept { return year_; }
  int Month() const noexcept { return month_; }  ///< 1 to 12
  int Days() const noexcept { return days_; }    ///< 28 to 31
  /// The day number of the first of the month, which may lie past the last valid day.
  std::int32_t FirstSerial() const noexcept { return first_; }

  void Advance() noexcept {
    first_ += days_;
    if (++month_ > 12) {
      month_ = 1;
      ++year_;
    }
    days_ = Length();
  }

 private:
  int Length() const noexcept {
    if (month_ == 2) return year_ % 4 == 0 && (year_ % 100 != 0 || year_ % 400 == 0) ? 29 : 28;
    // Long and short months alternate, starting anew in August.
    return 30 + ((month_ + (month_ >> 3)) & 1);
  }

  int year_;
  int month_;
  int days_;
  std::int32_t first_;
};

/// Year, month and day, as ToCivil gives them, of dates that mostly come in order, at most a few months
/// apart.
class CivilWalk {
 public:
  explicit CivilWalk(Date start) noexcept : month_(start) {}

  CivilDate At(Date date) noexcept {
    constexpr std::int32_t kNear = 124;  // days; further off a division is quicker
    date = std::clamp(date, kFirstDay, kLastDay);
    const std::int32_t ahead = date.serial - month_.FirstSerial();
    if (ahead < 0 || ahead > kNear) month_ = CalendarMonth(date);
    while (date.serial - month_.FirstSerial() >= month_.Days()) month_.Advance();
    return {month_.Year(), month_.Month(), date.serial - month_.FirstSerial() + 1};
  }

 private:
  CalendarMonth month_;
};

}  // namespace amortix2
