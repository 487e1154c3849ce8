// Every amount is rounded where it arises: the grown balance T = B g, the interest T - B. The payment then
// leaves B = T - P, and the next line starts from there. Nothing looks back at the closed form, so the cents
// that rounding leaves end up in the last line's balance.

#include "amortix2/engine/loan_schedule.h"

#include <algorithm>
#include <limits>

#include "amortix2/automation/calendar_walk.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/engine/adjustable_rate.h"
#include "amortix2/engine/biweekly_schedule.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/payment_factors.h"
#include "amortix2/engine/schedule_parts.h"

namespace amortix2 {
namespace {

/// The dates 1, 2, 3, ... months after a start, as AdvanceDate gives them.
class MonthlyDates {
 public:
  /// Raises what the furthest date, `count` months after the start, raises.
  MonthlyDates(Date start, int count) : day_(ToCivil(start).day), month_(start) {
    AdvanceDate(start, monthlyMode, count);
  }

  Date Next() {
    month_.Advance();
    return Date{month_.FirstSerial() + std::min(day_, month_.Days()) - 1};
  }

 private:
  int day_;
  CalendarMonth month_;
};

/// How a schedule's lines are laid out: the opening, a lease's prepaid payments, then the regular payments.
struct Layout {
  int payments;  ///< n, as the term counts them
  int regular;   ///< payments made one a month
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

/// The cost of a monthly loan up to the sale, line after line.
class MonthlyCost {
 public:
  MonthlyCost(const tCreditQualification& qualification, const Layout& layout)
      : totals_(qualification),
        discountGrowth_(MonthlyGrowth(qualification.investmentGrowthRate)),
        homeGrowthAYear_(1 + qualification.homeValueGrowthRate / 100),
        horizon_(Horizon(layout, qualification.monthsToKeep)) {}

  void Add(const tSchedule& line) {
    if (month_ > horizon_) return CostTotals::PassOver(line);
    totals_.AddLine(line, discount_);
    if (month_ > 0) totals_.AddCharges(discount_, homeGrowth_);
    discount_ *= discountGrowth_;
    if (--monthsToAnniversary_ == 0) {
      homeGrowth_ *= homeGrowthAYear_;
      monthsToAnniversary_ = 12;
    }
    balance_ = line.endingBalance;
    ++month_;
  }

  void AddInterest(const tSchedule& line) { totals_.AddInterest(line); }

  void Store(tLoanDesc& loan) {
    totals_.Sell(loan, balance_, homeGrowth_, discountGrowth_, discount_);
    totals_.Store(loan);
  }

 private:
  static int Horizon(const Layout& layout, double monthsToKeep) {
    const bool isShorter = monthsToKeep >= 1 && monthsToKeep <= layout.payments;
    return isShorter ? ToInteger(monthsToKeep) : layout.last;
  }

  CostTotals totals_;
  double discountGrowth_;
  double homeGrowthAYear_;
  double discount_ = 1;
  double homeGrowth_ = 1;
  double balance_ = 0;
  int horizon_;
  int month_ = 0;
  int monthsToAnniversary_ = 13;  // the opening line is no month
};

/// Builds the lines and sums them in one pass: the chain of rounded balances leaves the processor idle
/// enough.
class MonthlySchedule {
 public:
  MonthlySchedule(tLoanDesc& loan, const tCreditQualification& qualification, bool settleRemainder)
      : loan_(loan),
        settleRemainder_(settleRemainder),
        layout_(Layout::Of(loan)),
        dates_(loan.startDate, layout_.payments),
        rate_(loan),
        growth_(MonthlyGrowth(loan.intRate)),
        running_{loan.startingBalance, loan.payment, loan.taxRate / 100},
        cost_(qualification, layout_) {}

  void Build() {
    loan_.schedule.clear();
    loan_.schedule.reserve(static_cast<std::size_t>(layout_.last) + 2);  // a lease has a closing line too
    cost_.Add(loan_.schedule.emplace_back(OpeningLine(loan_)));
    if (loan_.typ == loanAsLease) WritePrepaidLine();
    for (int k = 1; k <= layout_.regular; ++k) WriteRegularLine(k);
    if (loan_.typ == loanAsLease) CloseLease();
    cost_.Store(loan_);
  }

 private:
  void WritePrepaidLine() {
    tSchedule& line = loan_.schedule.emplace_back();
    line.lineDate = loan_.startDate;
    line.startingBalance = running_.balance;
    line.payment = running_.payment * loan_.numberPrepays;
    running_.balance -= line.payment;
    line.endingBalance = running_.balance;
    cost_.Add(line);
  }

  void WriteRegularLine(int k) {
    if (rate_.StepTo(k)) {
      growth_ = MonthlyGrowth(rate_.Rate());
      running_.payment =
          RoundToCents(Divide(running_.balance, AnnuityFactor(growth_, layout_.regular - k + 1)));
    }
    tSchedule& line =
        loan_.schedule.emplace_back();  // filled in place: a copy would cost as much as the rest
    line.lineDate = dates_.Next();
    line.intRate = (growth_ - 1) * 1200;
    if (loan_.typ == creditCard && k >= 2) {
      // The card's payments fall in mid-month: half of this one has been owed all month.
      const double interest = RoundToCents((running_.balance + running_.payment / 2) * (growth_ - 1));
      running_.Pay(line, running_.balance + interest, interest);
    } else {
      const double grown = RoundToCents(running_.balance * growth_);
      running_.Pay(line, grown, RoundToCents(grown - running_.balance));
    }
    if (settleRemainder_ && k == layout_.regular) SettleRemainder(line);
    cost_.Add(line);
  }

  /// What a term that was searched for leaves is paid with its last payment.
  void SettleRemainder(tSchedule& last) {
    last.payment += running_.balance;
    last.endingBalance = running_.balance = 0;
  }

  /// A lease's balance grows on for each month that was paid in advance; then it is paid at once.
  void CloseLease() {
    tSchedule& line = loan_.schedule.emplace_back();
    line.lineDate = AdvanceDate(loan_.startDate, monthlyMode, layout_.payments);
    line.startingBalance = running_.balance;
    line.intRate = (growth_ - 1) * 1200;
    double grown = running_.balance;
    for (int month = 0; month < loan_.numberPrepays; ++month) grown = RoundToCents(grown * growth_);
    line.intCharged = RoundToCents(grown - running_.balance);
    line.taxCredited = running_.taxFraction * line.intCharged;
    line.payment = grown;
    loan_.residualAmount = grown;
    cost_.AddInterest(line);
  }

  tLoanDesc& loan_;
  bool settleRemainder_;
  Layout layout_;
  MonthlyDates dates_;
  AdjustableRate rate_;
  double growth_;
  RunningLoan running_;
  MonthlyCost cost_;
};

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
  MonthlySchedule(loan, qualification, isTermUnknown).Build();
}

}  // namespace amortix2
