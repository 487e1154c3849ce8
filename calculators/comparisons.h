#pragma once

// The calculators that set two loans side by side. Each answers with a small table `vGrid` and one schedule
// table a loan (as in loans.h). Row 0 and column 0 of the grid stay Empty; columns 1 and 2 are the two loans,
// column 3 is their difference; its rows are
//
//   1  monthly payment
//   2  cash paid up front: points, interim interest and fees
//   3  term in months
//   4  present value of the loan's cost over the months that it is kept
//   5  annual percentage rate (PointsAdvisor and ARMComparison only)
//
// `vSellByDate` is the number of months that the loan is kept; a date is no number and counts as 0, which
// stands for the whole term. Inputs that are no numbers count as 0. All raise as the calculators of loans.h,
// and write nothing then but what is said below.

#include "amortix2/automation/date.h"
#include "amortix2/automation/variant.h"

namespace amortix2::calculators {

/// The current loan (column 1) against a new one of the same balance (column 2); column 3 is current less
/// new, so that a positive number is what the new loan saves. The current loan's remaining term is found from
/// its payment.
void RefinancingCalculator(const Clock& clock, const Variant& vCurrBal, const Variant& vCurrPay,
                           const Variant& vCurrRate, const Variant& vNewRate, const Variant& vNewPoints,
                           const Variant& vNewFees, const Variant& vNewTerm, const Variant& vIncTaxRate,
                           const Variant& vInvGrowthRate, const Variant& vSellByDate, Variant& vGrid,
                           Variant& vCurrDet, Variant& vNewDet);

/// The current loan (column 1) against paying `vExtraPayment` more each month (column 2); column 3 is current
/// less new.
void PrePayCalculator(const Clock& clock, const Variant& vCurrBal, const Variant& vCurrPay,
                      const Variant& vCurrRate, const Variant& vExtraPayment, const Variant& vIncTaxRate,
                      const Variant& vInvGrowthRate, const Variant& vSellByDate, Variant& vGrid,
                      Variant& vCurrDet, Variant& vNewDet);

/// PrePayCalculator with the extra payment that pays the loan off in `targetPeriod` months, never less than
/// 0. `currPay` is written back as a number, before anything else is computed from it.
void FastPrePayCalculator(const Clock& clock, Variant& currBal, Variant& currPay, Variant& currRate,
                          Variant& targetPeriod, Variant& taxRate, Variant& invRate, Variant& keep,
                          Variant& grid, Variant& currdet, Variant& newdet);

/// The current monthly loan (column 1) against half payments every two weeks from `vSwitchDate` on, for a fee
/// (column 2); column 3 is current less new. Dates that are none are today.
void BiWeeklyComparison(const Clock& clock, const Variant& vCurrBal, const Variant& vCurrPay,
                        const Variant& vCurrRate, const Variant& vPaymentDate, const Variant& vNewFees,
                        const Variant& vSwitchDate, const Variant& vIncTaxRate, const Variant& vInvGrowthRate,
                        const Variant& vSellByDate, Variant& vGrid, Variant& vCurrDet, Variant& vNewDet);

/// Two fixed-rate offers for one purchase; column 3 is offer 2 less offer 1. `vNewDet` is offer 1's schedule,
/// `vCurrDet` offer 2's.
void PointsAdvisor(const Clock& clock, const Variant& vPurchaseAmt, const Variant& vIncTaxRate,
                   const Variant& vSellByDate, const Variant& vDownpayment1, const Variant& vPeriod1,
                   const Variant& vIntRate1, const Variant& vPoints1, const Variant& vFees1,
                   const Variant& vDownpayment2, const Variant& vPeriod2, const Variant& vIntRate2,
                   const Variant& vPoints2, const Variant& vFees2, Variant& vGrid, Variant& vCurrDet,
                   Variant& vNewDet);

/// Two adjustable-rate offers, whose rates change by `vRateInc` points every `vIncDelay` months up to
/// `vRateCap`; column 3 is offer 1 less offer 2. `vNewDet` is offer 1's schedule, `vCurrDet` offer 2's, both
/// with the line's rate in column 6.
void ARMComparison(const Clock& clock, const Variant& vPurchaseAmt, const Variant& vIncTaxRate,
                   const Variant& vSellByDate, const Variant& vDownpayment1, const Variant& vPeriod1,
                   const Variant& vIntRate1, const Variant& vPoints1, const Variant& vFees1,
                   const Variant& vRateInc1, const Variant& vIncDelay1, const Variant& vRateCap1,
                   const Variant& vDownpayment2, const Variant& vPeriod2, const Variant& vIntRate2,
                   const Variant& vPoints2, const Variant& vFees2, const Variant& vRateInc2,
                   const Variant& vIncDelay2, const Variant& vRateCap2, Variant& vGrid, Variant& vCurrDet,
                   Variant& vNewDet);

}  // namespace amortix2::calculators
