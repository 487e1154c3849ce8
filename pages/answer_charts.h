#pragma once

// The charts of an answer: each a picture in a figure with its caption, its numbers beneath as a table, and a
// link to a GIF image of it. Readers who do not see the picture are not told of it, since the table says the
// same.

#include <cstddef>
#include <optional>
#include <string>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/pages/calculation.h"
#include "amortix2/pages/query.h"

namespace amortix2::pages {

/// Appends a figure for each chart of an answered calculation that has something to draw.
void AppendCharts(EscapedMarkup& out, const Calculation& calculation, const Query& query);

/// A chart of an answered calculation, from 1, as the bytes of a GIF image, every series a line; nothing when
/// there is no such chart, or nothing to draw.
std::optional<std::string> ChartGif(const Calculation& calculation, std::size_t number);

}  // namespace amortix2::pages
