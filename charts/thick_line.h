#pragma once

// Lines of square stamps, the one shape of which a line chart is made.

#include <cstdint>

#include "amortix2/charts/raster.h"

namespace amortix2 {

struct Point {
  int x;  ///< pixels from the left
  int y;  ///< pixels from the top
};

/// Stamps a filled square on every point of an 8-connected path between two points, both included, that keeps
/// within half a pixel of the straight line. A square of radius r covers r - 1 pixels to each side of its
/// centre (side 2r - 1; a radius of 1 is one pixel), cut to the raster.
void DrawThickLine(Raster& raster, Point from, Point to, int radius, std::uint8_t colour) noexcept;

}  // namespace amortix2
