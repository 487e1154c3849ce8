#include <algorithm>
#include <cmath>

#include "amortix2/engine/payment_factors.h"
#include "calculators/ask.h"

namespace amortix2 {
namespace {

constexpr const char* kSimpleLoan = "SimpleLoanCalculator";

TEST(SimpleLoan, FindsTheQuantityLeftAtZero) {
  const struct {
    double amount, payment, months, rate;
    std::string_view found;
    double value;
  } rows[] = {
      {100000, 0, 360, 6, "vResPayment", 599.55},
      {100000, 599.55, 360, 6, "vResPayment", 599.55},
      {100000, 7, 360, 6, "vResPayment", 599.55},
      {100000, 599.55, 0, 6, "vResPeriod", 360},
      {100000, 599.55, 360, 0, "vResIntRate", 6},
      {0, 599.55, 360, 6, "vResPurchaseAmt", 99999.91},
      {0, 100, 12, 0, "vResPurchaseAmt", 1200},
      {1200, 0, 12, 0, "vResPayment", 100},
      // Too little is given: the inputs come back.
      {0, 0, 360, 6, "vResPurchaseAmt", 0},
      {0, 500, 0, 6, "vResPayment", 500},
      {100000, 0, 0, 6, "vResPayment", 0},
  };
  for (const auto& row : rows) {
    const Answer answer = Ask(kSimpleLoan, {"", row.amount, row.payment, row.months, row.rate});
    EXPECT_EQ(answer.error, ErrorNumber{});
    EXPECT_NEAR(answer.Number(row.found), row.value, 0.005) << &row - rows;
  }
}

TEST(SimpleLoan, EchoesTheInputsUntilTheEngineHasAnswered) {
  for (const double rate : {6.0, -1200.0}) {  // nothing to find; an impossible growth
    const Answer answer = Ask(kSimpleLoan, {"", rate == 6 ? 0.0 : 1000.0, 0, "2.5", rate});
    EXPECT_EQ(answer.error, rate == 6 ? ErrorNumber{} : ErrorNumber::DivisionByZero);
    EXPECT_EQ(answer["vResPeriod"], Variant(2.5));
    EXPECT_EQ(answer["vTotPay"], Variant(std::int16_t{0}));
    EXPECT_EQ(answer.LastRow("vDetArray"), 2);  // halves to even
    EXPECT_EQ(answer.Table("vDetArray").At(1, 1), Variant());
  }
  // Nothing at all is written when even the empty table cannot be made.
  const Answer huge = Ask(kSimpleLoan, {"", 1.0, 0, 1e8});
  EXPECT_EQ(huge.error, ErrorNumber::OutOfMemory);
  EXPECT_EQ(huge["vResPurchaseAmt"], Variant());
}

TEST(SimpleLoan, OnlyALoneLetterIsACreditCard) {
  const auto payment = [](const Variant& type) {
    return Ask(kSimpleLoan, {type, 5000, 0, 24, 18}).Number("vResPayment");
  };
  EXPECT_EQ(payment("C"), payment("c"));
  EXPECT_NE(payment("C"), payment("credit"));
  for (const Variant& type : {Variant(), Variant(kNull), Variant(" C"), Variant(67)})
    EXPECT_EQ(payment(type), payment("credit"));
}

TEST(FixedPayment, StartsAMonthBeforeTheFirstPayment) {
  const struct {
    Variant payDate, closeDate;
    std::string_view opening;
    double interim;
  } rows[] = {
      {"1/15/2001", "12/1/2000", "12-01-2000", 14 * 80000 * 9 / 36000.0},
      {"3/31/2001", Variant(), "03-03-2001", 0},
      {"3/31/2000", Variant(), "03-02-2000", 0},
      {Variant(), MakeDate(2001, 1, 21), "01-21-2001", 10 * 80000 * 9 / 36000.0},
      {36000, "soon", "01-31-2001", 0},  // neither is a date
  };
  for (const auto& row : rows) {
    const Answer answer = Ask("FixedPayment", {"C", 100000, 20000, 360, 9, row.closeDate, row.payDate});
    EXPECT_EQ(answer["vResPurchaseAmt"], Variant(80000.0));
    EXPECT_NEAR(answer.Number("vResPayment"), 643.70, 0.001);
    EXPECT_EQ(answer.Table("vDetArray").At(0, 1), Variant(row.opening));
    EXPECT_NEAR(answer.Cell("vDetArray", 0, 4), row.interim, 1e-9);
  }
  const Answer late = Ask("FixedPayment", {"", 1, 0, 1, 0, "1/1/1900"});
  EXPECT_EQ(late.error, ErrorNumber::Overflow);
  EXPECT_EQ(late["vResPurchaseAmt"], Variant(1.0));
}

TEST(AdjustablePayment, RaisesThePaymentWithTheRate) {
  const auto ask = [](double down) {
    return Ask("AdjustablePayment", {"", 120000, down, 360, 6, Variant(), Variant(), 9, 2, 0.5, 12, 6});
  };
  const Answer answer = ask(20000);
  EXPECT_EQ(answer.Number("vResPayment"), 599.55);
  EXPECT_EQ(answer.Table("vDetArray").Dimension(2).upper, 5);
  double balance = 100000;
  for (int k = 1; k <= 40; ++k) {  // 8 % at payment 12, half a point more at 18 and 24, then the cap
    const int laterChanges = (k - 12) / 6;
    const double rate = k < 12 ? 6 : std::min(9.0, 8 + 0.5 * laterChanges);
    EXPECT_NEAR(answer.Cell("vDetArray", k, 4), balance * rate / 1200, 0.00501) << k;
    balance = answer.Cell("vDetArray", k, 5);
  }
  EXPECT_EQ(ask(120000).Table("vDetArray").Dimension(2).upper, 6);
}

TEST(BalloonLoan, SettlesTheBalanceThatAnIndependentLoopReaches) {
  const auto ask = [](double term, double after) {
    return Ask("BalloonLoanPaymentCalculator", {110000, 10000, "2001-01-31", term, after, 6});
  };
  double balance = 100000;
  for (int k = 1; k <= 60; ++k) balance = std::round(balance * 1.005 * 100) / 100 - 599.55;
  const Answer answer = ask(360, 60);
  const double settled = std::round(balance * 1.005 * 100) / 100;
  EXPECT_NEAR(answer.Number("vBalloonPayment"), settled, 1e-6);
  EXPECT_EQ(answer.LastRow("vDetArray"), 61);
  EXPECT_NEAR(answer.Cell("vDetArray", 61, 2), settled, 1e-6);
  EXPECT_NEAR(answer.Cell("vDetArray", 61, 3), balance, 1e-6);
  EXPECT_EQ(answer.Table("vDetArray").At(61, 5), Variant(std::int16_t{0}));
  EXPECT_NEAR(answer.Number("vTotPayments"), 60 * 599.55 + settled - 599.55, 1e-6);
  EXPECT_NEAR(answer.Number("vTotIntCharged"), answer.Number("vTotPayments") - 100000, 1e-9);

  const Answer past = ask(24, 30);
  EXPECT_EQ(past.Number("vBalloonPayment"), 0);
  EXPECT_EQ(past.LastRow("vDetArray"), 24);
  EXPECT_EQ(past.Cell("vDetArray", 24, 2), 0);
  EXPECT_EQ(ask(0, 60).error, ErrorNumber::DivisionByZero);
  EXPECT_EQ(ask(24, -2).error, ErrorNumber::SubscriptOutOfRange);
}

TEST(MonthlyLease, ChoosesWhatToFind) {
  const struct {
    double residual, principal, payment, rate;
    std::string_view found;
    double low, high;
  } rows[] = {
      {0, 20000, 400, 6, "vResEndingBal", 8199.1, 8199.2},
      {8000, 20000, 400, 0, "vResIntRate", 5.581, 5.581},
      {8000, 20000, 400, 6, "vResPayment", 405, 405.1},
      {8000, 20000, 0, 6, "vResPayment", 405, 405.1},
      {8000, 0, 400, 6, "vResPrincipal", 19833, 19834},
      {8000, 0, 0, 6, "vResPeriod", 0, 0},
      {0, 0, 400, 6, "vResEndingBal", 0, 0},
      {0, 20000, 0, 6, "vResPrincipal", 0, 0},
  };
  const auto ask = [](double principal, double payment, double months, double rate, double prepays,
                      double residual) {
    return Ask("MonthlyLeaseCalculator", {"", principal, payment, months, rate, prepays, residual});
  };
  for (const auto& row : rows) {
    const Answer answer = ask(row.principal, row.payment, 36, row.rate, 0, row.residual);
    EXPECT_GE(answer.Number(row.found), row.low) << row.found;
    EXPECT_LE(answer.Number(row.found), row.high) << row.found;
  }
  const Answer cut = ask(900, 100, 3, 0, 5, 0);
  EXPECT_EQ(cut["vResPrepays"], Variant(std::int16_t{3}));
  EXPECT_EQ(cut.Number("vResEndingBal"), 600);
  // What is not solved is not converted either.
  EXPECT_EQ(ask(0, 0, 1e6, 0, 1e6, 0).error, ErrorNumber{});
  EXPECT_EQ(ask(900, 100, 0.5, 0, 0, 0)["vResPeriod"], Variant(1.0));
}

TEST(SimpleLease, RestatesTheRateForEachPairOfFrequencies) {
  const struct {
    int pay, interest;
    double periodsOfInterest, growths;  // interest periods a year, and how many of them in a payment period
  } rows[] = {
      {2, 1, 365, 7}, {2, 4, 52, 1}, {3, 2, 52, 2}, {3, 4, 26, 1}, {4, 4, 12, 1}, {4, 1, 365, 30},
      {4, 8, 1, 0},   {5, 4, 12, 2}, {5, 6, 6, 1},  {6, 4, 12, 3}, {6, 5, 4, 1},  {7, 5, 6, 3},
      {7, 6, 4, 2},   {7, 8, 2, 1},  {8, 7, 2, 2},  {8, 3, 1, 1},  {1, 4, 12, 0},
  };
  for (const auto& row : rows) {
    const Answer answer =
        Ask("SimpleLeaseCalculator", {"", 20000, 0, 12, 6, 0, 8000, Variant(), row.pay, row.interest});
    const double rate = 1200 * (std::pow(1 + 0.06 / row.periodsOfInterest, row.growths) - 1);
    EXPECT_NEAR(answer.Number("vResIntRate"), rate, 1e-9) << row.pay << ' ' << row.interest;
  }
  const Answer quarterly = Ask("SimpleLeaseCalculator", {"", 20000, 900, 4, 6, 1, 0, Variant(), 6, 4});
  const char* dates[] = {"01-31-2001", "01-31-2001", "04-30-2001", "07-31-2001", "10-31-2001", "01-31-2002"};
  for (int row = 0; row < 6; ++row)
    EXPECT_EQ(quarterly.Table("vDetArr").At(row, 1), Variant(dates[row])) << row;
}

TEST(Mortgages, SpendExactlyTheBudget) {
  const Answer budget = Ask("HomeAffordabilityCalculator", {1500, 1.2, 50, 25, 40000, 360, 7});
  const double principal = budget.Number("vNewPrincipal");
  EXPECT_NEAR(budget.Number("vNewPayment"), principal / AnnuityFactor(1 + 7.0 / 1200, 360), 0.00501);
  EXPECT_NEAR(budget.Number("vNewTaxes"), (principal + 40000) * 0.001, 0.00501);
  EXPECT_EQ(budget.Number("vNewFees"), 75);
  EXPECT_NEAR(budget.Number("vNewPayment") + budget.Number("vNewTaxes") + 75, 1500, 0.02);

  // 36 % of income less debts binds: 0.36 * (5000 - 2000) = 1080.
  const Answer qualified =
      Ask("MortgageQualificationCalculator", {"60,000", 1200, 0, 0, 800, 0, 0, 0, 0, 180, 6});
  EXPECT_NEAR(qualified.Number("vNewPayment"), 1080, 0.01);
  EXPECT_EQ(Ask("HomeAffordabilityCalculator", {1500}).error, ErrorNumber::DivisionByZero);
}

TEST(PaymentGrid, IsCentredOnTheQuestion) {
  const auto ask = [](double stepsX) {
    return Ask("PaymentGridCalculator", {120000, 20000, 7, 360, 1000, 0.5, stepsX, 1});
  };
  const Answer answer = ask(2);
  const Array& grid = answer.Table("vGrid");
  EXPECT_EQ(grid.Dimension(1), (Bounds{0, 5}));
  EXPECT_EQ(grid.Dimension(2), (Bounds{0, 3}));
  for (int i = 1; i <= 5; ++i) {
    for (int j = 1; j <= 3; ++j) {
      const Answer loan = Ask(kSimpleLoan, {"", 120000.0 - 18000 - j * 1000, 0, 360, 5.5 + i * 0.5});
      EXPECT_EQ(grid.At(i, j), loan["vResPayment"]) << i << ' ' << j;
    }
  }
  EXPECT_EQ(answer["vPrincipal"], Variant(120000));
  EXPECT_EQ(ask(1.5).LastRow("vGrid"), 4);
  EXPECT_EQ(ask(20000).error, ErrorNumber::Overflow);
}

}  // namespace
}  // namespace amortix2
