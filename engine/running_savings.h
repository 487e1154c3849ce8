#pragma once

// The balance of a savings plan as it moves from line to line: interest, then the deposit or the withdrawal,
// every step rounded to cents. Schedules and rate searches run on it alike, so that their balances agree to
// the last cent. It knows no dates.

#include <array>
#include <cstdint>

#include "amortix2/engine/elementary.h"
#include "amortix2/engine/records.h"
#include "amortix2/engine/rounding.h"

namespace amortix2 {

/// How the plan's interest compounds: `compoundingMode`, or for sameasother `paymentMode`.
enumFrequencyType CompoundingMode(const tSavingsDesc& save);

/// deposit - withdrawal: what a period adds to the balance.
inline double NetDeposit(const tSavingsDesc& save) { return save.deposit - save.withdrawal; }

/// Growth of one line at an annual rate in percent: 1 + rate / (100 x compounding periods a year).
double LineGrowth(const tSavingsDesc& save, double annualRate);

/// The part of a plan's interest that stays after tax.
inline double AfterTaxFraction(const tSavingsDesc& save) { return 1 - save.taxRate / 100; }

/// Continuous growth over `days`, 0 or more, from BuildDailyFactorTable's factors.
inline double GrowthOfDays(const std::array<double, 32>& daily, std::int32_t days) {
  return Power(daily[31], days / 31) * daily[static_cast<std::size_t>(days % 31)];
}

class RunningSavings {
 public:
  /// `save` at an annual rate before tax, percent. Raises Overflow.
  RunningSavings(const tSavingsDesc& save, double annualRate);

  /// Credits a line's interest after tax and moves the net deposit. A withdrawal of more than there is, is
  /// cut to what there is, and stays cut. `days` since the line before count in continuous compounding only.
  /// Raises Overflow.
  void NextLine(std::int32_t days) {
    grownBalance_ = Grow(days);
    if (deposit_ < 0 && grownBalance_ + deposit_ < 0) {
      deposit_ = grownBalance_ > 0 ? -grownBalance_ : 0;
      ranDry_ = true;
    }
    balance_ = grownBalance_ + deposit_;
  }

  /// Credits simple interest before tax for days that make no period, and returns it. Raises Overflow.
  double CreditDays(std::int32_t days) {
    const double interest = RoundToCents(balance_ * (annualRate_ / 365 / 100) * days);
    balance_ += interest;
    return interest;
  }

  double Balance() const { return balance_; }
  double GrownBalance() const { return grownBalance_; }  ///< with the line's interest, before its deposit
  double Deposit() const { return deposit_; }            ///< net, of the last line
  double AfterTaxRate() const { return afterTaxRate_; }  ///< annual percent
  bool RanDry() const { return ranDry_; }                ///< a withdrawal had to be cut

 private:
  double Grow(std::int32_t days) const {
    switch (mode_) {
      case continuousMode:
        return RoundToCents(balance_ * GrowthOfDays(dailyFactors_, days));
      case exactDaysMode:
        return balance_ + (RoundToCents(openingBalance_ * growth_) - openingBalance_);
      default:
        return RoundToCents(balance_ * growth_);
    }
  }

  enumFrequencyType mode_;
  double annualRate_;
  double afterTaxRate_;
  double growth_;
  double openingBalance_;
  double balance_;
  double grownBalance_;
  double deposit_;
  bool ranDry_ = false;
  std::array<double, 32> dailyFactors_{};
};

}  // namespace amortix2
