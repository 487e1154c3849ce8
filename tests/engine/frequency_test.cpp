#include "amortix2/engine/frequency.h"

#include <gtest/gtest.h>

#include <cmath>

#include "amortix2/automation/error.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

constexpr enumFrequencyType kAllModes[] = {sameasother, dailymode,     weeklyMode,    biweeklyMode,
                                           monthlyMode, bimonthlyMode, quarterlyMode, semiannualMode,
                                           annualMode,  exactDaysMode, continuousMode};

TEST(Frequency, StepsThroughMonthEnds) {
  struct Row {
    CivilDate from;
    enumFrequencyType mode;
    int count;
    CivilDate to;
  };
  const Row rows[] = {
      {{2001, 1, 31}, monthlyMode, 1, {2001, 2, 28}},
      {{2000, 1, 31}, monthlyMode, 1, {2000, 2, 29}},
      {{1900, 1, 31}, monthlyMode, 1, {1900, 2, 28}},
      {{2001, 1, 31}, monthlyMode, 2, {2001, 3, 31}},
      {{2001, 3, 31}, monthlyMode, 1, {2001, 4, 30}},
      {{2001, 10, 31}, monthlyMode, 4, {2002, 2, 28}},
      {{2001, 8, 31}, quarterlyMode, 1, {2001, 11, 30}},
      {{2001, 8, 30}, quarterlyMode, 1, {2001, 11, 30}},
      {{2001, 8, 31}, semiannualMode, 1, {2002, 2, 28}},
      {{2001, 12, 31}, bimonthlyMode, 1, {2002, 2, 28}},
      // Only forward steps of months cut the day; all others roll over.
      {{2001, 3, 31}, monthlyMode, -1, {2001, 3, 3}},
      {{2000, 2, 29}, annualMode, 1, {2001, 3, 1}},
      {{2000, 2, 29}, sameasother, 4, {2004, 2, 29}},
      {{2001, 1, 31}, weeklyMode, 5, {2001, 3, 7}},
      {{2001, 1, 31}, biweeklyMode, -1, {2001, 1, 17}},
      {{2001, 1, 31}, dailymode, 1, {2001, 2, 1}},
      {{2001, 1, 31}, exactDaysMode, 1, {2001, 2, 28}},
      {{2001, 1, 31}, continuousMode, 1, {2001, 2, 28}},
      {{2001, 5, 17}, enumFrequencyType{77}, 2, {2003, 5, 17}},
      {{2001, 5, 17}, monthlyMode, 0, {2001, 5, 17}},
  };
  for (const Row& row : rows) {
    const Date from = MakeDate(row.from.year, row.from.month, row.from.day);
    EXPECT_EQ(ToCivil(AdvanceDate(from, row.mode, row.count)), row.to)
        << FormatIso(from).data() << ' ' << row.mode << ' ' << row.count;
  }
}

TEST(Frequency, CountsCalendarIntervals) {
  const Date january = MakeDate(2001, 1, 1);  // a Monday
  struct Row {
    Date first;
    enumFrequencyType mode;
    Date second;
    int periods;
  };
  const Row rows[] = {
      {january, bimonthlyMode, MakeDate(2001, 4, 1), 1},
      {january, monthlyMode, MakeDate(2001, 2, 1), 1},
      {MakeDate(2001, 1, 31), monthlyMode, MakeDate(2001, 2, 1), 1},
      {january, weeklyMode, AddDays(january, 5), 0},
      {january, weeklyMode, AddDays(january, 6), 1},
      {january, biweeklyMode, AddDays(january, 13), 1},
      {january, weeklyMode, AddDays(january, -1), 0},
      {january, weeklyMode, AddDays(january, -2), -1},
      {january, annualMode, MakeDate(2000, 12, 31), -1},
      {january, quarterlyMode, MakeDate(2000, 11, 1), 0},
      {january, dailymode, MakeDate(2001, 3, 1), 59},
      {january, semiannualMode, MakeDate(2010, 1, 1), 18},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(PeriodsBetween(row.first, row.mode, row.second), row.periods)
        << row.mode << ' ' << row.second.serial - row.first.serial;
  }
}

TEST(Frequency, WholePeriodsEndOnOrBeforeTheEnd) {
  ForAll(Cases(10000, 100000), [](Random& random) {
    const enumFrequencyType mode = random.OneOf(kAllModes);
    const Date start{static_cast<std::int32_t>(random.Below(60000))};
    const Date end = AddDays(start, static_cast<std::int32_t>(random.Below(20000)));
    const WholePeriods counted = CountWholePeriods(start, mode, end);
    ASSERT_GT(AdvanceDate(start, mode, counted.periods + 1), end);
    if (counted.periods > 0) {
      ASSERT_EQ(AddDays(AdvanceDate(start, mode, counted.periods), counted.days), end);
    } else if (start == end) {
      ASSERT_EQ(counted.days, 0);
    } else {
      ASSERT_EQ(counted.days, end.serial);  // no step has been taken, so the days count from day 0
    }
  });
  const WholePeriods fifteenth = CountWholePeriods(MakeDate(2001, 1, 15), monthlyMode, MakeDate(2001, 4, 20));
  EXPECT_EQ(fifteenth.periods, 3);
  EXPECT_EQ(fifteenth.days, 5);
}

TEST(Frequency, StepsBeyondSixteenBitsOverflow) {
  const Date start = MakeDate(2001, 1, 1);
  EXPECT_NO_THROW(AdvanceDate(start, dailymode, 32000));
  for (const auto& step : {std::pair{dailymode, 32768}, {weeklyMode, 5000}, {monthlyMode, 40000}}) {
    EXPECT_EQ(ErrorOf([&] { AdvanceDate(start, step.first, step.second); }), ErrorNumber::Overflow);
  }
}

TEST(Frequency, DailyFactorsCompoundToAYear) {
  const auto table = BuildDailyFactorTable(6);
  EXPECT_EQ(table[0], 1);
  EXPECT_NEAR(std::pow(table[1], 365), std::exp(0.06), 1e-12);
  for (std::size_t day = 1; day < table.size(); ++day) EXPECT_EQ(table[day], table[day - 1] * table[1]);
}

}  // namespace
}  // namespace amortix2
