#pragma once

// The page of a calculator: its form, and the answer beside it. Opened without inputs it shows the
// description's example, but for a survey, which nobody has answered yet.

#include "amortix2/automation/date.h"
#include "amortix2/component/description.h"
#include "amortix2/pages/query.h"
#include "amortix2/pages/site.h"

namespace amortix2::pages {

/// The status is 200 also when inputs were refused: the page says what was wrong.
Page CalculatorPage(const ClassMember& member, const Query& query, const Clock& clock);

}  // namespace amortix2::pages
