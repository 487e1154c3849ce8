#pragma once

// Several loans against one new loan for the sum of their balances. Conventions and errors stand in
// question.h.

#include <vector>

#include "amortix2/automation/public.h"
#include "amortix2/calculators/comparisons.h"

namespace AMORTIX2_PUBLIC amortix2 {

struct ConsolidationQuestion {
  std::vector<CurrentLoan> current = {};
  NewLoan proposed = {};
  Outlook outlook = {};
  Date startDate = kDefaultStart;
};

/// What the current loans come to together.
struct LoansTogether {
  double payment = 0;
  double upFrontCost = 0;
  double months = 0;  ///< the longest of their terms, rounded
  double costInTodaysMoney = 0;
};

struct ConsolidationAnswer {
  std::vector<ComparedLoan> current = {};  ///< in the order of the question
  LoansTogether together = {};
  ComparedLoan proposed = {};
};

/// A current loan whose payment does not cover its interest is paid at once, and its whole debt with a
/// month's interest is its payment. Points and fees of the new loan are paid in cash. With one loan the
/// figures are those of a RefinancingQuestion. Sums run from the first loan up, unrounded; Overflow when one
/// leaves the doubles.
ConsolidationAnswer Compare(const ConsolidationQuestion& question);

}  // namespace amortix2
