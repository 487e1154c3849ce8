#pragma once

// What a comparison comes to when a loan is kept for less or more time than was asked: the costs of both
// sides within 1, 5 and 10 years, and the month from which the other side is the better one.

#include "amortix2/automation/date.h"
#include "amortix2/charts/escaped_markup.h"
#include "amortix2/pages/calculation.h"
#include "amortix2/pages/query.h"

namespace amortix2::pages {

/// Nothing for members that compare nothing over time.
void AppendHorizons(EscapedMarkup& out, const Calculation& calculation, const Query& query,
                    const Clock& clock);

}  // namespace amortix2::pages
