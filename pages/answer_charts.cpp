#include "amortix2/pages/answer_charts.h"

#include <cstdint>
#include <memory>

#include "amortix2/automation/array.h"
#include "amortix2/charts/gif_chart.h"
#include "amortix2/charts/svg_chart.h"
#include "amortix2/charts/svg_palette.h"
#include "amortix2/json/captured_page.h"
#include "amortix2/json/request_error.h"
#include "amortix2/pages/chart_numbers.h"
#include "amortix2/pages/frame.h"

namespace amortix2::pages {
namespace {

// Small enough that a telephone need not shrink the labels much.
constexpr double kHeight = 230;
constexpr double kWidth = 360;

std::string_view FormatOf(Unit unit) {
  if (IsPercent(unit)) return "0.00";
  return IsMoney(unit) ? "$#,##0.00" : "#,##0.##";
}

std::string_view CaptionOf(Unit unit) {
  if (IsPercent(unit)) return "Percent";
  return IsMoney(unit) ? "Dollars" : "";
}

std::int32_t SeriesIn(const ChartNumbers& numbers) { return numbers.table.GetArray().Dimension(2).upper; }

/// A chart drawn, and its numbers: what the figure is made of.
struct Drawing {
  Variant picture;
  Variant table;
};

Drawing Draw(const ChartInfo& chart, const ChartNumbers& numbers) {
  SvgChart svg;
  svg.SetGraphDimensions(kHeight, kWidth);
  svg.AltFormatStr(FormatOf(numbers.unit));
  svg.YAxisTitle(CaptionOf(numbers.unit));
  svg.NegativeBars(true);
  svg.LineMarkers(true);
  svg.LineDashes(true);
  if (numbers.hasDates) svg.RowAxisKind("date");
  Drawing drawing;
  if (chart.kind == ChartKind::Lines) {
    svg.LineChart(numbers.table, {}, {}, drawing.picture);
  } else {
    const std::string_view style = chart.kind == ChartKind::StackedColumns ? "ST" : "";
    svg.MakeChart(numbers.table, {}, {}, {}, {}, {}, {}, drawing.picture, style);
  }
  svg.DataTable(numbers.table, {}, chart.title, drawing.table);
  return drawing;
}

std::string GifAddress(const Query& query, std::size_t number) {
  Query gif = query;
  gif.Set("format", "gif");
  gif.Set("chart", std::to_string(number));
  return "?" + gif.Text();
}

void AppendDrawing(EscapedMarkup& out, const ChartInfo& chart, const Drawing& drawing,
                   const std::string& gifAddress) {
  out.Open("figure", {{"class", "chart"}});
  AppendFigure(out, chart.title, drawing.picture.GetString(), drawing.table.GetString());
  out.Open("p", {{"class", "download"}});
  const std::string name = "GIF image of \"" + std::string(chart.title) + "\"";
  out.TextElement("a", {{"href", gifAddress}, {"download", "chart.gif"}, {"aria-label", name}}, "GIF image");
  out.Close();
  out.Close();
}

/// The colours that pictures have on light paper; white behind them.
Variant GifPalette(std::int32_t series) {
  constexpr std::int32_t kColours = 256;
  Array palette({0, kColours - 1}, {0, 2});
  for (Variant& component : palette.Cells()) component = std::int32_t{255};
  for (std::int32_t line = 1; line <= series; ++line) {
    std::int32_t column = 0;
    for (const std::uint8_t part : SeriesColour(static_cast<std::size_t>(line) - 1)) {
      palette.At(line, column++) = std::int32_t{part};
    }
  }
  return palette;
}

}  // namespace

void AppendCharts(EscapedMarkup& out, const Calculation& calculation, const Query& query) {
  std::size_t number = 0;
  for (const ChartInfo& chart : calculation.Member().charts) {
    ++number;
    const ChartNumbers numbers = NumbersOf(calculation, chart);
    if (numbers.table.Type() == VariantType::Empty) continue;
    // Amounts too large to draw leave the figures and the schedule as they are.
    std::optional<Drawing> drawing;
    if (!json::Try([&] { drawing = Draw(chart, numbers); })) {
      AppendDrawing(out, chart, *drawing, GifAddress(query, number));
    }
  }
}

std::optional<std::string> ChartGif(const Calculation& calculation, std::size_t number) {
  const auto charts = calculation.Member().charts;
  if (number == 0 || number > charts.size()) return std::nullopt;
  const ChartNumbers numbers = NumbersOf(calculation, charts[number - 1]);
  if (numbers.table.Type() == VariantType::Empty) return std::nullopt;
  const auto page = std::make_shared<json::CapturedPage>();
  const auto failure = json::Try([&] {
    GifChart gif;
    gif.OnStartPage(page);
    gif.SetGraphDimensions(kHeight, kWidth);
    gif.LineChart(numbers.table, GifPalette(SeriesIn(numbers)), {});
  });
  if (failure) return std::nullopt;
  return std::string(page->Written().begin(), page->Written().end());
}

}  // namespace amortix2::pages
