#pragma once

// What the plain calculators have in common: the way in for C++ programs. A question is a value with named
// fields, its answer another; the functions between them keep nothing, read no clock, and any number of
// threads may call them.
//
//   const LoanAnswer loan = Solve(LoanQuestion{.amount = 200000, .months = 360, .annualPercent = 6.5});
//   loan.payment                      1264.14
//   loan.schedule[12].endingBalance   197764.5
//
// A std::optional field that is left out is what the answer finds. At most one may be left out; with none
// left out the schedule is that of the question as it stands. Amounts are currency, rates annual percentages
// (6.5 is 6.5 %), terms months unless said otherwise, used rounded to a whole number. A value of exactly
// UNKNOWNLOANVALUE counts as left out.
//
// Whatever floating-point state the caller has (trapped exceptions, another rounding), the answers are the
// same and the state is as it was.
//
// Every error is an AutomationError: InvalidProcedureCall when a second quantity is left out (Argument()
// names it) and for dates past 9999, Overflow for a term or frequency beyond 16 bits and for amounts beyond
// doubles, DivisionByZero where nothing determines the answer (a payment over 0 months),
// SubscriptOutOfRange for a negative term, OutOfMemory.

#include <initializer_list>
#include <optional>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/automation/error.h"
#include "amortix2/automation/public.h"
#include "amortix2/engine/records.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// 1 January 2000: the start of a question that names none. The start decides the lines' dates, and no
/// amount but the interest of days that make no whole period.
inline constexpr Date kDefaultStart{36526};

/// Line 0 is the opening, line k the k-th payment or deposit.
using Schedule = std::vector<tSchedule>;

namespace calculators {

/// A quantity that a question may leave out.
struct Quantity {
  const char* name;
  bool isGiven;
};

/// Raises InvalidProcedureCall, naming the second of the quantities that are left out.
inline void RequireOneUnknown(std::initializer_list<Quantity> quantities) {
  bool hasUnknown = false;
  for (const Quantity& quantity : quantities) {
    if (quantity.isGiven) continue;
    if (hasUnknown) Raise(ErrorNumber::InvalidProcedureCall, quantity.name);
    hasUnknown = true;
  }
}

/// What the engine's record holds for a quantity.
inline double OrUnknown(const std::optional<double>& quantity) { return quantity.value_or(UNKNOWNLOANVALUE); }

}  // namespace calculators
}  // namespace amortix2
