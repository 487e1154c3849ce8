#pragma once

// The automation class BarChart: from a page's table of numbers to an HTML bar chart, an array of lines. A
// page creates one, sets what differs from the defaults and asks for charts; nothing else is kept between
// them. Texts of the page (titles, labels, legends, URLs) go out as they are, markup included: a page that
// shows texts of strangers escapes them first. One object serves one thread at a time.

#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"
#include "amortix2/charts/bar_settings.h"

namespace AMORTIX2_PUBLIC amortix2 {

class BarChart : public ChartProperties<BarChartSettings> {
 public:
  /// MakeChart in the style "ST".
  void StackChart(Variant& vColDat, Variant& blnk, Variant& Colgif, Variant& Colleg, Variant& Ttl,
                  Variant& Xaxis, Variant& Yaxis, Variant& vRes);

  /// Draws a chart in the style that `typ` names ("OL", "OV", "OR" overlapped, "ST" stacked, "SR" stacked in
  /// reverse order, "LINE" plain without a background, "HZ" horizontal, "HR" horizontal in reverse order; in
  /// capitals; anything else plain columns) and replaces `vRes` by its lines: an array of variants from 0,
  /// the first and the last Empty.
  ///
  /// `vColDat` is a two-dimensional array from (0, 0): row 0 is not drawn, column 0 holds the labels when
  /// cell (0, 0) is not numeric, columns 1 and up are the series. `Colgif` holds image URLs, 0 the
  /// background, 1 and up the series; `Colleg` the series' names from 1, read only where one is written;
  /// `Ttl` the frame's title in 1 (empty: no frame) and the chart's in 2; `blnk` the URL of a transparent
  /// image.
  ///
  /// Raises SubscriptOutOfRange for a table that is not two-dimensional and for a list that is too short or
  /// no list, DivisionByZero for a table without rows or series and for settings that leave the bars no
  /// width, Overflow for numbers too large to draw, TypeMismatch for a text that is none, OutOfMemory for a
  /// chart of more than 2^26 characters; `vRes` is then as it was. Only "SR" changes its arguments: it turns
  /// round the order of the series in `vColDat`, `Colgif` and `Colleg`, in all of them or (when one is too
  /// short) in none.
  void MakeChart(Variant& vColDat, Variant& blnk, Variant& Colgif, Variant& Colleg, Variant& Ttl,
                 Variant& Xaxis, Variant& Yaxis, Variant& vRes, const Variant& typ = kMissing);

  /// The axis that a chart of `vColDat` in the style `typ` has, with these settings: its upper and its lower
  /// end and one of its ten intervals. Raises SubscriptOutOfRange for a table that is not two-dimensional
  /// from (0, 0), Overflow for numbers too large to draw, TypeMismatch for a label without text; nothing is
  /// written then.
  void AxisRange(const Variant& vColDat, Variant& vTop, Variant& vBottom, Variant& vStep,
                 const Variant& typ = kMissing) const;

  // URLs of one-pixel images; anything but text is ignored.
  void SetAxisGif(const Variant& v);
  void SetSpaceGif(const Variant& v);

  // Write-only properties, with the errors of ChartProperties.
  void MinimumColumnWidth(const Variant& value);
  void MinimumOverlapSpace(const Variant& value);
  void SupressLegend(const Variant& value);
};

}  // namespace amortix2
