#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/savings.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {
namespace {

double BeforeTax(double afterTax, double percent) {
  return RoundToCents(Divide(afterTax, 1 - percent / 100));
}

double AfterTax(double beforeTax, double percent) { return RoundToCents(beforeTax * (1 - percent / 100)); }

}  // namespace

RetirementAnswer Solve(const RetirementQuestion& question) {
  const StandardArithmetic arithmetic;
  SavingsQuestion plan = question.plan;
  plan.frequency = annualMode;
  plan.taxPercent = 0;
  if (question.isTaxedOnWithdrawal && plan.endingBalance)
    plan.endingBalance = BeforeTax(*plan.endingBalance, question.taxPercent);
  RetirementAnswer answer{.plan = Solve(plan)};
  answer.afterTax = answer.plan.endingBalance;
  if (question.isTaxedOnWithdrawal) answer.afterTax = AfterTax(answer.afterTax, question.taxPercent);
  return answer;
}

void Calculator::IRACalculator(const Variant& vStartDate, const Variant& vTyp, Number vCurrBal,
                               Number vPayment, Number vEndingBal, Number vPeriod, Number vIntRate,
                               const Variant& vIncTaxRate, Variant& vGrid, Variant& vDetArray) const {
  const bool isTaxed = vTyp.Type() == VariantType::String && vTyp.GetString() == "T";
  const double target = isTaxed ? BeforeTax(vEndingBal, Number(vIncTaxRate)) : double{vEndingBal};
  Variant balance, contribution, endingBalance, endDate, rate;
  SimpleSavingsCalculator(vStartDate, vCurrBal, vPayment, double{annualMode}, target, vPeriod, vIntRate, 0.0,
                          balance, contribution, endingBalance, endDate, rate, vDetArray);

  Variant afterTax = endingBalance;
  // Strictly this time: a tax rate that is no number is an error here.
  if (isTaxed) afterTax = AfterTax(endingBalance.GetDouble(), ToDouble(vIncTaxRate));

  Array grid(Bounds{0, 6});
  grid.At(1) = balance;
  grid.At(2) = contribution;
  grid.At(3) = endingBalance;
  grid.At(4) = afterTax;
  grid.At(5) = endDate;
  grid.At(6) = rate;
  vGrid = std::move(grid);
}

}  // namespace amortix2
