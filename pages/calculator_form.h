#pragma once

// The form of a calculator: its inputs in the order of the description, what is to be found as a choice, and
// what was wrong at its field. It asks by address (GET), so that an answer can be kept and sent as a link.

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/pages/calculation.h"
#include "amortix2/pages/query.h"

namespace amortix2::pages {

/// The form with what was typed, and with the sentences of what was wrong. The value of "with" goes along.
void AppendForm(EscapedMarkup& out, const Calculation& calculation, const Query& query);

/// What was wrong, each a link to its field; the page opens here.
void AppendErrors(EscapedMarkup& out, const Calculation& calculation);

}  // namespace amortix2::pages
