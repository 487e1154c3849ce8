#include "charts/gif_lzw.h"

#include <algorithm>
#include <array>
#include <cstddef>

// LZW replaces each string of pixels that it has met before by a code. A new string is always a known one,
// the prefix, and one pixel more, so the dictionary maps the pair (prefix, pixel) to a code. The encoder
// extends its prefix as long as the pair is known; then it emits the prefix, gives the pair the next free
// code and starts again from that pixel.
//
// A picture drawn in plain colours is mostly runs, and inside a run the pixel repeats the last one of the
// prefix. Such a pair is settled by its prefix alone: it has its place in a list by prefix, so that following
// a run is one look-up a pixel, without a hash. The other pairs live in an open-addressing table. Which of
// the two holds a pair does not show in the codes.
//
// Codes start one bit wider than the pixels and widen when the code just assigned does not fit any more. At
// 4096 codes the dictionary is given up: a clear code tells the decoder, and both start anew.

namespace amortix2 {
namespace {

using Code = std::uint16_t;

constexpr int kWidestCode = 12;
constexpr unsigned kCodeCount = 1U << kWidestCode;

// Packs codes and cuts them into sub-blocks. A sub-block is closed before the first code that finds 253 whole
// bytes in it.
class CodePacker {
 public:
  explicit CodePacker(ByteBuffer& out) : out_(out) {}

  void Emit(unsigned code, int width) {
    if (length_ >= kFullBlock) CloseBlock();
    pending_ |= code << pendingBits_;  // at most 7 + 12 bits
    pendingBits_ += width;
    while (pendingBits_ >= 8) TakeByte();
  }

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
  std::array<std::uint8_t, 256> block_;  // the length byte, then up to 255 bytes
  std::size_t length_ = 0;
  unsigned pending_ = 0;
  int pendingBits_ = 0;
};

// Maps (prefix, pixel) to a code. Look-ups return the pair's place, which holds 0 when the pair has no code
// yet.
class Dictionary {
 public:
  void Clear() {
    repeats_.fill(0);
    slots_.fill({});
  }

  // The prefix and once more its own last pixel.
  Code& FindRepeat(Code prefix) { return repeats_[prefix]; }

  Code& Find(Code prefix, std::uint8_t pixel) {
    const unsigned key = unsigned{prefix} << 8 | pixel;
    std::size_t at = ((std::size_t{pixel} << 5) ^ prefix) % kSlots;
    for (std::size_t step = 1; step < kSlots; step += 2) {
      Slot& slot = slots_[at];
      if (slot.code == 0) slot.key = key;
      if (slot.key == key) return slot.code;
      at += step;
      if (at >= kSlots) at -= kSlots;
    }
    // Growing steps reach half of the slots and would then repeat themselves. A pair that finds all of those
    // taken stays unknown to the encoder.
    nowhere_ = 0;
    return nowhere_;
  }

 private:
  static constexpr std::size_t kSlots = 5003;

  struct Slot {
    unsigned key = 0;
    Code code = 0;
  };

  std::array<Code, kCodeCount> repeats_;
  std::array<Slot, kSlots> slots_;
  Code nowhere_ = 0;
};

class Encoder {
 public:
  Encoder(int minimumCodeSize, ByteBuffer& out)
      : firstWidth_(minimumCodeSize + 1), width_(firstWidth_), packer_(out) {
    Restart();
  }

  void Encode(std::span<const std::uint8_t> pixels) {
    std::uint8_t last = pixels.front();
    Code prefix = last;
    for (const std::uint8_t pixel : pixels.subspan(1)) {
      Code& known = pixel == last ? dictionary_.FindRepeat(prefix) : dictionary_.Find(prefix, pixel);
      if (known != 0) {
        prefix = known;
      } else {
        packer_.Emit(prefix, width_);
        Assign(known);
        prefix = pixel;
      }
      last = pixel;
    }
    packer_.Emit(prefix, width_);
    packer_.Emit(ClearCode() + 1, width_);
    packer_.Finish();
  }

 private:
  unsigned ClearCode() const { return 1U << (firstWidth_ - 1); }

  void Restart() {
    packer_.Emit(ClearCode(), width_);
    width_ = firstWidth_;
    limit_ = 1U << width_;
    next_ = ClearCode() + 2;
    dictionary_.Clear();
  }

  // Gives the next free code, widens the codes, and starts anew when there was none left.
  void Assign(Code& place) {
    const unsigned assigned = next_;
    if (assigned < kCodeCount) place = static_cast<Code>(next_++);
    if (assigned != limit_) return;
    if (width_ == kWidestCode) return Restart();
    ++width_;
    limit_ *= 2;
  }

  int firstWidth_;
  int width_;
  unsigned limit_ = 0;
  unsigned next_ = 0;
  CodePacker packer_;
  Dictionary dictionary_;
};

}  // namespace

void AppendLzw(std::span<const std::uint8_t> pixels, int minimumCodeSize, ByteBuffer& out) {
  if (minimumCodeSize < 1 || minimumCodeSize > 9) return;
  minimumCodeSize = std::max(minimumCodeSize, 2);
  out.Append(static_cast<std::uint8_t>(minimumCodeSize));
  Encoder(minimumCodeSize, out).Encode(pixels);
}

}  // namespace amortix2
