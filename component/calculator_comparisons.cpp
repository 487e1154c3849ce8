#include "amortix2/calculators/comparisons.h"
#include "amortix2/component/calculator.h"

namespace amortix2 {

void Calculator::RefinancingCalculator(const Variant& vCurrBal, const Variant& vCurrPay,
                                       const Variant& vCurrRate, const Variant& vNewRate,
                                       const Variant& vNewPoints, const Variant& vNewFees,
                                       const Variant& vNewTerm, const Variant& vIncTaxRate,
                                       const Variant& vInvGrowthRate, const Variant& vSellByDate,
                                       Variant& vGrid, Variant& vCurrDet, Variant& vNewDet) const {
  calculators::RefinancingCalculator(clock_, vCurrBal, vCurrPay, vCurrRate, vNewRate, vNewPoints, vNewFees,
                                     vNewTerm, vIncTaxRate, vInvGrowthRate, vSellByDate, vGrid, vCurrDet,
                                     vNewDet);
}

void Calculator::PrePayCalculator(const Variant& vCurrBal, const Variant& vCurrPay, const Variant& vCurrRate,
                                  const Variant& vExtraPayment, const Variant& vIncTaxRate,
                                  const Variant& vInvGrowthRate, const Variant& vSellByDate, Variant& vGrid,
                                  Variant& vCurrDet, Variant& vNewDet) const {
  calculators::PrePayCalculator(clock_, vCurrBal, vCurrPay, vCurrRate, vExtraPayment, vIncTaxRate,
                                vInvGrowthRate, vSellByDate, vGrid, vCurrDet, vNewDet);
}

void Calculator::FastPrePayCalculator(Variant& currBal, Variant& currPay, Variant& currRate,
                                      Variant& targetPeriod, Variant& taxRate, Variant& invRate,
                                      Variant& keep, Variant& grid, Variant& currdet, Variant& newdet) const {
  calculators::FastPrePayCalculator(clock_, currBal, currPay, currRate, targetPeriod, taxRate, invRate, keep,
                                    grid, currdet, newdet);
}

void Calculator::BiWeeklyComparison(const Variant& vCurrBal, const Variant& vCurrPay,
                                    const Variant& vCurrRate, const Variant& vPaymentDate,
                                    const Variant& vNewFees, const Variant& vSwitchDate,
                                    const Variant& vIncTaxRate, const Variant& vInvGrowthRate,
                                    const Variant& vSellByDate, Variant& vGrid, Variant& vCurrDet,
                                    Variant& vNewDet) const {
  calculators::BiWeeklyComparison(clock_, vCurrBal, vCurrPay, vCurrRate, vPaymentDate, vNewFees, vSwitchDate,
                                  vIncTaxRate, vInvGrowthRate, vSellByDate, vGrid, vCurrDet, vNewDet);
}

void Calculator::PointsAdvisor(const Variant& vPurchaseAmt, const Variant& vIncTaxRate,
                               const Variant& vSellByDate, const Variant& vDownpayment1,
                               const Variant& vPeriod1, const Variant& vIntRate1, const Variant& vPoints1,
                               const Variant& vFees1, const Variant& vDownpayment2, const Variant& vPeriod2,
                               const Variant& vIntRate2, const Variant& vPoints2, const Variant& vFees2,
                               Variant& vGrid, Variant& vCurrDet, Variant& vNewDet) const {
  calculators::PointsAdvisor(clock_, vPurchaseAmt, vIncTaxRate, vSellByDate, vDownpayment1, vPeriod1,
                             vIntRate1, vPoints1, vFees1, vDownpayment2, vPeriod2, vIntRate2, vPoints2,
                             vFees2, vGrid, vCurrDet, vNewDet);
}

void Calculator::ARMComparison(const Variant& vPurchaseAmt, const Variant& vIncTaxRate,
                               const Variant& vSellByDate, const Variant& vDownpayment1,
                               const Variant& vPeriod1, const Variant& vIntRate1, const Variant& vPoints1,
                               const Variant& vFees1, const Variant& vRateInc1, const Variant& vIncDelay1,
                               const Variant& vRateCap1, const Variant& vDownpayment2,
                               const Variant& vPeriod2, const Variant& vIntRate2, const Variant& vPoints2,
                               const Variant& vFees2, const Variant& vRateInc2, const Variant& vIncDelay2,
                               const Variant& vRateCap2, Variant& vGrid, Variant& vCurrDet,
                               Variant& vNewDet) const {
  calculators::ARMComparison(clock_, vPurchaseAmt, vIncTaxRate, vSellByDate, vDownpayment1, vPeriod1,
                             vIntRate1, vPoints1, vFees1, vRateInc1, vIncDelay1, vRateCap1, vDownpayment2,
                             vPeriod2, vIntRate2, vPoints2, vFees2, vRateInc2, vIncDelay2, vRateCap2, vGrid,
                             vCurrDet, vNewDet);
}

}  // namespace amortix2
