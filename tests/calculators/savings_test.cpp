#include "amortix2/automation/conversion.h"
#include "calculators/ask.h"

namespace amortix2 {
namespace {

const Variant kStart = MakeDate(2026, 1, 31);
constexpr int kMonthly = 4;

TEST(SavingsSolvers, CountWholeYearsAndPeriods) {
  // 100 a period at 6 %, computed independently.
  const struct {
    Variant frequency, years;
    double balance;
    int rows;
  } rows[] = {{4, 10, 16387.98, 120}, {"4", "10", 16387.98, 120}, {3.5, 10.9, 16387.98, 120},
              {8, 2.9, 206, 2},       {"word", 2, 206, 2},        {4, 0.9, 0, 0}};
  for (const auto& [frequency, years, balance, lines] : rows) {
    const Answer saved = Ask("AmountSavedCalculator", {kStart, Variant(), 100, frequency, years, 6});
    EXPECT_NEAR(saved.Number("vEndBal"), balance, 1e-9);
    EXPECT_EQ(saved.LastRow("vDetArray"), lines);
    EXPECT_EQ(saved.Table("vDetArray").At(0, 1), Variant("01-31-2026"));
    if (balance == 0) continue;
    const Answer rate = Ask("SavingsRateCalculator", {kStart, 0, 100, frequency, years, balance});
    const Answer opening = Ask("StartingAmountCalculator", {kStart, 100, frequency, years, 6, balance});
    const Answer deposit = Ask("DepositCalculator", {kStart, 0, frequency, years, 6, balance});
    EXPECT_NEAR(rate.Number("vIntRate"), 6, 0.0011);
    EXPECT_NEAR(opening.Number("vCurrBal"), 0, 0.05);
    EXPECT_NEAR(deposit.Number("vPayment"), 100, 0.005);
  }
}

TEST(SavingsSolvers, ErrorsLeaveTheResults) {
  const struct {
    Variant start, frequency, years;
    ErrorNumber error;
  } rows[] = {
      {"soon", 4, 10, ErrorNumber::TypeMismatch}, {kNull, 4, 10, ErrorNumber::TypeMismatch},
      {kStart, 40000, 10, ErrorNumber::Overflow}, {kStart, 4, 1e10, ErrorNumber::Overflow},
      {kStart, 1, 100, ErrorNumber::Overflow},    {kStart, 4, 9000, ErrorNumber::InvalidProcedureCall},
      {kStart, 4, 0, ErrorNumber::DivisionByZero}};
  for (const auto& row : rows) {
    const Answer answer = Ask("DepositCalculator", {row.start, 0, row.frequency, row.years, 6, 100});
    EXPECT_EQ(answer.error, row.error);
    EXPECT_TRUE(answer["vPayment"] == Variant() && answer["vDetArray"] == Variant());
  }
}

TEST(TimeValue, RoundTripsBetweenDates) {
  for (const auto& [end, rows] :
       {std::pair{"1/31/2026", 0}, {"3/31/2026", 2}, {"4/15/2026", 3}, {"1/31/2036", 120}}) {
    const Answer future = Ask("FutureValueCalculator", {kStart, end, 5000, 6, kMonthly});
    const Variant& sum = future["vEndingBal"];
    EXPECT_EQ(future.LastRow("vDetArray"), rows) << end;
    const Answer present = Ask("PresentValueCalculator", {kStart, end, sum, 6, kMonthly});
    EXPECT_NEAR(present.Number("vCurrBal"), 5000, 0.6) << end;
    const Answer yield = Ask("YieldCalculator", {kStart, end, 5000, sum, kMonthly, 99.0});
    EXPECT_NEAR(yield.Number("vIntRate"), rows == 0 ? 0 : 6, 0.002) << end;
    EXPECT_NEAR(yield.Number("vResEndingBal"), sum.GetDouble(), 0.5) << end;
  }
  const Answer today = Ask("FutureValueCalculator", {Variant(), "no date", 5000, 6, kMonthly});
  EXPECT_EQ(today["vEndingBal"], Variant(5000.0));
  EXPECT_EQ(today.Table("vDetArray").At(0, 1), Variant("01-31-2001"));
}

Answer Plan(double balance, double deposit, double goal, double periods, double rate) {
  return Ask("SimpleSavingsCalculator", {kStart, balance, deposit, kMonthly, goal, periods, rate, 0});
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
    const Answer plan = Plan(balance, deposit, goal, period, rate);
    ASSERT_EQ(plan.error, ErrorNumber{});
    const double ending = plan.Number("vResEndingBal");
    if (period == 0) {  // runs to its goal, or stands still for one period
      const bool canReachIt = goal != 0 && (deposit != 0 || (balance != 0 && rate != 0));
      if (canReachIt) {
        EXPECT_GE(ending, goal - 0.49);
        EXPECT_LE(ending, goal * 1.005 + deposit);
      } else {
        EXPECT_EQ(ending, plan.Number("vResCurrBal"));
      }
      EXPECT_EQ(plan.LastRow("vDetArray") > 1, canReachIt);
      continue;
    }
    const bool findsDeposit = goal != 0 && deposit == 0;
    const bool findsBalance = goal != 0 && deposit != 0 && balance == 0;
    const bool findsRate = goal != 0 && deposit != 0 && balance != 0 && rate == 0;
    EXPECT_EQ(plan.Number("vResPayment") != deposit, findsDeposit);
    EXPECT_EQ(plan.Number("vResCurrBal") != balance, findsBalance);
    EXPECT_EQ(plan.Number("vResIntRate") != rate, findsRate);
    EXPECT_EQ(plan["vResEndDate"], Variant(MakeDate(2027, 1, 31)));
    EXPECT_EQ(plan.LastRow("vDetArray"), 12);
    const double grown = rate == 0 ? balance + 12 * deposit : balance * 1.0616778 + deposit * 12.3355624;
    EXPECT_NEAR(ending, findsDeposit || findsBalance || findsRate ? goal : grown, 0.2);
  }
}

TEST(SimpleSavings, ListsDatesAndRefusesLongTerms) {
  const Answer tooLong = Plan(1000, 100, 5000, 1e6, 6);
  EXPECT_EQ(tooLong.error, ErrorNumber::Overflow);
  EXPECT_EQ(tooLong["vResCurrBal"], Variant());
  const Answer cut = Plan(0, 1, 0, 3.9, 3);
  EXPECT_EQ(cut.LastRow("vDetArray"), 3);
  EXPECT_EQ(cut.Table("vDetArray").At(3, 1), Variant("04-30-2026"));
}

TEST(Retirement, ReachesItsGoalAfterTax) {
  const auto ask = [](const char* type, const Variant& taxRate) {
    return Ask("IRACalculator", {kStart, type, 0, 0, 75000, 20, 6, taxRate});
  };
  const Answer answer = ask("T", 25);
  const Array& taxed = answer.Table("vGrid");
  EXPECT_EQ(taxed.Dimension(1), (Bounds{0, 6}));
  EXPECT_EQ(taxed.At(0), Variant());
  EXPECT_EQ(taxed.At(2), Variant(2718.46));  // 100000 / ((1.06^20 - 1) / 0.06)
  EXPECT_NEAR(taxed.At(3).GetDouble(), 100000, 0.2);
  EXPECT_NEAR(taxed.At(4).GetDouble(), taxed.At(3).GetDouble() * 0.75, 0.005);
  EXPECT_EQ(taxed.At(5), Variant(MakeDate(2046, 1, 31)));
  EXPECT_EQ(answer.LastRow("vDetArray"), 20);
  for (const char* untaxed : {"t", "TT", "", "R"}) {
    const Answer plain = ask(untaxed, 25);
    EXPECT_EQ(plain.Table("vGrid").At(3), plain.Table("vGrid").At(4));
    EXPECT_NEAR(plain.Table("vGrid").At(3).GetDouble(), 75000, 0.2);
  }
  const Answer whole = ask("T", 100);
  EXPECT_EQ(whole.error, ErrorNumber::DivisionByZero);
  EXPECT_EQ(whole["vDetArray"], Variant());
  const Answer word = ask("T", "some");  // found out only after the schedule was written
  EXPECT_EQ(word.error, ErrorNumber::TypeMismatch);
  EXPECT_EQ(word.LastRow("vDetArray"), 20);
  EXPECT_EQ(word["vGrid"], Variant());
}

Answer Spend(double balance, double withdrawal, double rate, double period) {
  return Ask("SpendingCalculator", {kStart, balance, withdrawal, rate, kMonthly, period});
}

// Every pattern of zero and non-zero inputs, in the order term, withdrawal, balance, rate. Figures computed
// independently; a period of -1 lasts for ever.
TEST(Spending, ChoosesTheUnknown) {
  const struct {
    double balance, withdrawal, rate;
    int period, rows;
  } rows[] = {
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
    const Answer answer =
        Spend(given & 2 ? 100000 : 0, given & 4 ? 1000 : 0, given & 1 ? 6 : 0, given & 8 ? 120 : 0);
    EXPECT_NEAR(answer.Number("vResCurrBal"), rows[given].balance, 0.005) << given;
    EXPECT_NEAR(answer.Number("vResPayment"), rows[given].withdrawal, 0.005) << given;
    EXPECT_NEAR(answer.Number("vResIntRate"), rows[given].rate, 1e-9) << given;
    EXPECT_EQ(answer["vResPeriod"].GetInteger(), rows[given].period) << given;
    EXPECT_EQ(answer.LastRow("vDetArray"), rows[given].rows) << given;
  }
}

TEST(Spending, AnswersAtTheEdges) {
  const Answer forEver = Spend(100000, 400, 6, 0);  // less than the interest: all of that can go, for ever
  EXPECT_EQ(forEver["vResPeriod"].GetInteger(), -1);
  EXPECT_EQ(forEver["vResPayment"], Variant(500.0));
  // Nothing to find, and a term that overflows: the inputs' echo stays.
  const Answer echo = Spend(0, 0, 6, 1e6);
  EXPECT_EQ(echo.error, ErrorNumber::Overflow);
  EXPECT_EQ(echo["vResPeriod"], Variant(1e6));
  EXPECT_EQ(echo["vResIntRate"], Variant(6.0));
  EXPECT_EQ(echo.LastRow("vDetArray"), 1);
  EXPECT_EQ(echo.Table("vDetArray").At(0, 1), Variant());
}

}  // namespace
}  // namespace amortix2
