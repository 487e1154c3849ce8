#include "amortix2/calculators/leases.h"

#include <algorithm>
#include <utility>

#include "amortix2/automation/checked.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/calculators/calculator.h"
#include "amortix2/calculators/savings_results.h"
#include "amortix2/calculators/tables.h"
#include "amortix2/engine/elementary.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/loan_solver.h"

namespace amortix2 {
namespace {

using namespace calculators;

/// Interest may be compounded more often than payments are made where the one divides the other. Monthly
/// payments take any frequency of interest, also a lower one.
bool AcceptsInterest(enumFrequencyType payments, enumFrequencyType interest) {
  switch (payments) {
    case weeklyMode:
      return interest == dailymode;
    case biweeklyMode:
      return interest == dailymode || interest == weeklyMode;
    case bimonthlyMode:
    case quarterlyMode:
      return interest == monthlyMode;
    case semiannualMode:
      return interest >= monthlyMode && interest <= quarterlyMode;
    case annualMode:
      return interest >= monthlyMode && interest <= semiannualMode;
    default:
      return true;
  }
}

/// The lease with one month of the engine for each payment, at a rate on that basis.
LeaseAnswer SolveMonthly(const LeaseQuestion& question) {
  RequireOneUnknown({{"amount", question.amount.has_value()},
                     {"payment", question.payment.has_value()},
                     {"annualPercent", question.annualPercent.has_value()},
                     {"residual", question.residual.has_value()}});
  tLoanDesc lease;
  lease.typ = loanAsLease;
  lease.startDate = question.startDate;
  lease.startingBalance = OrUnknown(question.amount);
  lease.payment = OrUnknown(question.payment);
  lease.intRate = OrUnknown(question.annualPercent);
  lease.residualAmount = OrUnknown(question.residual);
  lease.period = std::max(question.payments, 1.0);
  lease.numberPrepays = ToInteger(std::clamp(question.prepaid, 0.0, lease.period));
  tCreditQualification household;
  SolveLoan(lease, household, true);
  return {.amount = lease.startingBalance,
          .payment = lease.payment,
          .payments = lease.period,
          .annualPercent = lease.intRate,
          .prepaid = lease.numberPrepays,
          .residual = lease.residualAmount,
          .totalPayments = lease.totPayments,
          .totalInterest = lease.totIntCharged,
          .schedule = std::move(lease.schedule)};
}

/// The dates 1 to `payments` of a lease's payments, and how they fall on its lines: line 1 keeps its date,
/// the line after payment k's own takes date k, and the last line the last date.
class PaymentDates {
 public:
  /// A savings plan at the payments' frequency has the dates; its amounts do not matter.
  PaymentDates(Date start, enumFrequencyType frequency, double payments) {
    SavingsQuestion question{.balance = 0,
                             .deposit = 1,
                             .annualPercent = 3,
                             .endDate = EndAfter(start, frequency, payments),
                             .frequency = frequency,
                             .startDate = start};
    if (payments == 0) question.endingBalance = 0;
    SavingsAnswer plan = Solve(question);
    last_ = RowsWithLeftover(start, frequency, plan.endDate);
    lines_ = std::move(plan.schedule);
    if (static_cast<std::size_t>(last_) >= lines_.size()) Raise(ErrorNumber::SubscriptOutOfRange);
  }

  /// Calls `assign(line, date)` for each of the lease's lines 0 to lastLine whose date changes.
  template <class Assign>
  void ForLines(std::int32_t lastLine, const Assign& assign) const {
    for (std::int32_t i = 1; i < lastLine && i <= last_; ++i) assign(i + 1, DateOf(i));
    assign(lastLine, DateOf(last_));
  }

 private:
  Date DateOf(std::int32_t payment) const { return lines_[static_cast<std::size_t>(payment)].lineDate; }

