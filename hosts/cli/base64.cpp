#include "amortix2/cli/base64.h"

namespace amortix2::cli {

void AppendBase64(std::string& out, std::span<const std::uint8_t> bytes) {
  constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t left = bytes.size() - i;
    const unsigned second = left > 1 ? bytes[i + 1] : 0u;
    const unsigned third = left > 2 ? bytes[i + 2] : 0u;
    const unsigned group = bytes[i] * 0x10000u + second * 0x100u + third;
    out += kDigits[group >> 18];
    out += kDigits[group >> 12 & 63];
    out += left > 1 ? kDigits[group >> 6 & 63] : '=';
    out += left > 2 ? kDigits[group & 63] : '=';
  }
}

}  // namespace amortix2::cli
