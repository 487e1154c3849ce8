#include <cmath>

#include "amortix2/engine/payment_factors.h"
#include "calculators/ask.h"

namespace amortix2 {
namespace {

using Inputs = std::map<std::string_view, Variant>;

Answer With(std::string_view method, Inputs inputs, const Inputs& changes) {
  for (const auto& [name, value] : changes) inputs[name] = value;
  return Ask(method, inputs);
}

const Inputs kCurrent{{"vCurrBal", 100000}, {"vCurrPay", 843.86}, {"vCurrRate", 6}};

TEST(Refinancing, AnEqualLoanChangesNothing) {
  const Answer same = With("RefinancingCalculator", kCurrent, {{"vNewRate", 6}, {"vNewTerm", 180}});
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(same.Cell("vGrid", row, 3), 0) << row;
  EXPECT_NEAR(same.Cell("vGrid", 4, 3), 0, 1);
  EXPECT_EQ(same.Table("vGrid").At(0, 1), Variant());
  EXPECT_EQ(same.Table("vCurrDet").Dimension(1).upper, 180);
}

TEST(Refinancing, WeighsTheCostsOfBothLoans) {
  const Inputs cheaper{{"vNewRate", 5}, {"vNewTerm", 180}, {"vNewPoints", 1}, {"vNewFees", 250}};
  const Answer plain = With("RefinancingCalculator", kCurrent, cheaper);
  EXPECT_GT(plain.Cell("vGrid", 1, 3), 0);
  EXPECT_EQ(plain.Cell("vGrid", 2, 3), -1250);
  // With no growth and no tax, a loan kept to its end costs what is paid.
  double paid = 0;
  for (int row = 0; row <= 180; ++row) paid += plain.Cell("vNewDet", row, 2);
  EXPECT_NEAR(plain.Cell("vGrid", 4, 2), paid + plain.Cell("vNewDet", 180, 5), 1e-6);

  // Where money earns the loan's own rate, a loan costs its balance, however long it is kept.
  for (const Variant& months : {Variant(0), Variant(60), Variant(MakeDate(2005, 6, 1))}) {
    const Answer grown =
        With("RefinancingCalculator", kCurrent,
             {{"vNewRate", 6}, {"vNewTerm", 180}, {"vInvGrowthRate", 6}, {"vSellByDate", months}});
    EXPECT_NEAR(grown.Cell("vGrid", 4, 1), 100000, 0.2);
  }
  // The tax saved on interest is the tax rate's share of it.
  const Answer taxed =
      With("RefinancingCalculator", kCurrent, {{"vIncTaxRate", 25}, {"vNewTerm", 180}, {"vNewRate", 6}});
  double interest = 0;
  for (int row = 0; row <= 180; ++row) interest += taxed.Cell("vCurrDet", row, 4);
  const Answer untaxed = With("RefinancingCalculator", kCurrent, {{"vNewTerm", 180}, {"vNewRate", 6}});
  EXPECT_NEAR(untaxed.Cell("vGrid", 4, 1) - taxed.Cell("vGrid", 4, 1), 0.25 * interest, 1e-6);
}

TEST(PrePay, ShortensTheLoan) {
  const Answer none = With("PrePayCalculator", kCurrent, {{"vExtraPayment", "nothing"}});
  for (int row = 1; row <= 4; ++row) EXPECT_EQ(none.Cell("vGrid", row, 3), 0) << row;
  const Answer more = With("PrePayCalculator", kCurrent, {{"vExtraPayment", 100}});
  EXPECT_NEAR(more.Cell("vGrid", 1, 3), -100, 1e-9);
  // n = -ln(1 - B i / P) / ln(1 + i), the last part of a payment counting from a quarter on.
  const double months = -std::log(1 - 100000 * 0.005 / 943.86) / std::log(1.005);
  EXPECT_NEAR(more.Cell("vGrid", 3, 2), months, 0.8);
  EXPECT_EQ(more.Cell("vGrid", 3, 3), 180 - more.Cell("vGrid", 3, 2));
  EXPECT_EQ(more.Table("vNewDet").Dimension(1).upper, more.Cell("vGrid", 3, 2));
  EXPECT_NEAR(more.Cell("vNewDet", static_cast<int>(more.Cell("vGrid", 3, 2)), 5), 0, 1e-9);

  const Answer never = Ask("PrePayCalculator", {{"vCurrBal", 1000}, {"vCurrPay", 1}, {"vCurrRate", 12}});
  EXPECT_EQ(never.Cell("vGrid", 3, 1), 1);
  EXPECT_EQ(never.Cell("vGrid", 1, 1), 1010);
}

TEST(FastPrePay, ReachesItsTarget) {
  Inputs inputs{{"currBal", 100000}, {"currPay", "843.86"}, {"currRate", 6}, {"targetPeriod", 120}};
  const Answer answer = Ask("FastPrePayCalculator", inputs);
  EXPECT_EQ(answer.Cell("grid", 3, 2), 120);
  EXPECT_EQ(answer.Cell("grid", 1, 2), 1110.21);
  EXPECT_EQ(answer["currPay"], Variant(843.86));
  for (const Variant& target : {Variant(240), Variant(0), Variant()}) {
    inputs["targetPeriod"] = target;
    EXPECT_EQ(Ask("FastPrePayCalculator", inputs).Cell("grid", 3, 3), 0);
  }
}

TEST(BiWeekly, EndsYearsSooner) {
  const Inputs loan{{"vCurrBal", 100000}, {"vCurrPay", 599.55}, {"vCurrRate", 6}};
  const Answer answer = With("BiWeeklyComparison", loan, {{"vNewFees", 300}, {"vPaymentDate", "1/31/2001"}});
  EXPECT_EQ(answer.Cell("vGrid", 1, 3), 0);
  EXPECT_EQ(answer.Cell("vGrid", 2, 3), -300);
  EXPECT_EQ(answer.Cell("vGrid", 3, 1), 360);
  EXPECT_NEAR(answer.Cell("vGrid", 3, 3), 66,
              3);  // a thirteenth payment a year shortens 6 % by some 5 1/2 years
  EXPECT_EQ(answer.Table("vNewDet").At(1, 1), Variant("02-14-2001"));
  EXPECT_EQ(answer.Table("vNewDet").At(2, 1), Variant("02-28-2001"));
  EXPECT_NEAR(answer.Cell("vNewDet", answer.Table("vNewDet").Dimension(1).upper, 5), 0, 1e-9);
  // At its own rate as growth the plan costs little more than its balance: interest by days compounds more
  // often.
  const Answer grown = With("BiWeeklyComparison", loan, {{"vInvGrowthRate", 6}});
  EXPECT_NEAR(grown.Cell("vGrid", 4, 2), 100075.24, 0.1);
}

TEST(Offers, DifferInTheDirectionOfEachCalculator) {
  const Inputs offers{{"vPurchaseAmt", 120000}, {"vDownpayment1", 20000}, {"vDownpayment2", 20000},
                      {"vPeriod1", 360},        {"vIntRate1", 7},         {"vPoints1", 2},
                      {"vPeriod2", 180},        {"vIntRate2", 7},         {"vFees2", 100}};
  const Answer fixed = Ask("PointsAdvisor", offers);
  const Answer adjustable = Ask("ARMComparison", offers);
  for (int row = 1; row <= 5; ++row) {
    EXPECT_EQ(fixed.Cell("vGrid", row, 3), fixed.Cell("vGrid", row, 2) - fixed.Cell("vGrid", row, 1));
    EXPECT_EQ(adjustable.Cell("vGrid", row, 3), -fixed.Cell("vGrid", row, 3));
  }
  EXPECT_GT(fixed.Cell("vGrid", 1, 3), 0);
  EXPECT_EQ(fixed.Cell("vGrid", 2, 1), 2000);
  EXPECT_EQ(fixed.Table("vNewDet").Dimension(1).upper, 360);
  EXPECT_EQ(fixed.Table("vCurrDet").Dimension(1).upper, 180);
  EXPECT_EQ(fixed.Table("vNewDet").Dimension(2).upper, 5);
  // The APR discounts the payments to the money received, to a thousandth of a percent.
  const double payment = fixed.Cell("vGrid", 1, 1);
  const double apr = fixed.Cell("vGrid", 5, 1);
  EXPECT_GT(payment * AnnuityFactor(1 + (apr - 0.001) / 1200, 360), 98000);
  EXPECT_LT(payment * AnnuityFactor(1 + (apr + 0.001) / 1200, 360), 98000);

  const Answer rising =
      With("ARMComparison", offers, {{"vRateInc1", 1}, {"vIncDelay1", 24}, {"vRateCap1", 8.5}});
  EXPECT_NEAR(rising.Cell("vNewDet", 23, 6), 7, 1e-9);
  EXPECT_NEAR(rising.Cell("vNewDet", 24, 6), 8, 1e-9);
  EXPECT_NEAR(rising.Cell("vNewDet", 48, 6), 8.5, 1e-9);
  EXPECT_NEAR(rising.Cell("vCurrDet", 48, 6), 7, 1e-9);
}

TEST(Offers, EmptyOffersAreAnsweredOrRaise) {
  const Inputs paid{{"vPurchaseAmt", 1000}, {"vDownpayment1", 1000}, {"vDownpayment2", 1000}};
  EXPECT_EQ(With("PointsAdvisor", paid, {{"vPeriod1", 12}, {"vPeriod2", 12}}).Cell("vGrid", 5, 1), 0);
  const Answer noTerm = Ask("PointsAdvisor", {{"vPurchaseAmt", 1000}});
  EXPECT_EQ(noTerm.error, ErrorNumber::DivisionByZero);
  EXPECT_EQ(noTerm["vGrid"], Variant());
}

}  // namespace
}  // namespace amortix2
