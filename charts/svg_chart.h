#pragma once

// The automation class SvgChart: bar and line charts as SVG pictures, and what stands beside a picture for
// readers who do not see it. Takes the tables, styles, titles and settings of BarChart and GifChart, and
// draws on the same axis as they do; in a page that uses BarChart, the class's name is all that has to
// change. Every text is escaped: none of a page's texts can become markup. One object serves one thread at a
// time.

#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"
#include "amortix2/charts/svg_settings.h"

namespace AMORTIX2_PUBLIC amortix2 {

class SvgChart : public ChartProperties<SvgSettings> {
 public:
  /// MakeChart in the style "ST".
  void StackChart(const Variant& vColDat, const Variant& blnk, const Variant& Colgif, const Variant& Colleg,
                  const Variant& Ttl, const Variant& Xaxis, const Variant& Yaxis, Variant& vRes) const;

  /// Draws bars in the style that `typ` names (charts/chart_style.h) and replaces `vRes` by the picture, one
  /// text from "<svg" to "</svg>". The table is as BarChart has it (charts/svg_table.h); a cell that is empty
  /// or no number has no bar. `Colgif` may hold colours, 0 the plot's and 1 and up the series'; whatever is
  /// no colour, such as an image's URL, leaves the chart's own. `Colleg` names the series, `Ttl` holds the
  /// frame's title in 1 (empty: no frame) and the chart's in 2; both may be short or missing, and so may the
  /// captions. No argument is changed.
  ///
  /// Raises SubscriptOutOfRange for a table that is not two-dimensional from (0, 0), DivisionByZero for one
  /// without rows or series, Overflow for numbers too large to draw, TypeMismatch for a text that is none.
  void MakeChart(const Variant& vColDat, const Variant& blnk, const Variant& Colgif, const Variant& Colleg,
                 const Variant& Ttl, const Variant& Xaxis, const Variant& Yaxis, Variant& vRes,
                 const Variant& typ = kMissing) const;

  /// Draws each column as a line through the rows, with values below zero, as GifChart does, and replaces
  /// `vRes` by the picture. `vPal` may hold colours by red, green and blue, row j for line j; names and
  /// titles are the properties'. `typ` is not used. Raises as MakeChart does.
  void LineChart(const Variant& vColDat, const Variant& vPal, const Variant& typ, Variant& vRes) const;

  /// The axis that a chart of `vColDat` in the style `typ` has, with these settings: its ends, and a tenth of
  /// it. Raises as MakeChart does for the table; nothing is written then.
  void AxisRange(const Variant& vColDat, Variant& vTop, Variant& vBottom, Variant& vStep,
                 const Variant& typ = kMissing) const;

  /// Replaces `vRes` by the table in HTML, with `Ttl` (a list as for MakeChart, or a text) as its caption.
  /// Numbers are written by AltFormatStr, values below zero always; a cell that is no number stays empty.
  /// Raises as MakeChart does for the table.
  void DataTable(const Variant& vColDat, const Variant& Colleg, const Variant& Ttl, Variant& vRes) const;

  /// Replaces `vRes` by an alternative text for an image of the table: `Ttl`, and each series' first, last,
  /// least and largest value. Escaped, for an `alt` attribute. Raises as DataTable does.
  void AlternativeText(const Variant& vColDat, const Variant& Colleg, const Variant& Ttl,
                       Variant& vRes) const;

  // What HTML charts need and pictures do not: accepted and not read.
  void SetAxisGif(const Variant& v);
  void SetSpaceGif(const Variant& v);
  void MinimumColumnWidth(const Variant& value);
  void MinimumOverlapSpace(const Variant& value);

  // Write-only properties, with the errors of ChartProperties; a word that is none of those named counts as
  // the first. Plots are at least 40 high and 60 wide, and horizontal ones grow with their rows.
  void SupressLegend(const Variant& value);
  void Title(const Variant& value);
  void Caption(const Variant& value);
  void XAxisTitle(const Variant& value);
  void YAxisTitle(const Variant& value);
  void SeriesNames(const Variant& value);     ///< a list from 1
  void RowAxisKind(const Variant& value);     ///< "text", "number", "date"
  void LegendPosition(const Variant& value);  ///< "below", "above", "none"
  void ValueLabelMode(const Variant& value);  ///< "off", "on", "ends"
  void AxisFromData(const Variant& value);
  void LineMarkers(const Variant& value);
  void LineDashes(const Variant& value);
};

}  // namespace amortix2
