// How large a mortgage a household carries. The two questions differ in what is known of the household.

#include <utility>

#include "amortix2/automation/checked.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/loan_results.h"
#include "amortix2/calculators/loans.h"
#include "amortix2/engine/qualification.h"

namespace amortix2 {
namespace {

using namespace calculators;

/// What both questions say of the home and its loan.
template <class Question>
MortgageAnswer SolveMortgage(const Question& question, tCreditQualification household) {
  tLoanDesc loan;
  loan.typ = simpleLoan;
  loan.startDate = question.startDate;
  loan.intRate = question.annualPercent;
  loan.period = question.months;
  household.downPaymentAmount = question.downPayment;
  household.propertyTaxRate = question.costs.propertyTaxPercent;
  household.insuranceCharge = question.costs.insurance;
  household.associationDues = question.costs.dues;
  SolveAffordableLoan(loan, household);
  const double fees =
      Finite(household.insuranceCharge + household.associationDues + household.otherMonthlyLoanCharge);
  return {AnswerOf(std::move(loan)), household.propertyTaxCharge, fees};
}

void WriteMortgage(const MortgageAnswer& answer, Variant& vNewPrincipal, Variant& vNewPayment,
                   Variant& vNewTaxes, Variant& vNewFees, Variant& vNewDet) {
  vNewPrincipal = answer.loan.amount;
  vNewPayment = answer.loan.payment;
  vNewTaxes = answer.propertyTax;
  vNewFees = answer.fees;
  vNewDet = LoanTable(vNewDet, answer.loan.schedule, ToLong(answer.loan.months));
}

}  // namespace

MortgageAnswer Solve(const AffordabilityQuestion& question) {
  const StandardArithmetic arithmetic;
  tCreditQualification household;
  household.monthlyPayment = question.monthlyBudget;
  return SolveMortgage(question, household);
}

MortgageAnswer Solve(const QualificationQuestion& question) {
  const StandardArithmetic arithmetic;
  tCreditQualification household;
  household.monthlyIncome = question.annualIncome / 12;
  household.creditCardPayment = question.debts.creditCard;
  household.autoLoanPayment = question.debts.car;
  household.childSupportPayment = question.debts.childSupport;
  household.otherMonthlyPayment = question.debts.other;
  ComputeQualifyingPayment(household);
  return SolveMortgage(question, household);
}

void Calculator::HomeAffordabilityCalculator(Number vPayment, Number vPropertyTax, Number vInsurance,
                                             Number vDues, Number vDownPayment, Number vPeriod,
                                             Number vIntRate, Variant& vNewPrincipal, Variant& vNewPayment,
                                             Variant& vNewTaxes, Variant& vNewFees, Variant& vNewDet) const {
  const MortgageAnswer answer = Solve(AffordabilityQuestion{
      .monthlyBudget = vPayment,
      .costs = {.propertyTaxPercent = vPropertyTax, .insurance = vInsurance, .dues = vDues},
      .downPayment = vDownPayment,
      .months = vPeriod,
      .annualPercent = vIntRate,
      .startDate = clock_.Today()});
  WriteMortgage(answer, vNewPrincipal, vNewPayment, vNewTaxes, vNewFees, vNewDet);
}

void Calculator::MortgageQualificationCalculator(Number vAnnualIncome, Number vCreditCard,
                                                 Number vCarPayments, Number vChildSupport,
                                                 Number vOtherMonthly, Number vPropertyTax, Number vInsurance,
                                                 Number vDues, Number vDownPayment, Number vPeriod,
                                                 Number vIntRate, Variant& vNewPrincipal,
                                                 Variant& vNewPayment, Variant& vNewTaxes, Variant& vNewFees,
                                                 Variant& vNewDet) const {
  const MortgageAnswer answer = Solve(QualificationQuestion{
      .annualIncome = vAnnualIncome,
      .debts = {.creditCard = vCreditCard,
                .car = vCarPayments,
                .childSupport = vChildSupport,
                .other = vOtherMonthly},
      .costs = {.propertyTaxPercent = vPropertyTax, .insurance = vInsurance, .dues = vDues},
      .downPayment = vDownPayment,
      .months = vPeriod,
      .annualPercent = vIntRate,
      .startDate = clock_.Today()});
  WriteMortgage(answer, vNewPrincipal, vNewPayment, vNewTaxes, vNewFees, vNewDet);
}

}  // namespace amortix2
