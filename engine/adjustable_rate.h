#pragma once

// An adjustable loan's annual rate: a first change at one payment, later changes at a fixed interval after
// it, all kept between a floor and a cap.

#include "amortix2/engine/records.h"

namespace amortix2 {

class AdjustableRate {
 public:
  explicit AdjustableRate(const tLoanDesc& loan)
      : loan_(loan),
        rate_(loan.intRate),
        hasFirst_(loan.firstRatePeriod > 0 && loan.firstRateIncrease != 0),
        hasLater_(loan.subsequentRatePeriod > 0 && loan.subsequentRateIncrease != 0) {}

  double Rate() const { return rate_; }  ///< annual percent

  bool MayChange() const { return hasFirst_ || hasLater_; }

  /// Moves on to payment number k (called for 1, 2, 3, ...). True when the rate differs from the one before.
  bool StepTo(int k) {
    if (!MayChange()) return false;
    const double before = rate_;
    bool isStep = false;
    if (hasFirst_ && k == loan_.firstRatePeriod) {
      rate_ += loan_.firstRateIncrease;
      isStep = true;
    }
    if (hasLater_ && k > loan_.firstRatePeriod && ++sinceChange_ == loan_.subsequentRatePeriod) {
      rate_ += loan_.subsequentRateIncrease;
      sinceChange_ = 0;
      isStep = true;
    }
    if (isStep) {
      // The floor comes last: where the bounds cross, it wins.
      if (rate_ > loan_.intRateMaximum) rate_ = loan_.intRateMaximum;
      if (rate_ < loan_.intRateMinimum) rate_ = loan_.intRateMinimum;
    }
    return rate_ != before;
  }

 private:
  const tLoanDesc& loan_;
  double rate_;
  bool hasFirst_;
  bool hasLater_;
  int sinceChange_ = 0;
};

}  // namespace amortix2
