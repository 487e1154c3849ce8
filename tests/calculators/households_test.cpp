#include <cmath>

#include "calculators/ask.h"

namespace amortix2 {
namespace {

using Inputs = std::map<std::string_view, Variant>;

Variant List(const std::vector<Variant>& elements, std::int32_t lower = 0) {
  Array list(Bounds{lower, lower + static_cast<std::int32_t>(elements.size()) - 1});
  std::copy(elements.begin(), elements.end(), list.Cells().begin());
  return list;
}

Inputs Changed(Inputs inputs, const Inputs& changes) {
  for (const auto& [name, value] : changes) inputs[name] = value;
  return inputs;
}

/// Row by row from (1, 1) on.
void ExpectGrid(const Answer& answer, std::string_view name, const std::vector<std::vector<double>>& rows) {
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t column = 0; column < rows[row].size(); ++column) {
      EXPECT_NEAR(answer.Cell(name, static_cast<int>(row) + 1, static_cast<int>(column) + 1),
                  rows[row][column], 5.1e-7)
          << name << ' ' << row + 1 << ' ' << column + 1;
    }
  }
  EXPECT_EQ(answer.Table(name).Dimension(1).upper, std::ssize(rows));
  EXPECT_EQ(answer.Table(name).Dimension(2).upper, std::ssize(rows.front()));
  EXPECT_EQ(answer.Table(name).At(0, 0), Variant());
}

// ---- Consolidation

const Inputs kThreeDebts{{"vCurrBal", List({8000, "12000", 5000})},
                         {"vCurrPay", List({240, 380, 170, 1}, -3)},
                         {"vCurrRate", List({18.9, 8.5, 12}, 1)},
                         {"vNewRate", 9},
                         {"vNewPoints", 1},
                         {"vNewFees", 150},
                         {"vNewTerm", 60},
                         {"vInvGrowthRate", 4}};

Answer Consolidate(const Inputs& changes) {
  return Ask("LoanConsolidationCalculator", Changed(kThreeDebts, changes));
}

// Figures computed independently.
TEST(Consolidation, SetsEachLoanAndAllBesideTheNewOne) {
  const Answer three = Consolidate({});
  ExpectGrid(three, "vGrid", {{518.96}, {400}, {60}, {28578.987467}});
  ExpectGrid(three, "vCurrGrid",
             {{240, 380, 170, 790},
              {0, 0, 0, 0},
              {48, 36, 35, 48},
              {10555.513363, 12827.769433, 5607.900167, 28991.182964}});
  EXPECT_EQ(three.Table("vCurrDet").Dimension(1), (Bounds{0, 48}));
  EXPECT_EQ(three.Table("vCurrDet").Dimension(2), (Bounds{0, 18}));
  const std::vector<double> secondLoan{380, 295, 85, 11705};
  for (int i = 0; i < 4; ++i) {
    EXPECT_NEAR(three.Cell("vCurrDet", 1, 8 + i), secondLoan[static_cast<std::size_t>(i)], 1e-9);
  }
  EXPECT_NEAR(three.Cell("vCurrDet", 36, 8), 331.39, 1e-9);
  EXPECT_EQ(three.Table("vCurrDet").At(36, 13), Variant());  // the third loan has ended
  EXPECT_NEAR(three.Cell("vNewDet", 60, 2), 518.89, 1e-9);

  const Answer two = Ask("LoanConsolidationCalculator", {{"vCurrBal", List({3500, 90000})},
                                                         {"vCurrPay", List({120, 900})},
                                                         {"vCurrRate", List({19.8, 7.25})},
                                                         {"vNewRate", 6.75},
                                                         {"vNewFees", 2000},
                                                         {"vNewTerm", 180},
                                                         {"vIncTaxRate", 28},
                                                         {"vInvGrowthRate", 5},
                                                         {"vSellByDate", 60}});
  ExpectGrid(two, "vGrid", {{827.39}, {2000}, {180}, {94980.708219}});
  ExpectGrid(two, "vCurrGrid",
             {{120, 900, 1020}, {0, 0, 0}, {40, 154, 154}, {4077.530893, 90764.350716, 94841.881608}});
}

