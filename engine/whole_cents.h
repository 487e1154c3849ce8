#pragma once

// The quickest way through a schedule's lines: a balance of whole cents grows, is rounded and takes a
// deposit, on nothing but its hundredfold. Multiply, cut and subtract are the whole chain from line to line;
// what is stored stands beside it, bit for bit what plain doubles give. Where that is not certain, nothing
// has moved, and the caller takes the plain way for that line.
//
// The grown balance is proved on every line as amount.h says. Its interest needs no proof: a balance is made
// of a rounded amount and the deposit, and up to kMost cents neither they nor their sums are further than a
// thousandth of a cent from their hundredfold, but for the deposit, which is less than a quarter off. So is
// the interest, whose hundredfold is whole and therefore its rounding.

#include <cmath>
#include <limits>

#include "amortix2/engine/amount.h"

namespace amortix2 {

class WholeCents {
 public:
  /// A balance, and what each line adds to it: any amounts, but lines only of whole cents (a quarter more or
  /// less) are certain.
  WholeCents(double balance, double deposit)
      : balance_(balance),
        deposit_(deposit),
        hundredfold_(Nearest(balance)),
        noFractionLessDeposit_(kNoFraction - Nearest(deposit)) {}

  /// One line: grown is RoundToCents(balance * growth), its interest RoundToCents(grown - balance), the next
  /// balance grown + deposit. False, and nothing done, where that is not certain or the next balance is below
  /// 0.
  bool Next(double growth) {
    const double raised = hundredfold_ * growth + kNoFraction;
    const double cents = raised - kNoFraction;
    const double next = cents / 100 + deposit_;
    // Cents below -kMost leave the next balance below 0, whatever the deposit.
    const bool isCertain = std::abs(balance_ * growth * 100 - cents) < 0.5 && cents <= kMost && next >= 0;
    if (!isCertain) [[unlikely]]
      return false;
    interest_ = (cents - hundredfold_) / 100;
    before_ = balance_;
    balance_ = next;
    hundredfold_ = raised - noFractionLessDeposit_;
    return true;
  }

  double Before() const { return before_; }      ///< the balance that the last line started from
  double Interest() const { return interest_; }  ///< of the last line
  double Balance() const { return balance_; }    ///< after it

 private:
  static constexpr double kMost = 1099511627776.0;  // 2^40

  /// The amount's cents, or NaN, which no line is certain with.
  static double Nearest(double amount) {
    const double cents = amount * 100 + kNoFraction - kNoFraction;
    const bool isNear = std::abs(amount * 100 - cents) < 0.25 && std::abs(cents) <= kMost;
    return isNear ? cents : std::numeric_limits<double>::quiet_NaN();
  }

  double balance_;
  double deposit_;
  double hundredfold_;
  double noFractionLessDeposit_;
  double before_ = 0;
  double interest_ = 0;
};

}  // namespace amortix2
