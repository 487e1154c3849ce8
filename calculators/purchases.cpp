// Purchase loans: at a fixed rate, at an adjustable one, and settled early by a balloon.

#include <cstddef>
#include <utility>

#include "amortix2/automation/checked.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/loan_results.h"
#include "amortix2/calculators/loans.h"

namespace amortix2 {
namespace {

using namespace calculators;

/// A schedule line by its number, rounded. Raises SubscriptOutOfRange.
const tSchedule& Line(const Schedule& schedule, double number) {
  const std::int32_t index = ToLong(number);
  if (index < 0 || static_cast<std::size_t>(index) >= schedule.size())
    Raise(ErrorNumber::SubscriptOutOfRange);
  return schedule[static_cast<std::size_t>(index)];
}

/// A purchase starts a month before its first payment (today without one), and bears interest from its
/// closing.
void AnswerPurchase(const PurchaseLoan& loan, const Variant& vCloseDate, const Variant& vPayDate,
                    const Clock& clock, const LoanResults& results) {
  if (AmountFinanced(loan) == 0 || loan.months == 0) return;
  PurchaseQuestion question{.loan = loan, .startDate = clock.Today()};
  if (IsDate(vPayDate)) question.startDate = StartBefore(ToDate(vPayDate));
  if (IsDate(vCloseDate)) question.closingDate = ToDate(vCloseDate);
  results.Write(Solve(question), question.closingDate);
}

}  // namespace

double AmountFinanced(const PurchaseLoan& loan) { return Finite(loan.price - loan.downPayment); }

tLoanDesc RecordOf(const PurchaseLoan& loan) {
  tLoanDesc record;
  record.typ = simpleLoan;
  record.startingBalance = AmountFinanced(loan);
  record.payment = UNKNOWNLOANVALUE;
  record.period = loan.months;
  record.intRate = loan.annualPercent;
  record.points = loan.points;
  record.flatFee = loan.fees;
  record.firstRatePeriod = loan.changes.firstPayment;
  record.firstRateIncrease = loan.changes.firstIncrease;
  record.subsequentRatePeriod = loan.changes.everyMonths;
  record.subsequentRateIncrease = loan.changes.laterIncrease;
  record.intRateMaximum = loan.changes.cap;
  return record;
}

LoanAnswer Solve(const PurchaseQuestion& question) {
  const StandardArithmetic arithmetic;
  tLoanDesc loan = RecordOf(question.loan);
  loan.startDate = question.startDate;
  if (question.closingDate)
    loan.startDateDelay = ToInteger(question.startDate.serial - question.closingDate->serial);
  return SolveRecord(std::move(loan));
}

Date StartBefore(Date firstPayment) {
  const CivilDate civil = ToCivil(firstPayment);
  return MakeDate(civil.year, civil.month - 1, civil.day);
}

BalloonAnswer Solve(const BalloonQuestion& question) {
  const StandardArithmetic arithmetic;
  LoanAnswer loan = Solve(PurchaseQuestion{.loan = question.loan, .startDate = question.startDate});
  BalloonAnswer answer{.amount = loan.amount, .payment = loan.payment};
  double regular = question.paymentsBefore;
  if (loan.months <= regular) {
    regular = loan.months - 1;
  } else {
    const tSchedule& settled = Line(loan.schedule, regular + 1);
    answer.balloon = settled.endingBalance + settled.payment;
  }
  const double regularTotal =
      (regular - 1) * Line(loan.schedule, 1).payment + Line(loan.schedule, regular).payment;
  const tSchedule replaced = Line(loan.schedule, regular + 1);
  const double principal = Finite(replaced.startingBalance - replaced.endingBalance);
  answer.lastPrincipal = Finite(answer.balloon + principal - replaced.payment);
  answer.totalPayments = Finite(regularTotal + answer.balloon - replaced.payment);
  answer.totalInterest = answer.totalPayments - answer.amount;
  loan.schedule.resize(static_cast<std::size_t>(ToLong(regular + 1)) + 1);
  loan.schedule.back().payment = answer.balloon;
  loan.schedule.back().endingBalance = 0;
  answer.schedule = std::move(loan.schedule);
  return answer;
}

void Calculator::FixedPayment(const Variant& vLoanType, Number vPurchaseAmt, Number vDownPayment,
                              Number vPeriod, Number vIntRate, const Variant& vCloseDate,
                              const Variant& vPayDate, Variant& vResPurchaseAmt, Variant& vResPayment,
                              Variant& vResPeriod, Variant& vResIntRate, Variant& vTotPay, Variant& vTotInt,
                              Variant& vDetArray) const {
  static_cast<void>(vLoanType);
  const PurchaseLoan loan{
      .price = vPurchaseAmt, .downPayment = vDownPayment, .months = vPeriod, .annualPercent = vIntRate};
  const LoanResults results{vResPurchaseAmt, vResPayment, vResPeriod, vResIntRate,
                            vTotPay,         vTotInt,     vDetArray};
  results.Echo(AmountFinanced(loan), 0, vPeriod, vIntRate);
  AnswerPurchase(loan, vCloseDate, vPayDate, clock_, results);
}

void Calculator::AdjustablePayment(const Variant& vLoanType, Number vPurchaseAmt, Number vDownPayment,
                                   Number vPeriod, Number vIntRate, const Variant& vCloseDate,
                                   const Variant& vPayDate, Number vRateCap, Number vRateInc1,
                                   Number vRateInc2, Number vIncDelay1, Number vIncDelay2,
                                   Variant& vResPurchaseAmt, Variant& vResPayment, Variant& vResPeriod,
                                   Variant& vResIntRate, Variant& vTotPay, Variant& vTotInt,
                                   Variant& vDetArray) const {
  static_cast<void>(vLoanType);
  const PurchaseLoan loan{.price = vPurchaseAmt,
                          .downPayment = vDownPayment,
                          .months = vPeriod,
                          .annualPercent = vIntRate,
                          .changes = {.firstPayment = vIncDelay1,
                                      .firstIncrease = vRateInc1,
                                      .everyMonths = vIncDelay2,
                                      .laterIncrease = vRateInc2,
                                      .cap = vRateCap}};
  const LoanResults results{vResPurchaseAmt, vResPayment, vResPeriod, vResIntRate,
                            vTotPay,         vTotInt,     vDetArray};
  results.Echo(AmountFinanced(loan), 0, vPeriod, vIntRate, kDetailColumnsWithRate);
  AnswerPurchase(loan, vCloseDate, vPayDate, clock_, results);
}

void Calculator::BalloonLoanPaymentCalculator(Number vPurchaseAmt, Number vDownPayment,
                                              const Variant& vStartDate, Number vPeriod,
                                              Number vBalloonAtPeriod, Number vIntRate, Variant& vPrincipal,
                                              Variant& vPayment, Variant& vBalloonPayment,
                                              Variant& vTotalAmountFinanced, Variant& vTotPayments,
                                              Variant& vTotIntCharged, Variant& vDetArray) const {
  const BalloonAnswer answer = Solve(BalloonQuestion{.loan = {.price = vPurchaseAmt,
                                                              .downPayment = vDownPayment,
                                                              .months = vPeriod,
                                                              .annualPercent = vIntRate},
                                                     .paymentsBefore = vBalloonAtPeriod,
                                                     .startDate = DateOrToday(vStartDate, clock_)});
  const auto lastRow = static_cast<std::int32_t>(answer.schedule.size()) - 1;
  Array detail = Table(lastRow);
  LoadLoanTable(answer.schedule, {}, detail);
  detail.At(lastRow, 3) = answer.lastPrincipal;
  detail.At(lastRow, 5) = std::int16_t{0};
  vPrincipal = answer.amount;
  vPayment = answer.payment;
  vBalloonPayment = answer.balloon;
  vTotalAmountFinanced = answer.amount;
  vTotPayments = answer.totalPayments;
  vTotIntCharged = answer.totalInterest;
  vDetArray = std::move(detail);
}

}  // namespace amortix2
