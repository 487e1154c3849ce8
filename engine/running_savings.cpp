#include "amortix2/engine/running_savings.h"

#include "amortix2/engine/frequency.h"

namespace amortix2 {

enumFrequencyType CompoundingMode(const tSavingsDesc& save) {
  return save.compoundingMode == sameasother ? save.paymentMode : save.compoundingMode;
}

double LineGrowth(const tSavingsDesc& save, double annualRate) {
  return 1 + annualRate / (100 * PeriodsPerYear(CompoundingMode(save)));
}

SavingsGrowth::SavingsGrowth(const tSavingsDesc& save, double annualRate)
    : mode_(CompoundingMode(save)),
      annualRate_(annualRate),
      afterTaxRate_(WithoutMinusZero(Finite(AfterTaxFraction(save) * annualRate))),
      growth_(LineGrowth(save, afterTaxRate_)),
      openingBalance_(save.startingBalance) {
  if (mode_ == continuousMode) dailyFactors_ = BuildDailyFactorTable(afterTaxRate_);
}

}  // namespace amortix2
