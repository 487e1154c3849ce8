#include "amortix2/charts/thick_line.h"

#include <cstdlib>
#include <utility>

// The path walks along its longer side, the driving axis, and rounds the other coordinate. All steps that
// round to the same coordinate form a run, and the squares stamped along a run make up one rectangle: a line
// of n runs is n rectangles. With d the length along the driving axis and m that along the other, step t lies
// in run k when floor(t * m / d + 1/2) = k, so run k starts at the first t with 2 * t * m >= (2k - 1) * d.

namespace amortix2 {

void DrawThickLine(Raster& raster, Point from, Point to, int radius, std::uint8_t colour) noexcept {
  const bool steep = std::abs(to.y - from.y) > std::abs(to.x - from.x);
  if (steep ? to.y < from.y : to.x < from.x) std::swap(from, to);
  const std::int64_t length = steep ? to.y - from.y : to.x - from.x;
  const std::int64_t rise = steep ? to.x - from.x : to.y - from.y;
  const std::int64_t runs = std::abs(rise);
  const int towards = rise < 0 ? -1 : 1;
  const int reach = radius - 1;

  std::int64_t start = 0;
  for (int run = 0; run <= runs; ++run) {
    // The first step of the next run: (2 * run + 1) * length / (2 * runs), rounded up.
    const std::int64_t next = run == runs ? length + 1 : ((2 * run + 1) * length + 2 * runs - 1) / (2 * runs);
    const int first = static_cast<int>(start) - reach;
    const int last = static_cast<int>(next) - 1 + reach;
    const int across = run * towards;
    if (steep) {
      raster.FillRectangle(from.x + across - reach, from.y + first, from.x + across + reach, from.y + last,
                           colour);
    } else {
      raster.FillRectangle(from.x + first, from.y + across - reach, from.x + last, from.y + across + reach,
                           colour);
    }
    start = next;
  }
}

}  // namespace amortix2
