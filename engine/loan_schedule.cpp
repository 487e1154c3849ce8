// Every amount is rounded where it arises: the grown balance T = B g, the interest T - B. The payment then
// leaves B = T - P, and the next line starts from there. Nothing looks back at the closed form, so the cents
// that rounding leaves end up in the last line's balance.

#include "amortix2/engine/loan_schedule.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/engine/adjustable_rate.h"
#include "amortix2/engine/biweekly_schedule.h"
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

/// Writes the lines. The loops work on locals, which stay in registers; members would go through memory
/// beside each line.
class MonthlyLines {
 public:
  MonthlyLines(const tLoanDesc& loan, const Layout& layout, bool settleRemainder)
      : loan_(loan),
        layout_(layout),
        settleRemainder_(settleRemainder),
        dates_(loan.startDate, StepOf(monthlyMode), std::max(layout.payments, layout.regular)),
        rate_(loan),
        growth_(MonthlyGrowth(loan.intRate)),
        running_{Amount(loan.startingBalance), Amount(loan.payment), loan.taxRate / 100} {}

  /// Raises what BuildLoanSchedule raises.
  std::vector<tSchedule> Write() && {
    const bool isLease = loan_.typ == loanAsLease;
    lines_.reserve(static_cast<std::size_t>(layout_.last) + (isLease ? 2 : 1));
    lines_.push_back(OpeningLine(loan_));
    if (isLease) WritePrepaidLine();
    WriteRegularLines();
    if (settleRemainder_ && layout_.regular > 0) SettleRemainder();
    if (isLease) CloseLease();
    return std::move(lines_);
  }

 private:
  void WritePrepaidLine() {
    tSchedule& line = lines_.emplace_back();
    line.lineDate = loan_.startDate;
    line.startingBalance = running_.balance.value;
    line.payment = WithoutMinusZero(running_.payment.value * loan_.numberPrepays);
    running_.balance = running_.balance - Amount(line.payment);
    line.endingBalance = running_.balance.value;
  }

  void WriteRegularLines() {
    constexpr int kPlainLines = 16;  // before whole cents are tried again
    const int count = layout_.regular;
    const bool isLevel = loan_.typ != creditCard && !rate_.MayChange();
    for (int k = 1; k <= count;) {
      if (isLevel) k += WriteCertainLines(count + 1 - k);
      const int last = isLevel ? std::min(count, k + kPlainLines - 1) : count;
      WritePlainLines(k, last);
      k = last + 1;
    }
  }

  [[gnu::noinline, gnu::flatten]] int WriteCertainLines(int most) {
    const double annualRate = (growth_ - 1) * 1200;
    const double payment = running_.payment.value;
    const double taxFraction = running_.taxFraction;
    return WriteWholeCents(lines_, running_.balance, -payment, growth_, dates_, most,
                           [=](tSchedule& line, double interest) {
                             line.intRate = annualRate;
                             line.payment = payment;
                             line.intCharged = interest;
                             line.taxCredited = WithoutMinusZero(taxFraction * interest);
                           });
  }

  /// Writes the lines of the payments `first` to `last`.
  [[gnu::noinline, gnu::flatten]] void WritePlainLines(int first, int last) {
    RunningLoan running = running_;
    const int firstOfCard = loan_.typ == creditCard ? 2 : last + 1;
    for (int k = first; k <= last; ++k) {
      if (rate_.StepTo(k)) {
        growth_ = MonthlyGrowth(rate_.Rate());
        const double factor = AnnuityFactor(growth_, layout_.regular - k + 1);
        running.payment = Amount(RoundToCents(Divide(running.balance.value, factor)));
      }
      tSchedule& line = lines_.emplace_back();
      line.lineDate = dates_.Next();
      line.intRate = (growth_ - 1) * 1200;
      if (k >= firstOfCard) {
        // The card's payments fall in mid-month: half of this one has been owed all month.
        const Amount interest = RoundToCents((running.balance + running.payment * 0.5) * (growth_ - 1));
        running.Pay(line, running.balance + interest, interest);
      } else {
        const Amount grown = RoundToCents(running.balance * growth_);
        running.Pay(line, grown, RoundToCents(grown - running.balance));
      }
    }
    running_ = running;
  }

  /// What a term that was searched for leaves is paid with its last payment.
  void SettleRemainder() {
    lines_.back().payment += running_.balance.value;
    running_.balance = {};
    lines_.back().endingBalance = 0;
  }

  /// A lease's balance grows on for each month that was paid in advance; then it is paid at once.
  void CloseLease() {
    tSchedule& line = lines_.emplace_back();
    line.lineDate = AdvanceDate(loan_.startDate, monthlyMode, layout_.payments);
    line.startingBalance = running_.balance.value;
    line.intRate = (growth_ - 1) * 1200;
    Amount grown = running_.balance;
    for (int month = 0; month < loan_.numberPrepays; ++month) grown = RoundToCents(grown * growth_);
    line.intCharged = RoundToCents(grown - running_.balance).value;
    line.taxCredited = WithoutMinusZero(running_.taxFraction * line.intCharged);
    line.payment = grown.value;
  }

  const tLoanDesc& loan_;
  const Layout& layout_;
  bool settleRemainder_;
  DateSteps dates_;
  AdjustableRate rate_;
  double growth_;
  RunningLoan running_;
  std::vector<tSchedule> lines_;
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
