#pragma once

// The lease calculators. A lease is a loan whose first payments may be made in advance and which ends with a
// residual value. Inputs that are no numbers count as 0. Tables are as those of loans.h, with the prepaid
// payments in row 1 and the residual in the last row.

#include "amortix2/automation/date.h"
#include "amortix2/automation/variant.h"

namespace amortix2::calculators {

/// A lease with monthly payments. Finds the residual when it is 0 and principal and payment are given; else
/// the principal when it is 0 and a payment is given; else, with principal and residual given, the rate when
/// it is 0 and a payment is given, and otherwise the payment. Where nothing can be found all results are 0
/// and the table has two empty rows. A period below 1 counts as 1, prepayments below 0 as 0 and
/// those above the period as the period. `vDummy` is not read. Raises as the calculators of loans.h; no
/// result is written then.
void MonthlyLeaseCalculator(const Clock& clock, const Variant& vDummy, const Variant& vPrincipal,
                            const Variant& vPayment, const Variant& vPeriod, const Variant& vIntRate,
                            const Variant& vPrepays, const Variant& vEndingBal, const Variant& vStartDate,
                            Variant& vResPrincipal, Variant& vResPayment, Variant& vResPeriod,
                            Variant& vResIntRate, Variant& vResPrepays, Variant& vResEndingBal,
                            Variant& vResTotPayments, Variant& vResTotInterest, Variant& vDetArr);

/// A lease with payments at frequency `vPayMode` and interest compounded at `vIntMode` (enumFrequencyType).
/// The rate is restated for one payment period, on the monthly basis of MonthlyLeaseCalculator (1200 times
/// the growth of a period), and so is a rate that is found; the table's dates are those of the payment
/// frequency. An interest frequency that does not divide the payment's becomes the payment's, except with
/// monthly payments. Raises as MonthlyLeaseCalculator and SimpleSavingsCalculator; when the dates fail, the
/// results stand.
void SimpleLeaseCalculator(const Clock& clock, const Variant& vDummy, const Variant& vPrincipal,
                           const Variant& vPayment, const Variant& vPeriod, const Variant& vIntRate,
                           const Variant& vPrepays, const Variant& vEndingBal, const Variant& vStartDate,
                           const Variant& vPayMode, const Variant& vIntMode, Variant& vResPrincipal,
                           Variant& vResPayment, Variant& vResPeriod, Variant& vResIntRate,
                           Variant& vResPrepays, Variant& vResEndingBal, Variant& vResTotPayments,
                           Variant& vResTotInterest, Variant& vDetArr);

}  // namespace amortix2::calculators
