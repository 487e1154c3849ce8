#pragma once

// HTML bar charts: from a page's table of numbers to an array of HTML lines. Chooses the style, prepares the
// numbers and has the layout written; keeps nothing between charts but the settings, which it never changes.
// Texts of the page (titles, labels, legends, URLs) go out as they are, markup included: a page that shows
// texts of strangers escapes them first.

#include <string>

#include "amortix2/automation/variant.h"
#include "amortix2/charts/bar_settings.h"

namespace amortix2 {

/// The settings' code of a written YLabelMode: 11 labels all values, 3 the middle too, anything else the
/// ends.
ValueLabels ReadValueLabels(const Variant& mode);

/// Replaces an image URL when the variant holds text, and leaves it alone otherwise.
void SetImage(std::string& url, const Variant& value);

/// Draws a chart in the style that `typ` names ("OL", "OV", "OR" overlapped, "ST" stacked, "SR" stacked in
/// reverse order, "LINE" plain without a background, "HZ" horizontal, "HR" horizontal in reverse order; in
/// capitals; anything else plain columns) and returns its lines: an array of variants from 0, the first and
/// the last Empty.
///
/// `vColDat` is a two-dimensional array from (0, 0): row 0 is not drawn, column 0 holds the labels when cell
/// (0, 0) is not numeric, columns 1 and up are the series. `Colgif` holds image URLs, 0 the background, 1 and
/// up the series; `Colleg` the series' names from 1, read only where one is written; `Ttl` the frame's title
/// in 1 (empty: no frame) and the chart's in 2; `blnk` the URL of a transparent image.
///
/// Raises SubscriptOutOfRange for a table that is not two-dimensional and for a list that is too short or no
/// list, DivisionByZero for a table without rows or series and for settings that leave the bars no width,
/// Overflow for numbers too large to draw, TypeMismatch for a text that is none, OutOfMemory for a chart of
/// too many lines. Only "SR" changes its arguments: it turns round the order of the series in `vColDat`,
/// `Colgif` and `Colleg`, in all of them or (when one is too short) in none.
Variant DrawBarChart(const BarChartSettings& settings, Variant& vColDat, const Variant& blnk, Variant& Colgif,
                     Variant& Colleg, const Variant& Ttl, const Variant& Xaxis, const Variant& Yaxis,
                     const Variant& typ);

}  // namespace amortix2
