// The loan that the borrower has against another one. All start as the same loan; what is proposed differs.

#include "amortix2/calculators/comparisons.h"

#include <utility>

#include "amortix2/automation/checked.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/comparison_results.h"
#include "amortix2/engine/loan_solver.h"

namespace amortix2 {
namespace {

using namespace calculators;

/// Solves the current loan, then a proposed one of the same balance.
LoanComparison Replaced(tLoanDesc current, tLoanDesc proposed, const Outlook& outlook) {
  tCreditQualification household = HouseholdOf(outlook);
  SolveLoan(current, household, true);
  proposed.startingBalance = current.startingBalance;
  SolveLoan(proposed, household, true);
  return {Figures(std::move(current)), Figures(std::move(proposed))};
}

double ExtraPayment(double needed, double payment) { return needed < payment ? 0 : Finite(needed - payment); }

/// The three results of a comparison, written together.
struct Results {
  Variant& grid;
  Variant& currDet;
  Variant& newDet;

  void Write(const LoanComparison& answer) const {
    const auto& [current, proposed] = answer;
    Array table = ComparisonGrid(current, proposed, Difference::FirstLessSecond, false);
    // A bi-weekly schedule has more lines than its term has months.
    Variant newDetail =
        LoanTable(newDet, proposed.schedule, static_cast<std::int32_t>(proposed.schedule.size()) - 1);
    Variant currentDetail = TermTable(currDet, current);
    grid = std::move(table);
    currDet = std::move(currentDetail);
    newDet = std::move(newDetail);
  }
};

}  // namespace

LoanComparison Compare(const RefinancingQuestion& question) {
  const StandardArithmetic arithmetic;
  const tLoanDesc current = RecordOf(question.current, question.outlook, question.startDate);
  const tLoanDesc proposed = RecordOf(question.proposed, question.outlook, question.startDate);
  return Replaced(current, proposed, question.outlook);
}

LoanComparison Compare(const PrepaymentQuestion& question) {
  const StandardArithmetic arithmetic;
  tLoanDesc current = RecordOf(question.current, question.outlook, question.startDate);
  tLoanDesc proposed = current;
  proposed.payment = Finite(current.payment + question.extraPayment);
  tCreditQualification household = HouseholdOf(question.outlook);
  SolveLoan(proposed, household, true);
  SolveLoan(current, household, true);
  return {Figures(std::move(current)), Figures(std::move(proposed))};
}

LoanComparison Compare(const BiWeeklyQuestion& question) {
  const StandardArithmetic arithmetic;
  const tLoanDesc current = RecordOf(question.current, question.outlook, question.startDate);
  tLoanDesc proposed = current;
  proposed.typ = biWeekly;
  proposed.biweeklyDate = question.switchDate;
  proposed.flatFee = question.fees;
  return Replaced(current, proposed, question.outlook);
}

double ExtraPaymentFor(const CurrentLoan& current, double months) {
  const StandardArithmetic arithmetic;
  const LoanQuestion inTime{
      .amount = current.balance, .months = months, .annualPercent = current.annualPercent};
  return ExtraPayment(PaymentOf(inTime), current.payment);
}

void Calculator::RefinancingCalculator(Number vCurrBal, Number vCurrPay, Number vCurrRate, Number vNewRate,
                                       Number vNewPoints, Number vNewFees, Number vNewTerm,
                                       Number vIncTaxRate, Number vInvGrowthRate, Number vSellByDate,
                                       Variant& vGrid, Variant& vCurrDet, Variant& vNewDet) const {
  const Results results{vGrid, vCurrDet, vNewDet};
  results.Write(Compare(RefinancingQuestion{
      .current = {.balance = vCurrBal, .payment = vCurrPay, .annualPercent = vCurrRate},
      .proposed = {.months = vNewTerm, .annualPercent = vNewRate, .points = vNewPoints, .fees = vNewFees},
      .outlook = {.taxPercent = vIncTaxRate, .growthPercent = vInvGrowthRate, .monthsKept = vSellByDate},
      .startDate = clock_.Today()}));
}

void Calculator::PrePayCalculator(Number vCurrBal, Number vCurrPay, Number vCurrRate, Number vExtraPayment,
                                  Number vIncTaxRate, Number vInvGrowthRate, Number vSellByDate,
                                  Variant& vGrid, Variant& vCurrDet, Variant& vNewDet) const {
  const Results results{vGrid, vCurrDet, vNewDet};
  results.Write(Compare(PrepaymentQuestion{
      .current = {.balance = vCurrBal, .payment = vCurrPay, .annualPercent = vCurrRate},
      .extraPayment = vExtraPayment,
      .outlook = {.taxPercent = vIncTaxRate, .growthPercent = vInvGrowthRate, .monthsKept = vSellByDate},
      .startDate = clock_.Today()}));
}

void Calculator::FastPrePayCalculator(Variant& currBal, Variant& currPay, Variant& currRate,
                                      Variant& targetPeriod, Variant& taxRate, Variant& invRate,
                                      Variant& keep, Variant& grid, Variant& currdet, Variant& newdet) const {
  Variant amount, needed, period, rate, totalPayments, totalInterest, detail;
  SimpleLoanCalculator(kNull, currBal, 0.0, targetPeriod, currRate, amount, needed, period, rate,
                       totalPayments, totalInterest, detail);
  const double current = Number(currPay);
  currPay = current;
  PrePayCalculator(currBal, current, currRate, ExtraPayment(needed.GetDouble(), current), taxRate, invRate,
                   keep, grid, currdet, newdet);
}

void Calculator::BiWeeklyComparison(Number vCurrBal, Number vCurrPay, Number vCurrRate,
                                    const Variant& vPaymentDate, Number vNewFees, const Variant& vSwitchDate,
                                    Number vIncTaxRate, Number vInvGrowthRate, Number vSellByDate,
                                    Variant& vGrid, Variant& vCurrDet, Variant& vNewDet) const {
  const Results results{vGrid, vCurrDet, vNewDet};
  results.Write(Compare(BiWeeklyQuestion{
      .current = {.balance = vCurrBal, .payment = vCurrPay, .annualPercent = vCurrRate},
      .switchDate = DateOrToday(vSwitchDate, clock_),
      .fees = vNewFees,
      .outlook = {.taxPercent = vIncTaxRate, .growthPercent = vInvGrowthRate, .monthsKept = vSellByDate},
      .startDate = DateOrToday(vPaymentDate, clock_)}));
}

}  // namespace amortix2
