#include "amortix2/charts/bar_chart.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/charts/bar_chart_input.h"
#include "amortix2/charts/bar_layout.h"
#include "amortix2/charts/chart_style.h"
#include "amortix2/charts/chart_table.h"
#include "amortix2/charts/horizontal_plot.h"
#include "amortix2/charts/page_text.h"
#include "amortix2/charts/setting_values.h"
#include "amortix2/charts/table_axis.h"
#include "amortix2/charts/upright_plot.h"

namespace amortix2 {
namespace {

// Turns round the order of as many series as there are images, which must not be fewer than the series. Every
// bound is checked before the first exchange.
void ReverseSeries(Array& data, Array& images, Array& legends) {
  const std::int32_t last = images.Dimension(1).upper;
  if (last < 2) return;
  static_cast<void>(images.At(data.Dimension(2).upper));
  const std::int32_t rows = data.Dimension(1).upper;
  for (const std::int32_t series : {1, last}) {
    static_cast<void>(images.At(series));
    static_cast<void>(legends.At(series));
    static_cast<void>(data.At(0, series));
    static_cast<void>(data.At(std::max(rows, 0), series));
  }
  for (std::int32_t i = 1, j = last; i < j; ++i, --j) {
    SwapValues(images.At(i), images.At(j));
    SwapValues(legends.At(i), legends.At(j));
    for (std::int32_t row = 0; row <= rows; ++row) SwapValues(data.At(row, i), data.At(row, j));
  }
}

std::vector<std::string> ReadList(const Variant& list, std::int32_t last) {
  std::vector<std::string> texts(1);
  for (std::int32_t i = 1; i <= last; ++i) texts.push_back(PageText(list, i));
  return texts;
}

std::unique_ptr<BarPlot> MakePlot(BarMode mode, const BarChartInput& input) {
  const std::int32_t rows = input.values.Rows();
  const std::int32_t series = input.values.Series();
  switch (mode) {
    case BarMode::Stacked:
      return std::make_unique<UprightPlot>(input, StackedGroup(input.settings, rows, series));
    case BarMode::Overlapped:
      if (series < 2) break;
      return std::make_unique<UprightPlot>(input, OverlappedGroup(input.settings, rows, series));
    case BarMode::Horizontal:
      return std::make_unique<HorizontalPlot>(input);
    case BarMode::Plain:
      break;
  }
  return std::make_unique<UprightPlot>(input, PlainGroup(input.settings, rows, series));
}

void SetImage(std::string& url, const Variant& value) {
  if (value.Type() == VariantType::String) url = value.GetString();
}

}  // namespace

void BarChart::StackChart(Variant& vColDat, Variant& blnk, Variant& Colgif, Variant& Colleg, Variant& Ttl,
                          Variant& Xaxis, Variant& Yaxis, Variant& vRes) {
  MakeChart(vColDat, blnk, Colgif, Colleg, Ttl, Xaxis, Yaxis, vRes, "ST");
}

void BarChart::MakeChart(Variant& vColDat, Variant& blnk, Variant& Colgif, Variant& Colleg, Variant& Ttl,
                         Variant& Xaxis, Variant& Yaxis, Variant& vRes, const Variant& typ) {
  const ChartStyle style = FindStyle(typ);
  const bool stacked = style.mode == BarMode::Stacked;
  Array& data = PageArray(vColDat);
  if (stacked && style.reversed) ReverseSeries(data, PageArray(Colgif), PageArray(Colleg));

  ChartTable values = PrepareTable(data, KeepsNegatives(style, settings.negativeBars));
  if (values.Rows() < 1 || values.Series() < 1) Raise(ErrorNumber::DivisionByZero);
  if (style.mode == BarMode::Horizontal && style.reversed) ReverseRows(values);
  const std::optional<ChartTable> totals = stacked ? std::optional(RunningTotals(values)) : std::nullopt;
  const ChartTable& drawn = totals ? *totals : values;

  const bool hasLegend = settings.showLegend && values.Series() > 1;
  const bool needsLegends = hasLegend || settings.altLabelWithLegend;
  const BarChartTexts texts{
      .blank = PageText(blnk),
      .background = style.line ? std::string() : PageText(Colgif, 0),
      .images = ReadList(Colgif, values.Series()),
      .legends = needsLegends ? ReadList(Colleg, values.Series()) : std::vector<std::string>(),
      .frameTitle = PageText(Ttl, 1),
      .chartTitle = PageText(Ttl, 2),
      .xCaption = PageText(Xaxis),
      .yCaption = PageText(Yaxis),
  };
  const BarChartInput input{
      .settings = settings,
      .texts = texts,
      .values = values,
      .drawn = drawn,
      .axis = TableAxis(drawn),
      .tooltipFormat = NumberPattern(settings.altFormat),
      .valueLabelFormat = NumberPattern(settings.valueLabelFormat),
      .hasBackground = !style.line,
      .hasLegend = hasLegend,
      .reversedLegend = stacked && style.reversed,
  };
  MarkupWriter out;
  WriteBarChart(out, input, *MakePlot(style.mode, input));
  vRes = out.Finish();
}

void BarChart::AxisRange(const Variant& vColDat, Variant& vTop, Variant& vBottom, Variant& vStep,
                         const Variant& typ) const {
  const ChartStyle style = FindStyle(typ);
  const ChartTable values = PrepareTable(PageArray(vColDat), KeepsNegatives(style, settings.negativeBars));
  WriteAxisRange(FindTableAxis(values, style), vTop, vBottom, vStep);
}

void BarChart::SetAxisGif(const Variant& v) { SetImage(settings.axisImage, v); }
void BarChart::SetSpaceGif(const Variant& v) { SetImage(settings.spaceImage, v); }

void BarChart::MinimumColumnWidth(const Variant& value) { settings.minimumColumnWidth = WholeNumber(value); }
void BarChart::MinimumOverlapSpace(const Variant& value) {
  settings.minimumOverlapSpace = WholeNumber(value);
}
void BarChart::SupressLegend(const Variant& value) { settings.showLegend = !Flag(value); }

}  // namespace amortix2
