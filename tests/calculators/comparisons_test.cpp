#include <cmath>

#include "amortix2/engine/payment_factors.h"
#include "calculators/ask.h"

namespace amortix2 {
namespace {

/// 100000 at 6 %, paid off in 180 months, against a loan of as many months.
Answer Refinance(double rate, double points = 0, double fees = 0, double tax = 0, double growth = 0,
                 const Variant& months = 0) {
  return Ask("RefinancingCalculator", {100000, 843.86, 6, rate, points, fees, 180, tax, growth, months});
}

double Sum(const Answer& answer, std::string_view table, int column) {
  double sum = 0;
  for (int row = 0; row <= answer.LastRow(table); ++row) sum += answer.Cell(table, row, column);
  return sum;
}

TEST(Refinancing, WeighsTheCostsOfBothLoans) {
  const Answer same = Refinance(6);
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(same.Cell("vGrid", row, 3), 0) << row;
  EXPECT_NEAR(same.Cell("vGrid", 4, 3), 0, 1);
  EXPECT_EQ(same.Table("vGrid").At(0, 1), Variant());
  EXPECT_EQ(same.LastRow("vCurrDet"), 180);

  const Answer cheaper = Refinance(5, 1, 250);
  EXPECT_NEAR(cheaper.Cell("vGrid", 1, 3), 843.86 - 790.79, 1e-9);
  EXPECT_EQ(cheaper.Cell("vGrid", 2, 3), -1250);
  // With no growth and no tax, a loan kept to its end costs what is paid.
  EXPECT_NEAR(cheaper.Cell("vGrid", 4, 2), Sum(cheaper, "vNewDet", 2) + cheaper.Cell("vNewDet", 180, 5),
              1e-6);
  // Where money earns the loan's own rate, a loan costs its balance, however long it is kept.
  for (const Variant& months : {Variant(0), Variant(60), Variant(MakeDate(2005, 6, 1))})
    EXPECT_NEAR(Refinance(6, 0, 0, 0, 6, months).Cell("vGrid", 4, 1), 100000, 0.2);
  // The tax saved on interest is the tax rate's share of it.
  const double saved = same.Cell("vGrid", 4, 1) - Refinance(6, 0, 0, 25).Cell("vGrid", 4, 1);
  EXPECT_NEAR(saved, 0.25 * Sum(same, "vCurrDet", 4), 1e-6);
}

TEST(PrePay, ShortensTheLoan) {
  const auto ask = [](const Variant& extra) { return Ask("PrePayCalculator", {100000, 843.86, 6, extra}); };
  const Answer none = ask("nothing");
  for (int row = 1; row <= 4; ++row) EXPECT_EQ(none.Cell("vGrid", row, 3), 0) << row;
  const Answer more = ask(100);
  EXPECT_NEAR(more.Cell("vGrid", 1, 3), -100, 1e-9);
  // n = -ln(1 - B i / P) / ln(1 + i), the last part of a payment counting from a quarter on.
  const double months = -std::log(1 - 100000 * 0.005 / 943.86) / std::log(1.005);
  EXPECT_NEAR(more.Cell("vGrid", 3, 2), months, 0.8);
  EXPECT_EQ(more.Cell("vGrid", 3, 3), 180 - more.Cell("vGrid", 3, 2));
  EXPECT_EQ(more.LastRow("vNewDet"), more.Cell("vGrid", 3, 2));
  EXPECT_NEAR(more.Cell("vNewDet", more.LastRow("vNewDet"), 5), 0, 1e-9);

  const Answer never = Ask("PrePayCalculator", {1000, 1, 12});
  EXPECT_EQ(never.Cell("vGrid", 3, 1), 1);
  EXPECT_EQ(never.Cell("vGrid", 1, 1), 1010);
}

TEST(FastPrePay, ReachesItsTarget) {
  const auto ask = [](const Variant& target) {
    return Ask("FastPrePayCalculator", {100000, "843.86", 6, target});
  };
  const Answer answer = ask(120);
  EXPECT_EQ(answer.Cell("grid", 3, 2), 120);
  EXPECT_EQ(answer.Cell("grid", 1, 2), 1110.21);
  EXPECT_EQ(answer["currPay"], Variant(843.86));
  for (const Variant& target : {Variant(240), Variant(0), Variant()})
    EXPECT_EQ(ask(target).Cell("grid", 3, 3), 0);
}

TEST(BiWeekly, EndsYearsSooner) {
  const auto ask = [](double growth) {
    return Ask("BiWeeklyComparison", {100000, 599.55, 6, "1/31/2001", 300, Variant(), 0, growth});
  };
  const Answer answer = ask(0);
  EXPECT_EQ(answer.Cell("vGrid", 1, 3), 0);
  EXPECT_EQ(answer.Cell("vGrid", 2, 3), -300);
  EXPECT_EQ(answer.Cell("vGrid", 3, 1), 360);
  EXPECT_NEAR(answer.Cell("vGrid", 3, 3), 66,
              3);  // a thirteenth payment a year saves some 5 1/2 years at 6 %
  EXPECT_EQ(answer.Table("vNewDet").At(1, 1), Variant("02-14-2001"));
  EXPECT_EQ(answer.Table("vNewDet").At(2, 1), Variant("02-28-2001"));
  EXPECT_NEAR(answer.Cell("vNewDet", answer.LastRow("vNewDet"), 5), 0, 1e-9);
  // At its own rate as growth the plan costs little more than balance and fee: interest by days compounds
  // more often.
  EXPECT_NEAR(ask(6).Cell("vGrid", 4, 2), 100375.24, 0.1);
}

TEST(Offers, DifferInTheDirectionOfEachCalculator) {
  const Answer fixed = Ask("PointsAdvisor", {120000, 0, 0, 20000, 360, 7, 2, 0, 20000, 180, 7, 0, 100});
  const auto adjust = [](double increase, double delay, double cap) {
    return Ask("ARMComparison",
               {120000, 0, 0, 20000, 360, 7, 2, 0, increase, delay, cap, 20000, 180, 7, 0, 100});
  };
  const Answer adjustable = adjust(0, 0, 0);
  for (int row = 1; row <= 5; ++row) {
    EXPECT_EQ(fixed.Cell("vGrid", row, 3), fixed.Cell("vGrid", row, 2) - fixed.Cell("vGrid", row, 1));
    EXPECT_EQ(adjustable.Cell("vGrid", row, 3), -fixed.Cell("vGrid", row, 3));
  }
  EXPECT_GT(fixed.Cell("vGrid", 1, 3), 0);
  EXPECT_EQ(fixed.Cell("vGrid", 2, 1), 2000);
  EXPECT_EQ(fixed.LastRow("vNewDet"), 360);
  EXPECT_EQ(fixed.LastRow("vCurrDet"), 180);
  EXPECT_EQ(fixed.Table("vNewDet").Dimension(2).upper, 5);
  // The APR discounts the payments to the money received, to a thousandth of a percent.
  const double payment = fixed.Cell("vGrid", 1, 1);
  const double apr = fixed.Cell("vGrid", 5, 1);
  EXPECT_GT(payment * AnnuityFactor(1 + (apr - 0.001) / 1200, 360), 98000);
  EXPECT_LT(payment * AnnuityFactor(1 + (apr + 0.001) / 1200, 360), 98000);

  const Answer rising = adjust(1, 24, 8.5);
  for (const auto& [line, rate] : {std::pair{23, 7.0}, {24, 8.0}, {48, 8.5}})
    EXPECT_NEAR(rising.Cell("vNewDet", line, 6), rate, 1e-9);
  EXPECT_NEAR(rising.Cell("vCurrDet", 48, 6), 7, 1e-9);
}

TEST(Offers, EmptyOffersAreAnsweredOrRaise) {
  const Answer paid = Ask("PointsAdvisor", {1000, 0, 0, 1000, 12, 0, 0, 0, 1000, 12});
  EXPECT_EQ(paid.Cell("vGrid", 5, 1), 0);
  const Answer noTerm = Ask("PointsAdvisor", {1000});
  EXPECT_EQ(noTerm.error, ErrorNumber::DivisionByZero);
  EXPECT_EQ(noTerm["vGrid"], Variant());
}

}  // namespace
}  // namespace amortix2
