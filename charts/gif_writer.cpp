#include "amortix2/charts/gif_writer.h"

#include <string_view>

#include "amortix2/charts/byte_buffer.h"
#include "amortix2/charts/gif_lzw.h"

// One function for each block, in the order of the file:
//
//   header          "GIF87a", screen width and height, flags, background, aspect ratio
//   colour table    the palette's components
//   image           ",", left, top, width, height, flags
//   data            minimum code size, sub-blocks, a sub-block of length 0
//   trailer         ";"

namespace amortix2 {
namespace {

constexpr std::uint8_t kScreenFlags =
    0xF7;                            // global colour table of 256 entries, 8 bits a component, not sorted
constexpr int kMinimumCodeSize = 8;  // pixels of 8 bits

void Append(const GifHeader& header, ByteBuffer& out) {
  out.Append(std::string_view(header.sig));
  out.Append(header.screenwidth);
  out.Append(header.screendepth);
  out.Append(header.flags);
  out.Append(header.background);
  out.Append(header.aspect);
}

void Append(const ImageBlock& image, ByteBuffer& out) {
  out.Append(std::string_view(","));
  out.Append(image.left);
  out.Append(image.top);
  out.Append(image.width);
  out.Append(image.depth);
  out.Append(image.flags);
}

}  // namespace

std::vector<std::uint8_t> EncodeGif(const Raster& raster, const Palette& palette) {
  ByteBuffer out;
  Append(GifHeader{.sig = "GIF87a",
                   .screenwidth = raster.Width(),
                   .screendepth = raster.Height(),
                   .flags = kScreenFlags},
         out);
  out.Append(palette.Values());
  Append(ImageBlock{.width = raster.Width(), .depth = raster.Height()}, out);
  AppendLzw(raster.Pixels(), kMinimumCodeSize, out);
  out.Append(std::string_view(";"));
  return out.Release();
}

}  // namespace amortix2
