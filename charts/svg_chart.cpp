#include "amortix2/charts/svg_chart.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "amortix2/automation/array.h"
#include "amortix2/charts/chart_words.h"
#include "amortix2/charts/escaped_markup.h"
#include "amortix2/charts/page_text.h"
#include "amortix2/charts/setting_values.h"
#include "amortix2/charts/svg_drawing.h"
#include "amortix2/charts/svg_scale.h"
#include "amortix2/charts/table_axis.h"

namespace amortix2 {
namespace {

std::string OptionalText(const Variant& value) {
  return value.Type() == VariantType::Missing ? std::string() : PageText(value);
}

// A title of the list that BarChart takes; "" where there is none.
std::string TitleAt(const Variant& titles, std::int32_t index) {
  const bool isList = titles.Type() == VariantType::Array && titles.GetArray().Rank() == 1;
  return isList && titles.GetArray().Dimension(1).Contains(index) ? PageText(titles, index) : std::string();
}

std::string HeadingOf(const Variant& titles, const SvgSettings& settings) {
  std::string heading = titles.Type() == VariantType::Array ? TitleAt(titles, 2) : OptionalText(titles);
  if (heading.empty()) heading = TitleAt(titles, 1);
  return heading.empty() ? settings.title : heading;
}

std::string Either(const std::string& own, const std::string& otherwise) {
  return own.empty() ? otherwise : own;
}

AxisRange DataAxis(const SvgTable& table) {
  bool any = false;
  double low = 0;
  double high = 0;
  for (std::int32_t row = 1; row <= table.Rows(); ++row) {
    for (std::int32_t series = 1; series <= table.Series(); ++series) {
      if (table.IsGap(row, series)) continue;
      const double value = table.values.At(row, series);
      low = any ? std::min(low, value) : value;
      high = any ? std::max(high, value) : value;
      any = true;
    }
  }
  return FitAxis(low, high);
}

// Which of some words a page wrote, in any case; the first when it is none.
template <class Choice>
Choice ReadWord(const Variant& value, std::initializer_list<std::string_view> words) {
  const std::string written = PageText(value);
  const auto same = [&](std::string_view word) {
    return std::ranges::equal(word, written, [](char a, char b) {
      return a == (b >= 'A' && b <= 'Z' ? static_cast<char>(b - 'A' + 'a') : b);
    });
  };
  const auto found = std::ranges::find_if(words, same);
  return found == words.end() ? Choice{} : static_cast<Choice>(found - words.begin());
}

}  // namespace

void SvgChart::StackChart(const Variant& vColDat, const Variant& blnk, const Variant& Colgif,
                          const Variant& Colleg, const Variant& Ttl, const Variant& Xaxis,
                          const Variant& Yaxis, Variant& vRes) const {
  MakeChart(vColDat, blnk, Colgif, Colleg, Ttl, Xaxis, Yaxis, vRes, "ST");
}

void SvgChart::MakeChart(const Variant& vColDat, const Variant& /*blnk*/, const Variant& Colgif,
                         const Variant& Colleg, const Variant& Ttl, const Variant& Xaxis,
                         const Variant& Yaxis, Variant& vRes, const Variant& typ) const {
  const ChartStyle style = FindStyle(typ);
  SvgInput input{.settings = settings,
                 .table = ReadSvgTable(vColDat, Colleg, settings, settings.negativeBars || style.line, false),
                 .style = style,
                 .isLine = false,
                 .axis = {},
                 .colours = ReadColours(Colgif),
                 .frameTitle = TitleAt(Ttl, 1),
                 .title = Either(TitleAt(Ttl, 2), settings.title),
                 .xTitle = Either(OptionalText(Xaxis), settings.xTitle),
                 .yTitle = Either(OptionalText(Yaxis), settings.yTitle)};
  input.axis = FindTableAxis(input.table.values, style);
  if (style.mode == BarMode::Horizontal && style.reversed) ReverseRows(input.table);
  vRes = std::string_view(DrawSvg(input));
}

void SvgChart::LineChart(const Variant& vColDat, const Variant& vPal, const Variant& /*typ*/,
                         Variant& vRes) const {
  SvgInput input{.settings = settings,
                 .table = ReadSvgTable(vColDat, {}, settings, true, true),
                 .style = {},
                 .isLine = true,
                 .axis = {},
                 .colours = {},
                 .frameTitle = {},
                 .title = settings.title,
                 .xTitle = settings.xTitle,
                 .yTitle = settings.yTitle};
  input.axis = settings.axisFromData ? DataAxis(input.table) : FindTableAxis(input.table.values, {});
  input.colours = ReadPaletteColours(vPal, input.table.names.size());
  vRes = std::string_view(DrawSvg(input));
}

void SvgChart::AxisRange(const Variant& vColDat, Variant& vTop, Variant& vBottom, Variant& vStep,
                         const Variant& typ) const {
  const ChartStyle style = FindStyle(typ);
  const ChartTable values = PrepareTable(PageArray(vColDat), settings.negativeBars || style.line);
  WriteAxisRange(FindTableAxis(values, style), vTop, vBottom, vStep);
}

void SvgChart::DataTable(const Variant& vColDat, const Variant& Colleg, const Variant& Ttl,
                         Variant& vRes) const {
  const SvgTable table = ReadSvgTable(vColDat, Colleg, settings, true, false);
  const std::string corner = OptionalText(PageArray(vColDat).At(0, 0));
  vRes = std::string_view(TableAsHtml(table, corner, HeadingOf(Ttl, settings), settings.altFormat));
}

void SvgChart::AlternativeText(const Variant& vColDat, const Variant& Colleg, const Variant& Ttl,
                               Variant& vRes) const {
  const SvgTable table = ReadSvgTable(vColDat, Colleg, settings, true, false);
  std::string text = HeadingOf(Ttl, settings);
  if (!text.empty()) text += ". ";
  std::string escaped;
  AppendEscaped(escaped, text + SeriesInWords(table, settings.altFormat));
  vRes = std::string_view(escaped);
}

void SvgChart::SetAxisGif(const Variant& /*v*/) {}
void SvgChart::SetSpaceGif(const Variant& /*v*/) {}
void SvgChart::MinimumColumnWidth(const Variant& /*value*/) {}
void SvgChart::MinimumOverlapSpace(const Variant& /*value*/) {}

void SvgChart::SupressLegend(const Variant& value) {
  settings.legend = Flag(value) ? LegendPlace::None : LegendPlace::Below;
}
void SvgChart::Title(const Variant& value) { settings.title = PageText(value); }
void SvgChart::Caption(const Variant& value) { settings.caption = PageText(value); }
void SvgChart::XAxisTitle(const Variant& value) { settings.xTitle = PageText(value); }
void SvgChart::YAxisTitle(const Variant& value) { settings.yTitle = PageText(value); }

void SvgChart::SeriesNames(const Variant& value) {
  const Array& list = PageArray(value);
  std::vector<std::string> names;
  for (std::int32_t i = 1; list.Dimension(1).Contains(i); ++i) names.push_back(PageText(value, i));
  settings.seriesNames = std::move(names);
}

void SvgChart::RowAxisKind(const Variant& value) {
  settings.rowAxis = ReadWord<RowAxis>(value, {"text", "number", "date"});
}
void SvgChart::LegendPosition(const Variant& value) {
  settings.legend = ReadWord<LegendPlace>(value, {"below", "above", "none"});
}
void SvgChart::ValueLabelMode(const Variant& value) {
  settings.pointLabels = ReadWord<PointLabelMode>(value, {"off", "on", "ends"});
}
void SvgChart::AxisFromData(const Variant& value) { settings.axisFromData = Flag(value); }
void SvgChart::LineMarkers(const Variant& value) { settings.markers = Flag(value); }
void SvgChart::LineDashes(const Variant& value) { settings.dashes = Flag(value); }

}  // namespace amortix2
