#pragma once

// The calculators of one loan: each describes it in the engine's record, has the engine solve it, and returns
// the results with the schedule. Inputs that are no numbers count as 0; rates are annual percentages, terms
// months. Tables have a row for every schedule line, row 0 the opening, and columns 1 to 5: date
// ("mm-dd-yyyy"), payment, principal repaid, interest, ending balance; column 0 stays Empty.
//
// All raise Overflow, DivisionByZero, SubscriptOutOfRange, InvalidProcedureCall and OutOfMemory as the engine
// and the arrays do. Where nothing else is said, no result is written then.

#include "amortix2/automation/date.h"
#include "amortix2/automation/variant.h"

namespace amortix2::calculators {

/// A loan that starts today: of amount, payment, term and rate the one that is 0 is found, looked for in this
/// order; with none 0 the payment is found anew. A 0 rate is looked for only when the other three are given.
/// Nothing is computed when too little is given. `vLoanType` "C" or "c" is a credit card, anything else a
/// simple loan.
///
/// First the results echo the inputs, with totals of Integer 0 and an empty table; they stay so when nothing
/// is computed and when the engine raises. 200000 over 360 months at 6.5 gives a payment of 1264.14.
void SimpleLoanCalculator(const Clock& clock, const Variant& vLoanType, const Variant& vPurchaseAmt,
                          const Variant& vPayment, const Variant& vPeriod, const Variant& vIntRate,
                          Variant& vResPurchaseAmt, Variant& vResPayment, Variant& vResPeriod,
                          Variant& vResIntRate, Variant& vTotPay, Variant& vTotInt, Variant& vDetArray);

/// The payment of a purchase price less a down payment. The loan starts one month before `vPayDate` (today
/// without one); the days from `vCloseDate` to its start bear interim interest. `vLoanType` is not read.
/// Results are written in two stages, as by SimpleLoanCalculator.
void FixedPayment(const Clock& clock, const Variant& vLoanType, const Variant& vPurchaseAmt,
                  const Variant& vDownPayment, const Variant& vPeriod, const Variant& vIntRate,
                  const Variant& vCloseDate, const Variant& vPayDate, Variant& vResPurchaseAmt,
                  Variant& vResPayment, Variant& vResPeriod, Variant& vResIntRate, Variant& vTotPay,
                  Variant& vTotInt, Variant& vDetArray);

/// FixedPayment with a rate that changes by `vRateInc1` points at payment `vIncDelay1` and by `vRateInc2`
/// points every `vIncDelay2` months after it, never above `vRateCap` nor below 0. The empty table of the
/// first stage has one column more.
void AdjustablePayment(const Clock& clock, const Variant& vLoanType, const Variant& vPurchaseAmt,
                       const Variant& vDownPayment, const Variant& vPeriod, const Variant& vIntRate,
                       const Variant& vCloseDate, const Variant& vPayDate, const Variant& vRateCap,
                       const Variant& vRateInc1, const Variant& vRateInc2, const Variant& vIncDelay1,
                       const Variant& vIncDelay2, Variant& vResPurchaseAmt, Variant& vResPayment,
                       Variant& vResPeriod, Variant& vResIntRate, Variant& vTotPay, Variant& vTotInt,
                       Variant& vDetArray);

/// A loan paid as over its full term and settled after `vBalloonAtPeriod` payments by one large payment, the
/// balloon, in the table's last row. A balloon at the end of the term or after it is 0. The total counts
/// payment 1 for every payment before the last, and leaves out the payment that the balloon replaces.
void BalloonLoanPaymentCalculator(const Clock& clock, const Variant& vPurchaseAmt,
                                  const Variant& vDownPayment, const Variant& vStartDate,
                                  const Variant& vPeriod, const Variant& vBalloonAtPeriod,
                                  const Variant& vIntRate, Variant& vPrincipal, Variant& vPayment,
                                  Variant& vBalloonPayment, Variant& vTotalAmountFinanced,
                                  Variant& vTotPayments, Variant& vTotIntCharged, Variant& vDetArray);

/// The mortgage that `vPayment` a month carries besides property tax (`vPropertyTax`, percent of the price a
/// year), insurance and dues. Scalars are written before the table is made.
void HomeAffordabilityCalculator(const Clock& clock, const Variant& vPayment, const Variant& vPropertyTax,
                                 const Variant& vInsurance, const Variant& vDues, const Variant& vDownPayment,
                                 const Variant& vPeriod, const Variant& vIntRate, Variant& vNewPrincipal,
                                 Variant& vNewPayment, Variant& vNewTaxes, Variant& vNewFees,
                                 Variant& vNewDet);

/// The mortgage that an annual income and monthly debts qualify for, by the rules of 28 and 36 percent.
/// Scalars are written before the table is made.
void MortgageQualificationCalculator(const Clock& clock, const Variant& vAnnualIncome,
                                     const Variant& vCreditCard, const Variant& vCarPayments,
                                     const Variant& vChildSupport, const Variant& vOtherMonthly,
                                     const Variant& vPropertyTax, const Variant& vInsurance,
                                     const Variant& vDues, const Variant& vDownPayment,
                                     const Variant& vPeriod, const Variant& vIntRate, Variant& vNewPrincipal,
                                     Variant& vNewPayment, Variant& vNewTaxes, Variant& vNewFees,
                                     Variant& vNewDet);

/// Payments for rates from `vStepX` steps of `vRateChange` below `vIntRate` to as many above it (rows) and
/// down payments from `vStepY` steps of `vDownChange` below `vDownPayment` to as many above it (columns). Row
/// 0 and column 0 stay Empty. Only `vGrid` is written.
void PaymentGridCalculator(const Clock& clock, Variant& vPrincipal, Variant& vDownPayment, Variant& vIntRate,
                           Variant& vPeriod, Variant& vDownChange, Variant& vRateChange, Variant& vStepX,
                           Variant& vStepY, Variant& vGrid);

}  // namespace amortix2::calculators
