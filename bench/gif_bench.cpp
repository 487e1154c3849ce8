// What a line chart of 380 by 300 pixels costs, next to giflib (encoding) and libgd (drawing and encoding):
//
//   DrawChart, DrawChartGd           background, eleven grid lines, three series of 120 points 3 pixels thick
//   EncodeChart, and by Giflib, Gd   the chart's pixels, with a palette of 256 colours
//   EncodeNoise, and by Giflib       the worst case: random pixels
//   WholeChart                       table of variants to finished GIF
//
// The peers draw the same lines and encode the same pixels; all write to memory.

#include <benchmark/benchmark.h>
#include <gd.h>
#include <gif_lib.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <random>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/charts/gif_chart.h"
#include "amortix2/charts/gif_writer.h"
#include "amortix2/charts/line_chart.h"

namespace amortix2 {
namespace {

constexpr int kWidth = 380;
constexpr int kHeight = 300;
constexpr int kPoints = 120;
constexpr int kSeries = 3;
constexpr double kTop = 400;

// Balance, principal and interest of a loan in 120 payments, bent a little.
double Value(int point, int series) {
  const double share = static_cast<double>(point) / kPoints;
  if (series == 1) return 380 * (1 - share * share);
  if (series == 2) return 40 + 250 * share + 20 * std::sin(point);
  return 300 * (1 - share) + 15 * std::cos(2 * point);
}

Variant ChartData() {
  Array table({0, kPoints}, {0, kSeries});
  for (int point = 1; point <= kPoints; ++point) {
    for (int series = 1; series <= kSeries; ++series) table.At(point, series) = Value(point, series);
  }
  return table;
}

Variant ColourData() { return Array({0, 255}, {0, 2}); }

Palette Colours() { return ReadPalette(ColourData()); }

Raster Noise() {
  Raster raster(kWidth, kHeight, 0);
  std::mt19937 random(1);
  for (std::int16_t y = 0; y < kHeight; ++y) {
    for (std::int16_t x = 0; x < kWidth; ++x) raster.Set(x, y, static_cast<std::uint8_t>(random() & 255));
  }
  return raster;
}

int AppendBytes(GifFileType* file, const GifByteType* bytes, int count) {
  auto& out = *static_cast<std::vector<std::uint8_t>*>(file->UserData);
  out.insert(out.end(), bytes, bytes + count);
  return count;
}

std::vector<std::uint8_t> EncodeByGiflib(const Raster& raster) {
  std::vector<std::uint8_t> out;
  int error = 0;
  GifFileType* file = EGifOpen(&out, AppendBytes, &error);
  ColorMapObject* colours = GifMakeMapObject(256, nullptr);
  EGifPutScreenDesc(file, raster.Width(), raster.Height(), 8, 0, colours);
  EGifPutImageDesc(file, 0, 0, raster.Width(), raster.Height(), false, nullptr);
  auto* pixels = const_cast<GifPixelType*>(raster.Pixels().data());
  for (int y = 0; y < raster.Height(); ++y) {
    EGifPutLine(file, pixels, raster.Width());
    pixels += raster.Width();
  }
  EGifCloseFile(file, &error);
  GifFreeMapObject(colours);
  return out;
}

gdImagePtr DrawByGd() {
  gdImagePtr image = gdImageCreate(kWidth, kHeight);
  for (int colour = 0; colour < 256; ++colour) gdImageColorAllocate(image, colour, colour, colour);
  gdImageFilledRectangle(image, 0, 0, kWidth - 1, kHeight - 1, 192);
  for (int level = 0; level <= 10; ++level) {
    gdImageLine(image, 0, level * kHeight / 10, kWidth - 1, level * kHeight / 10, level == 10 ? 193 : 211);
  }
  gdImageSetThickness(image, 3);
  const auto column = [](int point) { return (point - 1) * (kWidth - 1) / (kPoints - 1); };
  const auto row = [](int point, int series) {
    return static_cast<int>(std::lround(kHeight - Value(point, series) * kHeight / kTop));
  };
  for (int series = 1; series <= kSeries; ++series) {
    for (int point = 2; point <= kPoints; ++point) {
      gdImageLine(image, column(point - 1), row(point - 1, series), column(point), row(point, series),
                  series);
    }
  }
  return image;
}

void DrawChart(benchmark::State& state) {
  const Variant data = ChartData();
  for (auto _ : state) benchmark::DoNotOptimize(DrawLineChart({}, data));
}

void DrawChartGd(benchmark::State& state) {
  for (auto _ : state) gdImageDestroy(DrawByGd());
}

void Encode(benchmark::State& state, const Raster& raster) {
  const Palette palette = Colours();
  std::size_t size = 0;
  for (auto _ : state) size = EncodeGif(raster, palette).size();
  state.counters["bytes"] = static_cast<double>(size);
}

void EncodeGiflib(benchmark::State& state, const Raster& raster) {
  std::size_t size = 0;
  for (auto _ : state) size = EncodeByGiflib(raster).size();
  state.counters["bytes"] = static_cast<double>(size);
}

void EncodeChart(benchmark::State& state) { Encode(state, DrawLineChart({}, ChartData())); }
void EncodeChartGiflib(benchmark::State& state) { EncodeGiflib(state, DrawLineChart({}, ChartData())); }
void EncodeNoise(benchmark::State& state) { Encode(state, Noise()); }
void EncodeNoiseGiflib(benchmark::State& state) { EncodeGiflib(state, Noise()); }

void EncodeChartGd(benchmark::State& state) {
  gdImagePtr image = DrawByGd();
  int size = 0;
  for (auto _ : state) gdFree(gdImageGifPtr(image, &size));
  state.counters["bytes"] = size;
  gdImageDestroy(image);
}

class Page : public ScriptingContext, public PageResponse {
 public:
  PageResponse& Response() override { return *this; }
  void BinaryWrite(std::span<const std::uint8_t> bytes) override { benchmark::DoNotOptimize(bytes.data()); }
};

void WholeChart(benchmark::State& state) {
  const Variant data = ChartData();
  const Variant palette = ColourData();
  GifChart chart;
  chart.OnStartPage(std::make_shared<Page>());
  for (auto _ : state) chart.LineChart(data, palette, "");
}

BENCHMARK(DrawChart);
BENCHMARK(DrawChartGd);
BENCHMARK(EncodeChart);
BENCHMARK(EncodeChartGiflib);
BENCHMARK(EncodeChartGd);
BENCHMARK(EncodeNoise);
BENCHMARK(EncodeNoiseGiflib);
BENCHMARK(WholeChart);

}  // namespace
}  // namespace amortix2
