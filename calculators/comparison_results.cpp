#include "amortix2/calculators/comparison_results.h"

#include <utility>

#include "amortix2/automation/checked.h"
#include "amortix2/automation/conversion.h"

namespace amortix2::calculators {

tLoanDesc RecordOf(const CurrentLoan& current, const Outlook& outlook, Date startDate) {
  tLoanDesc loan;
  loan.typ = simpleLoan;
  loan.startDate = startDate;
  loan.startingBalance = current.balance;
  loan.payment = current.payment;
  loan.intRate = current.annualPercent;
  loan.period = UNKNOWNLOANVALUE;
  loan.taxRate = outlook.taxPercent;
  return loan;
}

tLoanDesc RecordOf(const NewLoan& proposed, const Outlook& outlook, Date startDate) {
  tLoanDesc loan;
  loan.typ = simpleLoan;
  loan.startDate = startDate;
  loan.payment = UNKNOWNLOANVALUE;
  loan.intRate = proposed.annualPercent;
  loan.points = proposed.points;
  loan.flatFee = proposed.fees;
  loan.period = proposed.months;
  loan.taxRate = outlook.taxPercent;
  return loan;
}

ComparedLoan Figures(tLoanDesc loan) {
  return {.payment = loan.payment,
          .upFrontCost = loan.schedule.front().intCharged,
          .months = loan.period,
          .costInTodaysMoney = loan.totLoanCostPV,
          .annualPercentageRate = loan.APR,
          .totalPayments = loan.totPayments,
          .totalInterest = loan.totIntCharged,
          .totalTaxSaved = loan.totTaxCredited,
          .schedule = std::move(loan.schedule)};
}

tCreditQualification HouseholdOf(const Outlook& outlook) {
  tCreditQualification household;
  household.monthsToKeep = outlook.monthsKept;
  household.investmentGrowthRate = outlook.growthPercent;
  return household;
}

Array ComparisonGrid(const ComparedLoan& first, const ComparedLoan& second, Difference difference,
                     bool hasRates) {
  Array grid = Table(hasRates ? 5 : 4, 3);
  const auto writeRow = [&](std::int32_t row, double ComparedLoan::*figure) {
    const double a = first.*figure;
    const double b = second.*figure;
    grid.At(row, 1) = a;
    grid.At(row, 2) = b;
    grid.At(row, 3) = Finite(difference == Difference::FirstLessSecond ? a - b : b - a);
  };
  writeRow(1, &ComparedLoan::payment);
  writeRow(2, &ComparedLoan::upFrontCost);
  writeRow(3, &ComparedLoan::months);
  writeRow(4, &ComparedLoan::costInTodaysMoney);
  if (hasRates) writeRow(5, &ComparedLoan::annualPercentageRate);
  return grid;
}

Variant TermTable(const Variant& result, const ComparedLoan& loan, std::int32_t lastColumn) {
  return LoanTable(result, loan.schedule, ToLong(loan.months), lastColumn);
}

}  // namespace amortix2::calculators
