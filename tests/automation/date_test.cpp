#include "amortix2/automation/date.h"

#include <gtest/gtest.h>

#include <array>

#include "amortix2/automation/calendar_walk.h"
#include "amortix2/automation/conversion.h"
#include "support.h"

namespace amortix2 {
namespace {

bool IsLeap(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int DaysInMonth(int year, int month) {
  constexpr std::array kDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeap(year) ? 29 : kDays[static_cast<std::size_t>(month - 1)];
}

// A calendar that only counts walks beside the one under test, over all valid days.
TEST(Dates, EveryDayFollowsTheOneBefore) {
  CivilDate expected{100, 1, 1};
  int weekday = 5;  // a Friday
  const int every = Cases(13, 1);
  std::int32_t serial = kFirstDay.serial;
  for (; serial <= kLastDay.serial; ++serial) {
    const Date date{serial};
    ASSERT_EQ(ToCivil(date), expected) << serial;
    ASSERT_EQ(MakeDate(expected.year, expected.month, expected.day), date);
    ASSERT_EQ(DayOfWeek(date), weekday) << serial;
    if (serial % every == 0) {
      const DateText text = serial % 2 == 0 ? FormatIso(date) : FormatMonthDayYear(date);
      ASSERT_EQ(ParseDate(View(text)), date) << serial;
    }
    weekday = (weekday + 1) % 7;
    if (++expected.day <= DaysInMonth(expected.year, expected.month)) continue;
    // The day behind the month's last is the next month's first, and day 0 is the last of the month before.
    if (serial < kLastDay.serial) {
      ASSERT_EQ(MakeDate(expected.year, expected.month, expected.day).serial, serial + 1);
      ASSERT_EQ(MakeDate(expected.year, expected.month + 1, 0), date);
      ASSERT_EQ(MakeDate(expected.year - 1, expected.month + 13, 0), date);
    }
    expected.day = 1;
    if (++expected.month > 12) expected = {expected.year + 1, 1, 1};
  }
  EXPECT_EQ(serial - kFirstDay.serial, 3'615'900);
  EXPECT_EQ(expected.year, 10'000);
}

TEST(Dates, FixedPoints) {
  EXPECT_EQ(MakeDate(1899, 12, 30).serial, 0);
  EXPECT_EQ(MakeDate(1970, 1, 1).serial, 25569);
  EXPECT_EQ(View(FormatMonthDayYear(Date{36922})), "01-31-2001");
  EXPECT_EQ(View(FormatIso(kFirstDay)), "0100-01-01");
  for (const std::int32_t beyond : {kLastDay.serial + 1, INT32_MAX}) {
    EXPECT_EQ(ToCivil(Date{beyond}), ToCivil(kLastDay));
    EXPECT_EQ(CivilWalk(kFirstDay).At(Date{beyond}), ToCivil(kLastDay));
    EXPECT_EQ(CivilWalk(Date{beyond}).At(Date{INT32_MIN}), ToCivil(kFirstDay));
  }
  EXPECT_EQ(View(FormatMonthDayYear(CivilDate{-1, 120, 31})).size(), 10u);  // what it reads is its own
}

TEST(Dates, PartsRollOver) {
  EXPECT_EQ(MakeDate(2001, 2, 29), MakeDate(2001, 3, 1));
  EXPECT_EQ(MakeDate(2001, 13, 1), MakeDate(2002, 1, 1));
  EXPECT_EQ(MakeDate(2001, 0, 1), MakeDate(2000, 12, 1));
  EXPECT_EQ(MakeDate(2001, -12, 1), MakeDate(1999, 12, 1));
  EXPECT_EQ(MakeDate(2001, 1, -365), MakeDate(2000, 1, 1));
  EXPECT_EQ(MakeDate(0, 1201, 1), kFirstDay);
  EXPECT_EQ(MakeDate(10'000, 1, 0), kLastDay);
  EXPECT_EQ(MakeDate(-5'000, 1, 3'500'000), MakeDate(4582, 9, 3));
}

TEST(Dates, NothingLiesOutsideTheCalendar) {
  constexpr std::int64_t kHuge = INT64_MAX;
  const std::initializer_list<std::array<std::int64_t, 3>> outside{
      {99, 12, 31},  {10'000, 1, 1}, {9999, 12, 32},           {100, 1, 0},      {kHuge, 1, 1},
      {1, kHuge, 1}, {1, 1, kHuge},  {-kHuge, -kHuge, -kHuge}, {2001, -kHuge, 1}};
  for (const auto& d : outside) {
    EXPECT_EQ(ErrorOf([&] { MakeDate(d[0], d[1], d[2]); }), ErrorNumber::InvalidProcedureCall) << d[0];
  }
  EXPECT_EQ(AddDays(kFirstDay, 3'615'899), kLastDay);
  for (const std::int64_t days : {std::int64_t{3'615'900}, std::int64_t{-1}, kHuge, -kHuge}) {
    EXPECT_EQ(ErrorOf([&] { AddDays(kFirstDay, days); }), ErrorNumber::InvalidProcedureCall) << days;
  }
}

}  // namespace
}  // namespace amortix2
