#pragma once

// Tables of results on a page: schedules by year, with each year's lines on demand, and small tables as they
// are. Every table has a caption and headings, and scrolls by itself where it is wide.

#include <string_view>

#include "amortix2/automation/array.h"
#include "amortix2/charts/escaped_markup.h"
#include "amortix2/component/call_values.h"

namespace amortix2::pages {

/// Opens a region that scrolls by itself and can be reached by keyboard, and a table with this caption in
/// it; CloseTable closes both.
void OpenTable(EscapedMarkup& out, std::string_view caption);
void CloseTable(EscapedMarkup& out);

/// A schedule: its years, and below them each year's lines. Of schedules side by side one after the other.
void AppendSchedule(EscapedMarkup& out, const Inputs& inputs, const ParameterInfo& parameter,
                    const Array& array);

enum class Marks {
  None,
  Better,  ///< where two sides are compared, the better one
};

/// A table with titles on both sides, whose cells carry their units.
void AppendGrid(EscapedMarkup& out, const Inputs& inputs, const ParameterInfo& parameter, const Array& array,
                Marks marks);

}  // namespace amortix2::pages
