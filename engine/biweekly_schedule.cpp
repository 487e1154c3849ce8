#include "amortix2/engine/biweekly_schedule.h"

#include <limits>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/engine/elementary.h"
#include "amortix2/engine/frequency.h"
#include "amortix2/engine/loan_schedule.h"
#include "amortix2/engine/payment_factors.h"
#include "amortix2/engine/schedule_parts.h"

namespace amortix2 {
namespace {

constexpr int kHalfPaymentDays = 14;
constexpr double kMonthsOfHalfPayment = 12.0 / 26;

Date MonthsAfter(Date start, std::int32_t months) { return AdvanceDate(start, monthlyMode, months); }

/// The dates of the lines after the opening: monthly ones before the switch, then one every 14 days.
class PlanDates {
 public:
  explicit PlanDates(const tLoanDesc& loan)
      : start_(loan.startDate),
        switch_(loan.biweeklyDate > loan.startDate ? loan.biweeklyDate
                                                   : AddDays(loan.startDate, kHalfPaymentDays)) {
    Settle(1);
  }

  Date Next() const { return next_; }
  bool IsMonthly() const { return isMonthly_; }

  void Advance() {
    if (isMonthly_) {
      Settle(month_ + 1);
    } else {
      next_ = AddDays(next_, kHalfPaymentDays);
    }
  }

 private:
  void Settle(std::int32_t month) {
    month_ = month;
    const Date monthly = MonthsAfter(start_, month);
    isMonthly_ = monthly < switch_;
    next_ = isMonthly_ ? monthly : switch_;
  }

  Date start_;
  Date switch_;
  Date next_;
  std::int32_t month_ = 0;
  bool isMonthly_ = false;
};

class BiWeeklySchedule {
 public:
  explicit BiWeeklySchedule(tLoanDesc& loan)
      : loan_(loan),
        dates_(loan),
        fullPayment_(loan.payment),
        halfPayment_(RoundToCents(loan.payment / 2)),
        running_{Amount(loan.startingBalance), Amount(loan.payment), loan.taxRate / 100} {
    loan_.schedule.assign(1, OpeningLine(loan));
  }

  bool CoversInterest() const {
    const Amount balance = running_.balance;
    return halfPayment_ > (RoundToCents(balance * GrowthOver(kHalfPaymentDays)) - balance).value;
  }

  void RunUntil(Date end) {
    while (dates_.Next() <= end) WriteLine();
  }

  void RunUntilPaid() {
    do {
      WriteLine();
    } while (running_.balance.value > 0);
    const Date last = loan_.schedule.back().lineDate;
    std::int32_t months = PeriodsBetween(loan_.startDate, monthlyMode, last);
    if (months < 1 || MonthsAfter(loan_.startDate, months) < last) ++months;
    loan_.period = months;
  }

  /// The whole debt and its interest on the plan's first date.
  void PayAtOnce() {
    fullPayment_ = halfPayment_ = Grown(dates_.Next()).value;
    WriteLine();
    loan_.payment = fullPayment_;
    loan_.period = 1;
  }

 private:
  double GrowthOver(std::int32_t days) const { return 1 + loan_.intRate * days / 36500; }

  Amount Grown(Date date) const {
    const std::int32_t days = date.serial - loan_.schedule.back().lineDate.serial;
    return RoundToCents(running_.balance *
                        (dates_.IsMonthly() ? MonthlyGrowth(loan_.intRate) : GrowthOver(days)));
  }

  void WriteLine() {
    if (loan_.schedule.size() > std::numeric_limits<std::int16_t>::max()) Raise(ErrorNumber::Overflow);
    tSchedule line;
    line.lineDate = dates_.Next();
    line.intRate = loan_.intRate;
    const Amount grown = Grown(line.lineDate);
    running_.payment = Amount(dates_.IsMonthly() ? fullPayment_ : halfPayment_);
    running_.Pay(line, grown, RoundToCents(grown - running_.balance));
    loan_.schedule.push_back(line);
    dates_.Advance();
  }

  tLoanDesc& loan_;
  PlanDates dates_;
  double fullPayment_;
  double halfPayment_;
  RunningLoan running_;
};

CostTotals SumLines(const tLoanDesc& loan, const tCreditQualification& qualification) {
  const double discountGrowth = MonthlyGrowth(qualification.investmentGrowthRate);
  const double homeGrowthAYear = 1 + qualification.homeValueGrowthRate / 100;
  const std::optional<int> sold = SaleMonth(qualification.monthsToKeep, loan.period);
  const Date horizon = sold ? MonthsAfter(loan.startDate, *sold) : kLastDay;
  CostTotals totals(qualification);
  double discount = 1;
  double homeGrowth = 1;
  double balanceOwed = loan.startingBalance;
  std::int32_t years = 0;  // whole years whose growth the home has had
  const auto growHomeUntil = [&](Date date) {
    for (; AdvanceDate(loan.startDate, annualMode, years + 1) <= date; ++years) homeGrowth *= homeGrowthAYear;
  };
  for (const tSchedule& line : loan.schedule) {
    if (line.lineDate > horizon) {
      CostTotals::PassOver(line);
      continue;
    }
    const bool isOpening = &line == &loan.schedule.front();
    const std::int32_t days = line.lineDate.serial - loan.startDate.serial;
    discount = RealPower(discountGrowth, days * 12.0 / 365);
    // A line on the anniversary itself still has the charges of the year that it ends.
    if (!isOpening) growHomeUntil(Date{line.lineDate.serial - 1});
    totals.AddLine(line, discount);
    const bool isMonthly = !isOpening && line.lineDate < loan.biweeklyDate;
    if (!isOpening) totals.AddCharges(discount, homeGrowth, isMonthly ? 1 : kMonthsOfHalfPayment);
    balanceOwed = line.endingBalance;
  }
  growHomeUntil(horizon < loan.schedule.back().lineDate ? horizon : loan.schedule.back().lineDate);
  totals.Sell(loan, balanceOwed, homeGrowth, 1, discount);
  return totals;
}

}  // namespace

void BuildBiWeeklySchedule(tLoanDesc& loan, const tCreditQualification& qualification) {
  const bool isTermUnknown = IsUnknown(loan.period);
  BiWeeklySchedule schedule(loan);
  if (!isTermUnknown) {
    const std::int16_t months = ToInteger(loan.period);
    if (months < 0) Raise(ErrorNumber::SubscriptOutOfRange);
    schedule.RunUntil(MonthsAfter(loan.startDate, months));
  } else if (schedule.CoversInterest()) {
    schedule.RunUntilPaid();
  } else {
    schedule.PayAtOnce();
  }
  SumLines(loan, qualification).Store(loan);
}

}  // namespace amortix2
