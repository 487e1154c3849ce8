// Two offers for one purchase.

#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/comparison_results.h"
#include "amortix2/engine/loan_solver.h"

namespace amortix2 {
namespace {

using namespace calculators;

ComparedLoan Solved(const PurchaseLoan& offer, const OfferQuestion& question) {
  tLoanDesc loan = RecordOf(offer);
  loan.startDate = question.startDate;
  loan.taxRate = question.outlook.taxPercent;
  loan.APR = UNKNOWNLOANVALUE;
  tCreditQualification household = HouseholdOf(question.outlook);
  SolveLoan(loan, household, true);
  return Figures(std::move(loan));
}

/// The first offer's table comes last.
void Write(const OfferComparison& answer, Difference difference, std::int32_t lastColumn, Variant& vGrid,
           Variant& vCurrDet, Variant& vNewDet) {
  Array grid = ComparisonGrid(answer.first, answer.second, difference, true);
  Variant firstDetail = TermTable(vNewDet, answer.first, lastColumn);
  Variant secondDetail = TermTable(vCurrDet, answer.second, lastColumn);
  vGrid = std::move(grid);
  vCurrDet = std::move(secondDetail);
  vNewDet = std::move(firstDetail);
}

/// The first change and the later ones are alike.
RateChanges EvenChanges(double increase, double delay, double cap) {
  return {.firstPayment = delay,
          .firstIncrease = increase,
          .everyMonths = delay,
          .laterIncrease = increase,
          .cap = cap};
}

}  // namespace

OfferComparison Compare(const OfferQuestion& question) {
  const StandardArithmetic arithmetic;
  return {Solved(question.first, question), Solved(question.second, question)};
}

void Calculator::PointsAdvisor(Number vPurchaseAmt, Number vIncTaxRate, Number vSellByDate,
                               Number vDownpayment1, Number vPeriod1, Number vIntRate1, Number vPoints1,
                               Number vFees1, Number vDownpayment2, Number vPeriod2, Number vIntRate2,
                               Number vPoints2, Number vFees2, Variant& vGrid, Variant& vCurrDet,
                               Variant& vNewDet) const {
  const OfferQuestion question{.first = {.price = vPurchaseAmt,
                                         .downPayment = vDownpayment1,
                                         .months = vPeriod1,
                                         .annualPercent = vIntRate1,
                                         .points = vPoints1,
                                         .fees = vFees1},
                               .second = {.price = vPurchaseAmt,
                                          .downPayment = vDownpayment2,
                                          .months = vPeriod2,
                                          .annualPercent = vIntRate2,
                                          .points = vPoints2,
                                          .fees = vFees2},
                               .outlook = {.taxPercent = vIncTaxRate, .monthsKept = vSellByDate},
                               .startDate = clock_.Today()};
  Write(Compare(question), Difference::SecondLessFirst, kDetailColumns, vGrid, vCurrDet, vNewDet);
}

void Calculator::ARMComparison(Number vPurchaseAmt, Number vIncTaxRate, Number vSellByDate,
                               Number vDownpayment1, Number vPeriod1, Number vIntRate1, Number vPoints1,
                               Number vFees1, Number vRateInc1, Number vIncDelay1, Number vRateCap1,
                               Number vDownpayment2, Number vPeriod2, Number vIntRate2, Number vPoints2,
                               Number vFees2, Number vRateInc2, Number vIncDelay2, Number vRateCap2,
                               Variant& vGrid, Variant& vCurrDet, Variant& vNewDet) const {
  const OfferQuestion question{.first = {.price = vPurchaseAmt,
                                         .downPayment = vDownpayment1,
                                         .months = vPeriod1,
                                         .annualPercent = vIntRate1,
                                         .points = vPoints1,
                                         .fees = vFees1,
                                         .changes = EvenChanges(vRateInc1, vIncDelay1, vRateCap1)},
                               .second = {.price = vPurchaseAmt,
                                          .downPayment = vDownpayment2,
                                          .months = vPeriod2,
                                          .annualPercent = vIntRate2,
                                          .points = vPoints2,
                                          .fees = vFees2,
                                          .changes = EvenChanges(vRateInc2, vIncDelay2, vRateCap2)},
                               .outlook = {.taxPercent = vIncTaxRate, .monthsKept = vSellByDate},
                               .startDate = clock_.Today()};
  Write(Compare(question), Difference::FirstLessSecond, kDetailColumnsWithRate, vGrid, vCurrDet, vNewDet);
}

}  // namespace amortix2
