#include "amortix2/charts/chart_settings.h"

#include "amortix2/charts/bar_settings.h"
#include "amortix2/charts/setting_values.h"
#include "amortix2/charts/svg_settings.h"

namespace amortix2 {
namespace {

/// A written YLabelMode: 11 labels all values, 3 the middle too, anything else the ends.
ValueLabels ReadValueLabels(const Variant& value) {
  const double written = NumericOrZero(value);
  return written == 11 ? ValueLabels::All : written == 3 ? ValueLabels::EndsAndMiddle : ValueLabels::Ends;
}

}  // namespace

template <class Settings>
void ChartProperties<Settings>::SetGraphDimensions(const Variant& height, const Variant& width) {
  settings.graph.Set(height, width);
}
template <class Settings>
void ChartProperties<Settings>::MaximumColumnWidth(const Variant& value) {
  settings.maximumColumnWidth = WholeNumber(value);
}
template <class Settings>
void ChartProperties<Settings>::MinimumOverlapCount(const Variant& value) {
  settings.minimumOverlapCount = NumericOrZero(value);
}
template <class Settings>
void ChartProperties<Settings>::TotalGraphFrameWidth(const Variant& value) {
  settings.totalFrameWidth = WholeNumber(value);
}
template <class Settings>
void ChartProperties<Settings>::UseStyleSheets(const Variant& value) {
  settings.useStyleSheets = Flag(value);
}
template <class Settings>
void ChartProperties<Settings>::YLabelMode(const Variant& value) {
  settings.valueLabels = ReadValueLabels(value);
}
template <class Settings>
void ChartProperties<Settings>::NegativeBars(const Variant& value) {
  settings.negativeBars = Flag(value);
}
template <class Settings>
void ChartProperties<Settings>::AltFormatStr(const Variant& value) {
  settings.altFormat = ToText(value);
}
template <class Settings>
void ChartProperties<Settings>::YLableFormatStr(const Variant& value) {
  settings.valueLabelFormat = ToText(value);
}
template <class Settings>
void ChartProperties<Settings>::AltLabelWithLegend(const Variant& value) {
  settings.altLabelWithLegend = Flag(value);
}

template class ChartProperties<BarChartSettings>;
template class ChartProperties<SvgSettings>;

}  // namespace amortix2
