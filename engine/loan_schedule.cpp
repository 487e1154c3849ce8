// Every amount is rounded where it arises: the grown balance T = B g, the interest T - B. The payment then
// leaves B = T - P, and the next line starts from there. Nothing looks back at the closed form, so the cents
// that rounding leaves end up in the last line's balance.

#include "amortix2/engine/loan_schedule.h"

#include <algorithm>
#include <limits>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/engine/adjustable_rate.h"
#include "amortix2/engine/biweekly_schedule.h"
#include "amortix2/engine/date_steps.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/payment_factors.h"
#include "amortix2/engine/schedule_parts.h"

namespace amortix2 {
namespace {

/// How a schedule's lines are laid out: the opening, a lease's prepaid payments, then the regular payments.
struct Layout {
  int payments;  ///< n, as the term counts them
  int regular;   ///< payments made one a month; more than n where a lease's prepayments are below 0
  int last;      ///< line of the last regular payment, or of what comes before it when there is none

  static Layout Of(const tLoanDesc& loan) {
    const bool isLease = loan.typ == loanAsLease;
    const int n = ToInteger(loan.period);
    const int regular = isLease ? n - loan.numberPrepays : n;
    const int last = ToInteger(isLease ? regular + 1 : regular);
    if (n < 0 || last < (isLease ? 1 : 0)) Raise(ErrorNumber::SubscriptOutOfRange);
    return {n, regular, last};
  }
};

/// Writes the lines. What changes from line to line stands in locals, which stay in registers; members would
/// go through memory beside each line.
class MonthlyLines {
 public:
  MonthlyLines(const tLoanDesc& loan, const Layout& layout, bool settleRemainder)
      : loan_(loan), layout_(layout), settleRemainder_(settleRemainder) {}

  /// Raises what BuildLoanSchedule raises.
  std::vector<tSchedule> Write() {
    DateSteps dates(loan_.startDate, StepOf(monthlyMode), std::max(layout_.payments, layout_.regular));
    const bool isLease = loan_.typ == loanAsLease;
    std::vector<tSchedule> lines(static_cast<std::size_t>(layout_.last) + (isLease ? 2 : 1));
    tSchedule* line = lines.data();
    *line++ = OpeningLine(loan_);
    RunningLoan running{Amount(loan_.startingBalance), Amount(loan_.payment), loan_.taxRate / 100};
    if (isLease) WritePrepaidLine(*line++, running);
    const double growth = WriteRegularLines(line, running, dates);
    if (settleRemainder_ && layout_.regular > 0) SettleRemainder(line[layout_.regular - 1], running);
    if (isLease) CloseLease(lines.back(), running, growth);
    return lines;
  }

 private:
  void WritePrepaidLine(tSchedule& line, RunningLoan& running) const {
    line.lineDate = loan_.startDate;
    line.startingBalance = running.balance.value;
    line.payment = WithoutMinusZero(running.payment.value * loan_.numberPrepays);
    running.balance = running.balance - Amount(line.payment);
    line.endingBalance = running.balance.value;
  }

  /// Returns the growth of the last line.
  [[gnu::noinline]] double WriteRegularLines(tSchedule* line, RunningLoan& runningLoan,
                                             DateSteps dates) const {
    RunningLoan running = runningLoan;
    AdjustableRate rate(loan_);
    double growth = MonthlyGrowth(loan_.intRate);
    double annualRate = (growth - 1) * 1200;
    const int count = layout_.regular;
    const int firstOfCard = loan_.typ == creditCard ? 2 : count + 1;
    for (int k = 1; k <= count; ++k, ++line) {
      if (rate.StepTo(k)) {
        growth = MonthlyGrowth(rate.Rate());
        annualRate = (growth - 1) * 1200;
        const double factor = AnnuityFactor(growth, count - k + 1);
        running.payment = Amount(RoundToCents(Divide(running.balance.value, factor)));
      }
      line->lineDate = dates.Next();
      line->intRate = annualRate;
      if (k >= firstOfCard) {
        // The card's payments fall in mid-month: half of this one has been owed all month.
        const Amount interest = RoundToCents((running.balance + running.payment * 0.5) * (growth - 1));
        running.Pay(*line, running.balance + interest, interest);
      } else {
        const Amount grown = RoundToCents(running.balance * growth);
        running.Pay(*line, grown, RoundToCents(grown - running.balance));
      }
    }
    runningLoan = running;
    return growth;
  }

