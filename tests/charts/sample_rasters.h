#pragma once

// Rasters that take every path of the compression: runs, repeated and unrepeatable patterns, code tables that
// fill up several times.

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/charts/line_chart.h"
#include "amortix2/charts/raster.h"

namespace amortix2 {

struct Sample {
  std::string name;
  Raster raster;
};

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
    if (left-- == 0) {
      left = random() % longestRun;
      colour = random() % colours;
    }
    return colour;
  });
}

inline Raster Chart() {
  Array table({0, 40}, {0, 3});
  for (int i = 0; i < 120; ++i) table.At(i / 3 + 1, i % 3 + 1) = i * i % 101 - 30;
  return DrawLineChart({}, table);
}

inline std::vector<Sample> Samples() {
  return {{"dot", Raster(1, 1, 77)},
          {"pair", Paint(2, 1, [](int x, int) { return x; })},
          {"row", Paint(700, 1, [](int x, int) { return x % 3; })},
          {"column", Paint(1, 700, [](int, int y) { return y / 5; })},
          {"flat", Raster(3000, 2999, 0)},
          {"stripes", Paint(500, 400, [](int x, int) { return x / 9 * 50; })},
          {"checks", Paint(320, 240, [](int x, int y) { return (x + y) % 2 * 255; })},
          {"runs", Runs(640, 480, 4, 90)},
          {"noise", Runs(900, 900, 256, 1)},
          {"chart", Chart()}};
}

}  // namespace amortix2
