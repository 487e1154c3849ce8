#include "amortix2/calculators/rent_or_buy.h"

#include <utility>

#include "amortix2/automation/checked.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/comparison_results.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/loan_schedule.h"
#include "amortix2/engine/loan_solver.h"
#include "amortix2/engine/payment_factors.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {
namespace {

using namespace calculators;

/// Rents of `months` months, discounted as the engine discounts a loan's lines and charges.
WayToLive Renting(const Tenancy& tenancy, const Outlook& outlook, int months, Date startDate) {
  const double discountGrowth = MonthlyGrowth(outlook.growthPercent);
  double discount = 1;
  double rise = 1;
  WayToLive way{.payment = RoundToCents(tenancy.rent),
                .otherCharges = tenancy.chargesEachMonth,
                .schedule = Schedule(1)};
  way.schedule.front().lineDate = startDate;
  for (int month = 1; month <= months; ++month) {
    discount = Finite(discount * discountGrowth);
    tSchedule& line = way.schedule.emplace_back();
    line.lineDate = AdvanceDate(startDate, monthlyMode, month);
    line.payment = RoundToCents(rise * tenancy.rent);
    way.totalPayments += line.payment;
    way.costInTodaysMoney += Divide(line.payment, discount);
    way.costInTodaysMoney += Divide(tenancy.chargesEachMonth, discount);
    if (month % 12 == 0) rise *= 1 + tenancy.risePercent / 100;
  }
  way.totalPayments = Finite(way.totalPayments);
  way.costInTodaysMoney = way.netCost = Finite(way.costInTodaysMoney);
  return way;
}

tCreditQualification BuyersHousehold(const RentOrBuyQuestion& question) {
  const HomePurchase& home = question.buy;
  tCreditQualification household = HouseholdOf(question.outlook);
  household.downPaymentAmount = home.loan.downPayment;
  household.propertyTaxRate = home.propertyTaxPercent;
  household.insuranceCharge = home.insuranceEachMonth;
  household.associationDues = home.duesEachMonth;
  household.otherMonthlyLoanCharge = home.upkeepEachMonth;
  household.homeValueGrowthRate = home.valueGrowthPercent;
  return household;
}

WayToLive Buying(tLoanDesc loan, const tCreditQualification& household, double sellingCostPercent) {
  WayToLive way{.payment = loan.payment,
                .upFrontCost = Finite(household.downPaymentAmount + loan.schedule.front().intCharged),
                .otherCharges = Finite(household.propertyTaxCharge + household.insuranceCharge +
                                       household.associationDues + household.otherMonthlyLoanCharge),
                .costInTodaysMoney = loan.totLoanCostPV,
                .totalPayments = loan.totPayments,
                .totalTaxSaved = loan.totTaxCredited,
                .debtAtSaleToday = loan.balanceOwedAtSalePV,
                .proceedsOfSaleToday = Finite(loan.valueAtSalePV * (1 - sellingCostPercent / 100)),
                .schedule = std::move(loan.schedule)};
  way.netCost = Finite(way.costInTodaysMoney - way.proceedsOfSaleToday);
  return way;
}

Array GridOf(const RentOrBuyAnswer& answer) {
  Array grid = Table(10, 2);
  std::int32_t column = 1;
  for (const WayToLive* way : {&answer.rent, &answer.buy}) {
    const double rows[] = {way->payment,
                           way->upFrontCost,
                           answer.months,
                           way->costInTodaysMoney,
                           way->otherCharges,
                           way->totalPayments,
                           way->totalTaxSaved,
                           way->debtAtSaleToday,
                           way->proceedsOfSaleToday,
                           way->netCost};
    std::int32_t row = 1;
    for (const double figure : rows) grid.At(row++, column) = figure;
    ++column;
  }
  return grid;
}

}  // namespace

RentOrBuyAnswer Compare(const RentOrBuyQuestion& question) {
  const StandardArithmetic arithmetic;
  tLoanDesc loan = RecordOf(question.buy.loan);
  loan.startDate = question.startDate;
  loan.taxRate = question.outlook.taxPercent;
  tCreditQualification household = BuyersHousehold(question);
  SolveLoan(loan, household, true);
  const int term = ToInteger(loan.period);
  const int months = SaleMonth(question.outlook.monthsKept, term).value_or(term);
  return {.rent = Renting(question.rent, question.outlook, months, question.startDate),
          .buy = Buying(std::move(loan), household, question.buy.sellingCostPercent),
          .months = static_cast<double>(months),
          .loanMonths = static_cast<double>(term)};
}

void Calculator::RentVsBuyComparison(Number vRent, Number vRentInc, Number vRentInsurance,
                                     Number vPurchaseAmt, Number vDownPayment, Number vPeriod,
                                     Number vIntRate, Number vPoints, Number vFees, Number vPropertyTax,
                                     Number vInsurance, Number vDues, Number vMaintenance,
                                     Number vHomeGrowthRate, Number vSellCost, Number vIncTaxRate,
                                     Number vInvGrowthRate, Number vSellByDate, Variant& vGrid,
                                     Variant& vRentDet, Variant& vBuyDet) const {
  const RentOrBuyAnswer answer = Compare(RentOrBuyQuestion{
      .rent = {.rent = vRent, .risePercent = vRentInc, .chargesEachMonth = vRentInsurance},
      .buy = {.loan = {.price = vPurchaseAmt,
                       .downPayment = vDownPayment,
                       .months = vPeriod,
                       .annualPercent = vIntRate,
                       .points = vPoints,
                       .fees = vFees},
              .propertyTaxPercent = vPropertyTax,
              .insuranceEachMonth = vInsurance,
              .duesEachMonth = vDues,
              .upkeepEachMonth = vMaintenance,
              .valueGrowthPercent = vHomeGrowthRate,
              .sellingCostPercent = vSellCost},
      .outlook = {.taxPercent = vIncTaxRate, .growthPercent = vInvGrowthRate, .monthsKept = vSellByDate},
      .startDate = clock_.Today()});
  Array grid = GridOf(answer);
  Variant rentDetail = LoanTable(vRentDet, answer.rent.schedule, ToInteger(answer.months));
  Variant buyDetail = LoanTable(vBuyDet, answer.buy.schedule, ToInteger(answer.loanMonths));
  vGrid = std::move(grid);
  vRentDet = std::move(rentDetail);
  vBuyDet = std::move(buyDetail);
}

}  // namespace amortix2
