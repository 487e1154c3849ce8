#include "amortix2/engine/savings_schedule.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>

#include "amortix2/engine/savings_detail.h"
#include "automation/raises.h"
#include "engine/random_savings.h"

namespace amortix2 {
namespace {

tSavingsDesc Monthly(double balance, double deposit, double withdrawal, double rate, double goal) {
  tSavingsDesc plan;
  plan.startDate = MakeDate(2001, 1, 31);
  plan.endDate = Date{};
  plan.paymentMode = monthlyMode;
  plan.startingBalance = balance;
  plan.deposit = deposit;
  plan.withdrawal = withdrawal;
  plan.intRate = rate;
  plan.endingBalance = goal;
  return plan;
}

// 1000 and 50 a period at 6 %, taxed at 20 %, from 31 January 2001 to 10 February 2003, computed
// independently.
TEST(SavingsSchedule, RunsAtEveryFrequency) {
  struct Row {
    int payments, compounding, lines;
    double endingBalance;
    int lastYear;
  };
  const Row rows[] = {
      {0, 0, 3, 1202.67, 2003},
      {1, 0, 740, 39959.78, 2003},
      {2, 0, 106, 6617.33, 2003},
      {3, 0, 53, 3834.45, 2003},
      {4, 0, 25, 2361.28, 2003},
      {5, 0, 13, 1730.29, 2003},
      {6, 0, 9, 1519.83, 2003},
      {7, 0, 5, 1308.98, 2003},
      {8, 0, 3, 1202.67, 2003},
      {11, 0, 3, 1202.67, 2003},
      {4, 1, 25, 2208.58, 2003},
      {4, 8, 25, 5257.00, 2003},
      {4, 9, 25, 3357.51, 2003},
      {4, 10, 25, 2361.84, 2003},
      // Counted by months, paid by years.
      {9, 0, 25, 3357.51, 2025},
      {10, 0, 25, 5377.96, 2025},
  };
  for (const Row& row : rows) {
    tSavingsDesc plan = Monthly(1000, 50, 0, 6, 0);
    plan.endDate = MakeDate(2003, 2, 10);
    plan.taxRate = 20;
    plan.paymentMode = enumFrequencyType{row.payments};
    plan.compoundingMode = enumFrequencyType{row.compounding};
    BuildSavingsSchedule(plan);
    EXPECT_EQ(std::ssize(plan.schedule), row.lines + 1) << row.payments;
    EXPECT_NEAR(plan.endingBalance, row.endingBalance, 1e-9) << row.payments << ' ' << row.compounding;
    EXPECT_EQ(plan.schedule.back().lineDate, MakeDate(row.lastYear, 2, 10)) << row.payments;
    EXPECT_DOUBLE_EQ(plan.schedule[1].intRate, 4.8);
    EXPECT_EQ(plan.schedule.back().intRate, row.payments == dailymode ? plan.schedule[1].intRate : 6);
  }
}

// Not even one period fits: the days count from day zero of the calendar. Their tax is not deducted.
TEST(SavingsSchedule, CreditsLeftoverDaysBeforeTax) {
  tSavingsDesc plan = Monthly(1000, 0, 0, 6, 0);
  plan.startDate = MakeDate(2026, 1, 1);
  plan.endDate = MakeDate(2026, 1, 20);
  plan.taxRate = 25;
  BuildSavingsSchedule(plan);
  ASSERT_EQ(plan.schedule.size(), 2u);
  EXPECT_EQ(plan.schedule[1].intCredited, 7568.55);  // 46042 days
  EXPECT_EQ(plan.totTaxCharged, 7568.55 * 0.25);
  EXPECT_EQ(plan.endingBalance, 8568.55);
  EXPECT_EQ(plan.schedule[1].lineDate, AddDays(plan.startDate, 46042));
  plan.taxRate = 0;
  plan.intRate = -1;
  BuildSavingsSchedule(plan);
  EXPECT_FALSE(std::signbit(plan.schedule[1].taxCharged));
  // Not even a rate that only its tax makes infinite, and that no amount shows.
  plan = Monthly(0, 0, 0, -1.7e308, 0);
  plan.endDate = MakeDate(2003, 1, 31);
  plan.taxRate = -100;
  plan.compoundingMode = continuousMode;
  EXPECT_EQ(ErrorOf([&] { BuildSavingsSchedule(plan); }), ErrorNumber::Overflow);
}

TEST(SavingsSchedule, CutsWithdrawalsToWhatIsThere) {
  tSavingsDesc plan = Monthly(1000, 0, 300, 12, 0);
  plan.endDate = AdvanceDate(plan.startDate, monthlyMode, 6);
  BuildSavingsSchedule(plan);
  EXPECT_DOUBLE_EQ(plan.schedule[4].payment, -122.48);
  for (int line : {4, 5, 6}) EXPECT_EQ(plan.schedule[static_cast<std::size_t>(line)].endingBalance, 0);
  EXPECT_EQ(plan.schedule[6].payment, 0);
  EXPECT_FALSE(std::signbit(plan.schedule[6].payment));
}

TEST(SavingsSchedule, RunsToItsGoal) {
  constexpr double kNone = UNKNOWNLOANVALUE;
  struct Row {
    double balance, deposit, withdrawal, rate, goal;
    int lines;
    double lastPayment, endingBalance;
  };
  const Row rows[] = {
      {0, 100, 0, 6, 1000, 10, 77.19, 1000},     // the last deposit is cut to reach it
      {1000, 100, 0, 0, 1500, 5, 100, 1500},     // reached exactly
      {999.6, 0.1, 0, 0, 1000, 1, 0.1, 999.7},   // near enough
      {999, 0.51, 0, 0, 1000, 2, 0.49, 1000},    // not near enough
      {1000, 0, 0, 6, 1500, 82, 0, 1505.25},     // by interest alone: nothing to cut
      {0, 100, 0, 6, 3000, 29, -12.47, 3000},    // the last line's interest alone is too much
      {2000, 100, 0, -600, 1000, 1, 100, 1100},  // began beyond its goal: stays
      {100000, 0, 1000, 6, 0, 139, -975.72, 0},  // spent down
      {10000, 0, 1000, 0, 2500, 8, -500, 2500},  // spent down to a rest
      {1000, 50, 0, 12, 500, 1, -10, 1000},      // out of reach: takes out its interest
      {1000, 0, 10, 12, 5000, 1, -10, 1000},     // so does one that stands still
      {1000, 0, 0, -12, 2000, 1, 10, 1000},      // and one that loses makes up for it
      {0, 0, 0, 5, 100, 1, 0, 0},                //
      {1000, 100, 0, 12, kNone, 1, -10, 1000},   // no goal at all
  };
  for (const Row& row : rows) {
    tSavingsDesc plan = Monthly(row.balance, row.deposit, row.withdrawal, row.rate, row.goal);
    BuildSavingsSchedule(plan);
    EXPECT_EQ(std::ssize(plan.schedule), row.lines + 1) << row.goal;
    EXPECT_NEAR(plan.schedule.back().payment, row.lastPayment, 1e-9) << row.goal;
    EXPECT_NEAR(plan.endingBalance, row.endingBalance, 1e-9) << row.goal;
    EXPECT_EQ(plan.endDate, AdvanceDate(plan.startDate, monthlyMode, row.lines)) << row.goal;
  }
  // Loses as much as is paid in, far below its goal: never there.
  tSavingsDesc stuck = Monthly(1000, 100, 0, -60, 1e6);
  EXPECT_EQ(ErrorOf([&] { BuildSavingsSchedule(stuck); }), ErrorNumber::Overflow);
}

TEST(SavingsSchedule, LinesJoinAndTotalsAdd) {
  RandomSavings random(1);
  int built = 0;
  for (int i = 0; i < 20000; ++i) {
    tSavingsDesc plan = random.Wild();
    const tSavingsDesc before = plan;
    if (ErrorOf([&] { BuildSavingsSchedule(plan); })) {
      EXPECT_EQ(plan.endDate, before.endDate);
      EXPECT_EQ(plan.endingBalance, before.endingBalance);
      EXPECT_TRUE(plan.schedule.empty());
      continue;
    }
    ++built;
    double interest = 0;
    for (std::size_t k = 1; k < plan.schedule.size(); ++k) {
      const tSchedule& line = plan.schedule[k];
      EXPECT_EQ(line.startingBalance, plan.schedule[k - 1].endingBalance);
      const double size =
          std::abs(line.startingBalance) + std::abs(line.payment) + std::abs(line.endingBalance);
      EXPECT_NEAR(line.endingBalance, line.startingBalance + line.intCredited + line.payment,
                  0.0051 + 1e-15 * size);
      interest += line.intCredited;
    }
    EXPECT_TRUE(std::isfinite(plan.endingBalance) &&
                plan.endingBalance == plan.schedule.back().endingBalance);
    EXPECT_EQ(plan.totIntCredited, interest);
  }
  EXPECT_GT(built, 10000);
}

TEST(SavingsDetail, FillsABlockUpToTheFirstMissingLine) {
  tSavingsDesc plan = Monthly(1000, 100, 0, 12, 1300);
  BuildSavingsSchedule(plan);
  ASSERT_EQ(plan.schedule.size(), 4u);
  Array table({0, 4}, {0, 9});
  EXPECT_EQ(ErrorOf([&] { LoadSaveDetArray(plan, 5, 4, table); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(table.At(0, 5), Variant("01-31-2001"));
  EXPECT_EQ(table.At(0, 6), Variant());
  EXPECT_EQ(table.At(0, 9), Variant(1000.0));
  EXPECT_EQ(table.At(2, 5), Variant("03-31-2001"));
  EXPECT_EQ(table.At(2, 8), Variant(100 + 11.1));
  EXPECT_EQ(table.At(3, 9), Variant(1300.0));
  EXPECT_EQ(table.At(4, 5), Variant());
  EXPECT_EQ(ErrorOf([&] { LoadSaveDetArray(plan, 6, 0, table); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(table.At(0, 6), Variant("01-31-2001"));
}

}  // namespace
}  // namespace amortix2