TEST(Consolidation, OneLoanIsARefinancing) {
  for (const bool isList : {false, true}) {
    Inputs inputs = Changed(kThreeDebts, {{"vIncTaxRate", 25}, {"vSellByDate", 12}});
    const auto current = [&](double value) { return isList ? List({value}, 5) : Variant(value); };
    inputs["vCurrBal"] = current(8000);
    inputs["vCurrPay"] = current(240);
    inputs["vCurrRate"] = current(18.9);
    const Answer one = Ask("LoanConsolidationCalculator", inputs);
    for (const auto& [name, value] : Inputs{{"vCurrBal", 8000}, {"vCurrPay", 240}, {"vCurrRate", 18.9}}) {
      inputs[name] = value;
    }
    const Answer other = Ask("RefinancingCalculator", inputs);
    for (int row = 1; row <= 4; ++row) {
      EXPECT_EQ(one.Cell("vCurrGrid", row, 1), other.Cell("vGrid", row, 1));
      EXPECT_EQ(one.Cell("vCurrGrid", row, 2), other.Cell("vGrid", row, 1));
      EXPECT_EQ(one.Cell("vGrid", row, 1), other.Cell("vGrid", row, 2));
    }
    EXPECT_EQ(one["vNewDet"], other["vNewDet"]);
  }
}

TEST(Consolidation, EdgesOfItsLists) {
  const Answer turned = Consolidate({{"vCurrBal", List({5000, 8000, 12000})},
                                     {"vCurrPay", List({170, 240, 380})},
                                     {"vCurrRate", List({12, 18.9, 8.5})}});
  const Answer straight = Consolidate({});
  for (int row = 1; row <= 4; ++row) {
    EXPECT_NEAR(turned.Cell("vCurrGrid", row, 4), straight.Cell("vCurrGrid", row, 4), 1e-9);
  }
  const Answer none = Consolidate({{"vCurrBal", Array(Bounds{1, 0})}});
  EXPECT_EQ(none.Table("vCurrDet").Cells().size(), 1u);
  ExpectGrid(none, "vCurrGrid", {{0}, {0}, {0}, {0}});
  const Answer blank = Consolidate({{"vCurrBal", List({8000, ""})}, {"vCurrPay", List({240, kNull})}});
  EXPECT_EQ(blank.Cell("vCurrGrid", 3, 2), 1);
  EXPECT_EQ(blank.Cell("vCurrGrid", 4, 3), blank.Cell("vCurrGrid", 4, 1));
  const Answer tooLittle = Consolidate({{"vCurrBal", 3500}, {"vCurrPay", 50}, {"vCurrRate", 19.8}});
  EXPECT_NEAR(tooLittle.Cell("vCurrGrid", 1, 1), 3557.75, 1e-9);

  using enum ErrorNumber;
  const Variant many = List(std::vector<Variant>(2000, 100000));
  const std::pair<Inputs, ErrorNumber> bad[] = {
      {{{"vCurrRate", List({18.9, 8.5})}}, SubscriptOutOfRange},
      {{{"vCurrPay", 240}}, SubscriptOutOfRange},
      {{{"vCurrBal", Array({0, 2}, {0, 0})}}, SubscriptOutOfRange},
      {{{"vNewTerm", -1}}, SubscriptOutOfRange},
      {{{"vNewTerm", 0}}, DivisionByZero},
      {{{"vNewTerm", 0}, {"vCurrBal", List({0, 0, 0})}}, Overflow},
      {{{"vCurrPay", List({240, 0.001, 170})}, {"vCurrRate", List({0, 0, 0})}}, Overflow},
      {{{"vCurrBal", many},
        {"vCurrPay", List(std::vector<Variant>(2000, 70))},
        {"vCurrRate", List(std::vector<Variant>(2000, 0))}},
       OutOfMemory},
  };
  for (const auto& [changes, error] : bad) {
    const Answer answer = Consolidate(changes);
    EXPECT_EQ(answer.error, error);
    EXPECT_TRUE(answer.LeftResults());
  }
}

TEST(Consolidation, WhereMoneyGrowsAtEveryRateALoanCostsItsBalance) {
  const Answer answer = Consolidate({{"vCurrRate", List({6, 6, 6})},
                                     {"vInvGrowthRate", 6},
                                     {"vNewRate", 6},
                                     {"vNewPoints", 0},
                                     {"vNewFees", 0},
                                     {"vSellByDate", 20}});
  const std::vector<double> balances{8000, 12000, 5000, 25000};
  for (int i = 0; i < 4; ++i) {
    EXPECT_NEAR(answer.Cell("vCurrGrid", 4, i + 1), balances[static_cast<std::size_t>(i)], 0.3);
  }
  EXPECT_NEAR(answer.Cell("vGrid", 4, 1), 25000, 0.3);
}

// ---- Rent or buy

const Inputs kHome{{"vRent", 1200},          {"vRentInc", 3},         {"vRentInsurance", 15},
                   {"vPurchaseAmt", 200000}, {"vDownPayment", 40000}, {"vPeriod", 360},
                   {"vIntRate", 6.5},        {"vPoints", 1},          {"vFees", 1500},
                   {"vPropertyTax", 1.2},    {"vInsurance", 60},      {"vMaintenance", 150},
                   {"vHomeGrowthRate", 3},   {"vSellCost", 6},        {"vIncTaxRate", 25},
                   {"vInvGrowthRate", 5},    {"vSellByDate", 84}};

