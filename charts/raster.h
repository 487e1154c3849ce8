#pragma once

// A picture in memory: a raster of palette indices and the palette that gives them colours. Row 0 is the top
// row. Neither knows what is drawn or into which file format it goes.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"

namespace AMORTIX2_PUBLIC amortix2 {

class Raster {
 public:
  /// Pixels start as `colour`. Raises SubscriptOutOfRange when a dimension is below 1, OutOfMemory above 2^26
  /// pixels or when memory runs out.
  Raster(std::int16_t width, std::int16_t height, std::uint8_t colour);

  std::int16_t Width() const noexcept { return width_; }
  std::int16_t Height() const noexcept { return height_; }

  /// Row after row from the top, each from the left.
  std::span<const std::uint8_t> Pixels() const noexcept { return pixels_; }

  /// The pixel must lie inside the raster.
  void Set(std::int16_t x, std::int16_t y, std::uint8_t colour) noexcept { pixels_[Offset(x, y)] = colour; }

  /// Fills the rectangle between two corners, both inclusive; what lies outside the raster is left out.
  void FillRectangle(int left, int top, int right, int bottom, std::uint8_t colour) noexcept;

 private:
  std::size_t Offset(int x, int y) const noexcept {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }

  std::int16_t width_;
  std::int16_t height_;
  std::vector<std::uint8_t> pixels_;
};

struct Rgb {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;
};

/// Colours, each of some components 0 to 255; a well-formed one has 256 colours of red, green and blue, but
/// any table is kept as it was given.
class Palette {
 public:
  Palette(std::int32_t colours, std::int32_t components);

  /// Component after component, colour after colour.
  std::span<std::uint8_t> Values() noexcept { return values_; }
  std::span<const std::uint8_t> Values() const noexcept { return values_; }

  /// Replaces red, green and blue of a colour. Raises SubscriptOutOfRange when the palette has no such colour
  /// or fewer than three components.
  void Set(std::int32_t colour, Rgb rgb);

 private:
  std::int32_t colours_;
  std::int32_t components_;
  std::vector<std::uint8_t> values_;
};

/// A raster from a two-dimensional array of numbers 0 to 255, first index x, second y, both from 0.
/// A palette from a two-dimensional array of numbers 0 to 255, first index the colour, second its component.
/// Numbers are rounded half to even. Both raise TypeMismatch when there is no two-dimensional array or a cell
/// is no number, SubscriptOutOfRange for a lower bound other than 0, Overflow for a number outside 0 to 255;
/// a raster without pixels raises SubscriptOutOfRange, one of more than 32767 columns or rows Overflow.
Raster ReadRaster(const Variant& image);
Palette ReadPalette(const Variant& colours);

}  // namespace amortix2
