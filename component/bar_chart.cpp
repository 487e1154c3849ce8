#include "amortix2/component/bar_chart.h"

#include "amortix2/automation/conversion.h"
#include "amortix2/charts/bar_chart.h"

namespace amortix2 {
namespace {

std::int16_t WholeNumber(const Variant& value) { return ToInteger(NumericOrZero(value)); }

bool Flag(const Variant& value) { return NumericOrZero(value) != 0; }

}  // namespace

void BarChart::StackChart(Variant& vColDat, Variant& blnk, Variant& Colgif, Variant& Colleg, Variant& Ttl,
                          Variant& Xaxis, Variant& Yaxis, Variant& vRes) {
  MakeChart(vColDat, blnk, Colgif, Colleg, Ttl, Xaxis, Yaxis, vRes, "ST");
}

void BarChart::MakeChart(Variant& vColDat, Variant& blnk, Variant& Colgif, Variant& Colleg, Variant& Ttl,
                         Variant& Xaxis, Variant& Yaxis, Variant& vRes, const Variant& typ) {
  vRes = DrawBarChart(settings_, vColDat, blnk, Colgif, Colleg, Ttl, Xaxis, Yaxis, typ);
}

void BarChart::SetGraphDimensions(const Variant& height, const Variant& width) {
  settings_.graph.Set(height, width);
}
void BarChart::SetAxisGif(const Variant& v) { SetImage(settings_.axisImage, v); }
void BarChart::SetSpaceGif(const Variant& v) { SetImage(settings_.spaceImage, v); }

void BarChart::MinimumColumnWidth(const Variant& value) { settings_.minimumColumnWidth = WholeNumber(value); }
void BarChart::MaximumColumnWidth(const Variant& value) { settings_.maximumColumnWidth = WholeNumber(value); }
void BarChart::MinimumOverlapSpace(const Variant& value) {
  settings_.minimumOverlapSpace = WholeNumber(value);
}
void BarChart::MinimumOverlapCount(const Variant& value) {
  settings_.minimumOverlapCount = NumericOrZero(value);
}
void BarChart::TotalGraphFrameWidth(const Variant& value) { settings_.totalFrameWidth = WholeNumber(value); }
void BarChart::UseStyleSheets(const Variant& value) { settings_.useStyleSheets = Flag(value); }
void BarChart::YLabelMode(const Variant& value) { settings_.valueLabels = ReadValueLabels(value); }
void BarChart::NegativeBars(const Variant& value) { settings_.negativeBars = Flag(value); }
void BarChart::SupressLegend(const Variant& value) { settings_.showLegend = !Flag(value); }
void BarChart::AltFormatStr(const Variant& value) { settings_.altFormat = ToText(value); }
void BarChart::YLableFormatStr(const Variant& value) { settings_.valueLabelFormat = ToText(value); }
void BarChart::AltLabelWithLegend(const Variant& value) { settings_.altLabelWithLegend = Flag(value); }

}  // namespace amortix2
