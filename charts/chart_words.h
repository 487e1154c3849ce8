#pragma once

// A chart in words, for readers who do not see it: a text of what each series starts with, ends with, and
// holds at least and at most, and the whole table.

#include <string>
#include <string_view>

#include "amortix2/charts/svg_plot.h"
#include "amortix2/charts/svg_table.h"

namespace amortix2 {

/// One sentence a series, for eight of them at most: "Principal: first $120 (2001), last $90 (2002), least
/// $90 (2002), largest $120 (2001)." Plain text, not escaped.
std::string SeriesInWords(const SvgTable& table, std::string_view format);

/// What kind of chart it is and the sentences above, and behind them all values when there are few enough to
/// listen to.
std::string ChartInWords(const SvgInput& input);

/// The table as HTML: a caption (none when it is empty), a heading cell for each column and each row, numbers
/// in the format. Escaped. `corner` heads the column of labels.
std::string TableAsHtml(const SvgTable& table, std::string_view corner, std::string_view caption,
                        std::string_view format);

}  // namespace amortix2
