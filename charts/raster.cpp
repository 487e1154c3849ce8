#include "amortix2/charts/raster.h"

#include <algorithm>
#include <new>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"

namespace amortix2 {
namespace {

constexpr std::int64_t kMostPixels = std::int64_t{1} << 26;

std::vector<std::uint8_t> Allocate(std::int64_t count, std::uint8_t value) {
  try {
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(count), value);
    return bytes;
  } catch (const std::bad_alloc&) {
    Raise(ErrorNumber::OutOfMemory);
  }
}

std::int64_t CheckedPixelCount(std::int16_t width, std::int16_t height) {
  if (width < 1 || height < 1) Raise(ErrorNumber::SubscriptOutOfRange);
  const std::int64_t count = std::int64_t{width} * height;
  if (count > kMostPixels) Raise(ErrorNumber::OutOfMemory);
  return count;
}

const Array& TwoDimensional(const Variant& table) {
  const Array& array = table.GetArray();
  if (array.Rank() != 2) Raise(ErrorNumber::TypeMismatch);
  if (array.Dimension(1).lower != 0 || array.Dimension(2).lower != 0) Raise(ErrorNumber::SubscriptOutOfRange);
  return array;
}

std::int32_t Count(const Array& array, int dimension) { return array.Dimension(dimension).upper + 1; }

std::uint8_t ReadByte(const Variant& cell) { return ToByte(ToDouble(cell)); }

}  // namespace

Raster::Raster(std::int16_t width, std::int16_t height, std::uint8_t colour)
    : width_(width), height_(height), pixels_(Allocate(CheckedPixelCount(width, height), colour)) {}

void Raster::FillRectangle(int left, int top, int right, int bottom, std::uint8_t colour) noexcept {
  left = std::max(left, 0);
  top = std::max(top, 0);
  right = std::min(right, width_ - 1);
  bottom = std::min(bottom, height_ - 1);
  if (left > right) return;
  for (int y = top; y <= bottom; ++y) std::fill_n(&pixels_[Offset(left, y)], right - left + 1, colour);
}

Palette::Palette(std::int32_t colours, std::int32_t components)
    : colours_(colours), components_(components), values_(Allocate(std::int64_t{colours} * components, 0)) {}

void Palette::Set(std::int32_t colour, Rgb rgb) {
  if (colour < 0 || colour >= colours_ || components_ < 3) Raise(ErrorNumber::SubscriptOutOfRange);
  const auto first = values_.begin() + std::ptrdiff_t{colour} * components_;
  first[0] = rgb.red;
  first[1] = rgb.green;
  first[2] = rgb.blue;
}

Raster ReadRaster(const Variant& image) {
  const Array& array = TwoDimensional(image);
  Raster raster(ToInteger(Count(array, 1)), ToInteger(Count(array, 2)), 0);
  auto cell = array.Cells().begin();
  for (std::int16_t x = 0; x < raster.Width(); ++x) {
    for (std::int16_t y = 0; y < raster.Height(); ++y) raster.Set(x, y, ReadByte(*cell++));
  }
  return raster;
}

Palette ReadPalette(const Variant& colours) {
  const Array& array = TwoDimensional(colours);
  Palette palette(Count(array, 1), Count(array, 2));
  std::ranges::transform(array.Cells(), palette.Values().begin(), ReadByte);
  return palette;
}

}  // namespace amortix2