Answer Live(const Inputs& changes) { return Ask("RentVsBuyComparison", Changed(kHome, changes)); }

// Figures computed independently; the last row's by hand.
TEST(RentOrBuy, WeighsBothWays) {
  const Answer seven = Live({});
  ExpectGrid(seven, "vGrid",
             {{1200, 1011.31},
              {0, 43100},
              {84, 84},
              {93452.219573, 231825.474327},
              {15, 410},
              {110339.40, 88050.04},
              {0, 17803.97},
              {0, 102018.449935},
              {0, 163053.882471},
              {93452.219573, 68771.591855}});
  const double rents[] = {1200, 1236, 1273.08, 1311.27, 1350.61, 1391.13, 1432.86};
  for (int month = 1; month <= 84; ++month)
    EXPECT_EQ(seven.Cell("vRentDet", month, 2), rents[(month - 1) / 12]);
  EXPECT_EQ(seven.Table("vRentDet").At(84, 1), Variant("01-31-2008"));
  EXPECT_EQ(seven.Table("vRentDet").Dimension(1), (Bounds{0, 84}));
  EXPECT_EQ(seven.Table("vBuyDet").Dimension(1), (Bounds{0, 360}));

  ExpectGrid(Live({{"vSellByDate", 24}}), "vGrid",
             {{1200, 1011.31},
              {0, 43100},
              {24, 24},
              {28094.642899, 211736.308307},
              {15, 410},
              {29232, 27371.44},
              {0, 5543.7275},
              {0, 141458.614109},
              {0, 180506.596669},
              {28094.642899, 31229.711638}});
  const Answer cash = Ask("RentVsBuyComparison", {{"vRent", 1500},
                                                  {"vPurchaseAmt", 150000},
                                                  {"vDownPayment", 150000},
                                                  {"vPeriod", 360},
                                                  {"vPropertyTax", 1},
                                                  {"vInsurance", 50},
                                                  {"vDues", 100},
                                                  {"vSellByDate", 12}});
  ExpectGrid(cash, "vGrid",
             {{1500, 0},
              {0, 150000},
              {12, 12},
              {18000, 153300},
              {0, 275},
              {18000, 0},
              {0, 0},
              {0, 0},
              {0, 150000},
              {18000, 3300}});
}

TEST(RentOrBuy, FiguresHangTogether) {
  const Inputs still{{"vInvGrowthRate", 0}, {"vHomeGrowthRate", 0}};
  const Answer plain = Live(still);
  const auto buy = [&](int row) { return plain.Cell("vGrid", row, 2); };
  EXPECT_NEAR(buy(4) + buy(7), 40000 + buy(6) + 84 * buy(5) + buy(8), 1e-6);

  const Answer cash = Live(Changed(still, {{"vDownPayment", 200000}, {"vFees", 0}}));
  EXPECT_NEAR(cash.Cell("vGrid", 10, 2), 84 * cash.Cell("vGrid", 5, 2) + 12000, 1e-6);

  // I a month, discounted: an annuity.
  const double growth = 1 + 5.0 / 1200;
  EXPECT_NEAR(Live({{"vRent", 0}}).Cell("vGrid", 4, 1), 15 * (1 - std::pow(growth, -84)) / (growth - 1),
              1e-9);
  EXPECT_EQ(Live({{"vSellCost", 100}}).Cell("vGrid", 9, 2), 0);

  const std::pair<Variant, double> horizons[] = {
      {0, 360}, {0.5, 360}, {1, 1}, {1.5, 2}, {360, 360}, {361, 360}, {MakeDate(2005, 1, 1), 360}};
  for (const auto& [given, months] : horizons) {
    const Answer answer = Live({{"vSellByDate", given}});
    EXPECT_EQ(answer.Cell("vGrid", 3, 1), months);
    EXPECT_EQ(answer.Cell("vGrid", 3, 2), months);
    EXPECT_EQ(answer.Table("vRentDet").Dimension(1).upper, months);
  }

  using enum ErrorNumber;
  const std::pair<Inputs, ErrorNumber> bad[] = {
      {{{"vPeriod", 0}}, DivisionByZero},
      {{{"vPeriod", 0}, {"vDownPayment", 200000}}, Overflow},
      {{{"vPeriod", -12}}, SubscriptOutOfRange},
      {{{"vRent", 1e308}, {"vRentInc", 1e300}}, Overflow},
  };
  for (const auto& [changes, error] : bad) {
    const Answer answer = Live(changes);
    EXPECT_EQ(answer.error, error);
    EXPECT_TRUE(answer.LeftResults());
  }
}

}  // namespace
}  // namespace amortix2
