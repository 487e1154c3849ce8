#pragma once

// Rasters that take every path of the compression: runs, repeated and unrepeatable patterns, code tables that
// fill up several times. In the palette no two colours are alike.

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "automation/array.h"
#include "charts/line_chart.h"
#include "charts/raster.h"

namespace amortix2 {

struct Sample {
  std::string name;
  Raster raster;
};

inline Palette DistinctColours() {
  Palette palette(256, 3);
  for (int i = 0; i < 256; ++i) {
    const auto value = static_cast<std::uint8_t>(i);
    palette.Set(i, {value, static_cast<std::uint8_t>(255 - i), static_cast<std::uint8_t>(i * 37)});
  }
  return palette;
}

template <class ColourAt>
Raster Paint(std::int16_t width, std::int16_t height, ColourAt colourAt) {
  Raster raster(width, height, 0);
  for (std::int16_t y = 0; y < height; ++y) {
    for (std::int16_t x = 0; x < width; ++x) raster.Set(x, y, static_cast<std::uint8_t>(colourAt(x, y)));
  }
  return raster;
}

/// Pixels below `colours`, in runs of up to `longestRun`.
inline Raster Runs(std::int16_t width, std::int16_t height, std::uint32_t colours, std::uint32_t longestRun) {
  std::mt19937 random(colours * 1000 + longestRun);
  std::uint64_t left = 0;
  std::uint64_t colour = 0;
  return Paint(width, height, [&](int, int) {
    if (left == 0) {
      left = 1 + random() % longestRun;
      colour = random() % colours;
    }
    --left;
    return colour;
  });
}

inline std::vector<Sample> Samples() {
  std::vector<Sample> samples;
  const auto add = [&](std::string name, Raster raster) { samples.push_back({std::move(name), raster}); };
  add("dot", Raster(1, 1, 77));
  add("pair", Paint(2, 1, [](int x, int) { return x; }));
  add("row", Paint(700, 1, [](int x, int) { return x % 3; }));
  add("column", Paint(1, 700, [](int, int y) { return y / 5; }));
  add("flat", Raster(3000, 2999, 0));
  add("stripes", Paint(500, 400, [](int x, int) { return x / 9 * 50; }));
  add("checks", Paint(320, 240, [](int x, int y) { return (x + y) % 2 * 255; }));
  add("gradient", Paint(512, 300, [](int x, int y) { return (x * y) >> 6; }));
  add("runs", Runs(640, 480, 4, 90));
  add("short_runs", Runs(300, 300, 200, 3));
  add("noise", Runs(2000, 2000, 256, 1));
  Array table({0, 40}, {0, 3});
  for (int i = 1; i <= 40; ++i) {
    for (int j = 1; j <= 3; ++j) table.At(i, j) = (i * i * j) % 101 - 30;
  }
  add("chart", DrawLineChart({}, table));
  return samples;
}

}  // namespace amortix2
