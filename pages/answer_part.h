#pragma once

// The answer of a calculation as a part of a page: the sentence, the figures, what a person should be told
// beside them, both sides of a comparison, charts and schedules.

#include "amortix2/automation/date.h"
#include "amortix2/charts/escaped_markup.h"
#include "amortix2/pages/calculation.h"
#include "amortix2/pages/query.h"

namespace amortix2::pages {

/// Of a calculation that is answered. `first` is another answer of the same member to stand beside it, or
/// null. The clock is that of the calculation: comparisons are computed again for other times.
void AppendAnswer(EscapedMarkup& out, const Calculation& calculation, const Query& query,
                  const Calculation* first, const Clock& clock);

/// The sentence that answers, as people read its figures; empty when there is none.
std::string AnswerText(const Calculation& calculation);

}  // namespace amortix2::pages
