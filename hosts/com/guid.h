#pragma once

// Identifiers in the platform's own form.

#include <array>
#include <string_view>

#include "amortix2/com/platform.h"

namespace amortix2::com {

/// An identifier of 36 characters without braces (com/identity.h).
constexpr GUID ToGuid(std::string_view text) noexcept {
  std::array<unsigned char, 16> bytes{};
  std::size_t digits = 0;
  for (const char c : text) {
    if (c == '-') continue;
    const int value = c >= 'a' ? c - 'a' + 10 : c - '0';
    unsigned char& byte = bytes[digits++ / 2];
    byte = static_cast<unsigned char>(byte * 16 + value);
  }
  GUID guid{};
  guid.Data1 = (DWORD{bytes[0]} << 24) | (DWORD{bytes[1]} << 16) | (DWORD{bytes[2]} << 8) | bytes[3];
  guid.Data2 = static_cast<WORD>(bytes[4] * 256 + bytes[5]);
  guid.Data3 = static_cast<WORD>(bytes[6] * 256 + bytes[7]);
  for (std::size_t i = 0; i < 8; ++i) guid.Data4[i] = bytes[8 + i];
  return guid;
}

}  // namespace amortix2::com
