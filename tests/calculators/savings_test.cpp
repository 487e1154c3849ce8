#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/calculators/calculator.h"
#include "automation/raises.h"

namespace amortix2 {
namespace {

struct FixedClock : Clock {
  Date Today() const override { return MakeDate(2026, 11, 21); }
};
const FixedClock kClock;
const Calculator kCalculator(kClock);
const Variant kStart = MakeDate(2026, 1, 31);
const Variant kMonthly = 4;
const Variant kAnnual = 8;

std::int32_t LastRow(const Variant& table) { return table.GetArray().Dimension(1).upper; }

TEST(SavingsSolvers, CountWholeYearsAndPeriods) {
  struct Row {
    Variant frequency, years;
    double balance;
    int rows;
  };
  // 100 a period at 6 %, computed independently.
  const Row rows[] = {{4, 10, 16387.98, 120}, {"4", "10", 16387.98, 120}, {3.5, 10.9, 16387.98, 120},
                      {8, 2.9, 206, 2},       {"word", 2, 206, 2},        {4, 0.9, 0, 0}};
  for (const Row& row : rows) {
    Variant balance = std::int16_t{7};
    Variant detail;
    kCalculator.AmountSavedCalculator(kStart, Variant(), 100, row.frequency, row.years, 6, balance, detail);
    EXPECT_NEAR(balance.GetDouble(), row.balance, 1e-9);
    EXPECT_EQ(LastRow(detail), row.rows);
    EXPECT_EQ(detail.GetArray().At(0, 1), Variant("01-31-2026"));
    if (row.balance == 0) continue;
    Variant rate, opening, deposit;
    kCalculator.SavingsRateCalculator(kStart, 0, 100, row.frequency, row.years, balance, rate, detail);
    kCalculator.StartingAmountCalculator(kStart, 100, row.frequency, row.years, 6, balance, opening, detail);
    kCalculator.DepositCalculator(kStart, 0, row.frequency, row.years, 6, balance, deposit, detail);
    EXPECT_NEAR(rate.GetDouble(), 6, 0.0011);
    EXPECT_NEAR(opening.GetDouble(), 0, 0.05);
    EXPECT_NEAR(deposit.GetDouble(), 100, 0.005);
  }
}

TEST(SavingsSolvers, ErrorsLeaveTheResults) {
  struct Row {
    Variant start, frequency, years;
    ErrorNumber error;
  };
  const Row rows[] = {
      {"soon", 4, 10, ErrorNumber::TypeMismatch}, {kNull, 4, 10, ErrorNumber::TypeMismatch},
      {kStart, 40000, 10, ErrorNumber::Overflow}, {kStart, 4, 1e10, ErrorNumber::Overflow},
      {kStart, 1, 100, ErrorNumber::Overflow},    {kStart, 4, 9000, ErrorNumber::InvalidProcedureCall},
      {kStart, 4, 0, ErrorNumber::DivisionByZero}};
  for (const Row& row : rows) {
    Variant deposit = "before";
    Variant detail = "before";
    EXPECT_EQ(ErrorOf([&] {
                kCalculator.DepositCalculator(row.start, 0, row.frequency, row.years, 6, 100, deposit,
                                              detail);
              }),
              row.error);
    EXPECT_TRUE(deposit == Variant("before") && detail == Variant("before"));
  }
}

TEST(TimeValue, RoundTripsBetweenDates) {
  for (const auto& [end, rows] :
       {std::pair{"1/31/2026", 0}, {"3/31/2026", 2}, {"4/15/2026", 3}, {"1/31/2036", 120}}) {
    Variant future, present, rate, reached, detail;
    kCalculator.FutureValueCalculator(kStart, end, 5000, 6, kMonthly, future, detail);
    EXPECT_EQ(LastRow(detail), rows) << end;
    if (rows == 3) continue;  // leftover days are credited by the schedule, not by the formula
    kCalculator.PresentValueCalculator(kStart, end, future, 6, kMonthly, present, detail);
    EXPECT_NEAR(present.GetDouble(), 5000, 0.6) << end;
    rate = 99.0;
    kCalculator.YieldCalculator(kStart, end, 5000, future, kMonthly, rate, reached, detail);
    EXPECT_NEAR(rate.GetDouble(), rows == 0 ? 0 : 6, 0.0015) << end;
    EXPECT_NEAR(reached.GetDouble(), future.GetDouble(), 0.5) << end;
  }
  Variant today, detail;
  kCalculator.FutureValueCalculator(Variant(), "no date", 5000, 6, kMonthly, today, detail);
  EXPECT_EQ(today, Variant(5000.0));
  EXPECT_EQ(detail.GetArray().At(0, 1), Variant("11-21-2026"));
}

struct Savings {
  Variant balance, deposit, endingBalance, endDate, rate, detail;
};

std::optional<ErrorNumber> Plan(Savings& s, const Variant& balance, const Variant& deposit,
                                const Variant& goal, const Variant& period, const Variant& rate) {
  return ErrorOf([&] {
    kCalculator.SimpleSavingsCalculator(kStart, balance, deposit, kMonthly, goal, period, rate, 0, s.balance,
                                        s.deposit, s.endingBalance, s.endDate, s.rate, s.detail);
  });
}

// Every pattern of zero and non-zero inputs; the one that is found comes back changed.
TEST(SimpleSavings, ChoosesTheUnknown) {
  for (unsigned given = 0; given < 32; ++given) {
    const double period = given & 16 ? 12 : 0;
    const double goal = given & 8 ? 3000 : 0;
    const double balance = given & 4 ? 1000 : 0;
    const double deposit = given & 2 ? 100 : 0;
    const double rate = given & 1 ? 6 : 0;
    SCOPED_TRACE(given);
    Savings s;
    ASSERT_EQ(Plan(s, balance, deposit, goal, period, rate), std::nullopt);
    const double ending = s.endingBalance.GetDouble();
    if (period == 0) {  // runs to its goal, or stands still for one period
      const bool canReachIt = goal != 0 && (deposit != 0 || (balance != 0 && rate != 0));
      if (canReachIt) {
        EXPECT_GE(ending, goal - 0.49);
        EXPECT_LE(ending, goal * 1.005 + deposit);
      } else {
        EXPECT_EQ(s.endingBalance, s.balance);
      }
      EXPECT_EQ(LastRow(s.detail) > 1, canReachIt);
      continue;
    }
    const bool findsDeposit = goal != 0 && deposit == 0;
    const bool findsBalance = goal != 0 && deposit != 0 && balance == 0;
    const bool findsRate = goal != 0 && deposit != 0 && balance != 0 && rate == 0;
    EXPECT_EQ(s.deposit.GetDouble() != deposit, findsDeposit);
    EXPECT_EQ(s.balance.GetDouble() != balance, findsBalance);
    EXPECT_EQ(s.rate.GetDouble() != rate, findsRate);
    EXPECT_EQ(s.endDate, Variant(MakeDate(2027, 1, 31)));
    EXPECT_EQ(LastRow(s.detail), 12);
    const double grown = rate == 0 ? balance + 12 * deposit : balance * 1.0616778 + deposit * 12.3355624;
    EXPECT_NEAR(ending, findsDeposit || findsBalance || findsRate ? goal : grown, 0.2);
  }
}

TEST(SimpleSavings, ListsDatesAndRefusesLongTerms) {
  Savings s;
  EXPECT_EQ(Plan(s, 1000, 100, 5000, 1e6, 6), ErrorNumber::Overflow);
  EXPECT_EQ(s.balance, Variant());
  EXPECT_EQ(Plan(s, 0, 1, 0, 3.9, 3), std::nullopt);
  EXPECT_EQ(LastRow(s.detail), 3);
  EXPECT_EQ(s.detail.GetArray().At(3, 1), Variant("04-30-2026"));
}

TEST(Retirement, ReachesItsGoalAfterTax) {
  Variant grid, detail;
  kCalculator.IRACalculator(kStart, "T", 0, 0, 75000, 20, 6, 25, grid, detail);
  const Array& taxed = grid.GetArray();
  EXPECT_EQ(taxed.Dimension(1), (Bounds{0, 6}));
  EXPECT_EQ(taxed.At(0), Variant());
  EXPECT_EQ(taxed.At(2), Variant(2718.46));  // 100000 / ((1.06^20 - 1) / 0.06)
  EXPECT_NEAR(taxed.At(3).GetDouble(), 100000, 0.2);
  EXPECT_NEAR(taxed.At(4).GetDouble(), taxed.At(3).GetDouble() * 0.75, 0.005);
  EXPECT_EQ(ToCivil(taxed.At(5).GetDate()), (CivilDate{2046, 1, 31}));
  EXPECT_EQ(LastRow(detail), 20);
  for (const char* untaxed : {"t", "TT", "", "R"}) {
    kCalculator.IRACalculator(kStart, untaxed, 0, 0, 75000, 20, 6, 25, grid, detail);
    EXPECT_EQ(grid.GetArray().At(3), grid.GetArray().At(4));
    EXPECT_NEAR(grid.GetArray().At(3).GetDouble(), 75000, 0.2);
  }
  grid = detail = Variant();
  const auto taxedAt = [&](const Variant& rate) {
    return ErrorOf([&] { kCalculator.IRACalculator(kStart, "T", 0, 0, 75000, 20, 6, rate, grid, detail); });
  };
  EXPECT_EQ(taxedAt(100), ErrorNumber::DivisionByZero);
  EXPECT_EQ(detail, Variant());
  EXPECT_EQ(taxedAt("some"), ErrorNumber::TypeMismatch);  // found out only after the schedule was written
  EXPECT_EQ(LastRow(detail), 20);
  EXPECT_EQ(grid, Variant());
}

struct Spending {
  Variant balance, withdrawal, rate, period, detail;
};

void Spend(Spending& s, double balance, double withdrawal, double rate, double period) {
  kCalculator.SpendingCalculator(kStart, balance, withdrawal, rate, 4, period, s.balance, s.withdrawal,
                                 s.rate, s.period, s.detail);
}

// Every pattern of zero and non-zero inputs, in the order term, withdrawal, balance, rate. Figures computed
// independently; a period of -1 lasts for ever.
TEST(Spending, ChoosesTheUnknown) {
  struct Row {
    double balance, withdrawal, rate;
    int period, rows;
  };
  const Row rows[] = {
      {0, 0, 0, -1, 1},
      {0, 0, 6, -1, 1},
      {100000, 0, 0, -1, 1},
      {100000, 500, 6, -1, 1},
      {0, 0, 0, -1, 1},
      {0, 0, 6, -1, 1},
      {100000, 1000, 0, 100, 100},
      {100000, 1000, 6, 139, 139},
      {0, 0, 0, -1, 120},
      {0, 0, 6, -1, 120},
      {100000, 833.33, 0, 120, 120},
      {100000, 1110.21, 6, 120, 120},
      {120000, 1000, 0, 120, 120},
      {90073.45, 1000, 6, 120, 120},
      {100000, 1000, 3.737, 120, 120},
      {100000, 1110.21, 6, 120, 120},
  };
  for (unsigned given = 0; given < 16; ++given) {
    Spending s;
    Spend(s, given & 2 ? 100000 : 0, given & 4 ? 1000 : 0, given & 1 ? 6 : 0, given & 8 ? 120 : 0);
    EXPECT_NEAR(s.balance.GetDouble(), rows[given].balance, 0.005) << given;
    EXPECT_NEAR(s.withdrawal.GetDouble(), rows[given].withdrawal, 0.005) << given;
    EXPECT_NEAR(s.rate.GetDouble(), rows[given].rate, 1e-9) << given;
    EXPECT_EQ(s.period.GetInteger(), rows[given].period) << given;
    EXPECT_EQ(LastRow(s.detail), rows[given].rows) << given;
  }
}

TEST(Spending, AnswersAtTheEdges) {
  Spending s;
  Spend(s, 100000, 400, 6, 0);  // less than the interest: all of the interest can go, for ever
  EXPECT_EQ(s.period.GetInteger(), -1);
  EXPECT_EQ(s.withdrawal, Variant(500.0));
  // Nothing to find, and a term that overflows: the inputs' echo stays.
  EXPECT_EQ(ErrorOf([&] { Spend(s, 0, 0, 6, 1e6); }), ErrorNumber::Overflow);
  EXPECT_EQ(s.period, Variant(1e6));
  EXPECT_EQ(s.rate, Variant(6.0));
  EXPECT_EQ(LastRow(s.detail), 1);
  EXPECT_EQ(s.detail.GetArray().At(0, 1), Variant());
}

}  // namespace
}  // namespace amortix2
