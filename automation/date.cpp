#include "amortix2/automation/date.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <cstring>

#include "amortix2/automation/error.h"

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

// Texts are put together in registers, first character lowest: bytes that are stored one by one and then read
// as a word would cost more than all the arithmetic.
static_assert(std::endian::native == std::endian::little);

/// The two digits of 0 to 99 as characters, the tens lowest. 128 of them, so that no index needs a division.
constexpr std::array<std::uint16_t, 128> kTwoDigits = [] {
  std::array<std::uint16_t, 128> digits{};
  for (std::size_t i = 0; i < digits.size(); ++i) {
    digits[i] = static_cast<std::uint16_t>(('0' + i / 10) | ('0' + i % 10) << 8);
  }
  return digits;
}();

std::uint64_t DigitsOf(int value) { return kTwoDigits[static_cast<unsigned>(value) % kTwoDigits.size()]; }

DateText Text(std::uint64_t firstEight, std::uint64_t lastTwo) {
  DateText text;
  std::memcpy(text.data(), &firstEight, 8);
  std::memcpy(text.data() + 8, &lastTwo, 2);
  return text;
}

}  // namespace

CivilDate ToCivil(Date date) noexcept {
  const Date valid = std::clamp(date, kFirstDay, kLastDay);
  const std::chrono::year_month_day civil{kDayZero + days{valid.serial}};
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

Date::Date(const std::chrono::year_month_day& day) {
  if (!day.ok()) Raise(ErrorNumber::InvalidProcedureCall);
  *this = Checked((sys_days(day) - kDayZero).count());
}

Date::operator std::chrono::year_month_day() const noexcept { return kDayZero + days(serial); }

Date AddDays(Date date, std::int64_t days) {
  if (!IsSane(days)) Raise(ErrorNumber::InvalidProcedureCall);
  return Checked(date.serial + days);
}

int DayOfWeek(Date date) noexcept {
  constexpr int kSaturday = 6;  // the weekday of day 0
  const int sinceSaturday = date.serial % 7;
  return (sinceSaturday + kSaturday + 7) % 7;
}

DateText FormatMonthDayYear(const CivilDate& civil) noexcept {
  constexpr std::uint64_t kHyphens = std::uint64_t{'-'} << 16 | std::uint64_t{'-'} << 40;
  return Text(DigitsOf(civil.month) | DigitsOf(civil.day) << 24 | DigitsOf(civil.year / 100) << 48 | kHyphens,
              DigitsOf(civil.year % 100));
}

DateText FormatMonthDayYear(Date date) noexcept { return FormatMonthDayYear(ToCivil(date)); }

DateText FormatIso(Date date) noexcept {
  constexpr std::uint64_t kHyphens = std::uint64_t{'-'} << 32 | std::uint64_t{'-'} << 56;
  const CivilDate civil = ToCivil(date);
  return Text(
      DigitsOf(civil.year / 100) | DigitsOf(civil.year % 100) << 16 | DigitsOf(civil.month) << 40 | kHyphens,
      DigitsOf(civil.day));
}

}  // namespace amortix2
