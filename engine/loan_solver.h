#pragma once

// Finds the quantity of a loan that holds UNKNOWNLOANVALUE, then schedules the loan. Amounts, payments and
// residuals have a closed form; the rate is searched for; the term is found while the schedule is built.

#include "amortix2/automation/public.h"
#include "amortix2/engine/payment_factors.h"
#include "amortix2/engine/records.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Solves `loan` in place: first a marked payment, amount or residual, rounded to cents; then a marked rate;
/// then writes the household's monthly propertyTaxCharge; then, when asked to, builds the schedule and its
/// totals (loan_schedule.h, which also finds a marked period); last a marked APR, from the amount less the
/// charges of the schedule's opening line. Rates are rounded to three decimals.
///
/// Where the payments do not exceed what is owed the rate is 0, and a loan's payment becomes the one that
/// pays it off at 0 %. Raises Overflow (also for a period beyond 16 bits), DivisionByZero, and
/// SubscriptOutOfRange for an APR without a schedule. The records then hold what had been solved.
void SolveLoan(tLoanDesc& loan, tCreditQualification& qualification, bool buildSchedule);

/// A rate search: the growth a month at which `payment` repays `amount` down to `residual`.
struct RateTarget {
  PaymentTerms terms;
  double amount;
  double payment;
  double residual;
};

struct RateFound {
  double growth;   ///< 1 when there is no positive rate
  double payment;  ///< the target's payment; at growth 1 the one that pays the amount off
  int trials;      ///< payments computed on the way
};

/// Two bisections of the growths from 1 to where a month's interest equals the payment, then secant steps on
/// the payment rounded to cents, until it is met or two trials in a row give the same one. A search that no
/// longer comes closer, or not within 5000 trials, stops with the closest. Raises Overflow, DivisionByZero.
RateFound FindGrowth(const RateTarget& target);

}  // namespace amortix2
