#pragma once

// The page that makes a chart of a table that a person pastes, and shows the markup to copy: the picture, and
// the HTML bar chart of the same numbers. The query holds "table", "style", "axis" and the titles.

#include "amortix2/pages/query.h"
#include "amortix2/pages/site.h"

namespace amortix2::pages {

/// With "format=svg" the picture alone.
Page ChartPage(const Query& query);

}  // namespace amortix2::pages
