#pragma once

// What schedules have in common: lines of whole cents; and those of loans, the opening line, the cut of a
// last payment, and the totals with their present values.

#include <vector>

#include "amortix2/engine/amount.h"
#include "amortix2/engine/date_steps.h"
#include "amortix2/engine/records.h"
#include "amortix2/engine/rounding.h"
#include "amortix2/engine/whole_cents.h"

namespace amortix2 {

/// Line 0: points, interim interest for the days before the start (simple interest on a year of 360 days) and
/// fees, all paid at once. Fees are not deductible.
tSchedule OpeningLine(const tLoanDesc& loan);

/// A balance and the payment that works on it.
struct RunningLoan {
  Amount balance;
  Amount payment;  ///< falls to what is owed with the last payment, and to 0 after it
  double taxFraction;

  /// Writes a line from the balance after interest. A payment that exceeds it is cut.
  void Pay(tSchedule& line, Amount grownBalance, Amount interest) {
    line.startingBalance = balance.value;
    line.intCharged = interest.value;
    line.taxCredited = WithoutMinusZero(taxFraction * interest.value);
    balance = grownBalance - payment;
    if (balance.value < 0) {
      payment = payment + balance;
      balance = {};
    }
    line.payment = payment.value;
    line.endingBalance = balance.value;
  }
};

/// Writes lines of whole cents as long as they are certain, at most `most`, and returns how many: each grows
/// `balance` by `growth` and adds `deposit`, and `complete(line, interest)` fills in the rest. What changes
/// stands in locals, which stay in registers, and each line is made when it is written; a caller that is
/// itself `noinline` and `flatten` keeps it so.
template <class Complete>
int WriteWholeCents(std::vector<tSchedule>& lines, Amount& balance, double deposit, double growth,
                    DateSteps& dateSteps, int most, Complete complete) {
  WholeCents cents(balance.value, deposit);
  DateSteps dates = dateSteps;
  int written = 0;
  for (; written < most && cents.Next(growth); ++written) {
    const Date date = dates.Next();
    tSchedule& line = lines.emplace_back();
    line.lineDate = date;
    line.startingBalance = cents.Before();
    complete(line, cents.Interest());
    line.endingBalance = cents.Balance();
  }
  dateSteps = dates;
  balance = Amount(cents.Balance());
  return written;
}

/// Sums lines into a loan's totals and present values, which Store writes.
class CostTotals {
 public:
  explicit CostTotals(const tCreditQualification& qualification)
      : downPayment_(qualification.downPaymentAmount),
        propertyTax_(qualification.propertyTaxCharge),
        charges_(qualification.insuranceCharge + qualification.associationDues +
                 qualification.otherMonthlyLoanCharge),
        hasCharges_(charges_ != 0 || propertyTax_ != 0),
        isMoneyGrowing_(qualification.investmentGrowthRate != 0),
        costPV_(downPayment_) {}

  /// A line's own amounts, discounted by `discount`.
  void AddLine(const tSchedule& line, double discount) {
    interest_ += line.intCharged;
    taxCredited_ += line.taxCredited;
    payments_ += line.payment;
    costPV_ += Discounted(line.payment - line.taxCredited, discount);
  }

  /// A line past the horizon, which no total has: the tax, its one amount that no rounding guards, raises
  /// Overflow here when it is not finite.
  static void PassOver(const tSchedule& line) { Finite(line.taxCredited); }

  /// The home's charges of `months` months, the property tax grown by `homeGrowth`.
  void AddCharges(double discount, double homeGrowth, double months = 1) {
    if (!hasCharges_) return;
    if (charges_ != 0) costPV_ += Discounted(months * charges_, discount);
    if (propertyTax_ != 0) {
      costPV_ += Discounted(months * RoundToCents(homeGrowth * propertyTax_), discount);
    }
  }

  /// A lease's closing line: interest and tax only.
  void AddInterest(const tSchedule& line) {
    interest_ += line.intCharged;
    taxCredited_ += line.taxCredited;
  }

  /// The sale: the balance still owed is paid off and the home has its value. Present values are `growth` /
  /// `discount` of the amounts. Raises Overflow for an infinite `discount`: it has made nothing of
  /// some line's amounts unseen.
  void Sell(const tLoanDesc& loan, double balanceOwed, double homeGrowth, double growth, double discount);

  /// Writes the totals. Raises Overflow when one is not finite.
  void Store(tLoanDesc& loan) const;

 private:
  /// Where money does not grow, a division a line is saved.
  double Discounted(double amount, double discount) const {
    return isMoneyGrowing_ ? Divide(amount, discount) : amount;
  }

  double downPayment_;
  double propertyTax_;
  double charges_;
  bool hasCharges_;
  bool isMoneyGrowing_;
  double costPV_;
  double interest_ = 0;
  double taxCredited_ = 0;
  double payments_ = 0;
  double balanceOwedPV_ = 0;
  double valuePV_ = 0;
};

}  // namespace amortix2
