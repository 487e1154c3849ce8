#pragma once

// An answer to take along: its tables as CSV, the whole of it as JSON, its charts as GIF images. The query
// asks for them by "format": "csv" with "table", the name of a result or "figures" (without it the first
// schedule), "json", or "gif" with "chart", from 1.

#include <optional>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/pages/calculation.h"
#include "amortix2/pages/query.h"
#include "amortix2/pages/site.h"

namespace amortix2::pages {

/// What the query asks for; nothing when it asks for a page, or for what this answer has not. As JSON an
/// answer is the reply to a request that `batch` would give, and a calculation that is not answered an error
/// that says why.
std::optional<Page> Download(const Calculation& calculation, const Query& query);

/// Appends a list of links to all that Download has of an answered calculation, but the charts.
void AppendDownloads(EscapedMarkup& out, const Calculation& calculation, const Query& query);

}  // namespace amortix2::pages
