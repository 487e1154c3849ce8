#pragma once

// Bytes as base64 text, with padding, in one line.

#include <cstdint>
#include <span>
#include <string>

namespace amortix2::cli {

void AppendBase64(std::string& out, std::span<const std::uint8_t> bytes);

}  // namespace amortix2::cli
