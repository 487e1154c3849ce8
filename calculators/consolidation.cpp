#include "amortix2/calculators/consolidation.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "amortix2/automation/checked.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/comparison_results.h"
#include "amortix2/engine/amortix.h"
#include "amortix2/engine/detail_arrays.h"

namespace amortix2 {
namespace {

using namespace calculators;

LoansTogether Sum(const std::vector<ComparedLoan>& loans) {
  LoansTogether sum;
  for (const ComparedLoan& loan : loans) {
    sum.payment = Finite(sum.payment + loan.payment);
    sum.upFrontCost = Finite(sum.upFrontCost + loan.upFrontCost);
    sum.months = std::max(sum.months, loan.months);
    sum.costInTodaysMoney = Finite(sum.costInTodaysMoney + loan.costInTodaysMoney);
  }
  return sum;
}

/// The numbers of a list of `count`, from its lower bound on; what is no array is a list of one. Raises
/// SubscriptOutOfRange for a list that is shorter or has two dimensions.
std::vector<double> ReadList(const Variant& list, std::size_t count) {
  std::vector<double> numbers;
  numbers.reserve(count);
  if (list.Type() != VariantType::Array) {
    if (count > 1) Raise(ErrorNumber::SubscriptOutOfRange);
    numbers.assign(count, NumericOrZero(list));
    return numbers;
  }
  const Array& array = list.GetArray();
  for (std::size_t i = 0; i < count; ++i) {
    numbers.push_back(NumericOrZero(array.At(array.Dimension(1).lower + static_cast<std::int64_t>(i))));
  }
  return numbers;
}

std::vector<CurrentLoan> ReadLoans(const Variant& balances, const Variant& payments, const Variant& rates) {
  const bool isList = balances.Type() == VariantType::Array;
  const std::size_t count = isList ? balances.GetArray().Cells().size() : 1;
  const std::vector<double> balance = ReadList(balances, count);
  const std::vector<double> payment = ReadList(payments, count);
  const std::vector<double> rate = ReadList(rates, count);
  std::vector<CurrentLoan> loans(count);
  for (std::size_t i = 0; i < count; ++i) loans[i] = {balance[i], payment[i], rate[i]};
  return loans;
}

/// A grid's column: the rows of the comparison frame.
template <class Loan>
void WriteColumn(Array& grid, std::int64_t column, const Loan& loan) {
  grid.At(1, column) = loan.payment;
  grid.At(2, column) = loan.upFrontCost;
  grid.At(3, column) = loan.months;
  grid.At(4, column) = loan.costInTodaysMoney;
}

/// All schedules side by side, each with its rates in the last of its six columns.
Array TableOf(const std::vector<ComparedLoan>& loans, double months) {
  constexpr std::int64_t kBlock = kDetailColumnsWithRate;
  Array table = Table(ToInteger(months), Narrow<std::int32_t>(kBlock * std::ssize(loans)));
  std::int64_t column = 1;
  for (const ComparedLoan& loan : loans) {
    LoadDetArray(loan.schedule, loan.schedule.front().lineDate, Narrow<std::int16_t>(column),
                 ToInteger(loan.months), table);
    column += kBlock;
  }
  return table;
}

}  // namespace

ConsolidationAnswer Compare(const ConsolidationQuestion& question) {
  const StandardArithmetic arithmetic;
  const auto count = Narrow<std::int32_t>(question.current.size());
  RecordArray<tLoanDesc> loans(1, count + 1);
  RecordArray<tSavingsDesc> savings;
  RecordArray<tGoalDesc> goals;
  tCreditQualification household = HouseholdOf(question.outlook);
  tLoanDesc& combined = loans.At(1);
  combined = RecordOf(question.proposed, question.outlook, question.startDate);
  for (std::int32_t i = 0; i < count; ++i) {
    const CurrentLoan& current = question.current[static_cast<std::size_t>(i)];
    loans.At(i + 2) = RecordOf(current, question.outlook, question.startDate);
  }
  Amortix(LoanConsolidation, loans, savings, goals, household);

  ConsolidationAnswer answer{.proposed = Figures(std::move(combined))};
  for (std::int32_t i = 2; i <= count + 1; ++i) answer.current.push_back(Figures(std::move(loans.At(i))));
  answer.together = Sum(answer.current);
  return answer;
}

void Calculator::LoanConsolidationCalculator(const Variant& vCurrBal, const Variant& vCurrPay,
                                             const Variant& vCurrRate, Number vNewRate, Number vNewPoints,
                                             Number vNewFees, Number vNewTerm, Number vIncTaxRate,
                                             Number vInvGrowthRate, Number vSellByDate, Variant& vGrid,
                                             Variant& vCurrGrid, Variant& vCurrDet, Variant& vNewDet) const {
  const ConsolidationAnswer answer = Compare(ConsolidationQuestion{
      .current = ReadLoans(vCurrBal, vCurrPay, vCurrRate),
      .proposed = {.months = vNewTerm, .annualPercent = vNewRate, .points = vNewPoints, .fees = vNewFees},
      .outlook = {.taxPercent = vIncTaxRate, .growthPercent = vInvGrowthRate, .monthsKept = vSellByDate},
      .startDate = clock_.Today()});
  Array grid = Table(4, 1);
  WriteColumn(grid, 1, answer.proposed);
  Array currentGrid = Table(4, Narrow<std::int32_t>(answer.current.size() + 1));
  std::int64_t column = 1;
  for (const ComparedLoan& loan : answer.current) WriteColumn(currentGrid, column++, loan);
  WriteColumn(currentGrid, column, answer.together);
  Array currentDetail = TableOf(answer.current, answer.together.months);
  Variant newDetail = TermTable(vNewDet, answer.proposed);

  vGrid = std::move(grid);
  vCurrGrid = std::move(currentGrid);
  vCurrDet = std::move(currentDetail);
  vNewDet = std::move(newDetail);
}

}  // namespace amortix2
