#pragma once

// The bytes of a file in the making. Each value is appended in the one form that the format knows for its
// type: a byte as itself, a 16-bit integer low byte first, a text as its characters. Any other type does not
// compile.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace amortix2 {

class ByteBuffer {
 public:
  ByteBuffer() { bytes_.reserve(kFirstCapacity); }

  void Append(std::uint8_t value) { bytes_.push_back(value); }
  void Append(std::int16_t value) {
    const auto bits = static_cast<std::uint16_t>(value);
    Append(static_cast<std::uint8_t>(bits & 0xFF));
    Append(static_cast<std::uint8_t>(bits >> 8));
  }
  void Append(std::string_view text) { bytes_.insert(bytes_.end(), text.begin(), text.end()); }
  void Append(std::span<const std::uint8_t> values) {
    bytes_.insert(bytes_.end(), values.begin(), values.end());
  }
  template <class Number>
  requires std::is_arithmetic_v<Number>
  void Append(Number) = delete;

  /// Hands the bytes over and leaves the buffer empty.
  std::vector<std::uint8_t> Release() { return std::exchange(bytes_, {}); }

 private:
  static constexpr std::size_t kFirstCapacity = 1024;

  std::vector<std::uint8_t> bytes_;
};

}  // namespace amortix2
