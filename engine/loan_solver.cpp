// The rate search. The payment f of a loan rises with the growth x of a month, so that the growth which gives
// a known payment P lies in a bracket: at x = 1 nothing is charged, at x = 1 + P / A a month's interest takes
// the whole payment. Two bisections come near enough for the secant through the last two trials,
//
//   x = x2 + (x1 - x2) (P - f2) / (f1 - f2),
//
// to close in within a few steps. Payments are rounded to cents, which ends the search: f meets P, or stops
// changing. Rounding, or an amount below zero, can also send the secant round in circles, nowhere, or ahead
// in ever smaller steps: a hundred trials without coming closer, where a search that works needs a dozen in
// all, or some thousands altogether end it with the closest.

#include "amortix2/engine/loan_solver.h"

#include <cmath>

#include "amortix2/automation/error.h"
#include "amortix2/engine/loan_schedule.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {
namespace {

double LevelPayment(const PaymentTerms& terms, double growth, double amount, double residual) {
  const PaymentFactors factors = LoanPaymentFactor(terms, growth);
  const double owed = terms.typ == loanAsLease ? amount - Divide(residual, factors.finalGrowth) : amount;
  return RoundToCents(Divide(owed, factors.annuity));
}

void SolveClosedForm(tLoanDesc& loan) {
  const PaymentFactors factors = LoanPaymentFactor(loan);
  const bool isLease = loan.typ == loanAsLease;
  if (IsUnknown(loan.startingBalance)) {
    const double residual = isLease ? Divide(loan.residualAmount, factors.finalGrowth) : 0;
    loan.startingBalance = RoundToCents(factors.annuity * loan.payment + residual);
  } else if (isLease && IsUnknown(loan.residualAmount)) {
    loan.residualAmount =
        RoundToCents((loan.startingBalance - factors.annuity * loan.payment) * factors.finalGrowth);
  } else {
    loan.payment =
        LevelPayment(TermsOf(loan), MonthlyGrowth(loan.intRate), loan.startingBalance, loan.residualAmount);
  }
}

double AnnualRate(double growth) { return (growth - 1) * 1200; }

/// One point of the search.
struct Trial {
  double growth = 0;
  double payment = 0;
};

/// The last two trials of a search, and the closest so far.
class SecantHistory {
 public:
  void Add(Trial trial, double target) {
    if (count_ == 0 || std::abs(trial.payment - target) < std::abs(closest_.payment - target)) {
      closest_ = trial;
      closestAt_ = count_;
    }
    previous_ = latest_;
    latest_ = trial;
    ++count_;
  }

  double Secant(double target) const {
    return previous_.growth + (latest_.growth - previous_.growth) * (target - previous_.payment) /
                                  (latest_.payment - previous_.payment);
  }

  bool HasSettled() const { return count_ >= 2 && latest_.payment == previous_.payment; }
  bool HasLostItsWay() const { return count_ - closestAt_ > kPatience || count_ >= kMostTrials; }
  int Count() const { return count_; }
  const Trial& Latest() const { return latest_; }
  const Trial& Closest() const { return closest_; }

 private:
  static constexpr int kPatience = 100;
  static constexpr int kMostTrials = 5000;

  Trial latest_, previous_, closest_;
  int count_ = 0;
  int closestAt_ = 0;
};

}  // namespace

RateFound FindGrowth(const RateTarget& target) {
  const double owed = Finite(target.amount - target.residual);
  if (!(owed < Finite(target.payment * target.terms.payments))) {
    return {1, RoundToCents(Divide(owed, target.terms.payments)), 0};
  }
  double low = 1;
  double high = Divide(target.payment, target.amount) + 1;
  SecantHistory history;
  while (!history.HasSettled()) {
    if (history.HasLostItsWay()) return {history.Closest().growth, target.payment, history.Count()};
    const double growth = Finite(history.Count() < 2 ? (low + high) / 2 : history.Secant(target.payment));
    // By way of the annual rate, which is what the loan's own payment is computed from.
    const double payment =
        LevelPayment(target.terms, MonthlyGrowth(AnnualRate(growth)), target.amount, target.residual);
    history.Add({growth, payment}, target.payment);
    if (payment >= target.payment) high = growth;
    if (payment <= target.payment) low = growth;
    if (payment == target.payment) break;
  }
  return {history.Latest().growth, target.payment, history.Count()};
}

void SolveLoan(tLoanDesc& loan, tCreditQualification& qualification, bool buildSchedule) {
  if (IsUnknown(loan.payment) || IsUnknown(loan.startingBalance) || IsUnknown(loan.residualAmount)) {
    SolveClosedForm(loan);
  }
  if (IsUnknown(loan.intRate)) {
    const RateFound found =
        FindGrowth({TermsOf(loan), loan.startingBalance, loan.payment, loan.residualAmount});
    loan.payment = found.payment;
    loan.intRate = RoundToMills(AnnualRate(found.growth));
  }
  qualification.propertyTaxCharge = RoundToCents((loan.startingBalance + qualification.downPaymentAmount) *
                                                 qualification.propertyTaxRate / 1200);
  if (buildSchedule) BuildLoanSchedule(loan, qualification);
  if (IsUnknown(loan.APR)) {
    if (loan.schedule.empty()) Raise(ErrorNumber::SubscriptOutOfRange);
    const double received = loan.startingBalance - loan.schedule.front().payment;
    const RateFound found = FindGrowth({TermsOf(loan), received, loan.payment, loan.residualAmount});
    loan.APR = RoundToMills(AnnualRate(found.growth));
  }
}

}  // namespace amortix2
