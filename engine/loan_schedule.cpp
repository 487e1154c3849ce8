// Every amount is rounded where it arises: the grown balance T = B g, the interest T - B. The payment then
// leaves B = T - P, and the next line starts from there. Nothing looks back at the closed form, so the cents
// that rounding leaves end up in the last line's balance.

#include "engine/loan_schedule.h"

#include <limits>

#include "automation/array.h"
#include "automation/conversion.h"
#include "automation/error.h"
#include "engine/adjustable_rate.h"
#include "engine/biweekly_schedule.h"
#include "engine/frequency.h"
#include "engine/payment_factors.h"
#include "engine/schedule_parts.h"

namespace amortix2 {
namespace {

/// The dates 0, 1, 2, ... months after a start.
class MonthlyDates {
 public:
  explicit MonthlyDates(Date start)
      : year_(static_cast<std::int16_t>(ToCivil(start).year)),
        month_(static_cast<std::int16_t>(ToCivil(start).month)),
        day_(static_cast<std::int16_t>(ToCivil(start).day)) {}

  Date After(int months) const {
    return MakeClampedDate(year_, month_, day_, 0, static_cast<std::int16_t>(months), 0);
  }

 private:
  std::int16_t year_;
  std::int16_t month_;
  std::int16_t day_;
};

/// How a schedule's lines are laid out: the opening, a lease's prepaid payments, then the regular payments.
struct Layout {
  int payments;  ///< n, as the term counts them
  int regular;   ///< payments made one a month
  int first;     ///< line of the first regular payment
  int last;      ///< line of the last one, or of what comes before it when there is none

  static Layout Of(const tLoanDesc& loan) {
    const int n = ToInteger(loan.period);
    const int regular = loan.typ == loanAsLease ? n - loan.numberPrepays : n;
    const int first = loan.typ == loanAsLease ? 2 : 1;
    const int last = ToInteger(regular + first - 1);
    if (n < 0 || last < 0) Raise(ErrorNumber::SubscriptOutOfRange);
    return {n, regular, first, last};
  }
};

class MonthlySchedule {
 public:
  explicit MonthlySchedule(tLoanDesc& loan)
      : loan_(loan),
        layout_(Layout::Of(loan)),
        dates_(loan.startDate),
        rate_(loan),
        growth_(MonthlyGrowth(loan.intRate)),
        running_{loan.startingBalance, loan.payment, loan.taxRate / 100} {}

  void Build() {
    loan_.schedule.assign(static_cast<std::size_t>(layout_.last) + 1, tSchedule{});
    loan_.schedule[0] = OpeningLine(loan_);
    if (loan_.typ == loanAsLease) WritePrepaidLine();
    for (int k = 1; k <= layout_.regular; ++k) WriteRegularLine(k);
  }

  /// What a term that was searched for leaves is paid with its last payment.
  void SettleRemainder() {
    tSchedule& line = loan_.schedule.back();
    if (layout_.regular == 0 || !(line.endingBalance > 0)) return;
    line.payment += line.endingBalance;
    line.endingBalance = 0;
  }

  /// A lease's balance grows on for each month that was paid in advance; then it is paid at once.
  tSchedule CloseLease() {
    tSchedule line;
    line.lineDate = dates_.After(layout_.payments);
    line.startingBalance = running_.balance;
    line.intRate = (growth_ - 1) * 1200;
    double grown = running_.balance;
    for (int month = 0; month < loan_.numberPrepays; ++month) grown = RoundToCents(grown * growth_);
    line.intCharged = RoundToCents(grown - running_.balance);
    line.taxCredited = running_.taxFraction * line.intCharged;
    line.payment = grown;
    loan_.residualAmount = grown;
    loan_.schedule.push_back(line);
    return line;
  }

  const Layout& Lines() const { return layout_; }

 private:
  void WritePrepaidLine() {
    if (layout_.last < 1) Raise(ErrorNumber::SubscriptOutOfRange);
    tSchedule& line = loan_.schedule[1];
    line.lineDate = loan_.startDate;
    line.startingBalance = running_.balance;
    line.payment = running_.payment * loan_.numberPrepays;
    running_.balance -= line.payment;
    line.endingBalance = running_.balance;
  }

  void WriteRegularLine(int k) {
    if (rate_.StepTo(k)) {
      growth_ = MonthlyGrowth(rate_.Rate());
      running_.payment =
          RoundToCents(Divide(running_.balance, AnnuityFactor(growth_, layout_.regular - k + 1)));
    }
    tSchedule& line = loan_.schedule[static_cast<std::size_t>(layout_.first + k - 1)];
    line.lineDate = dates_.After(k);
    line.intRate = (growth_ - 1) * 1200;
    if (loan_.typ == creditCard && k >= 2) {
      // The card's payments fall in mid-month: half of this one has been owed all month.
      const double interest = RoundToCents((running_.balance + running_.payment / 2) * (growth_ - 1));
      running_.Pay(line, running_.balance + interest, interest);
    } else {
      const double grown = RoundToCents(running_.balance * growth_);
      running_.Pay(line, grown, RoundToCents(grown - running_.balance));
    }
  }

  tLoanDesc& loan_;
  Layout layout_;
  MonthlyDates dates_;
  AdjustableRate rate_;
  double growth_;
  RunningLoan running_;
};

int Horizon(const Layout& layout, double monthsToKeep) {
  const bool isShorter = monthsToKeep >= 1 && monthsToKeep <= layout.payments;
  const int horizon = isShorter ? ToInteger(monthsToKeep) : layout.last;
  return horizon < layout.last ? horizon : layout.last;
}

CostTotals SumLines(const tLoanDesc& loan, const Layout& layout, const tCreditQualification& qualification) {
  const double discountGrowth = MonthlyGrowth(qualification.investmentGrowthRate);
  const double homeGrowthAYear = 1 + qualification.homeValueGrowthRate / 100;
  const int horizon = Horizon(layout, qualification.monthsToKeep);
  CostTotals totals(qualification);
  double discount = 1;
  double homeGrowth = 1;
  for (int m = 0; m <= horizon; ++m) {
    totals.AddLine(loan.schedule[static_cast<std::size_t>(m)], discount);
    if (m > 0) totals.AddCharges(discount, homeGrowth);
    discount *= discountGrowth;
    if (m > 0 && m % 12 == 0) homeGrowth *= homeGrowthAYear;
  }
  totals.Sell(loan, loan.schedule[static_cast<std::size_t>(horizon)].endingBalance, homeGrowth,
              discountGrowth, discount);
  return totals;
}

}  // namespace

TermFound FindTerm(const tLoanDesc& loan) {
  const double growth = MonthlyGrowth(loan.intRate);
  const double payment = loan.payment;
  double balance = loan.startingBalance;
  for (std::int16_t months = 0; months < std::numeric_limits<std::int16_t>::max();) {
    balance = loan.typ == creditCard && months >= 1
                  ? RoundToCents((balance + payment / 2) * growth - payment - payment / 2)
                  : RoundToCents(balance * growth) - payment;
    if (balance >= loan.startingBalance) return {1, balance + payment};
    ++months;
    if (payment * 0.25 >= balance) return {months, payment};
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
  MonthlySchedule schedule(loan);
  schedule.Build();
  if (isTermUnknown) schedule.SettleRemainder();
  CostTotals totals = SumLines(loan, schedule.Lines(), qualification);
  if (loan.typ == loanAsLease) totals.AddInterest(schedule.CloseLease());
  totals.Store(loan);
}

}  // namespace amortix2
