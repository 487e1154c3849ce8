#include "amortix2/charts/gif_writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <span>

#include "amortix2/automation/array.h"
#include "amortix2/charts/gif_chart.h"
#include "amortix2/charts/gif_lzw.h"
#include "charts/sample_rasters.h"
#include "support.h"

namespace amortix2 {
namespace {

using Bytes = std::vector<std::uint8_t>;

// The compression pixel by pixel as a textbook has it: a table of all pairs, one bit after the other. The
// sub-blocks are cut where the bit position reaches byte 253 before a code.
Bytes CompressSlowly(std::span<const std::uint8_t> pixels, unsigned minimumCodeSize) {
  Bytes out{static_cast<std::uint8_t>(minimumCodeSize)};
  std::vector<bool> bits;
  const auto flush = [&](std::size_t bytes) {
    out.push_back(static_cast<std::uint8_t>(bytes));
    for (std::size_t i = 0; i < bytes; ++i) {
      unsigned byte = 0;
      for (unsigned b = 0; b < 8; ++b) byte |= i * 8 + b < bits.size() && bits[i * 8 + b] ? 1U << b : 0;
      out.push_back(static_cast<std::uint8_t>(byte));
    }
    bits.erase(bits.begin(), bits.begin() + static_cast<std::ptrdiff_t>(std::min(bytes * 8, bits.size())));
  };
  const unsigned clear = 1U << minimumCodeSize;
  unsigned width = minimumCodeSize + 1;
  unsigned next = clear + 2;
  const auto emit = [&](unsigned code) {
    if (bits.size() / 8 >= 253) flush(bits.size() / 8);
    for (unsigned b = 0; b < width; ++b) bits.push_back((code >> b & 1) != 0);
  };
  std::vector<std::uint16_t> codes(std::size_t{4096} * 256);
  emit(clear);
  unsigned prefix = pixels[0];
  for (const unsigned pixel : pixels.subspan(1)) {
    std::uint16_t& known = codes[prefix * 256 + pixel];
    if (known != 0) {
      prefix = known;
      continue;
    }
    emit(prefix);
    const unsigned assigned = next;
    if (next <= 4095) known = static_cast<std::uint16_t>(next++);
    if (assigned == 1U << width && width == 12) {
      emit(clear);
      std::ranges::fill(codes, std::uint16_t{0});
      width = minimumCodeSize + 1;
      next = clear + 2;
    } else if (assigned == 1U << width) {
      ++width;
    }
    prefix = pixel;
  }
  emit(prefix);
  emit(clear + 1);
  flush((bits.size() + 7) / 8);
  out.push_back(0);
  return out;
}

Bytes Compress(std::span<const std::uint8_t> pixels, int minimumCodeSize) {
  ByteBuffer out;
  AppendLzw(pixels, minimumCodeSize, out);
  return out.Release();
}

TEST(GifLzw, AgreesWithTheTextbook) {
  for (const Sample& sample : Samples()) {
    const auto pixels = sample.raster.Pixels();
    if (std::ssize(pixels) > Cases(1'000'000, INT_MAX)) continue;
    EXPECT_TRUE(Compress(pixels, 8) == CompressSlowly(pixels, 8)) << sample.name;
  }
  for (unsigned size = 2; size <= 9; ++size) {
    for (const unsigned longestRun : {1U, 2U, 17U, 3000U}) {
      const Raster raster = Runs(250, 200, std::min(1U << size, 256U), longestRun);
      EXPECT_TRUE(Compress(raster.Pixels(), static_cast<int>(size)) == CompressSlowly(raster.Pixels(), size))
          << "minimum code size " << size << ", runs up to " << longestRun;
    }
  }
  const Bytes twoColours{0, 1, 1, 0};
  EXPECT_EQ(Compress(twoColours, 1), Compress(twoColours, 2));
  EXPECT_EQ(Compress(twoColours, 0), Bytes{});
  EXPECT_EQ(Compress(twoColours, 10), Bytes{});
}

TEST(GifLzw, EveryLengthOfTheLastBlock) {
  Bytes pixels;
  for (int i = 0; i < 900; ++i) {
    pixels.push_back(static_cast<std::uint8_t>(i * i % 251));
    ASSERT_EQ(Compress(pixels, 8), CompressSlowly(pixels, 8)) << pixels.size() << " pixels";
  }
}

TEST(GifWriter, BytesOfTwoPixels) {
  Palette palette(2, 3);
  palette.Set(0, {4, 5, 6});
  palette.Set(1, {10, 20, 30});
  const Bytes expected{'G', 'I', 'F',  '8',  '7',  'a',  2,    0, 1,  0, 0xF7, 0, 0,  // header
                       4,   5,   6,    10,   20,   30,                                // the palette as it is
                       ',', 0,   0,    0,    0,    2,    0,    1, 0,  0,              // image
                       8,   5,   0x00, 0x03, 0x08, 0x08, 0x08, 0, ';'};  // 256, 1, 2, 257 in 9 bits each
  EXPECT_EQ(EncodeGif(Paint(2, 1, [](int x, int) { return x + 1; }), palette), expected);
}

Variant Filled(Bounds first, Bounds second, const Variant& cell) {
  Array array(first, second);
  for (Variant& each : array.Cells()) each = cell;
  return array;
}

TEST(GifWriter, ReadsRastersAndPalettes) {
  Array cells({0, 1}, {0, 2});
  for (int i = 0; i < 6; ++i) cells.At(i / 3, i % 3) = std::string_view("1" + std::to_string(i));
  const Raster raster = ReadRaster(cells);
  EXPECT_EQ(Bytes({10, 13, 11, 14, 12, 15}), Bytes(raster.Pixels().begin(), raster.Pixels().end()));

  const struct {
    Variant table;
    ErrorNumber error;
  } rows[] = {
      {5, ErrorNumber::TypeMismatch},
      {Array(Bounds{0, 3}), ErrorNumber::TypeMismatch},
      {Filled({1, 2}, {0, 2}, 1), ErrorNumber::SubscriptOutOfRange},
      {Filled({0, 2}, {-1, 2}, 1), ErrorNumber::SubscriptOutOfRange},
      {Filled({0, 2}, {0, 2}, 255.5), ErrorNumber::Overflow},
      {Filled({0, 2}, {0, 2}, -0.6), ErrorNumber::Overflow},
      {Filled({0, 2}, {0, 2}, "red"), ErrorNumber::TypeMismatch},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ErrorOf([&] { ReadRaster(row.table); }), row.error) << "row " << &row - rows;
    EXPECT_EQ(ErrorOf([&] { ReadPalette(row.table); }), row.error) << "row " << &row - rows;
  }
  // With both bad the raster's error is the answer.
  EXPECT_EQ(ErrorOf([] {
              GifChart().writeGifFile("x", 5, Filled({1, 2}, {0, 2}, 1));
            }),
            ErrorNumber::TypeMismatch);
  EXPECT_EQ(ErrorOf([] { ReadRaster(Filled({0, -1}, {0, 2}, 1)); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(ErrorOf([] { ReadRaster(Filled({0, 32767}, {0, 0}, 1)); }), ErrorNumber::Overflow);
  EXPECT_EQ(ErrorOf([] { Raster(32767, 2049, 0); }), ErrorNumber::OutOfMemory);
  EXPECT_EQ(ErrorOf([] { Raster(5, -1, 0); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(Raster(32767, 2048, 9).Pixels().back(), 9);
}

}  // namespace
}  // namespace amortix2
