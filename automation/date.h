#pragma once

// Whole calendar days, counted from 30 December 1899 (day 0) as automation counts them, from 1 January 100 to
// 31 December 9999. There is no time of day and no time zone. What day it is today comes from a Clock that
// the host hands in; nothing else here depends on the machine.

#include <array>
#include <chrono>
#include <compare>
#include <cstdint>
#include <string_view>

#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

struct Date {
  std::int32_t serial = 0;  ///< days since 30 December 1899, from kFirstDay to kLastDay

  constexpr Date() noexcept = default;
  constexpr explicit Date(std::int32_t days) noexcept : serial(days) {}
  /// The standard library's date. Raises InvalidProcedureCall for 31 April, and outside the valid days.
  Date(const std::chrono::year_month_day& day);
  explicit operator std::chrono::year_month_day() const noexcept;

  friend constexpr auto operator<=>(Date, Date) = default;  // NOLINT(modernize-use-nullptr): its own zero
};

inline constexpr Date kFirstDay{-657434};  ///< 1 January 100
inline constexpr Date kLastDay{2958465};   ///< 31 December 9999

struct CivilDate {
  int year;
  int month;  ///< 1 to 12
  int day;    ///< 1 to 31

  friend constexpr bool operator==(CivilDate, CivilDate) = default;
};

/// Year, month and day of a date; of the nearest valid one for a serial outside the valid days.
CivilDate ToCivil(Date date) noexcept;

/// The date of a year, month and day with the usual calendar roll-over: month 13 is January of the next year,
/// month 0 December of the year before, day 31 of a 30-day month the 1st of the next, day 0 the last of the
/// month before. Raises InvalidProcedureCall when the result lies outside the valid days.
Date MakeDate(std::int64_t year, std::int64_t month, std::int64_t day);

/// The date that lies `days` after `date`. Raises InvalidProcedureCall outside the valid days.
Date AddDays(Date date, std::int64_t days);

/// 0 for Sunday to 6 for Saturday.
int DayOfWeek(Date date) noexcept;

/// A date's text: ten characters, no terminator.
using DateText = std::array<char, 10>;
DateText FormatMonthDayYear(const CivilDate& civil) noexcept;  ///< "mm-dd-yyyy"
DateText FormatMonthDayYear(Date date) noexcept;
DateText FormatIso(Date date) noexcept;  ///< "yyyy-mm-dd"

inline std::string_view View(const DateText& text) noexcept { return {text.data(), text.size()}; }

/// Says what day it is today.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual Date Today() const = 0;
};

/// A clock that stands still.
class FixedClock final : public Clock {
 public:
  explicit FixedClock(Date today) noexcept : today_(today) {}
  Date Today() const override { return today_; }

 private:
  Date today_;
};

}  // namespace amortix2
