#include "amortix2/calculators/comparisons.h"

#include "amortix2/calculators/loans.h"
#include "amortix2/calculators/work.h"
#include "amortix2/engine/rounding.h"

namespace amortix2::calculators {
namespace {

enum class Difference { FirstLessSecond, SecondLessFirst };

constexpr std::int32_t kGridColumns = 3;

double UpFrontCost(const tLoanDesc& loan) { return loan.schedule.front().intCharged; }

/// The grid of two solved loans: four rows, and the annual percentage rate where the loans have one.
Array ComparisonGrid(const tLoanDesc& first, const tLoanDesc& second, Difference difference, bool hasRates) {
  const auto writeRow = [&](Array& grid, std::int32_t row, double a, double b) {
    grid.At(row, 1) = a;
    grid.At(row, 2) = b;
    grid.At(row, kGridColumns) = Finite(difference == Difference::FirstLessSecond ? a - b : b - a);
  };
  Array grid = Table(hasRates ? 5 : 4, kGridColumns);
  writeRow(grid, 1, first.payment, second.payment);
  writeRow(grid, 2, UpFrontCost(first), UpFrontCost(second));
  writeRow(grid, 3, first.period, second.period);
  writeRow(grid, 4, first.totLoanCostPV, second.totLoanCostPV);
  if (hasRates) writeRow(grid, 5, first.APR, second.APR);
  return grid;
}

/// The three results of a comparison, written together.
struct ComparisonResults {
  Variant& grid;
  Variant& currDet;
  Variant& newDet;

  void Write(Array table, Array currentDetail, Array newDetail) {
    grid = std::move(table);
    currDet = std::move(currentDetail);
    newDet = std::move(newDetail);
  }
};

/// Two loans of which loan 1 is proposed and loan 2 is the one that the borrower has.
struct CurrentAndNew {
  Work work = Work::ForLoans(2);
  tLoanDesc& proposed = work.loans.At(1);
  tLoanDesc& current = work.loans.At(2);

  CurrentAndNew(Date startDate, const Variant& balance, const Variant& payment, const Variant& rate,
                const Variant& taxRate, const Variant& growthRate, const Variant& monthsToKeep) {
    current.typ = simpleLoan;
    current.startDate = startDate;
    current.startingBalance = NumericOrZero(balance);
    current.payment = NumericOrZero(payment);
    current.intRate = NumericOrZero(rate);
    current.period = UNKNOWNLOANVALUE;
    current.taxRate = NumericOrZero(taxRate);
    // Until the calculator says otherwise the proposal is the same loan.
    proposed = current;
    work.qualification.monthsToKeep = NumericOrZero(monthsToKeep);
    work.qualification.investmentGrowthRate = NumericOrZero(growthRate);
  }

  CurrentAndNew(const CurrentAndNew&) = delete;

