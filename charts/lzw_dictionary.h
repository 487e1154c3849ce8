#pragma once

// The strings of pixels that an LZW encoder has met, each with its code. A new string is always a known one,
// the prefix, and one pixel more: what is stored are pairs (prefix, pixel). Codes below the clear code stand
// for single pixels and are known from the start.
//
// A picture drawn in plain colours is mostly runs, and inside a run the pixel repeats the last one of the
// prefix. Such a pair is settled by its prefix alone, so its code stands in a list by prefix, and a second
// list leads eight repetitions further, so that a run is followed without a hash and eight pixels at a time.
// All other pairs live in a table of open addressing. Which of them holds a pair does not show in the codes.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace amortix2 {

using LzwCode = std::uint16_t;

inline constexpr int kWidestLzwCode = 12;
inline constexpr unsigned kLzwCodeCount = 1U << kWidestLzwCode;

class LzwDictionary {
 public:
  LzwDictionary() { Clear(); }

  /// Forgets all pairs.
  void Clear() {
    slots_.fill(0);
    repeats_.fill(0);
    leaps_.fill(0);
    origins_.fill(kNone);
  }

  /// Extends `prefix`, the code of a string that ends just before pixel `at` (at least 1), for as long as it
  /// is known; returns the place of the first pixel that it leaves out, or the number of pixels. That pixel
  /// makes a pair without a code, which Add can give it.
  std::size_t Match(std::span<const std::uint8_t> pixels, std::size_t at, LzwCode& prefix) {
    while (at < pixels.size()) {
      const std::uint8_t pixel = pixels[at];
      missing_ = std::uint32_t{prefix} << 8 | pixel;
      if (pixel == pixels[at - 1]) {
        place_ = nullptr;
        if (repeats_[prefix] == 0) break;
        at = FollowRun(pixels, at, prefix);
      } else {
        place_ = Find(prefix, pixel);
        if (*place_ == 0) break;
        prefix = static_cast<LzwCode>(*place_ >> kKeyBits);
        ++at;
      }
    }
    return at;
  }

  /// Gives a code to the pair that ended the last match.
  void Add(LzwCode code) {
    if (place_ == nullptr) {
      AddRepeat(static_cast<LzwCode>(missing_ >> 8), code);
    } else {
      *place_ = std::uint32_t{code} << kKeyBits | missing_;
    }
  }

 private:
  static constexpr std::size_t kSlots = 5003;
  static constexpr int kKeyBits = 20;
  static constexpr std::uint32_t kKeyMask = (1U << kKeyBits) - 1;
  static constexpr std::size_t kLeap = 8;
  static constexpr LzwCode kNone = 0xFFFF;

  // The slot that holds the pair, or the empty one where it belongs.
  std::uint32_t* Find(LzwCode prefix, std::uint8_t pixel) {
    std::size_t at = ((std::size_t{pixel} << 5) ^ prefix) % kSlots;
    for (std::size_t step = 1; step < kSlots; step += 2) {
      std::uint32_t& slot = slots_[at];
      if (slot == 0 || (slot & kKeyMask) == missing_) return &slot;
      at += step;
      if (at >= kSlots) at -= kSlots;
    }
    // Growing steps reach half of the slots and would then repeat themselves. A pair that finds all of those
    // taken stays unknown.
    nowhere_ = 0;
    return &nowhere_;
  }

  std::size_t FollowRun(std::span<const std::uint8_t> pixels, std::size_t at, LzwCode& prefix) const {
    const std::uint8_t pixel = pixels[at];
    const std::uint64_t eight = 0x0101010101010101U * pixel;
    while (leaps_[prefix] != 0 && pixels.size() - at >= kLeap &&
           std::memcmp(&pixels[at], &eight, sizeof eight) == 0) {
      prefix = leaps_[prefix];
      at += kLeap;
    }
    while (repeats_[prefix] != 0 && at < pixels.size() && pixels[at] == pixel) {
      prefix = repeats_[prefix];
      ++at;
    }
    return at;
  }

  void AddRepeat(LzwCode prefix, LzwCode code) {
    repeats_[prefix] = code;
    origins_[code] = prefix;
    for (std::size_t step = 1; step < kLeap && prefix != kNone; ++step) prefix = origins_[prefix];
    if (prefix != kNone) leaps_[prefix] = code;
  }

  std::array<std::uint32_t, kSlots> slots_;     // 0, or code (12 bits), prefix (12 bits), pixel (8 bits)
  std::array<LzwCode, kLzwCodeCount> repeats_;  // the prefix and its last pixel once more; 0 when unknown
  std::array<LzwCode, kLzwCodeCount> leaps_;    // the same eight times more
  std::array<LzwCode, kLzwCodeCount> origins_;  // of a repetition: its prefix
  std::uint32_t missing_ = 0;                   // the pair looked up last: prefix (12 bits), pixel (8 bits)
  std::uint32_t* place_ = nullptr;              // its slot; null for a repetition
  std::uint32_t nowhere_ = 0;
};

}  // namespace amortix2
