#pragma once

// The calculators of one savings or spending plan: each describes it in the engine's record, has the engine
// find the one quantity that is missing, and returns that with the schedule. Inputs that are no numbers count
// as 0; rates are annual percentages; `vFreq` is a number of enumFrequencyType, halves rounded to even, and
// sets the deposits' and the interest's frequency alike. Tables have a row for every schedule line, row 0 the
// opening with start date and balance only, and columns 1 to 5: date ("mm-dd-yyyy"), deposit, interest,
// growth, balance; column 0 stays Empty.
//
// All raise Overflow (a frequency or a count of periods beyond 16 bits; amounts beyond doubles),
// DivisionByZero, InvalidProcedureCall and SubscriptOutOfRange as the engine does, and TypeMismatch for a
// `vStartDate` that is no date. Where nothing else is said, no result is written then.

#include "amortix2/automation/date.h"
#include "amortix2/automation/variant.h"

namespace amortix2::calculators {

// ---- A plan of a whole number of years: `vPeriod` is cut down to one. The table has a row for each deposit.

/// `vEndBal`: what the plan comes to. 100 a month over 10 years at 6 from nothing: 16387.98.
void AmountSavedCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                           const Variant& vFreq, const Variant& vPeriod, const Variant& vIntRate,
                           Variant& vEndBal, Variant& vDetArray);

/// `vIntRate`: the rate that the plan needs to come to `vEndingBal`, to three decimals.
void SavingsRateCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                           const Variant& vFreq, const Variant& vPeriod, const Variant& vEndingBal,
                           Variant& vIntRate, Variant& vDetArray);

/// `vCurrBal`: what the plan needs at its start.
void StartingAmountCalculator(const Variant& vStartDate, const Variant& vPayment, const Variant& vFreq,
                              const Variant& vPeriod, const Variant& vIntRate, const Variant& vEndingBal,
                              Variant& vCurrBal, Variant& vDetArray);

/// `vPayment`: the deposit that the plan needs.
void DepositCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vFreq,
                       const Variant& vPeriod, const Variant& vIntRate, const Variant& vEndingBal,
                       Variant& vPayment, Variant& vDetArray);

// ---- A single sum between two dates, compounded at `vFreq`. A date that is none is today. Days after the
// last whole period have a row of their own.

/// `vCurrBal`: what `vEndingBal` on the ending date is worth on the start date.
void PresentValueCalculator(const Clock& clock, const Variant& vStartDate, const Variant& vEndingDate,
                            const Variant& vEndingBal, const Variant& vIntRate, const Variant& vFreq,
                            Variant& vCurrBal, Variant& vDetArray);

/// `vEndingBal`: what `vCurrBal` grows to.
void FutureValueCalculator(const Clock& clock, const Variant& vStartDate, const Variant& vEndingDate,
                           const Variant& vCurrBal, const Variant& vIntRate, const Variant& vFreq,
                           Variant& vEndingBal, Variant& vDetArray);

/// `vIntRate`: the rate that turns `vCurrBal` into `vEndingBal`, to three decimals, and `vResEndingBal`: what
/// the sum comes to at that rate.
void YieldCalculator(const Clock& clock, const Variant& vStartDate, const Variant& vEndingDate,
                     const Variant& vCurrBal, const Variant& vEndingBal, const Variant& vFreq,
                     Variant& vIntRate, Variant& vResEndingBal, Variant& vDetArray);

// ---- Plans of `vPeriod` periods of their frequency, of which the whole ones count. The unknown is chosen by
// which inputs are exactly 0. The numbers are written before the table is made.

/// Savings with an income tax on interest. Without a period it is looked for (its end date is a result). With
/// one: no goal `vEndingBal`: the ending balance; no deposit: the deposit; no balance: the balance; no rate:
/// the rate; everything given: the ending balance anew.
void SimpleSavingsCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                             const Variant& vFreq, const Variant& vEndingBal, const Variant& vPeriod,
                             const Variant& vIntRate, const Variant& vIncTaxRate, Variant& vResCurrBal,
                             Variant& vResPayment, Variant& vResEndingBal, Variant& vResEndDate,
                             Variant& vResIntRate, Variant& vDetArray);

/// A retirement account: SimpleSavingsCalculator with yearly contributions and untaxed growth. With `vTyp`
/// exactly "T" it is taxed on withdrawal: the goal is what is left after tax. `vGrid` has elements 0 (Empty)
/// to 6: balance, contribution, ending balance before and after tax, end date, rate. Raises DivisionByZero
/// for a tax rate of 100 and a goal; TypeMismatch, with `vDetArray` written, for a type "T" whose tax rate is
/// no number.
void IRACalculator(const Variant& vStartDate, const Variant& vTyp, const Variant& vCurrBal,
                   const Variant& vPayment, const Variant& vEndingBal, const Variant& vPeriod,
                   const Variant& vIntRate, const Variant& vIncTaxRate, Variant& vGrid, Variant& vDetArray);

/// A balance spent down to nothing by withdrawals of `vPayment`. Without a period it is looked for. With one:
/// no balance: the balance; no rate, but a withdrawal: the rate; else the withdrawal, also when everything is
/// given. `vResPeriod` is an Integer; -1 when the balance ends as it began, and so lasts for ever. When
/// nothing can be looked for the results first echo the inputs, with a table of two empty rows; then the plan
/// is run as it stands.
void SpendingCalculator(const Variant& vStartDate, const Variant& vCurrBal, const Variant& vPayment,
                        const Variant& vIntRate, const Variant& vFreq, const Variant& vPeriod,
                        Variant& vResCurrBal, Variant& vResPayment, Variant& vResIntRate, Variant& vResPeriod,
                        Variant& vDetArray);

}  // namespace amortix2::calculators
