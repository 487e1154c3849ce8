#pragma once

// A loan's schedule: an opening line of up-front charges, then one line a payment, every step rounded to
// cents, and the totals and present values over the time that the home is kept. For example 1000 at 12 % over
// 3 months (payment 340.02):
//
//   line  date        payment  interest  balance
//   0     2026-01-31     0.00      0.00  1000.00
//   1     2026-02-28   340.02     10.00   669.98
//   2     2026-03-31   340.02      6.70   336.66
//   3     2026-04-30   340.02      3.37     0.01
//
// A payment that exceeds what is owed is cut to it; with a given term, what cent rounding leaves stays as a
// balance.

#include <cstdint>
#include <optional>

#include "amortix2/automation/public.h"
#include "amortix2/engine/records.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Fills `schedule`, the totals and the present values of a loan whose payment, amount and rate are known,
/// and finds a `period` that holds UNKNOWNLOANVALUE (FindTerm), adding what is left after its last line to
/// that payment. Loans of type biWeekly are scheduled by biweekly_schedule.h. A lease's closing line stores
/// what it pays into `residualAmount`.
///
/// Line k is dated k months after the start, on the start's day of the month or its month's last. Totals and
/// present values run over lines 0 to `monthsToKeep`, or over all when that is below 1 or past the term.
/// Raises Overflow (a term beyond 16 bits; an amount beyond doubles), DivisionByZero, SubscriptOutOfRange (a
/// negative term, or more prepayments than the term has room for), InvalidProcedureCall (a date past 9999).
void BuildLoanSchedule(tLoanDesc& loan, const tCreditQualification& qualification);

/// The month in which a home that is kept for `monthsToKeep` is sold, rounded; none when that is below 1 or
/// past the term: it is then kept as long as the loan runs.
std::optional<int> SaleMonth(double monthsToKeep, double term);

struct TermFound {
  std::int16_t payments;
  double payment;  ///< the loan's own, or the whole debt where the payment does not cover the interest
};

/// How many payments pay the loan off. A remainder of up to a quarter of a payment is no payment of its own.
/// A payment that does not cover the interest gives one payment of the whole debt with one month's interest.
/// Raises Overflow past 32767 payments.
TermFound FindTerm(const tLoanDesc& loan);

}  // namespace amortix2
