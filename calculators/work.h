#pragma once

// What all calculators share: the records that one call works on, and the tables that it returns.

#include <cstdint>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/date.h"
#include "amortix2/engine/amortix.h"
#include "amortix2/engine/records.h"

namespace amortix2::calculators {

/// The engine's arguments, fresh and zero-filled for one call.
struct Work {
  RecordArray<tLoanDesc> loans{0, 0};
  RecordArray<tSavingsDesc> savings{0, 0};
  RecordArray<tGoalDesc> goals{0, 0};
  tCreditQualification qualification;

  /// With loans 1 to `count`.
  static Work ForLoans(std::int32_t count) {
    Work work;
    work.loans = {1, count};
    return work;
  }
  /// With the savings account 1 (and an unused 0).
  static Work ForSavings() {
    Work work;
    work.savings = {0, 1};
    return work;
  }

  void Solve(enumAmortixType type) { Amortix(type, loans, savings, goals, qualification); }
};

/// The last column of a table with one schedule, and of one with its rates too.
inline constexpr std::int32_t kDetailColumns = 5;
inline constexpr std::int32_t kDetailColumnsWithRate = 6;

/// An empty table of rows 0 to lastRow and columns 0 to lastColumn. Raises SubscriptOutOfRange, OutOfMemory.
inline Array Table(std::int32_t lastRow, std::int32_t lastColumn = kDetailColumns) {
  if (lastRow < 0 || lastColumn < 0) Raise(ErrorNumber::SubscriptOutOfRange);
  return Array({0, lastRow}, {0, lastColumn});
}

/// The loan's schedule lines 0 to lastRow from column 1 on. Raises Overflow when lastRow leaves 16 bits.
Array Detail(const tLoanDesc& loan, std::int32_t lastRow, std::int32_t lastColumn = kDetailColumns);

/// One row for each month of the loan's term, and the opening row.
Array DetailOfTerm(const tLoanDesc& loan, std::int32_t lastColumn = kDetailColumns);

/// The value's date, or today when it is none.
Date DateOrToday(const Variant& value, const Clock& clock);

}  // namespace amortix2::calculators
