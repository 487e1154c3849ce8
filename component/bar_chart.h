#pragma once

// The automation class BarChart: settings, and requests for HTML bar charts. A page creates one, sets what
// differs from the defaults and asks for charts; every method delegates to charts/. A request that raises an
// error leaves the settings and `vRes` as they were. One object serves one thread at a time.

#include "amortix2/automation/variant.h"
#include "amortix2/charts/bar_settings.h"

namespace amortix2 {

class BarChart {
 public:
  // Charts: charts/bar_chart.h describes arguments, styles and errors. `vRes` is replaced by the array of
  // lines.
  void StackChart(Variant& vColDat, Variant& blnk, Variant& Colgif, Variant& Colleg, Variant& Ttl,
                  Variant& Xaxis, Variant& Yaxis, Variant& vRes);
  void MakeChart(Variant& vColDat, Variant& blnk, Variant& Colgif, Variant& Colleg, Variant& Ttl,
                 Variant& Xaxis, Variant& Yaxis, Variant& vRes, const Variant& typ = kMissing);

  /// Height and width of the plot in pixels; 0 keeps the old value.
  void SetGraphDimensions(const Variant& height, const Variant& width);

  // URLs of one-pixel images; anything but text is ignored.
  void SetAxisGif(const Variant& v);
  void SetSpaceGif(const Variant& v);

  // Write-only properties. Numbers in the place of a flag: not 0 is true. Whole numbers are rounded half to
  // even. Each raises Overflow for a number outside 16 bits where it keeps a whole number, and TypeMismatch
  // for a value without text where it keeps a text.
  void MinimumColumnWidth(const Variant& value);
  void MaximumColumnWidth(const Variant& value);
  void MinimumOverlapSpace(const Variant& value);
  void MinimumOverlapCount(const Variant& value);
  void TotalGraphFrameWidth(const Variant& value);
  void UseStyleSheets(const Variant& value);
  void YLabelMode(const Variant& value);
  void NegativeBars(const Variant& value);
  void SupressLegend(const Variant& value);
  void AltFormatStr(const Variant& value);
  void YLableFormatStr(const Variant& value);
  void AltLabelWithLegend(const Variant& value);

 private:
  BarChartSettings settings_;
};

}  // namespace amortix2
