#pragma once

// GIF87a images in memory: a raster and its palette become the bytes of a file with one global colour table
// and one image. Reads nothing back and touches no file. The header always announces 256 colours; the palette
// goes out exactly as it is, so that 256 colours of three components make a well-formed file.

#include <cstdint>
#include <string>
#include <vector>

#include "amortix2/automation/public.h"
#include "amortix2/charts/raster.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// The start of a GIF file: signature and logical screen.
struct GifHeader {
  std::string sig;               ///< signature and version, "GIF87a"
  std::int16_t screenwidth = 0;  ///< pixels
  std::int16_t screendepth = 0;  ///< height of the logical screen, pixels
  std::uint8_t flags = 0;        ///< colour table present, colour resolution, sorted, colour table size
  std::uint8_t background = 0;   ///< index of the background colour
  std::uint8_t aspect = 0;       ///< pixel aspect ratio, 0 for none given
};

/// The place of an image on the logical screen.
struct ImageBlock {
  std::int16_t left = 0;   ///< pixels
  std::int16_t top = 0;    ///< pixels
  std::int16_t width = 0;  ///< pixels
  std::int16_t depth = 0;  ///< height of the image, pixels
  std::uint8_t flags = 0;  ///< local colour table, interlacing
};

/// The whole file. Its layout is described in docs/gif.md.
std::vector<std::uint8_t> EncodeGif(const Raster& raster, const Palette& palette);

}  // namespace amortix2