  void Compare(enumAmortixType type, ComparisonResults results) {
    work.Solve(type);
    Array grid = ComparisonGrid(current, proposed, Difference::FirstLessSecond, false);
    // A bi-weekly schedule has more lines than its term has months.
    Array newDetail = proposed.typ == biWeekly
                          ? Detail(proposed, static_cast<std::int32_t>(proposed.schedule.size()) - 1)
                          : DetailOfTerm(proposed);
    results.Write(std::move(grid), DetailOfTerm(current), std::move(newDetail));
  }
};

/// One of two offers for the same purchase.
void FillOffer(tLoanDesc& loan, const Clock& clock, const Variant& purchaseAmt, const Variant& taxRate,
               const Variant& downPayment, const Variant& period, const Variant& rate, const Variant& points,
               const Variant& fees) {
  loan.typ = simpleLoan;
  loan.startDate = clock.Today();
  loan.payment = UNKNOWNLOANVALUE;
  loan.APR = UNKNOWNLOANVALUE;
  loan.taxRate = NumericOrZero(taxRate);
  loan.startingBalance = Finite(NumericOrZero(purchaseAmt) - NumericOrZero(downPayment));
  loan.period = NumericOrZero(period);
  loan.intRate = NumericOrZero(rate);
  loan.points = NumericOrZero(points);
  loan.flatFee = NumericOrZero(fees);
}

/// The first change and the later ones are alike.
void AdjustRate(tLoanDesc& loan, const Variant& increase, const Variant& delay, const Variant& cap) {
  loan.firstRatePeriod = loan.subsequentRatePeriod = NumericOrZero(delay);
  loan.firstRateIncrease = loan.subsequentRateIncrease = NumericOrZero(increase);
  loan.intRateMaximum = NumericOrZero(cap);
}

void CompareOffers(Work& work, const Variant& monthsToKeep, Difference difference, std::int32_t lastColumn,
                   ComparisonResults results) {
  work.qualification.monthsToKeep = NumericOrZero(monthsToKeep);
  work.Solve(LoanCalculator);
  const tLoanDesc& first = work.loans.At(1);
  const tLoanDesc& second = work.loans.At(2);
  Array grid = ComparisonGrid(first, second, difference, true);
  Array firstDetail = DetailOfTerm(first, lastColumn);
  results.Write(std::move(grid), DetailOfTerm(second, lastColumn), std::move(firstDetail));
}

}  // namespace

void RefinancingCalculator(const Clock& clock, const Variant& vCurrBal, const Variant& vCurrPay,
                           const Variant& vCurrRate, const Variant& vNewRate, const Variant& vNewPoints,
                           const Variant& vNewFees, const Variant& vNewTerm, const Variant& vIncTaxRate,
                           const Variant& vInvGrowthRate, const Variant& vSellByDate, Variant& vGrid,
                           Variant& vCurrDet, Variant& vNewDet) {
  CurrentAndNew loans(clock.Today(), vCurrBal, vCurrPay, vCurrRate, vIncTaxRate, vInvGrowthRate, vSellByDate);
  tLoanDesc& proposed = loans.proposed;
  proposed.payment = UNKNOWNLOANVALUE;
  proposed.intRate = NumericOrZero(vNewRate);
  proposed.points = NumericOrZero(vNewPoints);
  proposed.flatFee = NumericOrZero(vNewFees);
  proposed.period = NumericOrZero(vNewTerm);
  loans.Compare(LoanConsolidation, {vGrid, vCurrDet, vNewDet});
}

void PrePayCalculator(const Clock& clock, const Variant& vCurrBal, const Variant& vCurrPay,
                      const Variant& vCurrRate, const Variant& vExtraPayment, const Variant& vIncTaxRate,
                      const Variant& vInvGrowthRate, const Variant& vSellByDate, Variant& vGrid,
                      Variant& vCurrDet, Variant& vNewDet) {
  CurrentAndNew loans(clock.Today(), vCurrBal, vCurrPay, vCurrRate, vIncTaxRate, vInvGrowthRate, vSellByDate);
  loans.proposed.payment = Finite(loans.current.payment + NumericOrZero(vExtraPayment));
  loans.Compare(LoanCalculator, {vGrid, vCurrDet, vNewDet});
}

void FastPrePayCalculator(const Clock& clock, Variant& currBal, Variant& currPay, Variant& currRate,
                          Variant& targetPeriod, Variant& taxRate, Variant& invRate, Variant& keep,
                          Variant& grid, Variant& currdet, Variant& newdet) {
  Variant amount, payment, period, rate, totalPayments, totalInterest, detail;
  SimpleLoanCalculator(clock, kNull, currBal, std::int16_t{0}, targetPeriod, currRate, amount, payment,
                       period, rate, totalPayments, totalInterest, detail);
  const double current = NumericOrZero(currPay);
  currPay = current;
  const double needed = NumericOrZero(payment);
  const double extra = needed < current ? 0 : Finite(needed - current);
  PrePayCalculator(clock, currBal, currPay, currRate, extra, taxRate, invRate, keep, grid, currdet, newdet);
}

void BiWeeklyComparison(const Clock& clock, const Variant& vCurrBal, const Variant& vCurrPay,
                        const Variant& vCurrRate, const Variant& vPaymentDate, const Variant& vNewFees,
                        const Variant& vSwitchDate, const Variant& vIncTaxRate, const Variant& vInvGrowthRate,
                        const Variant& vSellByDate, Variant& vGrid, Variant& vCurrDet, Variant& vNewDet) {
  CurrentAndNew loans(DateOrToday(vPaymentDate, clock), vCurrBal, vCurrPay, vCurrRate, vIncTaxRate,
                      vInvGrowthRate, vSellByDate);
  loans.proposed.typ = biWeekly;
  loans.proposed.biweeklyDate = DateOrToday(vSwitchDate, clock);
  loans.proposed.flatFee = NumericOrZero(vNewFees);
  loans.Compare(LoanConsolidation, {vGrid, vCurrDet, vNewDet});
}

void PointsAdvisor(const Clock& clock, const Variant& vPurchaseAmt, const Variant& vIncTaxRate,
                   const Variant& vSellByDate, const Variant& vDownpayment1, const Variant& vPeriod1,
                   const Variant& vIntRate1, const Variant& vPoints1, const Variant& vFees1,
                   const Variant& vDownpayment2, const Variant& vPeriod2, const Variant& vIntRate2,
                   const Variant& vPoints2, const Variant& vFees2, Variant& vGrid, Variant& vCurrDet,
                   Variant& vNewDet) {
  Work work = Work::ForLoans(2);
  FillOffer(work.loans.At(1), clock, vPurchaseAmt, vIncTaxRate, vDownpayment1, vPeriod1, vIntRate1, vPoints1,
            vFees1);
  FillOffer(work.loans.At(2), clock, vPurchaseAmt, vIncTaxRate, vDownpayment2, vPeriod2, vIntRate2, vPoints2,
            vFees2);
  CompareOffers(work, vSellByDate, Difference::SecondLessFirst, kDetailColumns, {vGrid, vCurrDet, vNewDet});
}

void ARMComparison(const Clock& clock, const Variant& vPurchaseAmt, const Variant& vIncTaxRate,
                   const Variant& vSellByDate, const Variant& vDownpayment1, const Variant& vPeriod1,
                   const Variant& vIntRate1, const Variant& vPoints1, const Variant& vFees1,
                   const Variant& vRateInc1, const Variant& vIncDelay1, const Variant& vRateCap1,
                   const Variant& vDownpayment2, const Variant& vPeriod2, const Variant& vIntRate2,
                   const Variant& vPoints2, const Variant& vFees2, const Variant& vRateInc2,
                   const Variant& vIncDelay2, const Variant& vRateCap2, Variant& vGrid, Variant& vCurrDet,
                   Variant& vNewDet) {
  Work work = Work::ForLoans(2);
  FillOffer(work.loans.At(1), clock, vPurchaseAmt, vIncTaxRate, vDownpayment1, vPeriod1, vIntRate1, vPoints1,
            vFees1);
  AdjustRate(work.loans.At(1), vRateInc1, vIncDelay1, vRateCap1);
  FillOffer(work.loans.At(2), clock, vPurchaseAmt, vIncTaxRate, vDownpayment2, vPeriod2, vIntRate2, vPoints2,
            vFees2);
  AdjustRate(work.loans.At(2), vRateInc2, vIncDelay2, vRateCap2);
  CompareOffers(work, vSellByDate, Difference::FirstLessSecond, kDetailColumnsWithRate,
                {vGrid, vCurrDet, vNewDet});
}

}  // namespace amortix2::calculators
