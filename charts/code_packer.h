#pragma once

// The bit stream of a compressed GIF image: codes of varying width, packed least significant bit first, cut
// into sub-blocks that each start with their length. A sub-block is closed before the first code that finds
// 253 whole bytes in it, so full ones hold 253 or 254 bytes.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "amortix2/charts/byte_buffer.h"

namespace amortix2 {

class CodePacker {
 public:
  explicit CodePacker(ByteBuffer& out) : out_(out) {}

  /// Appends the lowest `width` bits of a code, 1 to 12; the code has no others.
  void Emit(unsigned code, int width) {
    if (length_ >= kFullBlock) CloseBlock();
    pending_ |= code << pendingBits_;  // at most 7 + 12 bits
    pendingBits_ += width;
    while (pendingBits_ >= 8) TakeByte();
  }

  /// Closes the last sub-block and appends the empty one that ends the stream.
  void Finish() {
    if (pendingBits_ > 0) TakeByte();
    if (length_ > 0) CloseBlock();
    out_.Append(std::uint8_t{0});
  }

 private:
  static constexpr std::size_t kFullBlock = 253;

  void TakeByte() {
    block_[++length_] = static_cast<std::uint8_t>(pending_ & 0xFF);
    pending_ >>= 8;
    pendingBits_ -= 8;
  }

  void CloseBlock() {
    block_[0] = static_cast<std::uint8_t>(length_);
    out_.Append(std::span(block_).first(length_ + 1));
    length_ = 0;
  }

  ByteBuffer& out_;
  std::array<std::uint8_t, 256> block_;  // the length, then up to 255 bytes
  std::size_t length_ = 0;
  unsigned pending_ = 0;
  int pendingBits_ = 0;  // the last byte's overhang is dropped, so it may end below 0
};

}  // namespace amortix2
