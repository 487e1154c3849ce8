#include "amortix2/charts/gif_lzw.h"

#include <algorithm>

#include "amortix2/charts/code_packer.h"
#include "amortix2/charts/lzw_dictionary.h"

// LZW replaces each string of pixels that it has met before by a code. The encoder matches the longest known
// string, emits its code, gives that string with the next pixel the next free code, and starts again from
// that pixel.
//
// Codes start one bit wider than the pixels and widen when the code just assigned does not fit any more. Once
// all 4096 codes are given away, the next string that is not known ends the dictionary: a clear code tells
// the decoder, and both start anew.

namespace amortix2 {
namespace {

class Encoder {
 public:
  Encoder(int minimumCodeSize, ByteBuffer& out) : firstWidth_(minimumCodeSize + 1), packer_(out) {}

  void Encode(std::span<const std::uint8_t> pixels) {
    StartCodes();
    packer_.Emit(ClearCode(), width_);
    LzwCode prefix = pixels.front();
    for (std::size_t at = 1; (at = dictionary_.Match(pixels, at, prefix)) < pixels.size(); ++at) {
      packer_.Emit(prefix, width_);
      AssignCode();
      prefix = pixels[at];
    }
    packer_.Emit(prefix, width_);
    packer_.Emit(EndCode(), width_);
    packer_.Finish();
  }

 private:
  unsigned ClearCode() const { return 1U << (firstWidth_ - 1); }
  unsigned EndCode() const { return ClearCode() + 1; }

  void StartCodes() {
    width_ = firstWidth_;
    next_ = EndCode() + 1;
  }

  void AssignCode() {
    const bool fits = next_ < 1U << width_;
    if (next_ < kLzwCodeCount) dictionary_.Add(static_cast<LzwCode>(next_++));
    if (fits) return;
    if (width_ < kWidestLzwCode) {
      ++width_;
    } else {
      packer_.Emit(ClearCode(), width_);
      dictionary_.Clear();
      StartCodes();
    }
  }

  int firstWidth_;
  int width_ = 0;
  unsigned next_ = 0;  // the next free code, up to 4096 when there is none left
  CodePacker packer_;
  LzwDictionary dictionary_;
};

}  // namespace

void AppendLzw(std::span<const std::uint8_t> pixels, int minimumCodeSize, ByteBuffer& out) {
  if (minimumCodeSize < 1 || minimumCodeSize > 9) return;
  minimumCodeSize = std::max(minimumCodeSize, 2);
  out.Append(static_cast<std::uint8_t>(minimumCodeSize));
  Encoder(minimumCodeSize, out).Encode(pixels);
}

}  // namespace amortix2
