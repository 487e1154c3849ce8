// One bar chart of twelve groups of three series, and the same markup appended to one string, fragment by
// line, as the limit:
//
//     Chart/style               a whole request, from the page's table to the array of lines
//     AppendSameBytes/style     the lines of that chart appended to one string

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/charts/bar_chart.h"

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

void AppendSameBytes(benchmark::State& state, const char* style) {
  Page page;
  page.Draw(style);
  const std::vector<std::string> lines = Lines(page);
  std::string markup;
  for (auto _ : state) {
    markup.clear();
    for (const std::string& line : lines) markup.append(line);
    benchmark::DoNotOptimize(markup.data());
    benchmark::ClobberMemory();
  }
  CountBytes(state, page);
}

BENCHMARK_CAPTURE(Chart, plain, "");
BENCHMARK_CAPTURE(AppendSameBytes, plain, "");
BENCHMARK_CAPTURE(Chart, overlapped, "OV");
BENCHMARK_CAPTURE(AppendSameBytes, overlapped, "OV");
BENCHMARK_CAPTURE(Chart, stacked, "ST");
BENCHMARK_CAPTURE(AppendSameBytes, stacked, "ST");
BENCHMARK_CAPTURE(Chart, horizontal, "HZ");
BENCHMARK_CAPTURE(AppendSameBytes, horizontal, "HZ");

}  // namespace
}  // namespace amortix2
