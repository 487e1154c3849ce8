#pragma once

// The balance of a savings plan as it moves from line to line: interest, then the deposit or the withdrawal,
// every step rounded to cents. Schedules and rate searches run on it alike, so that their balances agree to
// the last cent. It knows no dates.

#include <array>
#include <cstdint>

#include "amortix2/engine/amount.h"
#include "amortix2/engine/elementary.h"
#include "amortix2/engine/records.h"

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

/// How a plan's lines grow at one annual rate.
class SavingsGrowth {
 public:
  /// `save` at an annual rate before tax, percent. Raises Overflow.
  SavingsGrowth(const tSavingsDesc& save, double annualRate);

  /// The balance with a line's interest after tax. `days` since the line before count in continuous
  /// compounding only. Raises Overflow.
  Amount Grown(Amount balance, std::int32_t days) const {
    switch (mode_) {
      case continuousMode:
        return RoundToCents(balance * GrowthOfDays(dailyFactors_, days));
      case exactDaysMode:
        return balance + (RoundToCents(openingBalance_ * growth_) - openingBalance_);
      default:
        return RoundToCents(balance * growth_);
    }
  }

  /// Simple interest before tax for days that make no period. Raises Overflow.
  Amount OfDays(Amount balance, std::int32_t days) const {
    return RoundToCents(balance * (annualRate_ / 365 / 100) * days);
  }

  /// What every line's balance is multiplied by; 0 where the lines differ.
  double LineFactor() const { return mode_ == continuousMode || mode_ == exactDaysMode ? 0 : growth_; }

  double AfterTaxRate() const { return afterTaxRate_; }  ///< annual percent

 private:
  enumFrequencyType mode_;
  double annualRate_;
  double afterTaxRate_;
  double growth_;
  Amount openingBalance_;
  std::array<double, 32> dailyFactors_{};
};

/// The balance, and what each line adds to it.
struct RunningSavings {
  Amount balance;
  Amount grown;         ///< with the line's interest, before its deposit
  Amount deposit;       ///< net, of the last line
  bool ranDry = false;  ///< a withdrawal had to be cut

  explicit RunningSavings(const tSavingsDesc& save)
      : balance(save.startingBalance), grown(balance), deposit(NetDeposit(save)) {}

  /// Credits a line's interest and moves the net deposit. A withdrawal of more than there is, is cut to what
  /// there is, and stays cut.
  void NextLine(const SavingsGrowth& growth, std::int32_t days) {
    grown = growth.Grown(balance, days);
    balance = grown + deposit;
    if (deposit.value < 0 && balance.value < 0) {
      deposit = grown.value > 0 ? Amount() - grown : Amount();
      balance = grown + deposit;
      ranDry = true;
    }
  }
};

}  // namespace amortix2