  /// What a term that was searched for leaves is paid with its last payment.
  static void SettleRemainder(tSchedule& last, RunningLoan& running) {
    last.payment += running.balance.value;
    running.balance = {};
    last.endingBalance = 0;
  }

  /// A lease's balance grows on for each month that was paid in advance; then it is paid at once.
  void CloseLease(tSchedule& line, const RunningLoan& running, double growth) const {
    line.lineDate = AdvanceDate(loan_.startDate, monthlyMode, layout_.payments);
    line.startingBalance = running.balance.value;
    line.intRate = (growth - 1) * 1200;
    Amount grown = running.balance;
    for (int month = 0; month < loan_.numberPrepays; ++month) grown = RoundToCents(grown * growth);
    line.intCharged = RoundToCents(grown - running.balance).value;
    line.taxCredited = WithoutMinusZero(running.taxFraction * line.intCharged);
    line.payment = grown.value;
  }

  const tLoanDesc& loan_;
  const Layout& layout_;
  bool settleRemainder_;
};

/// Sums the lines up to the sale into the loan's totals and present values.
[[gnu::noinline]] void SumCost(tLoanDesc& loan, const tCreditQualification& qualification,
                               const Layout& layout) {
  const int horizon = SaleMonth(qualification.monthsToKeep, layout.payments).value_or(layout.last);
  const double discountGrowth = MonthlyGrowth(qualification.investmentGrowthRate);
  const double homeGrowthAYear = 1 + qualification.homeValueGrowthRate / 100;
  double discount = 1;
  double homeGrowth = 1;
  CostTotals totals(qualification);
  const tSchedule* line = loan.schedule.data();
  const tSchedule* const soldWith = line + horizon;
  totals.AddLine(*line, discount);
  for (int monthOfYear = 1; line != soldWith; ++monthOfYear) {
    discount *= discountGrowth;
    totals.AddLine(*++line, discount);
    totals.AddCharges(discount, homeGrowth);
    if (monthOfYear == 12) {
      homeGrowth *= homeGrowthAYear;
      monthOfYear = 0;
    }
  }
  for (int month = horizon; month < layout.last; ++month) CostTotals::PassOver(*++line);
  CostTotals sold = totals;  // a copy, so that the sums of the loop stay in registers
  if (loan.typ == loanAsLease) sold.AddInterest(loan.schedule.back());
  sold.Sell(loan, soldWith->endingBalance, homeGrowth, discountGrowth, discount * discountGrowth);
  sold.Store(loan);
}

}  // namespace

std::optional<int> SaleMonth(double monthsToKeep, double term) {
  if (monthsToKeep >= 1 && monthsToKeep <= term) return ToInteger(monthsToKeep);
  return std::nullopt;
}

TermFound FindTerm(const tLoanDesc& loan) {
  const double growth = MonthlyGrowth(loan.intRate);
  const Amount payment(loan.payment);
  Amount balance(loan.startingBalance);
  for (std::int16_t months = 0; months < std::numeric_limits<std::int16_t>::max();) {
    balance = loan.typ == creditCard && months >= 1
                  ? RoundToCents((balance + payment * 0.5) * growth - payment - payment * 0.5)
                  : RoundToCents(balance * growth) - payment;
    if (balance.value >= loan.startingBalance) return {1, balance.value + payment.value};
    ++months;
    if (payment.value * 0.25 >= balance.value) return {months, payment.value};
  }
  Raise(ErrorNumber::Overflow);
}

void BuildLoanSchedule(tLoanDesc& loan, const tCreditQualification& qualification) {
  if (loan.typ == biWeekly) return BuildBiWeeklySchedule(loan, qualification);
  const bool isTermUnknown = IsUnknown(loan.period);
  if (isTermUnknown) {
    const TermFound found = FindTerm(loan);
    loan.period = found.payments;
    loan.payment = found.payment;
  }
  const Layout layout = Layout::Of(loan);
  loan.schedule = MonthlyLines(loan, layout, isTermUnknown).Write();
  if (loan.typ == loanAsLease) loan.residualAmount = loan.schedule.back().payment;
  SumCost(loan, qualification, layout);
}

}  // namespace amortix2
