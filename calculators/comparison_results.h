#pragma once

// What the comparisons share: the figures of a solved loan, and the three results of a method. The grid's row
// 0 and column 0 stay Empty; columns 1 and 2 are the two loans, column 3 is their difference; its rows are
//
//   1  monthly payment
//   2  cash paid up front: points, interim interest and fees
//   3  term in months
//   4  present value of the loan's cost over the months that it is kept
//   5  annual percentage rate (offers only)

#include <cstdint>

#include "amortix2/automation/variant.h"
#include "amortix2/calculators/comparisons.h"
#include "amortix2/calculators/tables.h"

namespace amortix2::calculators {

/// The engine's records of the loan that the borrower has, with the term unknown, and of a new one, with the
/// payment unknown and no amount yet.
tLoanDesc RecordOf(const CurrentLoan& current, const Outlook& outlook, Date startDate);
tLoanDesc RecordOf(const NewLoan& proposed, const Outlook& outlook, Date startDate);

/// The figures of a loan that has its schedule.
ComparedLoan Figures(tLoanDesc loan);

/// What the engine reads of an outlook besides the tax rate.
tCreditQualification HouseholdOf(const Outlook& outlook);

enum class Difference { FirstLessSecond, SecondLessFirst };

/// Raises Overflow for a difference beyond doubles.
Array ComparisonGrid(const ComparedLoan& first, const ComparedLoan& second, Difference difference,
                     bool hasRates);

/// The table for `result` as LoanTable makes it: a row for each month of the loan's term, and the opening
/// row.
Variant TermTable(const Variant& result, const ComparedLoan& loan, std::int32_t lastColumn = kDetailColumns);

}  // namespace amortix2::calculators
