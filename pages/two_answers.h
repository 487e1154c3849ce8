#pragma once

// Two answers of the same calculator side by side: what was changed, and what came of it.

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/pages/calculation.h"

namespace amortix2::pages {

/// A table of the inputs that differ and of all figures, with the difference. Both are of one member.
void AppendTwoAnswers(EscapedMarkup& out, const Calculation& first, const Calculation& second);

}  // namespace amortix2::pages
