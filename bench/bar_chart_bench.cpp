// One bar chart of twelve groups of three series, and what is the least that its bytes cost:
//
//     Chart/style               a whole request, from the page's table to the array of lines
//     Svg/style                 the same request as an SVG picture
//     TextsAlone/style          an array of the same lines, each a text of its own: what the form of the
//     result costs OneAppend/style           the chart's bytes appended to a string at once

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/charts/bar_chart.h"
#include "amortix2/charts/svg_chart.h"

namespace amortix2 {
namespace {

struct Page {
  Variant table = Table();
  Variant blank = "./images/blank.gif";
  Variant images = List({"./images/back.gif", "./images/red.gif", "./images/green.gif", "./images/blue.gif"});
  Variant legends = List({"", "Principal", "Interest", "Fees"});
  Variant titles = List({"", "Repayment", "Payments by year"});
  Variant xCaption = "Year";
  Variant yCaption = "Dollars";
  Variant result = {};

  void Draw(const char* style) {
    BarChart chart;
    chart.MakeChart(table, blank, images, legends, titles, xCaption, yCaption, result, style);
  }

  static Array List(std::vector<const char*> texts) {
    Array list(Bounds{0, static_cast<std::int32_t>(texts.size()) - 1});
    for (std::size_t i = 0; i < texts.size(); ++i) list.Cells()[i] = texts[i];
    return list;
  }

  static Array Table() {
    Array table({0, 12}, {0, 3});
    for (std::int32_t row = 0; row <= 12; ++row) {
      table.At(row, 0) = std::string_view("Y" + std::to_string(2000 + row));
      for (std::int32_t series = 1; series <= 3; ++series)
        table.At(row, series) = 1000 + 731.7 * std::sqrt(row * series);
    }
    return table;
  }
};

std::vector<std::string> Lines(Page& page) {
  std::vector<std::string> lines;
  for (const Variant& line : page.result.GetArray().Cells()) {
    if (line.Type() == VariantType::String) lines.emplace_back(line.GetString());
  }
  return lines;
}

void CountBytes(benchmark::State& state, Page& page) {
  std::size_t bytes = 0;
  for (const std::string& line : Lines(page)) bytes += line.size();
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
  state.counters["kB"] = static_cast<double>(bytes) / 1000;
}

void Chart(benchmark::State& state, const char* style) {
  Page page;
  for (auto _ : state) {
    page.Draw(style);
    benchmark::DoNotOptimize(page.result);
  }
  CountBytes(state, page);
}

void Svg(benchmark::State& state, const char* style) {
  Page page;
  const SvgChart chart;
  for (auto _ : state) {
    chart.MakeChart(page.table, page.blank, page.images, page.legends, page.titles, page.xCaption,
                    page.yCaption, page.result, style);
    benchmark::DoNotOptimize(page.result);
  }
  state.counters["kB"] = static_cast<double>(page.result.GetString().size()) / 1000;
}

void TextsAlone(benchmark::State& state, const char* style) {
  Page page;
  page.Draw(style);
  const std::vector<std::string> lines = Lines(page);
  for (auto _ : state) {
    Array texts(Bounds{0, static_cast<std::int32_t>(lines.size()) + 1});
    for (std::size_t i = 0; i < lines.size(); ++i) texts.Cells()[i + 1] = std::string_view(lines[i]);
    benchmark::DoNotOptimize(texts);
  }
  CountBytes(state, page);
}

void OneAppend(benchmark::State& state, const char* style) {
  Page page;
  page.Draw(style);
  std::string whole;
  for (const std::string& line : Lines(page)) whole += line;
  std::string markup;
  for (auto _ : state) {
    markup.clear();
    markup.append(whole);
    benchmark::DoNotOptimize(markup.data());
    benchmark::ClobberMemory();
  }
  CountBytes(state, page);
}

#define AMORTIX2_BENCH_STYLE(name, style)     \
  BENCHMARK_CAPTURE(Chart, name, style);      \
  BENCHMARK_CAPTURE(Svg, name, style);        \
  BENCHMARK_CAPTURE(TextsAlone, name, style); \
  BENCHMARK_CAPTURE(OneAppend, name, style)

AMORTIX2_BENCH_STYLE(plain, "");
AMORTIX2_BENCH_STYLE(overlapped, "OV");
AMORTIX2_BENCH_STYLE(stacked, "ST");
AMORTIX2_BENCH_STYLE(horizontal, "HZ");

}  // namespace
}  // namespace amortix2
