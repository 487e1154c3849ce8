#pragma once

// Character codes of the Windows code page for Western languages, 1252.

#include <string_view>

namespace amortix2 {

/// The code, 0 to 255, of the first character of a UTF-8 text that is not empty; that of "?" for a character
/// that the code page lacks.
int FirstAnsiCode(std::string_view text) noexcept;

}  // namespace amortix2