  Schedule lines_;
  std::int32_t last_ = 0;
};

/// Leaves out what is to be found; false when the inputs do not determine it.
bool LeaveOutZero(LeaseQuestion& question) {
  if (question.residual == 0) {
    question.residual.reset();
    return question.amount != 0 && question.payment != 0;
  }
  if (question.amount == 0) {
    question.amount.reset();
    return question.payment != 0;
  }
  if (question.annualPercent == 0 && question.payment != 0) {
    question.annualPercent.reset();
  } else {
    question.payment.reset();
  }
  return true;
}

}  // namespace

double RatePerPayment(double annualPercent, enumFrequencyType payments, enumFrequencyType interest) {
  if (!AcceptsInterest(payments, interest)) interest = payments;
  if (payments == monthlyMode && interest == monthlyMode) return annualPercent;
  const double interestPeriods = PeriodsPerYear(interest);
  const double growth = 1 + annualPercent / 100 / interestPeriods;
  return Finite(1200 * (Power(growth, ToLong(interestPeriods / PeriodsPerYear(payments))) - 1));
}

LeaseAnswer Solve(const LeaseQuestion& question) {
  const StandardArithmetic arithmetic;
  LeaseQuestion monthly = question;
  if (question.annualPercent) {
    monthly.annualPercent =
        RatePerPayment(*question.annualPercent, question.paymentFrequency, question.interestFrequency);
  }
  LeaseAnswer answer = SolveMonthly(monthly);
  if (question.paymentFrequency == monthlyMode) return answer;
  const PaymentDates dates(question.startDate, question.paymentFrequency, answer.payments);
  dates.ForLines(static_cast<std::int32_t>(answer.schedule.size()) - 1, [&](std::int32_t line, Date date) {
    answer.schedule[static_cast<std::size_t>(line)].lineDate = date;
  });
  return answer;
}

void Calculator::MonthlyLeaseCalculator(const Variant& vDummy, Number vPrincipal, Number vPayment,
                                        Number vPeriod, Number vIntRate, Number vPrepays, Number vEndingBal,
                                        const Variant& vStartDate, Variant& vResPrincipal,
                                        Variant& vResPayment, Variant& vResPeriod, Variant& vResIntRate,
                                        Variant& vResPrepays, Variant& vResEndingBal,
                                        Variant& vResTotPayments, Variant& vResTotInterest,
                                        Variant& vDetArr) const {
  static_cast<void>(vDummy);
  LeaseQuestion question{.amount = vPrincipal,
                         .payment = vPayment,
                         .annualPercent = vIntRate,
                         .residual = vEndingBal,
                         .payments = vPeriod,
                         .prepaid = vPrepays,
                         .startDate = DateOrToday(vStartDate, clock_)};
  if (!LeaveOutZero(question)) {
    Array detail = Table(1);
    vResPrincipal = vResPayment = vResPeriod = vResIntRate = vResPrepays = vResEndingBal = 0.0;
    vResTotPayments = vResTotInterest = std::int16_t{0};
    vDetArr = std::move(detail);
    return;
  }
  const LeaseAnswer answer = Solve(question);
  Variant detail = LoanTable(vDetArr, answer.schedule, static_cast<std::int32_t>(answer.schedule.size()) - 1);
  vResPrincipal = answer.amount;
  vResPayment = answer.payment;
  vResPeriod = answer.payments;
  vResIntRate = answer.annualPercent;
  vResPrepays = answer.prepaid;
  vResEndingBal = answer.residual;
  vResTotPayments = answer.totalPayments;
  vResTotInterest = answer.totalInterest;
  vDetArr = std::move(detail);
}

void Calculator::SimpleLeaseCalculator(const Variant& vDummy, Number vPrincipal, Number vPayment,
                                       Number vPeriod, Number vIntRate, Number vPrepays, Number vEndingBal,
                                       const Variant& vStartDate, Number vPayMode, Number vIntMode,
                                       Variant& vResPrincipal, Variant& vResPayment, Variant& vResPeriod,
                                       Variant& vResIntRate, Variant& vResPrepays, Variant& vResEndingBal,
                                       Variant& vResTotPayments, Variant& vResTotInterest,
                                       Variant& vDetArr) const {
  const Date startDate = DateOrToday(vStartDate, clock_);
  const enumFrequencyType payments{ToLong(vPayMode)};
  const double rate = RatePerPayment(vIntRate, payments, enumFrequencyType{ToLong(vIntMode)});
  Variant detail;  // made in any case: its dates change
  MonthlyLeaseCalculator(vDummy, vPrincipal, vPayment, vPeriod, rate, vPrepays, vEndingBal, startDate,
                         vResPrincipal, vResPayment, vResPeriod, vResIntRate, vResPrepays, vResEndingBal,
                         vResTotPayments, vResTotInterest, detail);
  vDetArr = std::move(detail);

  // The results stand when the dates fail.
  const PaymentDates dates(startDate, enumFrequencyType{ToInteger(payments)}, vResPeriod.GetDouble());
  Array& table = vDetArr.GetArray();
  dates.ForLines(table.Dimension(1).upper,
                 [&](std::int32_t row, Date date) { table.At(row, 1) = FormatMonthDayYear(date); });
}

}  // namespace amortix2
