#pragma once

// The compression of GIF images: pixels become LZW codes of growing width, packed least significant bit first
// into sub-blocks. One pass over the pixels, tables of fixed size, no allocation but for the result.

#include <cstdint>
#include <span>

#include "amortix2/charts/byte_buffer.h"

namespace amortix2 {

/// Appends the minimum code size, the sub-blocks and the block terminator. `pixels` holds at least one pixel,
/// each below 2 to the power of `minimumCodeSize`. A minimum code size of 1 is raised to 2; outside 1 to 9
/// nothing is appended. Data sub-blocks hold 253 or 254 bytes, the last one up to 255.
void AppendLzw(std::span<const std::uint8_t> pixels, int minimumCodeSize, ByteBuffer& out);

}  // namespace amortix2
